#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"

#include <QString>

#include <optional>
#include <variant>
#include <vector>

namespace zvonika {

/// A cell that was changed.
struct CellTurned {
    QString sheet;
    CellPosition cell;
    CellValue before; ///< what it showed
    CellValue after;
    friend bool operator==(const CellTurned&, const CellTurned&) = default;
};

/// A whole row put in or taken out; those behind it have moved.
struct RowMoved {
    QString sheet;
    int row = 1;
    bool inserted = true;
    std::vector<CellTurned> contents; ///< of the row taken out; their `after` is empty
    /// What stands in its place as long as it is not there, likewise; nothing where that is not known.
    std::optional<std::vector<CellTurned>> without = {};
    friend bool operator==(const RowMoved&, const RowMoved&) = default;
};

/// One thing that was done in a workbook, as it is taken back: its parts from the last to the first.
struct WorkStep {
    QString label; ///< for a menu: "Psaní", "Zápis hmatu 2" ...
    std::vector<std::variant<CellTurned, RowMoved>> parts;
    friend bool operator==(const WorkStep&, const WorkStep&) = default;
};

/// The list of what can be taken back in the workbooks that the program works on. A spreadsheet in whose own
/// window steps are taken back hands over what the user did there, and leaves the taking back to this list;
/// so there is one order of what the program wrote and what the user typed. Called on the user-interface
/// thread.
class StepKeeper {
public:
    virtual ~StepKeeper() = default;

    /// False: the workbook is none of the program's, and its steps are the spreadsheet's own.
    virtual bool keeps(const QString& workbook) const = 0;
    /// The user has done this in the active workbook, which is kept. Comes at once, before the listener hears
    /// of it, and also within a call of the port that takes over what he was typing: calls nothing of the
    /// port but `stepsChanged`.
    virtual void done(WorkStep step) = 0;
    virtual QString undoLabel() const = 0; ///< "" when there is nothing to take back
    virtual QString redoLabel() const = 0; ///< "" when there is nothing to do again
    /// Take back (do again) the last step. Questions and failures are the keeper's to show. Called outside of
    /// any call of the port.
    virtual void undo() = 0;
    virtual void redo() = 0;
};

} // namespace zvonika
