#pragma once

#include "app/CastiProgramu.h"
#include "app/Spusteni.h"
#include "app/VolbaTabulky.h"
#include "playing/song/PuvodniCesta.h"
#include "spreadsheet/SpreadsheetApplication.h"

namespace zvonika {

/// The start and the end of a run of the program.
class BehProgramu {
public:
    /// `posluchac`: hears what the user does in the sheet, from the start to the end.
    BehProgramu(const CastiProgramu& casti, SpreadsheetListener& posluchac)
        : c_(casti), posluchac_(posluchac) {}

    /// The start-up, once more with another spreadsheet program where the chosen one does not start and the
    /// user wants so. False when it was cut short by an error, which has been reported.
    bool spust();
    /// The shutdown, which reports its errors itself.
    void Form_Unload();

private:
    bool Form_Load(const SpreadsheetLauncher& spoustec);
    PuvodniCesta puvodniCesta() const;
    bool chceNahradniTabulku() const;
    KrokySpusteni krokySpusteni(const SpreadsheetLauncher& spoustec);

    CastiProgramu c_;
    SpreadsheetListener& posluchac_;
    Tabulka tabulka_ = Tabulka::Vestavena; ///< the spreadsheet program that was started last
};

} // namespace zvonika
