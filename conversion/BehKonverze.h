#pragma once

#include "conversion/StavKonverze.h"
#include "conversion/ZtratyKonverze.h"
#include "conversion/clsKonverze.h"

#include <functional>
#include <optional>
#include <utility>

namespace zvonika {

/// Why a run has ended.
enum class KonecBehu {
    Dokoncen,      ///< the song has ended; the active cell is the empty one that was met
    ZmenaStupnice, ///< the user wants to choose another target for the next section
    Storno,
    BezLadeni, ///< the row's key is not written; told to the user
    Zastaven   ///< between two rows, by `poRadku`
};

/// Rewrites the rows of the copy, cell by cell from the active cell on. The current key is
/// `StavKonverze::lblStupnice`. Throws AutomationError.
class BehKonverze {
public:
    struct Okoli {
        Pisen& pisen;
        Dialogs& dialogs;
        clsKonverze& konverze;
        StavKonverze& stav;
        ZtratyKonverze& ztraty;
        /// Told of every row that is done; false stops the run there.
        std::function<bool(int radek)> poRadku;
    };

    BehKonverze(const Okoli& okoli, const QString& cilova) : o_(okoli), cilova_(cilova) {}

    KonecBehu odZacatku();
    /// Goes on with the active cell, whose key is known already.
    KonecBehu odAktivniBunky();

private:
    std::optional<KonecBehu> prevedBunku();
    std::optional<KonecBehu> overStupnici();
    std::optional<KonecBehu> posunVpravo();
    bool lzePreskocit() const;
    void zaznamenejPrazdnou();
    void zaznamenejZtratu(const CellValue& puvodni, const QString& novy);
    SpreadsheetApplication& excel() { return o_.pisen.excel(); }
    const SpreadsheetApplication& excel() const { return std::as_const(o_.pisen).excel(); }

    Okoli o_;
    QString cilova_;
    QString adresa_; ///< of the cell being converted
};

} // namespace zvonika
