#pragma once

#include "app/VolbaTabulky.h"
#include "platform/Dialogs.h"
#include "platform/Drive.h"
#include "spreadsheet/SpreadsheetApplication.h"
#include "spreadsheet/journal/JournalFolder.h"

#include <QRect>

#include <memory>

namespace zvonika {

/// LibreOffice Calc as the program's spreadsheet, with what the user sees while it starts or lets him wait.
class TabulkaLibreOffice {
public:
    /// `nastaveni`: Calc's own store; `profily`: native folder for the profiles of Zvonika's office;
    /// `zaznamy`: where recovery journals are kept.
    TabulkaLibreOffice(Drive& drive, Dialogs& dialogs, std::unique_ptr<SettingsStore> nastaveni,
                       const QString& profily, JournalFolder zaznamy);
    ~TabulkaLibreOffice();

    /// Where Calc's windows come up, in logical pixels, frame not included: Calc does not know its size then.
    void nastavMisto(const QRect& misto) { misto_ = misto; }
    /// Starts an instance; until `spusteno` a sign of progress is on the screen.
    std::unique_ptr<SpreadsheetApplication> spust();
    void spusteno();

private:
    void posun();

    Drive& drive_;
    Dialogs& dialogs_;
    std::unique_ptr<SettingsStore> nastaveni_;
    QString profily_;
    JournalFolder zaznamy_;
    QRect misto_;
    struct Prubeh;
    std::unique_ptr<Prubeh> prubeh_;
};

/// What there is of LibreOffice on this machine.
NabidkaTabulky nabidkaLibreOffice();

} // namespace zvonika
