#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"

#include <QString>

#include <vector>

namespace zvonika {

struct CellChange {
    CellPosition cell;
    CellValue before; ///< what it showed
    CellValue after;
    bool wasFormula = false; ///< before: taking back brings the formula, not only the value it showed
};

/// One thing that the user did, as he would take it back: cells changed, or one row put in or taken out.
struct UndoStep {
    enum class Kind { Cells, InsertRow, DeleteRow };
    Kind kind = Kind::Cells;
    QString label;                   ///< for the menu: "Psaní", "Vložení" ...
    int sheet = 1;                   ///< from 1
    int row = 0;                     ///< the row put in or taken out
    std::vector<CellChange> changes; ///< cells changed, or what stood in the row taken out (as `before`)
};

/// What the user did and can take back, newest last. What the program writes is not in it, and ends what was
/// there before, so taking back never undoes a recorded grip.
class History {
public:
    static constexpr std::size_t longest = 200; ///< steps kept

    /// Ends what could be done again.
    void add(UndoStep step);

    /// The step to take back (do again), moved to the other side; nullptr when there is none. Valid until the
    /// next call.
    const UndoStep* back();
    const UndoStep* again();

    /// False when there was nothing.
    bool clear();
    /// What was done, which somebody else is going to keep.
    std::vector<UndoStep> take();

    QString backLabel() const;  ///< "" when nothing can be taken back
    QString againLabel() const; ///< "" when nothing can be done again

private:
    std::vector<UndoStep> done_;   ///< newest last
    std::vector<UndoStep> undone_; ///< next to be done again last
};

} // namespace zvonika
