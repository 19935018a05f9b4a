#pragma once

#include "platform/SettingsStore.h"

#include <QString>
#include <QVector>

namespace zvonika {

/// The spreadsheet programs that songs can be kept open in, by the number that the settings hold.
enum class Tabulka { Vestavena = 0, LibreOffice = 1, Excel = 2 };

/// One of them, as the user is told of it.
struct NabidkaTabulky {
    Tabulka tabulka = Tabulka::Vestavena;
    QString nazev;
    QString popis;
    QString prekazka; ///< why it cannot be used here: one sentence; "" when it can
};

/// The choice of the spreadsheet program, which holds from the next start on. It stands apart from the
/// settings that the start-up reads into one byte.
class VolbaTabulky {
public:
    explicit VolbaTabulky(SettingsStore& nastaveni) : nastaveni_(nastaveni) {}

    /// The stored choice; the built-in spreadsheet where nothing or nothing known is stored.
    Tabulka zvolena() const;
    void zvol(Tabulka tabulka);

private:
    SettingsStore& nastaveni_;
};

NabidkaTabulky nabidkaVestavene();

} // namespace zvonika
