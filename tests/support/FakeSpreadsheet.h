#pragma once

#include "spreadsheet/SpreadsheetApplication.h"
#include "tests/support/FakeSheet.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <optional>

namespace zvonika::testing {

/// Files of fake workbooks by full name; shared by the instances of one test.
using FakeDisk = std::map<QString, FakeBook>;

/// A whole spreadsheet application in memory. Operations are named by their method: `fail("setValue", 1004)`
/// makes the next one throw, `calls("readBlock")` counts them.
class FakeSpreadsheet : public SpreadsheetApplication {
public:
    FakeSpreadsheet() : ownDisk_(std::make_unique<FakeDisk>()), disk_(ownDisk_.get()) {}
    explicit FakeSpreadsheet(FakeDisk& disk) : disk_(&disk) {}

    // --- what a test sets up and looks at ---
    std::optional<QString> fileChoice; ///< answer of the next getOpenFilename; nothing for Cancel
    QString fileChoiceTitle;           ///< title that it was asked with
    int sheetsInNewWorkbook = 1;
    bool visible = false;
    int shownToUser = 0;
    SaveAsArguments lastSaveAs;
    QStringList journal; ///< every operation that was called, by name

    /// The next `times` calls of `operation` throw `number`.
    void fail(const QString& operation, int number, int times = 1) { failures_[operation] = {number, times}; }
    int calls(const QString& operation) const { return static_cast<int>(journal.count(operation)); }
    /// A cell of the active sheet, uncounted and never failing.
    CellValue cell(const QString& address) {
        const auto range = FakeRange::parse(address);
        return book().sheet().at(range.top, range.left);
    }
    QString text(const QString& address) {
        const CellValue value = cell(address);
        const auto* held = std::get_if<QString>(&value);
        return held ? *held : QString();
    }
    /// Puts a text into a cell of the active sheet, uncounted, unheard by the listener.
    void put(const QString& address, const QString& text) { put(address, CellValue(text)); }
    void put(const QString& address, const char* text) { put(address, QString::fromUtf8(text)); }
    void put(const QString& address, const CellValue& value) {
        const auto range = FakeRange::parse(address);
        book().sheet().put(range.top, range.left, value);
    }
    FakeBook& book() {
        if (books_.empty()) throw RuntimeError(error::objectNotSet);
        return books_.back();
    }
    void addSheet(const QString& name) { book().sheets.push_back({name, {}, {}, 1, 1}); }
    bool running() const { return state_ == State::Running; }

    // --- what the user does in the application's own window ---
    void userSelects(const QString& address) {
        book().sheet().select(FakeRange::parse(address));
        if (listener_) listener_->cursorMoved();
    }
    void userTypes(const QString& address, const QString& text) {
        put(address, text);
        if (listener_) listener_->cellsEdited();
    }
    void userClosesWorkbook() { books_.pop_back(); }
    void userQuits() {
        books_.clear();
        state_ = State::QuitByUser;
    }

    // --- the port ---
    QString defaultFilePath() const override { return defaultFilePath_; }
    void setDefaultFilePath(const QString& path) override {
        trip(QStringLiteral("setDefaultFilePath"));
        defaultFilePath_ = path;
    }
    void setVisible(bool shown) override {
        enter(QStringLiteral("setVisible"));
        visible = shown;
    }
    void quit() override {
        trip(QStringLiteral("quit"));
        books_.clear();
        if (std::exchange(state_, State::Quit) == State::QuitByUser) throw RuntimeError(error::objectNotSet);
    }
    void setListener(SpreadsheetListener* listener) override { listener_ = listener; }
    void showToUser() override { ++shownToUser; }

