#include "spreadsheet/xls/book/SheetSettings.h"

namespace zvonika::xls {

namespace {

constexpr std::uint32_t unitsPerCharacter = 256;
constexpr std::uint32_t usualWidth = 8 * unitsPerCharacter;
constexpr std::uint8_t onlyPane = 3;

std::optional<Record> colInfo(ByteView stream, const SheetLayout& layout, std::uint32_t column) {
    for (const std::uint32_t offset : layout.colInfos) {
        const Record record = recordAt(stream, offset);
        if (record.u16(0) <= column && column <= record.u16(2)) return record;
    }
    return std::nullopt;
}

} // namespace

std::uint32_t columnWidth(ByteView stream, const SheetLayout& layout, std::uint32_t column) {
    if (const auto info = colInfo(stream, layout, column)) return info->u16(4);
    if (layout.standardWidth != absent) return recordAt(stream, layout.standardWidth).u16(0);
    if (layout.defColWidth != absent) return recordAt(stream, layout.defColWidth).u16(0) * unitsPerCharacter;
    return usualWidth;
}

std::optional<std::uint16_t> columnFormat(ByteView stream, const SheetLayout& layout, std::uint32_t column) {
    const auto info = colInfo(stream, layout, column);
    return info ? std::optional(info->u16(6)) : std::nullopt;
}

std::uint32_t activeSelection(ByteView stream, const SheetLayout& layout) {
    const std::uint8_t pane = layout.pane == absent ? onlyPane : recordAt(stream, layout.pane).u8(8);
    for (const std::uint32_t offset : layout.selections)
        if (recordAt(stream, offset).u8(0) == pane) return offset;
    return layout.selections.empty() ? absent : layout.selections.front();
}

CellKey activeCell(ByteView stream, const SheetLayout& layout) {
    const std::uint32_t offset = activeSelection(stream, layout);
    if (offset == absent) return cellKey(0, 0);
    const Record selection = recordAt(stream, offset);
    return cellKey(selection.u16(1), selection.u16(3) & 0xFF);
}

} // namespace zvonika::xls
