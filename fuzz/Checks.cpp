#include "fuzz/Checks.h"

#include "spreadsheet/xls/container/CompoundFile.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <utility>

namespace zvonika::fuzz {

using namespace xls;

namespace {

void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

template <typename T, typename Action>
std::optional<T> unlessRefused(Action action) {
    try {
        return action();
    } catch (const FormatError& refusal) {
        require(!refusal.place().empty() && !refusal.expected().empty() && !refusal.found().empty(),
                "a refusal names place, expected and found");
        return std::nullopt;
    }
}

bool same(const Value& a, const Value& b) {
    const double* x = std::get_if<double>(&a);
    const double* y = std::get_if<double>(&b);
    return x && y ? std::memcmp(x, y, sizeof *x) == 0 : a == b;
}

/// A corner of the sheet and its far edges: enough to go through every kind of record.
std::vector<CellRef> sample(const Workbook& book, int sheet) {
    std::vector<CellRef> cells;
    const int rows = book.usedRows(sheet), columns = book.usedColumns(sheet);
    for (int row = 0; row < std::min(rows + 1, 40); ++row)
        for (int column = 0; column < std::min(columns + 1, 12); ++column)
            cells.push_back({row, column});
    cells.push_back({std::max(rows - 1, 0), std::max(columns - 1, 0)});
    return cells;
}

using Listing = std::vector<std::pair<CellRef, Value>>;

Listing listing(const Workbook& book, int sheet) {
    Listing listing;
    for (const CellRef cell : sample(book, sheet)) {
        listing.emplace_back(cell, book.value(sheet, cell));
        book.isFormula(sheet, cell);
    }
    return listing;
}

void checkReading(const Workbook& book, int sheet) {
    const int rows = book.usedRows(sheet), columns = book.usedColumns(sheet);
    book.forEachValue(sheet, [&](CellRef cell, const Value& value) {
        require(cell.row < rows && cell.column < columns, "values lie within the used range");
        require(same(value, book.value(sheet, cell)), "both ways of reading a cell agree");
    });
}

/// Writes into cells here and there; what belongs to an array is refused and nothing else.
void change(Workbook& book, int sheet) {
    const Value values[] = {std::u16string(u"ř\xD834\xDD1E"), 0.1, 17.0, true, std::monostate(),
                            std::u16string(300, u'x')};
    std::size_t turn = static_cast<std::size_t>(sheet);
    for (const CellRef cell :
         {CellRef{0, 0}, {0, 1}, {1, 3}, {2, 0}, {5, 2}, {31, 1}, {32, 1}, {33, 9}, {200, 0}})
        try {
            book.setValue(sheet, cell, values[turn++ % std::size(values)]);
        } catch (const std::invalid_argument&) {
            require(book.arrayAround(sheet, cell).has_value(), "only parts of an array are refused");
        }
    book.setValue(sheet, {300, 3}, 1.5);
    book.restoreCell(sheet, {300, 3});
    book.setColumnWidth(sheet, 1, 999);
    book.setActiveCell(sheet, {5, 1});
}

void checkChanges(Workbook book) {
    const int sheets = std::min(book.sheetCount(), 3);
    for (int sheet = 0; sheet < sheets; ++sheet)
        change(book, sheet);
    book.setActiveSheet(book.sheetCount() - 1);
    const Workbook again = Workbook::open(book.save());
    for (int sheet = 0; sheet < sheets; ++sheet) {
        require(again.usedRows(sheet) == book.usedRows(sheet), "the used rows are kept");
        for (const auto& [cell, value] : listing(book, sheet))
            require(same(again.value(sheet, cell), value), "every cell is kept");
    }
    require(again.activeSheet() == book.activeSheet() || again.activeSheet() == 0,
            "the active sheet is kept");
}

} // namespace

void checkFile(const Bytes& file) {
    auto book = unlessRefused<Workbook>([&] { return Workbook::open(file); });
    if (!book) return;
    require(book->save() == file, "a save without a change gives the bytes that were read");
    for (int sheet = 0; sheet < book->sheetCount(); ++sheet) {
        checkReading(*book, sheet);
        book->columnWidth(sheet, 3);
        book->sheetName(sheet);
    }
    checkChanges(std::move(*book));
}

void checkContainer(const Bytes& file) {
    const auto container = unlessRefused<CompoundFile>([&] { return CompoundFile(file); });
    if (!container) return;
    for (const char* name : {"Workbook", "Book", "\x05SummaryInformation"}) {
        const auto entry = container->findStream(name);
        if (!entry) continue;
        const auto read = [&] { return container->readStream(*entry); };
        if (!unlessRefused<Bytes>(read)) continue;
        for (const std::size_t size : {std::size_t{100}, std::size_t{5000}, std::size_t{70000}}) {
            const Bytes contents(size, 0x5A);
            const auto replace = [&] { return container->withStream(*entry, contents); };
            const auto replaced = unlessRefused<Bytes>(replace);
            require(replaced.has_value(), "a stream that can be read can be replaced");
            Bytes again = CompoundFile(*replaced).readStream(*entry);
            again.resize(size);
            require(again == contents, "a replaced stream is read back");
        }
    }
}

} // namespace zvonika::fuzz