    void addWorkbook() override {
        enter(QStringLiteral("addWorkbook"));
        FakeBook added{QStringLiteral("Sešit%1").arg(++created_), {}, {}, 0};
        for (int i = 1; i <= sheetsInNewWorkbook; ++i)
            added.sheets.push_back({QStringLiteral("List%1").arg(i), {}, {}, 1, 1});
        books_.push_back(std::move(added));
    }
    void openWorkbook(const QString& fullName) override {
        enter(QStringLiteral("openWorkbook"));
        const auto found = disk_->find(fullName);
        if (found == disk_->end()) throw RuntimeError(error::applicationDefined);
        books_.push_back(found->second);
    }
    std::optional<QString> getOpenFilename(const QString&, const QString& title) override {
        enter(QStringLiteral("getOpenFilename"));
        fileChoiceTitle = title;
        return fileChoice;
    }
    void saveActiveWorkbookAs(const SaveAsArguments& arguments) override {
        enter(QStringLiteral("saveActiveWorkbookAs"));
        lastSaveAs = arguments;
        FakeBook& saved = book();
        saved.fullName = fullName(arguments.filename);
        saved.name = saved.fullName.mid(folderEnd(saved.fullName));
        (*disk_)[saved.fullName] = saved;
    }
    void saveActiveWorkbook() override {
        enter(QStringLiteral("saveActiveWorkbook"));
        FakeBook& saved = book();
        if (saved.fullName.isEmpty()) saved.fullName = fullName(saved.name);
        (*disk_)[saved.fullName] = saved;
    }
    void closeActiveWorkbook() override {
        enter(QStringLiteral("closeActiveWorkbook"));
        book();
        books_.pop_back();
    }
    QString activeWorkbookName() const override {
        enter(QStringLiteral("activeWorkbookName"));
        return books_.empty() ? QString() : books_.back().name;
    }
    void activateWindow(const QString& name) override {
        enter(QStringLiteral("activateWindow"));
        const auto found = std::find_if(books_.begin(), books_.end(),
                                        [&](const FakeBook& open) { return open.name == name; });
        if (name.isEmpty() || found == books_.end()) throw RuntimeError(error::subscriptOutOfRange);
        std::rotate(found, found + 1, books_.end());
    }

    QString activeSheetName() const override { return sheet(QStringLiteral("activeSheetName")).name; }
    void renameActiveSheet(const QString& name) override {
        FakeSheet& renamed = sheet(QStringLiteral("renameActiveSheet"));
        FakeSheet* other = book().find(name);
        if (name.isEmpty() || (other && other != &renamed)) throw RuntimeError(error::applicationDefined);
        renamed.name = name;
    }
    int activeSheetIndex() const override {
        sheet(QStringLiteral("activeSheetIndex"));
        return static_cast<int>(books_.back().active) + 1;
    }
    int sheetCount() const override {
        sheet(QStringLiteral("sheetCount"));
        return static_cast<int>(books_.back().sheets.size());
    }
    void selectSheet(int index) override {
        sheet(QStringLiteral("selectSheet"));
        activateSheet(index - 1);
    }
    void selectSheet(const QString& name) override {
        sheet(QStringLiteral("selectSheet"));
        FakeSheet* found = book().find(name);
        activateSheet(found ? static_cast<int>(found - book().sheets.data()) : -1);
    }
    void selectNextSheet() override {
        sheet(QStringLiteral("selectNextSheet"));
        if (book().active + 1 >= book().sheets.size()) throw RuntimeError(error::objectNotSet);
        ++book().active;
    }

