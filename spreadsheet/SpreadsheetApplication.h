#pragma once

#include "platform/RuntimeError.h"
#include "spreadsheet/CellValue.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace zvonika {

class StepKeeper;

/// A failed call to the spreadsheet application:
///   9    a window or sheet of that name does not exist (any more),
///   91   no active workbook, the application is gone, or a search found nothing,
///   1004 the application refuses: a file cannot be opened or saved, an address or a name is not valid.
using AutomationError = RuntimeError;

/// Told of what the user does in the application's own window; never of what the program does through the
/// port. Calls arrive on the user-interface thread, outside of any port call.
class SpreadsheetListener {
public:
    virtual ~SpreadsheetListener() = default;
    virtual void cursorMoved() = 0; ///< another active cell or sheet
    virtual void cellsEdited() = 0; ///< cells, or the name of a sheet, have changed
    /// The user has saved a workbook under another name or in another folder; it stays open under that name.
    /// `before` and `now` as `SpreadsheetApplication::activeWorkbookName`, `fullName` native.
    virtual void workbookRenamed(const QString& before, const QString& now, const QString& fullName) {
        static_cast<void>(before), static_cast<void>(now), static_cast<void>(fullName);
    }
    virtual void troubleChanged() {} ///< `SpreadsheetApplication::trouble` says something else than before
};

/// The fixed arguments of a save under a new name: normal format, no passwords, no backup.
struct SaveAsArguments {
    QString filename;       ///< full name, or a bare name (goes into the default folder and gets ".xls")
    int fileFormat = -4143; ///< the application's normal workbook format, .xls
    QString password = {};
    QString writeResPassword = {};
    bool readOnlyRecommended = false;
    bool createBackup = false;
};

/// The search used for the first empty cell of a column: empty text, formulas, part of the cell, by rows,
/// forward.
struct FindArguments {
    QString what = {};
    int lookIn = -4123;
    int lookAt = 2;
    int searchOrder = 1;
    int searchDirection = 1;
    bool matchCase = false;
};

/// A running spreadsheet application with its cursor of active workbook, sheet and cell. Every operation may
/// throw AutomationError; paths may be written with a drive ("C:\..."). Addresses are in A1 form without
/// sheet name
/// ("B7", "B1:B500", "$B$1"); rows and columns count from 1.
class SpreadsheetApplication {
public:
    virtual ~SpreadsheetApplication() = default;

    // --- the application ---
    /// The default folder stays readable and settable after `quit`, until the object is released.
    virtual QString defaultFilePath() const = 0;
    virtual void setDefaultFilePath(const QString& path) = 0;
    virtual void setVisible(bool visible) = 0;
    /// Closes what is open; asks only for workbooks with unsaved changes, and what the user then does not
    /// save is lost. On an application that the user has quit: 91 once, then it succeeds.
    virtual void quit() = 0;
    virtual void setListener(SpreadsheetListener* listener) = 0;
    /// Brings the application's window to the front and gives it the keyboard.
    virtual void showToUser() = 0;
    /// Why unsaved changes would not outlive a crash at the moment: one sentence for the user; "" as a rule.
    /// Throws nothing.
    virtual QString trouble() const { return {}; }

    // --- workbooks ---
    virtual void addWorkbook() = 0;
    virtual void openWorkbook(const QString& fullName) = 0;
    /// Asks the user; starts in the default folder. Filter "Excel Files,*.xls". Nothing on Cancel.
    virtual std::optional<QString> getOpenFilename(const QString& filter, const QString& title) = 0;
    virtual void saveActiveWorkbookAs(const SaveAsArguments& arguments) = 0;
    virtual void saveActiveWorkbook() = 0;
    virtual void closeActiveWorkbook() = 0;
    /// Cells or names of sheets have changed since it was opened or saved; the cursor does not count.
    virtual bool activeWorkbookModified() const = 0;
    /// File name without folder; "" when the application has no workbook.
    virtual QString activeWorkbookName() const = 0;
    /// Brings a workbook to the front by its file name; 9 when it is not open or the name is empty.
    virtual void activateWindow(const QString& name) = 0;

    // --- sheets: those that the user can see; hidden ones are not counted, walked or found by name ---
    virtual QString activeSheetName() const = 0;
    virtual void renameActiveSheet(const QString& name) = 0;
    virtual int activeSheetIndex() const = 0; ///< from 1
    virtual int sheetCount() const = 0;
    virtual void selectSheet(int index) = 0;
    virtual void selectSheet(const QString& name) = 0;
    virtual void selectNextSheet() = 0;

    // --- cells ---
    virtual void selectRange(const QString& address) = 0; ///< its first cell becomes the active cell
    virtual CellValue value(const QString& address) const = 0;
    virtual void setValue(const QString& address, const CellValue& value) = 0;
    virtual CellValue activeCellValue() const = 0;
    virtual void setActiveCellValue(const CellValue& value) = 0;
    virtual int activeRow() const = 0;
    virtual QString activeAddress() const = 0; ///< absolute form, "$B$1"
    /// Moves the cursor; 1004 beyond the edge of the sheet.
    virtual void moveCursor(int rows, int columns) = 0;
    virtual void clearContents(const QString& address) = 0;
    /// Searches the selected range after the active cell, wrapping at its end, and activates the cell found.
    /// 91 when nothing is found.
    virtual void findAndActivate(const FindArguments& arguments) = 0;
    /// Copies a range of the active sheet to the application's clipboard, or pastes it at the selection.
    virtual void copyRange(const QString& address) = 0;
    virtual void paste() = 0;

    // --- blocks: one call for a whole range of the active sheet ---
    virtual CellBlock readBlock(const QString& address) const = 0;
    virtual void writeBlock(const QString& address, const CellBlock& block) = 0;

    // --- rows of the active sheet ---
    /// Rows from `row` on move down (up) by one, in the active sheet alone. 1004 when the application
    /// refuses; behind the last row that is used there is nothing to move.
    virtual void insertRow(int row) = 0;
    virtual void deleteRow(int row) = 0;
    /// As `writeBlock`, with what stood there before: where the file holds a formula that showed this value,
    /// and the application can, the formula is there again.
    virtual void putBack(const QString& address, const CellBlock& block) = 0;

    // --- steps ---
    /// What is written from `beginStep` to `endStep` belongs together: a crash leaves all of it or nothing.
    /// One at a time; what saves or closes a workbook or renames a sheet in between ends it first. Takes over
    /// what the user is typing where that is a step of the keeper's. Neither raises.
    virtual void beginStep() = 0;
    virtual void endStep() = 0;
    /// Who keeps the list of steps; outlives the application. Applications that leave what the user does in
    /// their window to a list of their own do not ask it.
    virtual void setStepKeeper(StepKeeper* keeper) = 0;
    /// The keeper's labels, or what it keeps, have changed.
    virtual void stepsChanged() = 0;

    // --- writing and the user ---
    /// The application may take what is written a moment later, and all of it at once; whatever else it is
    /// asked for finds the cells written, and after this call so does everybody. Raises what a write that was
    /// put off has met.
    virtual void finishWriting() = 0;
    /// Whether the user is typing a text into a cell that is not taken over yet. The program's own writing
    /// to that cell takes it over first, as if by Enter, and so does what moves the cursor, saves or leaves
    /// the sheet.
    virtual bool userIsTyping() const = 0;
};

/// Creates application objects ("excel.application"): each call a new instance, invisible and without a
/// workbook. Throws AutomationError when the application cannot be started.
using SpreadsheetLauncher = std::function<std::unique_ptr<SpreadsheetApplication>()>;

} // namespace zvonika
