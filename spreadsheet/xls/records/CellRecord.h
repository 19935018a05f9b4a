#pragma once

#include "spreadsheet/xls/records/Record.h"

#include <array>
#include <cstdint>
#include <optional>

namespace zvonika::xls {

/// Row and column as one number that sorts like reading order.
using CellKey = std::uint32_t;

constexpr CellKey cellKey(std::uint32_t row, std::uint32_t column) {
    return (row << 8) | column;
}
constexpr std::uint32_t rowOf(CellKey key) {
    return key >> 8;
}
constexpr std::uint32_t columnOf(CellKey key) {
    return key & 0xFF;
}

/// Columns a cell record covers; more than one in MulRk and MulBlank.
struct ColumnRun {
    std::uint32_t first = 0;
    std::uint32_t count = 1;
};

/// Row of a cell record. The record has passed checkedColumns.
inline std::uint32_t cellRow(const Record& record) {
    return record.u16(0);
}

/// Checks the record's length and columns. Throws FormatError (Damaged).
ColumnRun checkedColumns(const Record& record);
/// Index of the XF record that formats the cell in `column` of this cell record.
std::uint16_t cellFormat(const Record& record, std::uint32_t column);

/// What a cell is changed to. A text is an index whose meaning is the holder's: of a pool or of the shared
/// strings.
struct CellContent {
    enum class Kind : std::uint8_t { Blank, Number, Bool, Error, Text };
    Kind kind = Kind::Blank;
    std::uint8_t code = 0; ///< truth value or error code
    std::uint32_t text = 0;
    double number = 0;
};

/// A cell record of at most 18 bytes, without an allocation.
struct SmallRecord {
    std::array<std::uint8_t, 18> bytes{};
    std::uint8_t size = 0;
    ByteView view() const { return {bytes.data(), size}; }
};

/// The record for a cell; `content.text` is an index into the shared strings. Numbers become Rk where that
/// loses no bit.
SmallRecord encodeCell(CellKey key, std::uint16_t format, const CellContent& content);

/// For a Formula record that stands for a shared formula, an array or a data table: the cell that holds it.
struct FormulaAnchor {
    CellKey key = 0;
    bool isTable = false;
};
std::optional<FormulaAnchor> formulaAnchor(const Record& formula);
/// Offset within the payload of the row of a formula's anchor; the column follows it.
constexpr std::size_t formulaAnchorAt = 23;

} // namespace zvonika::xls
