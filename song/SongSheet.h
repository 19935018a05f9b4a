#pragma once

#include "song/Grip.h"
#include "song/SloupceRadku.h"
#include "spreadsheet/SpreadsheetApplication.h"

#include <QVector>

namespace zvonika {

/// The song of the running program: the one application object and the names that every routine shares.
struct Pisen {
    std::unique_ptr<SpreadsheetApplication> aplikaceExcel; ///< null before start-up and after shutdown
    QString aktualniPisen;      ///< file name of the song's workbook; "" when no song is open
    QString cilovyListNazev;    ///< a second workbook, for bass tables; normally ""
    QString puvodniCestaExcelu; ///< the application's default folder before the program changed it

    /// The application; AutomationError 91 when there is none.
    SpreadsheetApplication& excel() const;
    /// Brings the song's window to the front; false, silently, when it is not open.
    bool AktivujPisen() const;
    bool otevrena() const { return !aktualniPisen.isEmpty(); }
};

/// The song's rows in their fixed layout, read and written through the application's active sheet.
/// Rows count from 1. Every call may throw AutomationError.
class SongSheet {
public:
    explicit SongSheet(const Pisen& pisen) : pisen_(pisen) {}

    /// `pocet` consecutive rows from `prvni` in one call to the application; rows beyond the edge of the
    /// sheet are empty grips.
    QVector<Grip> gripy(int prvni, int pocet) const;

    SmerMechu smer(int radek) const; ///< the row's direction alone
    int aktualniRadek() const;
    /// Selects column B of the active cell's row.
    void VyberBunkuB() const;
    void vyberRadek(int radek) const; ///< column B of that row

private:
    const Pisen& pisen_;
};

} // namespace zvonika
