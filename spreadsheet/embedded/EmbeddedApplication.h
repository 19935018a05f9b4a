#pragma once

#include "spreadsheet/SpreadsheetApplication.h"
#include "spreadsheet/WorkbookPlaces.h"
#include "spreadsheet/embedded/Session.h"
#include "spreadsheet/embedded/SheetCommands.h"

namespace zvonika {

/// Name under which the built-in application keeps settings of its own.
inline const QString nastaveniTabulky = QStringLiteral("Tabulka Zvoniky");

/// The built-in spreadsheet as the program drives it. Without a workbook, `activateWindow` raises 9 and
/// everything that needs a workbook 91; after the user has quit, every call but those of the default folder
/// raises 91.
class EmbeddedApplication : public SpreadsheetApplication {
public:
    /// `settings`: the application's own store, keeps the default folder. `journals`: where recovery journals
    /// are kept. `makeView` is called at the first `setVisible(true)`; without it the application has no
    /// window.
    EmbeddedApplication(Drive& drive, Dialogs& dialogs, SettingsStore& settings, JournalFolder journals,
                        SheetViewFactory makeView = {});
    ~EmbeddedApplication() override;

    /// The user's side, as the window has it.
    SheetCommands& commands() { return commands_; }
    const Session& session() const { return session_; }
    /// As `SlowFiles::keepWindow`, for files that let the user wait.
    void keepWindow(std::function<void()> waiting, std::function<void()> over) {
        session_.files().keepWindow(std::move(waiting), std::move(over));
    }

    QString defaultFilePath() const override;
    void setDefaultFilePath(const QString& path) override;
    /// When it is shown first, offers what a crash has left of workbooks that were never saved.
    void setVisible(bool visible) override;
    /// Asks as `Saving::offerUnsaved`; what the user does not save is dropped.
    void quit() override;
    void setListener(SpreadsheetListener* listener) override;
    void showToUser() override;
    QString trouble() const override { return session_.trouble(); }

    void addWorkbook() override;
    /// Offers what a crash has left. A file that is open here already comes to the front as it is.
    void openWorkbook(const QString& fullName) override;
    std::optional<QString> getOpenFilename(const QString& filter, const QString& title) override;
    /// An existing file is replaced only when the user agrees; other arguments than the fixed ones: 1004.
    void saveActiveWorkbookAs(const SaveAsArguments& arguments) override;
    /// A workbook that was never saved goes into the default folder.
    /// One that another program has changed on the disk is written only when the user agrees.
    void saveActiveWorkbook() override;
    /// Without asking; unsaved changes are lost, but those that were recovered will be offered again.
    void closeActiveWorkbook() override;
    bool activeWorkbookModified() const override;
    QString activeWorkbookName() const override;
    void activateWindow(const QString& name) override;

    QString activeSheetName() const override;
    void renameActiveSheet(const QString& name) override;
    int activeSheetIndex() const override;
    int sheetCount() const override;
    void selectSheet(int index) override;
    void selectSheet(const QString& name) override;
    void selectNextSheet() override; ///< 91 on the last sheet

    void selectRange(const QString& address) override;
    CellValue value(const QString& address) const override;                 ///< of a range, its first cell
    void setValue(const QString& address, const CellValue& value) override; ///< of a range, all its cells
    CellValue activeCellValue() const override;
    void setActiveCellValue(const CellValue& value) override;
    int activeRow() const override;
    QString activeAddress() const override;
    void moveCursor(int rows, int columns) override;
    void clearContents(const QString& address) override;
    void findAndActivate(const FindArguments& arguments) override;
    void copyRange(const QString& address) override;
    void paste() override;

    CellBlock readBlock(const QString& address) const override;
    void writeBlock(const QString& address, const CellBlock& block) override;

    /// 1004 when a formula or, moving down, the last row is in the way.
    void insertRow(int row) override;
    void deleteRow(int row) override;
    void putBack(const QString& address, const CellBlock& block) override;

    void beginStep() override;
    void endStep() override;
    void setStepKeeper(StepKeeper* keeper) override { session_.setStepKeeper(keeper); }
    void stepsChanged() override { session_.stepsChanged(); }

    void finishWriting() override {}
    bool userIsTyping() const override { return session_.userIsTyping(); }

private:
    void requireRunning() const;
    Document& document() const;
    void saveUnder(const QString& nativePath);
    void saveInPlace(Document& saved, const QString& nativePath);

    WorkbookPlaces places_;
    JournalFolder journals_;
    SheetViewFactory makeView_;
    bool shown_ = false; ///< at least once
    CellBlock clipboard_;
    SheetCommands commands_; ///< before the session, whose window uses it to the end
    Session session_;
};

} // namespace zvonika
