#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"
#include "spreadsheet/WorkbookImage.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

namespace zvonika {

/// Told of what the user does in Calc, on threads of the connection, at any time and possibly more than once
/// for one act. Implementations pass it on; they never call the engine.
class CalcObserver {
public:
    virtual ~CalcObserver() = default;
    virtual void cursorMoved() = 0;
    virtual void cellsEdited() = 0;
    /// What the user was typing has been taken over by a call of the program's; the cursor is where that has
    /// put it.
    virtual void entryTaken() = 0;
    /// A workbook is being closed, by whomever.
    virtual void workbookCloses() = 0;
    /// ... by the user, who has been asked about its changes.
    virtual void userCloses(int workbook) = 0;
    /// Calc has opened or saved a file, whoever asked it to: it has it open, as it is on the disk now.
    virtual void fileOpened(const QString& nativePath) = 0;
    virtual void fileClosed(const QString& nativePath) = 0;
    /// So many documents of all kinds are open now that the user, not the program, has opened in this office.
    virtual void usersDocuments(int count) = 0;
};

/// What the file of a workbook is, by the filter that has read or written it.
enum class WorkbookFormat {
    Xls,    ///< of today; also a workbook without a file
    OldXls, ///< version 5.0 or 95
    Other
};

/// Cells for one place of a sheet.
struct PlacedBlock {
    CellPosition first;
    CellBlock cells; ///< rows of equal length, not empty
    friend bool operator==(const PlacedBlock&, const PlacedBlock&) = default;
};

/// A workbook that is open in Calc.
struct OpenWorkbook {
    int id = 0;   ///< 0: none
    QString name; ///< file name without folder, or Calc's title of one that was never saved
    QString path; ///< native; "" for one that was never saved
    bool modified = false;
    WorkbookFormat format = WorkbookFormat::Xls;
    bool encrypted = false; ///< its file has a password
};

/// One running Calc, by its own notions: the layer that knows UNO and nothing of the program. All calls but
/// `connected` come from one thread, the one that made the connection. Rows, columns and sheets count from 1.
/// Failures are AutomationError: 91 when Calc or the active workbook is gone, 1004 when Calc refuses. What is
/// written is none of the steps that the user can take back in Calc.
class CalcEngine {
public:
    virtual ~CalcEngine() = default;    ///< ends the connection; Calc itself goes on
    virtual bool connected() const = 0; ///< false once Calc is gone; from any thread

    /// Workbooks opened from now on, and those that are open, have visible windows or none. A window that
    /// Calc shows without a workbook goes when a workbook comes.
    virtual void setVisible(bool visible) = 0;
    virtual void toFront() = 0;         ///< the active workbook's window, with the keyboard
    virtual QString folder() const = 0; ///< native folder in which Calc's own file choices start
    virtual void setFolder(const QString& native) = 0;
    /// Closes every workbook, saved or not, and ends Calc. False when Calc refuses to end.
    virtual bool quit() = 0;

    virtual void add() = 0;                           ///< a new workbook, which becomes the active one
    virtual void open(const QString& nativePath) = 0; ///< .xls of today or older
    virtual QVector<OpenWorkbook> workbooks() = 0;    ///< also those that the user has opened; oldest first
    virtual OpenWorkbook active() = 0;                ///< id 0 when there is none
    virtual std::optional<WorkbookImage> image(int id) = 0; ///< nothing when it is not open any more
    virtual void activate(int id) = 0;
    virtual void saveAs(const QString& nativePath) = 0; ///< .xls; replaces an existing file
    /// Of a workbook that has a file, in the file's own format and with its password; an older .xls becomes
    /// one of today. Whatever has been put into the file since is overwritten.
    virtual void save() = 0;
    virtual void close() = 0; ///< without asking
    /// Titles of documents with unsaved changes that are no workbooks.
    virtual QStringList otherUnsaved() = 0;

    // --- sheets: those that are not hidden ---
    virtual int activeSheet() = 0;
    virtual int activePlace() = 0; ///< of the active sheet in its workbook, hidden sheets counted too
    virtual QStringList sheetNames() = 0;
    virtual void renameSheet(const QString& name) = 0; ///< the active one
    virtual void selectSheet(int sheet) = 0;           ///< 1..number of sheets

    virtual CellPosition cursor() = 0;
    virtual CellRange selection() = 0;
    virtual void select(const CellRange& range) = 0; ///< its first cell becomes the active cell
    virtual bool hasFormulas() = 0;                  ///< on the active sheet
    virtual CellPosition used() = 0;                 ///< last row and column of the active sheet's contents
    virtual CellBlock read(const CellRange& range) = 0;
    virtual QVector<QStringList> formulas(const CellRange& range) = 0;  ///< "" where a cell has none
    virtual void write(CellPosition first, const CellBlock& block) = 0; ///< rows of equal length, not empty
    virtual void clear(const CellRange& range) = 0;
    /// Rows of the active sheet from this one on move down (up). What the user did before he cannot take back
    /// any more: his steps would reach other rows.
    virtual void insertRow(int row) = 0;
    virtual void deleteRow(int row) = 0;

    /// The sheet that is active now is from now on the one that `writeHeld` writes to. True when writing a
    /// block of it does what writing its cells one by one does, and no cell depends on another.
    virtual bool holdSheet() = 0;
    virtual void writeHeld(const QVector<PlacedBlock>& blocks) = 0;

    /// Whether the user is typing in the active workbook. What he types is taken over, as if by Enter, before
    /// anything is written or cleared and when the cursor is moved.
    virtual bool typing() = 0;
};

/// How to reach a Calc that is starting.
struct CalcAddress {
    QString programFolder;            ///< native, of the LibreOffice installation
    QString pipe;                     ///< name of the pipe on which it accepts
    std::function<bool()> keepTrying; ///< asked between attempts
};

/// Raised with every change of the classes above: a plug-in built for others is not used.
constexpr int calcPluginVersion = 6;

/// What a plug-in exports: "zvonikaCalcPluginVersion" and "zvonikaConnectToCalc". The latter returns when
/// Calc has answered, or nullptr when `keepTrying` gave up; AutomationError 429 when the connection cannot be
/// used.
using CalcPluginVersion = int (*)();
using ConnectToCalc = CalcEngine* (*)(const CalcAddress& address, CalcObserver& observer);

} // namespace zvonika
