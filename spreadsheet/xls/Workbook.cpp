#include "spreadsheet/xls/Workbook.h"

#include "spreadsheet/xls/biff5/Translation.h"
#include "spreadsheet/xls/book/BlankWorkbook.h"
#include "spreadsheet/xls/book/BookStream.h"
#include "spreadsheet/xls/book/CellReader.h"
#include "spreadsheet/xls/book/SheetSettings.h"
#include "spreadsheet/xls/book/SheetUse.h"
#include "spreadsheet/xls/book/Version.h"
#include "spreadsheet/xls/book/WorkbookModel.h"
#include "spreadsheet/xls/container/CompoundFile.h"
#include "spreadsheet/xls/container/FileKind.h"
#include "spreadsheet/xls/writer/SharedFormulas.h"
#include "spreadsheet/xls/writer/WorkbookWriter.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>
#include <vector>

namespace zvonika::xls {

namespace {

constexpr std::size_t maxTextUnits = 32767;
constexpr std::size_t maxNameUnits = 31;
constexpr int maxColumnWidth = 65535;
constexpr const char* streamName = "Workbook";
constexpr std::uint8_t numberError = 0x24; // #NUM!

void requireName(const std::u16string& name) {
    constexpr std::u16string_view forbidden = u":\\/?*[]";
    if (name.empty() || name.size() > maxNameUnits)
        throw std::invalid_argument("a sheet name has 1 to 31 characters");
    if (name.find_first_of(forbidden) != std::u16string::npos)
        throw std::invalid_argument("a sheet name has none of : \\ / ? * [ ]");
    if (name.front() == u'\'' || name.back() == u'\'')
        throw std::invalid_argument("a sheet name neither begins nor ends with an apostrophe");
}

bool sameName(const std::u16string& a, const std::u16string& b) {
    const auto lower = [](char16_t c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c; };
    return std::ranges::equal(a, b, {}, lower, lower);
}

CellKey keyOf(CellRef cell) {
    if (cell.row < 0 || cell.row >= maxRows || cell.column < 0 || cell.column >= maxColumns)
        throw std::out_of_range("cell outside the sheet");
    return cellKey(static_cast<std::uint32_t>(cell.row), static_cast<std::uint32_t>(cell.column));
}

CellRef refOf(CellKey key) {
    return {static_cast<int>(rowOf(key)), static_cast<int>(columnOf(key))};
}

/// Like ==, but tells -0.0 from 0.0 and knows a NaN again.
bool sameValue(const Value& a, const Value& b) {
    const double* x = std::get_if<double>(&a);
    const double* y = std::get_if<double>(&b);
    return x && y ? std::bit_cast<std::uint64_t>(*x) == std::bit_cast<std::uint64_t>(*y) : a == b;
}

CellContent numberContent(double number) {
    if (std::isfinite(number)) return {CellContent::Kind::Number, 0, 0, number};
    return {CellContent::Kind::Error, numberError, 0, 0};
}

} // namespace

struct Workbook::Impl {
    Impl(CompoundFile file, BookStream book, Version fileVersion, bool isNew)
        : container(std::move(file)), stream(std::move(book)), version(fileVersion), created(isNew),
          model(stream.bytes()) {
        edits.sheets.resize(model.globals.sheets.size());
        for (std::size_t i = 0; i < model.globals.sheets.size(); ++i)
            if (model.globals.sheets[i].isWorksheet()) worksheets.push_back(i);
        uses.resize(model.globals.sheets.size());
    }

    std::size_t sheet(int index) const {
        if (index < 0 || static_cast<std::size_t>(index) >= worksheets.size())
            throw std::out_of_range("no such worksheet");
        return worksheets[static_cast<std::size_t>(index)];
    }

    const std::u16string& name(std::size_t sheet) const {
        const auto& fresh = edits.sheets[sheet].name;
        return fresh ? *fresh : model.globals.sheets[sheet].name;
    }

    Value fileValue(std::size_t sheet, CellKey key) const {
        const CellSlot* slot = model.layouts[sheet].findCell(key);
        Value value;
        if (slot) readCell(model.stream, model.strings, *slot, value);
        return value;
    }

    Value contentValue(const CellContent& content) const {
        switch (content.kind) {
        case CellContent::Kind::Number:
            return content.number;
        case CellContent::Kind::Bool:
            return content.code != 0;
        case CellContent::Kind::Error:
            return ErrorValue{content.code};
        case CellContent::Kind::Text:
            return edits.texts.text(content.text);
        case CellContent::Kind::Blank:
            break;
        }
        return std::monostate();
    }

    CellContent content(const Value& value) {
        if (const auto* number = std::get_if<double>(&value)) return numberContent(*number);
        if (const auto* truth = std::get_if<bool>(&value)) return {CellContent::Kind::Bool, *truth, 0, 0};
        if (const auto* error = std::get_if<ErrorValue>(&value))
            return {CellContent::Kind::Error, error->code, 0, 0};
        if (const auto* text = std::get_if<std::u16string>(&value))
            return {CellContent::Kind::Text, 0, edits.texts.intern(*text), 0};
        return {};
    }

