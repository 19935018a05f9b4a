#include "spreadsheet/xls/book/WorkbookModel.h"

#include "spreadsheet/xls/FormatError.h"

#include <algorithm>
#include <numeric>

namespace zvonika::xls {

namespace {

/// Sheet numbers in the order of their substreams.
std::vector<std::size_t> byPosition(const std::vector<SheetEntry>& sheets) {
    std::vector<std::size_t> order(sheets.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return sheets[i].position; });
    return order;
}

void requireWorksheet(const Globals& globals) {
    if (std::ranges::any_of(globals.sheets, &SheetEntry::isWorksheet)) return;
    throw FormatError(Refusal::Damaged, "BoundSheet", globals.eof, "a worksheet", "none");
}

} // namespace

WorkbookModel::WorkbookModel(ByteView bytes) : stream(bytes), globals(readGlobals(stream)) {
    requireWorksheet(globals);
    if (globals.sst != absent) strings = SharedStrings(stream, globals.sst);
    layouts.resize(globals.sheets.size());
    std::uint32_t end = globals.eof;
    for (const std::size_t i : byPosition(globals.sheets)) {
        const SheetEntry& entry = globals.sheets[i];
        if (!entry.hasSubstream()) continue;
        // Sheets that share bytes would be read many times over.
        if (entry.position <= end)
            throw FormatError(Refusal::Damaged, "BoundSheet", entry.record,
                              "a sheet behind offset " + std::to_string(end), std::to_string(entry.position));
        layouts[i] = readSheetLayout(stream, entry, strings.size());
        end = layouts[i].eof;
    }
}

} // namespace zvonika::xls
