#include "spreadsheet/xls/writer/SettingsPatch.h"

#include "spreadsheet/xls/book/SheetSettings.h"
#include "spreadsheet/xls/strings/UnicodeText.h"

#include <algorithm>

namespace zvonika::xls {

namespace {

constexpr std::uint16_t columnHidden = 0x0001;
constexpr std::uint16_t columnUserSet = 0x0002;
constexpr std::uint8_t onlyPane = 3;
constexpr std::size_t windowFlagsAt = 0;
constexpr std::uint16_t windowSelected = 0x0200;
constexpr std::uint16_t windowActive = 0x0400;
constexpr std::size_t window1ActiveSheetAt = 10;
constexpr std::size_t window1SelectedSheetsAt = 14;

using Widths = std::map<std::uint32_t, std::uint32_t>;
using Payload = std::vector<std::uint8_t>;

Payload withColumns(Payload payload, std::uint32_t first, std::uint32_t last) {
    store16(payload.data(), first);
    store16(payload.data() + 2, last);
    return payload;
}

Payload withWidth(Payload payload, std::uint32_t width) {
    store16(payload.data() + 4, width);
    const std::uint16_t flags = load16(payload.data() + 8) & static_cast<std::uint16_t>(~columnHidden);
    store16(payload.data() + 8, flags | columnUserSet | (width == 0 ? columnHidden : 0));
    return payload;
}

/// The ColInfo record with some of its columns changed, as a row of records.
std::vector<std::uint8_t> splitColInfo(const Record& info, const Widths& widths) {
    const Payload payload(info.payload.begin(), info.payload.end());
    std::vector<std::uint8_t> out;
    std::uint32_t next = info.u16(0);
    const std::uint32_t last = info.u16(2);
    for (const auto& [column, width] : widths) {
        if (next < column) appendRecord(out, RecordType::ColInfo, withColumns(payload, next, column - 1));
        appendRecord(out, RecordType::ColInfo, withWidth(withColumns(payload, column, column), width));
        next = column + 1;
    }
    if (next <= last) appendRecord(out, RecordType::ColInfo, withColumns(payload, next, last));
    return out;
}

std::uint32_t newColInfoPosition(ByteView stream, const SheetLayout& layout, std::uint32_t column) {
    std::uint32_t position =
        layout.defColWidth != absent ? recordAt(stream, layout.defColWidth).end() : absent;
    for (const std::uint32_t offset : layout.colInfos) {
        const Record info = recordAt(stream, offset);
        if (info.u16(0) > column) return offset;
        position = info.end();
    }
    if (position != absent) return position;
    return layout.dimensions != absent ? layout.dimensions : layout.tablePosition();
}

void insertColInfo(ByteView stream, const SheetLayout& layout, std::uint16_t format, std::uint32_t column,
                   std::uint32_t width, PatchList& patches) {
    Payload payload(12);
    store16(&payload[6], format);
    std::vector<std::uint8_t> record;
    appendRecord(record, RecordType::ColInfo, withWidth(withColumns(payload, column, column), width));
    // Before any Row record that would stand at the same place in a sheet of few records.
    patches.insert(newColInfoPosition(stream, layout, column), record, InsertOrder::CellTail);
}

void patchWindowFlags(ByteView stream, const SheetLayout& layout, bool active, PatchList& patches) {
    if (layout.window2 == absent) return;
    const std::uint32_t old = recordAt(stream, layout.window2).u16(windowFlagsAt);
    constexpr std::uint32_t both = windowSelected | windowActive;
    const std::uint32_t fresh = active ? old | both : old & ~both;
    if (fresh == old) return;
    std::uint8_t bytes[2];
    store16(bytes, fresh);
    patches.replace(static_cast<std::uint32_t>(layout.window2 + recordHeaderSize + windowFlagsAt), 2, bytes);
}

Payload selectionPayload(std::uint8_t pane, CellKey cell) {
    Payload payload{pane};
    append16(payload, rowOf(cell));
    append16(payload, columnOf(cell));
    append16(payload, 0);
    append16(payload, 1);
    append16(payload, rowOf(cell));
    append16(payload, rowOf(cell));
    payload.push_back(static_cast<std::uint8_t>(columnOf(cell)));
    payload.push_back(static_cast<std::uint8_t>(columnOf(cell)));
    return payload;
}

} // namespace

void patchColumnWidths(ByteView stream, const SheetLayout& layout, std::uint16_t defaultFormat,
                       const Widths& widths, PatchList& patches) {
    std::map<std::uint32_t, Widths> byRecord;
    for (const auto& [column, width] : widths) {
        const auto covers = [&, c = column](std::uint32_t offset) {
            const Record info = recordAt(stream, offset);
            return info.u16(0) <= c && c <= info.u16(2);
        };
        const auto info = std::ranges::find_if(layout.colInfos, covers);
        if (info != layout.colInfos.end())
            byRecord[*info][column] = width;
        else
            insertColInfo(stream, layout, defaultFormat, column, width, patches);
    }
    for (const auto& [offset, changed] : byRecord) {
        const Record info = recordAt(stream, offset);
        patches.replace(offset, info.end() - offset, splitColInfo(info, changed));
    }
}

void patchActiveCell(ByteView stream, const SheetLayout& layout, CellKey cell, PatchList& patches) {
    std::vector<std::uint8_t> record;
    if (const std::uint32_t offset = activeSelection(stream, layout); offset != absent) {
        const Record old = recordAt(stream, offset);
        appendRecord(record, RecordType::Selection, selectionPayload(old.u8(0), cell));
        return patches.replace(offset, old.end() - offset, record);
    }
    const std::uint32_t view = std::max({layout.window2, layout.scl, layout.pane});
    if (layout.window2 == absent) return;
    const std::uint8_t pane = layout.pane == absent ? onlyPane : recordAt(stream, layout.pane).u8(8);
    appendRecord(record, RecordType::Selection, selectionPayload(pane, cell));
    patches.insert(recordAt(stream, view).end(), record);
}

void patchActiveSheet(const WorkbookModel& model, std::uint32_t sheet, PatchList& patches) {
    if (model.globals.window1 != absent) {
        const Record window = recordAt(model.stream, model.globals.window1);
        std::vector<std::uint8_t> payload(window.payload.begin(), window.payload.end());
        store16(&payload[window1ActiveSheetAt], sheet);
        if (payload.size() >= window1SelectedSheetsAt + 2) store16(&payload[window1SelectedSheetsAt], 1);
        patches.replace(static_cast<std::uint32_t>(window.offset + recordHeaderSize),
                        static_cast<std::uint32_t>(payload.size()), payload);
    }
    for (std::uint32_t i = 0; i < model.layouts.size(); ++i)
        patchWindowFlags(model.stream, model.layouts[i], i == sheet, patches);
}

void patchSheetName(ByteView stream, const SheetEntry& sheet, const std::u16string& name,
                    PatchList& patches) {
    const Record old = recordAt(stream, sheet.record);
    Payload payload(old.payload.begin(), old.payload.begin() + 6);
    appendShortText(payload, name);
    std::vector<std::uint8_t> record;
    appendRecord(record, RecordType::BoundSheet, payload);
    patches.replace(old.offset, old.end() - old.offset, record);
}

} // namespace zvonika::xls