    bool isFileFormula(std::size_t sheet, CellKey key) const {
        const CellSlot* slot = model.layouts[sheet].findCell(key);
        return slot && recordAt(model.stream, slot->record).isFormula();
    }

    std::uint32_t fileActiveSheet() const {
        if (model.globals.window1 == absent) return 0;
        return recordAt(model.stream, model.globals.window1).u16(10);
    }

    const UsedRange& use(std::size_t sheet) const {
        return uses[sheet].range(model.stream, model.layouts[sheet], edits.sheets[sheet]);
    }

    CompoundFile container;
    BookStream stream; ///< as BIFF8, may look into `container`
    Version version;   ///< of the file
    bool created;
    WorkbookModel model;
    WorkbookEdits edits;
    std::vector<std::size_t> worksheets; ///< indexes among model.globals.sheets
    mutable std::vector<SheetUse> uses;
};

Workbook::Workbook(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Workbook::Workbook(Workbook&&) noexcept = default;
Workbook& Workbook::operator=(Workbook&&) noexcept = default;
Workbook::~Workbook() = default;

Workbook Workbook::create(const std::u16string& sheetName) {
    requireName(sheetName);
    CompoundFile container = CompoundFile::withEmptyStream(streamName);
    BookStream book = findBookStream(container);
    book.replace(blankWorkbookStream(sheetName));
    return Workbook(std::make_unique<Impl>(std::move(container), std::move(book), Version::Biff8, true));
}

Workbook Workbook::open(Bytes file) {
    CompoundFile container(std::move(file));
    BookStream book = findBookStream(container);
    const Version version = readVersion(book.bytes());
    if (version == Version::Biff5) book.replace(translateBiff5(book.bytes()));
    return Workbook(std::make_unique<Impl>(std::move(container), std::move(book), version, false));
}

void Workbook::checkHead(std::span<const std::uint8_t> head, std::size_t fileSize) {
    requireCompoundFile(head, fileSize);
}

Bytes Workbook::save() const {
    return image().bytes();
}

FileImage Workbook::image() const {
    if (!isModified()) return FileImage(impl_->container.bytes());
    auto stream = std::make_shared<PatchedStream>(writeWorkbook(impl_->model, impl_->edits));
    // Older programs look for their version under the older name, and some newer ones judge by it.
    const char* name = isOldFormat() ? streamName : "";
    return impl_->container.imageWith(impl_->stream.entry(), std::move(stream), name);
}

int Workbook::sheetCount() const {
    return static_cast<int>(impl_->worksheets.size());
}

std::u16string Workbook::sheetName(int sheet) const {
    return impl_->name(impl_->sheet(sheet));
}

bool Workbook::isSheetHidden(int sheet) const {
    return impl_->model.globals.sheets[impl_->sheet(sheet)].hidden;
}

void Workbook::renameSheet(int sheet, const std::u16string& name) {
    const std::size_t index = impl_->sheet(sheet);
    requireName(name);
    for (std::size_t i = 0; i < impl_->edits.sheets.size(); ++i)
        if (i != index && sameName(impl_->name(i), name))
            throw std::invalid_argument("another sheet has this name");
    auto& fresh = impl_->edits.sheets[index].name;
    fresh = name;
    if (name == impl_->model.globals.sheets[index].name) fresh.reset();
}

Value Workbook::value(int sheet, CellRef cell) const {
    const std::size_t index = impl_->sheet(sheet);
    const CellKey key = keyOf(cell);
    const auto& cells = impl_->edits.sheets[index].cells;
    if (cells.empty()) return impl_->fileValue(index, key);
    const auto changed = cells.find(key);
    return changed != cells.end() ? impl_->contentValue(changed->second) : impl_->fileValue(index, key);
}

void Workbook::forEachValue(int sheet, const std::function<void(CellRef, const Value&)>& visit) const {
    const std::size_t index = impl_->sheet(sheet);
    std::vector<CellKey> changed;
    for (const auto& [key, content] : impl_->edits.sheets[index].cells)
        changed.push_back(key);
    std::ranges::sort(changed);
    const auto show = [&](CellKey key, const Value& value) {
        if (value.index() != 0) visit(refOf(key), value);
    };
    auto edit = changed.begin();
    const auto showEdits = [&](CellKey end) {
        for (; edit != changed.end() && *edit < end; ++edit)
            show(*edit, impl_->contentValue(impl_->edits.sheets[index].cells.at(*edit)));
    };
    const auto& cells = impl_->model.layouts[index].cells;
    Value value;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const CellKey key = cells[i].key;
        if (i + 1 < cells.size() && cells[i + 1].key == key) continue; // of duplicates the last counts
        showEdits(key);
        if (edit != changed.end() && *edit == key) continue;
        readCell(impl_->model.stream, impl_->model.strings, cells[i], value);
        show(key, value);
    }
    showEdits(static_cast<CellKey>(-1));
}

void Workbook::setValue(int sheet, CellRef cell, const Value& value) {
    const std::size_t index = impl_->sheet(sheet);
    const CellKey key = keyOf(cell);
    const SheetLayout& layout = impl_->model.layouts[index];
    const auto* text = std::get_if<std::u16string>(&value);
    if (text && text->size() > maxTextUnits)
        throw std::invalid_argument("a cell holds at most 32767 characters");
    if (xls::arrayAround(impl_->model.stream, layout, key))
        throw std::invalid_argument("a part of an array formula or data table cannot be changed");
    auto& cells = impl_->edits.sheets[index].cells;
    if (!impl_->isFileFormula(index, key) && sameValue(value, impl_->fileValue(index, key)))
        cells.erase(key);
    else
        cells[key] = impl_->content(value);
    impl_->uses[index].changed(key, !std::holds_alternative<std::monostate>(value));
}

bool Workbook::isFormula(int sheet, CellRef cell) const {
    const std::size_t index = impl_->sheet(sheet);
    const CellKey key = keyOf(cell);
    return !impl_->edits.sheets[index].cells.contains(key) && impl_->isFileFormula(index, key);
}

void Workbook::restoreCell(int sheet, CellRef cell) {
    const std::size_t index = impl_->sheet(sheet);
    const CellKey key = keyOf(cell);
    if (impl_->edits.sheets[index].cells.erase(key) == 0) return;
    impl_->uses[index].changed(key, !std::holds_alternative<std::monostate>(impl_->fileValue(index, key)));
}

std::optional<CellSpan> Workbook::arrayAround(int sheet, CellRef cell) const {
    const std::size_t index = impl_->sheet(sheet);
    const auto span = xls::arrayAround(impl_->model.stream, impl_->model.layouts[index], keyOf(cell));
    return span ? std::optional(CellSpan{refOf(span->first), refOf(span->last)}) : std::nullopt;
}

int Workbook::usedRows(int sheet) const {
    return static_cast<int>(impl_->use(impl_->sheet(sheet)).rows);
}

int Workbook::usedColumns(int sheet) const {
    return static_cast<int>(impl_->use(impl_->sheet(sheet)).columns);
}

int Workbook::columnWidth(int sheet, int column) const {
    const std::size_t index = impl_->sheet(sheet);
    const std::uint32_t key = columnOf(keyOf({0, column}));
    const auto& widths = impl_->edits.sheets[index].widths;
    const auto changed = widths.find(key);
    if (changed != widths.end()) return static_cast<int>(changed->second);
    return static_cast<int>(xls::columnWidth(impl_->model.stream, impl_->model.layouts[index], key));
}

void Workbook::setColumnWidth(int sheet, int column, int width) {
    const std::size_t index = impl_->sheet(sheet);
    const std::uint32_t key = columnOf(keyOf({0, column}));
    const auto fresh = static_cast<std::uint32_t>(std::clamp(width, 0, maxColumnWidth));
    auto& widths = impl_->edits.sheets[index].widths;
    widths.erase(key);
    if (fresh != xls::columnWidth(impl_->model.stream, impl_->model.layouts[index], key)) widths[key] = fresh;
}

int Workbook::activeSheet() const {
    const std::size_t active = impl_->edits.activeSheet.value_or(impl_->fileActiveSheet());
    const auto found = std::ranges::find(impl_->worksheets, active);
    return found == impl_->worksheets.end() ? 0 : static_cast<int>(found - impl_->worksheets.begin());
}

void Workbook::setActiveSheet(int sheet) {
    const auto index = static_cast<std::uint32_t>(impl_->sheet(sheet));
    if (impl_->model.globals.window1 == absent) return;
    // The file may name a chart sheet or one that is not there: no reason to change an unchanged file.
    if (!isModified() && sheet == activeSheet()) return;
    impl_->edits.activeSheet = index;
    if (index == impl_->fileActiveSheet()) impl_->edits.activeSheet.reset();
}

CellRef Workbook::activeCell(int sheet) const {
    const std::size_t index = impl_->sheet(sheet);
    const auto& changed = impl_->edits.sheets[index].activeCell;
    const CellKey key =
        changed ? *changed : xls::activeCell(impl_->model.stream, impl_->model.layouts[index]);
    return refOf(key);
}

void Workbook::setActiveCell(int sheet, CellRef cell) {
    const std::size_t index = impl_->sheet(sheet);
    const CellKey key = keyOf(cell);
    auto& changed = impl_->edits.sheets[index].activeCell;
    changed = key;
    if (key == xls::activeCell(impl_->model.stream, impl_->model.layouts[index])) changed.reset();
}

bool Workbook::isModified() const {
    const WorkbookEdits& edits = impl_->edits;
    return impl_->created || edits.activeSheet || !std::ranges::all_of(edits.sheets, &SheetEdits::empty);
}

bool Workbook::isOldFormat() const {
    return impl_->version != Version::Biff8;
}

} // namespace zvonika::xls
