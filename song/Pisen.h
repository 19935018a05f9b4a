#pragma once

#include "spreadsheet/SpreadsheetApplication.h"

namespace zvonika {

/// The song of the running program: the one application object and the names that every routine shares.
struct Pisen {
    std::unique_ptr<SpreadsheetApplication> aplikaceExcel; ///< null before start-up and after shutdown
    QString aktualniPisen;      ///< file name of the song's workbook; "" when no song is open
    QString plneJmeno;          ///< its full name as it was given; "" where nobody knows it
    QString cilovyListNazev;    ///< a second workbook, for bass tables; normally ""
    QString puvodniCestaExcelu; ///< the application's default folder before the program changed it

    /// The application, for reading only or for everything; AutomationError 91 when there is none.
    const SpreadsheetApplication& excel() const;
    SpreadsheetApplication& excel();
    /// Brings the song's window to the front; false, silently, when it is not open.
    bool AktivujPisen();
    /// Saves the active workbook. Where the application refuses (1004) and no cell was changed, nothing is
    /// lost and nothing is raised.
    void ulozAktivni();
    bool otevrena() const { return !aktualniPisen.isEmpty(); }
};

} // namespace zvonika
