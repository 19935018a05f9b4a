#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"
#include "tests/support/CallLog.h"

namespace zvonika::testing {

/// The built-in spreadsheet, as what `Port` says, with every call of the program noted in a log, which can
/// have it fail. What a test itself does goes past the log.
template <typename Port>
class Watched : public Port {
public:
    Watched(std::unique_ptr<EmbeddedApplication> watched, CallLog& log)
        : app_(std::move(watched)), log_(log) {}
    ~Watched() override { log_.calls.append(QStringLiteral("release")); }

    // --- what a test looks at and sets up ---
    EmbeddedApplication& app() { return *app_; }
    const EmbeddedApplication& app() const { return *app_; }
    int steps = 0;     ///< begun by the program
    int stepsTold = 0; ///< how often the list of steps was said to be another one
    bool running() const { return app_->session().state() == Session::State::Running; }
    int workbooks() const { return static_cast<int>(app_->session().documents().size()); }
    CellValue cell(const QString& address) const { return app_->value(address); }
    QString text(const QString& address) const { return cellText(cell(address)); }
    void put(const QString& address, const CellValue& value) { app_->setValue(address, value); }
    void put(const QString& address, const QString& text) { put(address, CellValue(text)); }
    void put(const QString& address, const char* text) { put(address, QString::fromUtf8(text)); }

    // --- what the user does in the spreadsheet's own window ---
    void userSelects(const QString& address) {
        const CellRange range = parseAddress(address).value();
        app_->commands().select(range, range.first);
    }
    void userTypes(const QString& address, const QString& text) {
        app_->commands().type(parseAddress(address).value().first, text);
    }
    void userClosesWorkbook() { app_->commands().files().close(); }
    void userQuits() { app_->commands().files().quit(); }

    // --- the port ---
    QString defaultFilePath() const override { return on("defaultFilePath").defaultFilePath(); }
    void setDefaultFilePath(const QString& p) override { on("setDefaultFilePath").setDefaultFilePath(p); }
    void setVisible(bool visible) override { on("setVisible").setVisible(visible); }
    void quit() override { on("quit").quit(); }
    void setListener(SpreadsheetListener* l) override { on("setListener").setListener(l); }
    void showToUser() override { on("showToUser").showToUser(); }
    QString trouble() const override { return app_->trouble(); }

    void addWorkbook() override { on("addWorkbook").addWorkbook(); }
    void openWorkbook(const QString& name) override { on("openWorkbook").openWorkbook(name); }
    std::optional<QString> getOpenFilename(const QString& filter, const QString& title) override {
        return on("getOpenFilename").getOpenFilename(filter, title);
    }
    void saveActiveWorkbookAs(const SaveAsArguments& arguments) override {
        on("saveActiveWorkbookAs").saveActiveWorkbookAs(arguments);
    }
    void saveActiveWorkbook() override { on("saveActiveWorkbook").saveActiveWorkbook(); }
    void closeActiveWorkbook() override { on("closeActiveWorkbook").closeActiveWorkbook(); }
    bool activeWorkbookModified() const override {
        return on("activeWorkbookModified").activeWorkbookModified();
    }
    QString activeWorkbookName() const override { return on("activeWorkbookName").activeWorkbookName(); }
    void activateWindow(const QString& name) override { on("activateWindow").activateWindow(name); }

    QString activeSheetName() const override { return on("activeSheetName").activeSheetName(); }
    void renameActiveSheet(const QString& name) override { on("renameActiveSheet").renameActiveSheet(name); }
    int activeSheetIndex() const override { return on("activeSheetIndex").activeSheetIndex(); }
    int sheetCount() const override { return on("sheetCount").sheetCount(); }
    void selectSheet(int index) override { on("selectSheet").selectSheet(index); }
    void selectSheet(const QString& name) override { on("selectSheet").selectSheet(name); }
    void selectNextSheet() override { on("selectNextSheet").selectNextSheet(); }

    void selectRange(const QString& address) override { on("selectRange").selectRange(address); }
    CellValue value(const QString& address) const override { return on("value").value(address); }
    void setValue(const QString& address, const CellValue& value) override {
        on("setValue").setValue(address, value);
    }
    CellValue activeCellValue() const override { return on("activeCellValue").activeCellValue(); }
    void setActiveCellValue(const CellValue& v) override { on("setActiveCellValue").setActiveCellValue(v); }
    int activeRow() const override { return on("activeRow").activeRow(); }
    QString activeAddress() const override { return on("activeAddress").activeAddress(); }
    void moveCursor(int rows, int columns) override { on("moveCursor").moveCursor(rows, columns); }
    void clearContents(const QString& address) override { on("clearContents").clearContents(address); }
    void findAndActivate(const FindArguments& what) override { on("findAndActivate").findAndActivate(what); }
    void copyRange(const QString& address) override { on("copyRange").copyRange(address); }
    void paste() override { on("paste").paste(); }

    CellBlock readBlock(const QString& address) const override { return on("readBlock").readBlock(address); }
    void writeBlock(const QString& address, const CellBlock& block) override {
        on("writeBlock").writeBlock(address, block);
    }

    void insertRow(int row) override { on("insertRow").insertRow(row); }
    void deleteRow(int row) override { on("deleteRow").deleteRow(row); }
    void putBack(const QString& address, const CellBlock& block) override {
        on("putBack").putBack(address, block);
    }
    void beginStep() override {
        ++steps;
        app_->beginStep();
    }
    void endStep() override { app_->endStep(); }
    void setStepKeeper(StepKeeper* keeper) override { app_->setStepKeeper(keeper); }
    void stepsChanged() override {
        ++stepsTold;
        app_->stepsChanged();
    }

    void finishWriting() override { on("finishWriting").finishWriting(); }
    bool userIsTyping() const override { return on("userIsTyping").userIsTyping(); }

private:
    EmbeddedApplication& on(const char* call) const {
        log_.note(call);
        return *app_;
    }

    std::unique_ptr<EmbeddedApplication> app_;
    CallLog& log_;
};

using WatchedSpreadsheet = Watched<SpreadsheetApplication>;

} // namespace zvonika::testing
