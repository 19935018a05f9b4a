#pragma once

#include "platform/Dialogs.h"
#include "song/SongSheet.h"

namespace zvonika {

/// Conversion of basses through the tables of a second workbook (`Pisen::cilovyListNazev`): one sheet per
/// tuning, the basses of a push in F1:F17, those of a pull in G1:G17. A conversion run leaves basses alone.
class KonverzeBasu {
public:
    KonverzeBasu(Pisen& pisen, Dialogs& dialogs) : pisen_(pisen), dialogs_(dialogs) {}

    /// Converts the seven basses M to S of the current row. `smer`: "Tah" or "Tlak"; `list`: sheet of the
    /// target tuning. False when the conversion dialog is to be closed; the reason has been told. Throws
    /// AutomationError.
    bool KonvertujBasy(const QString& smer, const QString& list);

    /// Brings the workbook with the tables to the front where it is open. Always true.
    bool AktivujZdroj();

private:
    bool konvertujBas(const QString& oblast, const QString& list);
    bool najdiBas(const QString& bas);
    CellValue protejsek(const QString& list);

    Pisen& pisen_;
    Dialogs& dialogs_;
};

} // namespace zvonika
