#include "song/embedded/Document.h"

#include "platform/RuntimeError.h"
#include "song/embedded/CellEntry.h"
#include "song/embedded/FileSentences.h"
#include "song/embedded/WorkbookFile.h"
#include "song/embedded/XlsValue.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace zvonika {

namespace {

constexpr double widthUnits = 256.0; ///< of the file format in one character
constexpr double widestColumn = 255.0;

xls::CellRef ref(CellPosition cell) {
    return {cell.row - 1, cell.column - 1};
}

[[noreturn]] void refuse(const QString& sentence) {
    throw RuntimeError(error::applicationDefined, sentence);
}

} // namespace

Document::Document(const QString& name)
    : book_(xls::Workbook::create(u"List1")), name_(name), selections_(1) {}

Document::Document(xls::Workbook book, const QString& path, FileLock lock)
    : book_(std::move(book)), name_(QFileInfo(path).fileName()), path_(path), lock_(std::move(lock)) {
    readCursor();
}

Document::~Document() = default;

std::unique_ptr<Document> Document::open(const QString& nativePath) {
    FileLock lock = FileLock::acquire(nativePath);
    xls::Workbook book = readWorkbook(nativePath);
    if (book.sheetCount() == 0) refuse(openRefused(nativePath, xls::Refusal::Damaged));
    return std::unique_ptr<Document>(new Document(std::move(book), nativePath, std::move(lock)));
}

void Document::readCursor() {
    for (int sheet = 0; sheet < book_.sheetCount(); ++sheet) {
        const auto cell = book_.activeCell(sheet);
        const CellPosition active{cell.row + 1, cell.column + 1};
        selections_.push_back({single(active), active});
    }
    activeSheet_ = std::clamp(book_.activeSheet() + 1, 1, book_.sheetCount());
}

void Document::writeCursor() {
    for (int sheet = 1; sheet <= sheetCount(); ++sheet)
        book_.setActiveCell(sheet - 1, ref(selection(sheet).active));
    book_.setActiveSheet(activeSheet_ - 1);
}

bool Document::isConverted() const {
    return book_.isOldFormat();
}

void Document::save() {
    refusingToSave(path_, [this] { writeCursor(); });
    writeWorkbook(path_, book_);
    setModified(false);
}

void Document::saveAs(const QString& nativePath) {
    const bool sameFile = !path_.isEmpty() && FileLock::lockName(nativePath) == FileLock::lockName(path_);
    FileLock lock = sameFile ? std::move(lock_) : FileLock::acquire(nativePath);
    try {
        refusingToSave(nativePath, [this] { writeCursor(); });
        writeWorkbook(nativePath, book_);
    } catch (...) {
        if (sameFile) lock_ = std::move(lock);
        throw;
    }
    lock_ = std::move(lock);
    takePath(nativePath);
    setModified(false);
}

void Document::takePath(const QString& nativePath) {
    path_ = nativePath;
    name_ = QFileInfo(nativePath).fileName();
    Q_EMIT nameChanged();
}

int Document::sheetCount() const {
    return book_.sheetCount();
}

void Document::requireSheet(int sheet) const {
    if (sheet < 1 || sheet > sheetCount()) throw std::out_of_range("no such sheet");
}

QString Document::sheetName(int sheet) const {
    return QString::fromStdU16String(book_.sheetName(sheet - 1));
}

void Document::activateSheet(int sheet) {
    requireSheet(sheet);
    if (sheet == activeSheet_) return;
    activeSheet_ = sheet;
    Q_EMIT sheetsChanged();
    Q_EMIT selectionChanged();
}

void Document::renameSheet(int sheet, const QString& name) {
    if (name == sheetName(sheet)) return;
    try {
        book_.renameSheet(sheet - 1, name.toStdU16String());
    } catch (const std::invalid_argument&) {
        refuse(QStringLiteral(
                   "Jméno listu „%1“ nelze použít: má mít 1 až 31 znaků, žádný z nich : \\ / ? * [ ], "
                   "a v sešitu smí být jen jednou.")
                   .arg(name));
    }
    setModified(true);
    Q_EMIT sheetsChanged();
}

Selection Document::selection(int sheet) const {
    requireSheet(sheet);
    return selections_[static_cast<std::size_t>(sheet - 1)];
}

void Document::select(const CellRange& range, CellPosition active) {
    if (!isOnSheet(range.first) || !isOnSheet(range.last) || !range.contains(active))
        throw std::out_of_range("selection outside the sheet");
    auto& selection = selections_[static_cast<std::size_t>(activeSheet_ - 1)];
    if (selection == Selection{range, active}) return;
    selection = {range, active};
    Q_EMIT selectionChanged();
}

CellValue Document::value(int sheet, CellPosition cell) const {
    return fromXls(book_.value(sheet - 1, ref(cell)));
}

bool Document::isFormula(int sheet, CellPosition cell) const {
    return book_.isFormula(sheet - 1, ref(cell));
}

CellBlock Document::block(int sheet, const CellRange& range) const {
    CellBlock block(range.rows());
    for (int row = 0; row < range.rows(); ++row) {
        auto& cells = block[row];
        cells.reserve(range.columns());
        for (int column = range.first.column; column <= range.last.column; ++column)
            cells.append(value(sheet, {range.first.row + row, column}));
    }
    return block;
}

QString Document::displayText(int sheet, CellPosition cell) const {
    return zvonika::displayText(value(sheet, cell));
}

QString Document::editText(int sheet, CellPosition cell) const {
    return zvonika::editText(value(sheet, cell));
}

int Document::usedRows(int sheet) const {
    return book_.usedRows(sheet - 1);
}

int Document::usedColumns(int sheet) const {
    return book_.usedColumns(sheet - 1);
}

double Document::columnWidth(int sheet, int column) const {
    return book_.columnWidth(sheet - 1, column - 1) / widthUnits;
}

void Document::setColumnWidth(int sheet, int column, double characters) {
    const double width = std::clamp(characters, 0.0, widestColumn) * widthUnits;
    book_.setColumnWidth(sheet - 1, column - 1, static_cast<int>(std::lround(width)));
    setModified(true);
    Q_EMIT columnWidthChanged(sheet, column);
}

void Document::changed(int sheet, const CellRange& range) {
    setModified(true);
    Q_EMIT cellsChanged(sheet, range);
}

void Document::setModified(bool modified) {
    if (std::exchange(modified_, modified) != modified) Q_EMIT modifiedChanged();
}

} // namespace zvonika
