#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"

#include <QString>

namespace zvonika {

// What every spreadsheet of the program refuses with the same words. Each of these throws AutomationError
// with one Czech sentence for the user; the number is 1004 where no other is named.

[[noreturn]] void refuse(const QString& sentence);
[[noreturn]] void refuse(int number, const QString& sentence);

[[noreturn]] void refuseNoWorkbook();                         ///< 91: no workbook is open
[[noreturn]] void refuseUnknownWorkbook(const QString& name); ///< 9: none of that name is open
/// Another workbook of this file name is open, and two of a name cannot be.
[[noreturn]] void refuseTwin(const QString& name);
[[noreturn]] void refuseUnknownSheet(int index);           ///< 9
[[noreturn]] void refuseUnknownSheet(const QString& name); ///< 9
[[noreturn]] void refuseNextSheet();                       ///< 91: behind the last sheet
[[noreturn]] void refuseNothingFound();                    ///< 91

/// The cells of an address ("B7", "B1:B500"); refuses what is no address.
CellRange cellsAt(const QString& address);
/// The row itself; 1004 where the sheet has none of that number.
int rowAt(int row);
/// The range itself; refuses one of more cells than are handed over in one call (1,048,576).
CellRange handedOver(const CellRange& range);
/// The cell so many rows and columns away; refuses the way over the edge of the sheet.
CellPosition movedBy(CellPosition from, int rows, int columns);
/// Refuses to paste when nothing was copied.
void requireCopied(const CellBlock& clipboard);

} // namespace zvonika
