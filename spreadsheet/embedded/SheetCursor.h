#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/xls/Workbook.h"

#include <QObject>

#include <vector>

namespace zvonika {

/// What is selected on a sheet: a rectangle, and in it the active cell.
struct Selection {
    CellRange range;
    CellPosition active;
    friend bool operator==(const Selection&, const Selection&) = default;
};

/// The active sheet of a workbook and what is selected on each sheet, which remembers its own. Sheets count
/// from 1; one that does not exist, and a place beyond the edge, is a caller's error (std::out_of_range).
class SheetCursor : public QObject {
    Q_OBJECT

public:
    /// As the file of the workbook has it.
    explicit SheetCursor(const xls::Workbook& book);
    void storeIn(xls::Workbook& book) const;

    int activeSheet() const { return activeSheet_; }
    void activateSheet(int sheet);
    Selection selection() const { return selection(activeSheet_); }
    Selection selection(int sheet) const;
    /// Selects on the active sheet; `active` must lie in `range`.
    void select(const CellRange& range, CellPosition active);
    void select(CellPosition cell) { select(single(cell), cell); }

Q_SIGNALS:
    void sheetActivated();   ///< comes before `selectionChanged`
    void selectionChanged(); ///< of the active sheet

private:
    void requireSheet(int sheet) const;

    std::vector<Selection> selections_; ///< one per sheet
    int activeSheet_ = 1;
};

} // namespace zvonika
