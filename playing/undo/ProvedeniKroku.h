#pragma once

#include "playing/undo/SeznamKroku.h"
#include "playing/undo/ZmenyBunek.h"
#include "spreadsheet/SpreadsheetApplication.h"

#include <QStringList>

#include <optional>

namespace zvonika {

/// What is written as long as this lives belongs together, see `SpreadsheetApplication::beginStep`.
class JedenKrok {
public:
    explicit JedenKrok(SpreadsheetApplication& excel) : excel_(excel) { excel_.beginStep(); }
    ~JedenKrok() { excel_.endStep(); }
    JedenKrok(const JedenKrok&) = delete;
    JedenKrok& operator=(const JedenKrok&) = delete;

private:
    SpreadsheetApplication& excel_;
};

/// Carries out one step in the active workbook, back or again. A step that moves a row of a sheet does
/// nothing else there. Selects the sheets that it needs. May throw AutomationError.
class ProvedeniKroku {
public:
    ProvedeniKroku(SpreadsheetApplication& excel, const WorkStep& krok, SmerKroku smer);

    /// The cells that hold neither what the step has left there nor what it is going to put there, in words
    /// and not all of them; empty where there are none. 9 where a sheet is no more.
    QStringList zmeneneBunky();
    /// Writes; cells that hold their value already are left alone. What was carried out before a failure
    /// `provedeno` tells.
    void proved();
    std::size_t provedeno() const { return provedeno_; } ///< parts of the step

    /// Back to the sheet that was active at first.
    void vratList() { vyber(puvodniList_); }
    /// Where it is seen: in the sheet that was active at first where the step has changed it.
    QString list() const;
    CellRange misto() const; ///< all cells in that sheet, whole rows where it has moved one

private:
    /// Parts that are carried out at once: cells of one sheet, or one row.
    struct Usek {
        QString list;
        std::vector<CellTurned> bunky;
        std::optional<RowMoved> radek;
        std::size_t casti = 0;
        HodnotyBunek ted = {}; ///< of `bunky`, where they were read
    };
    void rozdel(const WorkStep& krok);
    void vyber(const QString& list);
    void pridejZmenene(Usek& usek, QStringList& zmenene);
    void proved(Usek& usek);
    void posunRadky(const RowMoved& radek);
    void zapis(const HodnotyBunek& bunky);
    HodnotyBunek cti(const HodnotyBunek& bunky) const;
    bool vlozi(const RowMoved& radek) const { return radek.inserted == (smer_ == SmerKroku::Znovu); }

    SpreadsheetApplication& excel_;
    SmerKroku smer_;
    std::vector<Usek> useky_; ///< in the order in which they are carried out
    QString puvodniList_;
    QString aktivniList_;
    std::size_t provedeno_ = 0;
};

} // namespace zvonika
