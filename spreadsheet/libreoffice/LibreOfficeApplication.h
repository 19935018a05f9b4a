#pragma once

#include "spreadsheet/LiveSpreadsheet.h"
#include "spreadsheet/libreoffice/LibreOfficeSurroundings.h"

namespace zvonika {

/// LibreOffice Calc as the program drives it: an instance of its own with a profile of its own, which ends
/// with the program at the latest. The active workbook is the one that the program has opened or activated
/// last; other workbooks that the user opens in Calc are only asked about when it quits. A call that takes
/// long keeps the window alive (PatientCalls); on one that takes too long the user is asked whether to wait
/// or to end Calc.
class LibreOfficeApplication : public LiveSpreadsheet {
public:
    /// Starts Calc; AutomationError 429 with the reason when that fails.
    explicit LibreOfficeApplication(const LibreOfficeSurroundings& surroundings);
    ~LibreOfficeApplication() override;

    QString defaultFilePath() const override;
    void setDefaultFilePath(const QString& path) override;
    void setVisible(bool visible) override;
    /// Asks about workbooks with unsaved changes, those too that the user has opened.
    void quit() override;
    void setListener(SpreadsheetListener* listener) override;
    void showToUser() override;

    void addWorkbook() override;
    void openWorkbook(const QString& fullName) override;
    std::optional<QString> getOpenFilename(const QString& filter, const QString& title) override;
    /// An existing file is replaced only when the user agrees.
    void saveActiveWorkbookAs(const SaveAsArguments& arguments) override;
    /// A workbook that was never saved goes into the default folder.
    void saveActiveWorkbook() override;
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

    void insertRow(int row) override;
    void deleteRow(int row) override;
    void putBack(const QString& address, const CellBlock& block) override { writeBlock(address, block); }

    void finishWriting() override;
    bool userIsTyping() const override;

    Place place() const override;
    bool alive() const override;
    unsigned acts() const override;
    std::optional<WorkbookImage> image(int workbook) override;
    void setWatcher(WorkbookWatcher* watcher) override;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace zvonika