    void selectRange(const QString& address) override {
        sheet(QStringLiteral("selectRange")).select(FakeRange::parse(address));
    }
    CellValue value(const QString& address) const override {
        const FakeSheet& read = sheet(QStringLiteral("value"));
        const auto range = FakeRange::parse(address);
        return read.at(range.top, range.left);
    }
    void setValue(const QString& address, const CellValue& value) override {
        FakeSheet& written = sheet(QStringLiteral("setValue"));
        fill(written, FakeRange::parse(address), value);
    }
    CellValue activeCellValue() const override {
        const FakeSheet& read = sheet(QStringLiteral("activeCellValue"));
        return read.at(read.row, read.column);
    }
    void setActiveCellValue(const CellValue& value) override {
        FakeSheet& written = sheet(QStringLiteral("setActiveCellValue"));
        written.put(written.row, written.column, value);
    }
    int activeRow() const override { return sheet(QStringLiteral("activeRow")).row; }
    QString activeAddress() const override {
        const FakeSheet& active = sheet(QStringLiteral("activeAddress"));
        return QStringLiteral("$%1$%2").arg(FakeRange::letters(active.column)).arg(active.row);
    }
    void moveCursor(int rows, int columns) override {
        FakeSheet& moved = sheet(QStringLiteral("moveCursor"));
        const int row = moved.row + rows;
        const int column = moved.column + columns;
        moved.select({row, column, row, column});
    }
    void clearContents(const QString& address) override {
        FakeSheet& cleared = sheet(QStringLiteral("clearContents"));
        fill(cleared, FakeRange::parse(address), {});
    }
    void findAndActivate(const FindArguments& arguments) override {
        FakeSheet& searched = sheet(QStringLiteral("findAndActivate"));
        const FakeRange& range = searched.selection;
        const int width = range.right - range.left + 1;
        const int count = width * (range.bottom - range.top + 1);
        const int start = (searched.row - range.top) * width + searched.column - range.left;
        for (int step = 1; step <= count; ++step) {
            const int index = (start + step) % count;
            const int row = range.top + index / width;
            const int column = range.left + index % width;
            if (!matches(searched.at(row, column), arguments.what)) continue;
            searched.row = row;
            searched.column = column;
            return;
        }
        throw RuntimeError(error::objectNotSet);
    }
    void copyRange(const QString& address) override {
        clipboard_ = sheet(QStringLiteral("copyRange")).read(FakeRange::parse(address));
    }
    void paste() override {
        FakeSheet& target = sheet(QStringLiteral("paste"));
        target.write(target.selection.top, target.selection.left, clipboard_);
    }

    CellBlock readBlock(const QString& address) const override {
        return sheet(QStringLiteral("readBlock")).read(FakeRange::parse(address));
    }
    void writeBlock(const QString& address, const CellBlock& block) override {
        const auto range = FakeRange::parse(address);
        sheet(QStringLiteral("writeBlock")).write(range.top, range.left, block);
    }

private:
    enum class State { Running, QuitByUser, Quit };
    struct Failure {
        int number = 0;
        int times = 0;
    };

    /// Notes the call and throws what the test has ordered for it.
    void trip(const QString& operation) const {
        auto& self = const_cast<FakeSpreadsheet&>(*this);
        self.journal.append(operation);
        const auto found = self.failures_.find(operation);
        if (found == self.failures_.end() || found->times-- <= 0) return;
        throw RuntimeError(found->number);
    }
    void enter(const QString& operation) const {
        trip(operation);
        if (state_ != State::Running) throw RuntimeError(error::objectNotSet);
    }
    FakeSheet& sheet(const QString& operation) const {
        enter(operation);
        return const_cast<FakeSpreadsheet*>(this)->book().sheet();
    }
    void activateSheet(int index) {
        if (index < 0 || index >= static_cast<int>(book().sheets.size()))
            throw RuntimeError(error::subscriptOutOfRange);
        book().active = static_cast<std::size_t>(index);
    }
    static void fill(FakeSheet& target, const FakeRange& range, const CellValue& value) {
        for (int row = range.top; row <= range.bottom; ++row)
            for (int column = range.left; column <= range.right; ++column)
                target.put(row, column, value);
    }
    static bool matches(const CellValue& value, const QString& what) {
        const auto* text = std::get_if<QString>(&value);
        if (what.isEmpty()) return std::holds_alternative<std::monostate>(value);
        return text && text->contains(what, Qt::CaseInsensitive);
    }
    static qsizetype folderEnd(const QString& name) {
        return std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\')) + 1;
    }
    /// A bare name goes into the default folder and gets ".xls" even behind another dot.
    QString fullName(const QString& name) const {
        if (folderEnd(name) > 0) return name;
        const QString file =
            name.endsWith(QStringLiteral(".xls"), Qt::CaseInsensitive) ? name : name + ".xls";
        return defaultFilePath_.isEmpty() ? file : defaultFilePath_ + QChar(u'\\') + file;
    }

    std::unique_ptr<FakeDisk> ownDisk_;
    FakeDisk* disk_;
    std::vector<FakeBook> books_; ///< the active one stands last
    State state_ = State::Running;
    QHash<QString, Failure> failures_;
    CellBlock clipboard_;
    SpreadsheetListener* listener_ = nullptr;
    QString defaultFilePath_ = QStringLiteral("C:\\Dokumenty");
    int created_ = 0;
};

} // namespace zvonika::testing
