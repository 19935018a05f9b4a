#pragma once

#include <QString>

#include <optional>

namespace zvonika {

constexpr int lastRow = 65536;  ///< rows of a sheet
constexpr int lastColumn = 256; ///< columns of a sheet, "A" to "IV"

/// A cell of a sheet; row and column count from 1.
struct CellPosition {
    int row = 1;
    int column = 1;
    friend bool operator==(const CellPosition&, const CellPosition&) = default;
};

/// A rectangle of cells, both corners included; `first` is the upper left one.
struct CellRange {
    CellPosition first;
    CellPosition last;

    int rows() const { return last.row - first.row + 1; }
    int columns() const { return last.column - first.column + 1; }
    bool contains(CellPosition cell) const;
    friend bool operator==(const CellRange&, const CellRange&) = default;
};

inline CellRange single(CellPosition cell) {
    return {cell, cell};
}
bool isOnSheet(CellPosition cell);

/// The range between two opposite corners, given in any order.
CellRange spanning(CellPosition one, CellPosition other);
/// The range of that size with `first` as its upper left corner, cut at the edges of the sheet.
CellRange sized(CellPosition first, int rows, int columns);

/// Reads an address in A1 form, letters of either case, "$" anywhere it may stand: "B7", "$B$1", "B1:B500",
/// "B:D", "3:7". Corners may come in any order. Nothing when it is no address or lies beyond the edge of the
/// sheet.
std::optional<CellRange> parseAddress(QStringView address);

QString columnLetters(int column);               ///< 1 = "A", 256 = "IV"
QString absoluteAddress(CellPosition cell);      ///< "$B$1"
QString absoluteAddress(const CellRange& range); ///< "$B$1:$C$2"; "$B$1" for a single cell

} // namespace zvonika
