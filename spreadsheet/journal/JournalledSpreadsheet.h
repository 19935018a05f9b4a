#pragma once

#include "spreadsheet/LiveSpreadsheet.h"
#include "spreadsheet/journal/RecordedWorkbook.h"
#include "spreadsheet/journal/RecoveryOffers.h"

#include <memory>
#include <vector>

namespace zvonika {

/// A live spreadsheet whose workbooks outlive it, and this program: what the program writes through the port
/// and what the user does in the spreadsheet's own window goes into a journal for each workbook, and what a
/// crash has left of one is offered when it is opened (of those never saved, when the spreadsheet is first
/// shown). Everything else is passed on.
///
/// A journal ends with the save of its workbook, and when the program or the user closes it. It stays when
/// the spreadsheet is gone without any of this.
class JournalledSpreadsheet : public SpreadsheetApplication,
                              private SpreadsheetListener,
                              private WorkbookWatcher {
public:
    /// `dialogs` outlives this; `title`: of its boxes.
    JournalledSpreadsheet(std::unique_ptr<LiveSpreadsheet> live, Dialogs& dialogs, const QString& title,
                          JournalFolder journals);
    ~JournalledSpreadsheet() override;

    QString defaultFilePath() const override { return live_->defaultFilePath(); }
    void setDefaultFilePath(const QString& path) override { live_->setDefaultFilePath(path); }
    void setVisible(bool visible) override;
    void quit() override;
    void setListener(SpreadsheetListener* listener) override { listener_ = listener; }
    void showToUser() override { live_->showToUser(); }
    QString trouble() const override;

    void addWorkbook() override;
    void openWorkbook(const QString& fullName) override;
    std::optional<QString> getOpenFilename(const QString& filter, const QString& title) override {
        return live_->getOpenFilename(filter, title);
    }
    void saveActiveWorkbookAs(const SaveAsArguments& arguments) override;
    void saveActiveWorkbook() override;
    void closeActiveWorkbook() override;
    QString activeWorkbookName() const override { return live_->activeWorkbookName(); }
    bool activeWorkbookModified() const override { return live_->activeWorkbookModified(); }
    void activateWindow(const QString& name) override;

    QString activeSheetName() const override;
    void renameActiveSheet(const QString& name) override;
    int activeSheetIndex() const override { return live_->activeSheetIndex(); }
    int sheetCount() const override { return live_->sheetCount(); }
    void selectSheet(int index) override;
    void selectSheet(const QString& name) override;
    void selectNextSheet() override;

    void selectRange(const QString& address) override { live_->selectRange(address); }
    CellValue value(const QString& address) const override { return live_->value(address); }
    void setValue(const QString& address, const CellValue& value) override;
    CellValue activeCellValue() const override { return live_->activeCellValue(); }
    void setActiveCellValue(const CellValue& value) override;
    int activeRow() const override { return live_->activeRow(); }
    QString activeAddress() const override { return live_->activeAddress(); }
    void moveCursor(int rows, int columns) override { live_->moveCursor(rows, columns); }
    void clearContents(const QString& address) override;
    void findAndActivate(const FindArguments& arguments) override { live_->findAndActivate(arguments); }
    void copyRange(const QString& address) override { live_->copyRange(address); }
    void paste() override;

    CellBlock readBlock(const QString& address) const override { return live_->readBlock(address); }
    void writeBlock(const QString& address, const CellBlock& block) override;

    void insertRow(int row) override;
    void deleteRow(int row) override;
    void putBack(const QString& address, const CellBlock& block) override;

    void beginStep() override;
    /// Of a step in which the spreadsheet has gone nothing comes back.
    void endStep() override;
    void setStepKeeper(StepKeeper* keeper) override { live_->setStepKeeper(keeper); }
    void stepsChanged() override { live_->stepsChanged(); }

    void finishWriting() override { live_->finishWriting(); }
    bool userIsTyping() const override { return live_->userIsTyping(); }

private:
    void cursorMoved() override;
    void cellsEdited() override;
    void workbookSettled(int workbook) override;

    LiveSpreadsheet::Place place();
    bool isPlaceKnown() const { return placeKnown_ && live_->acts() == placeActs_; }
    void forgetPlace() { placeKnown_ = false; }
    RecordedWorkbook* find(int workbook);
    /// The active workbook's record, begun when there is none; nullptr without a workbook.
    RecordedWorkbook* active();
    RecordedWorkbook* record(WorkbookImage image);
    void drop(int workbook);

    void offer(RecordedWorkbook& workbook, const QString& song);
    void recoverUnsaved();
    void restore(RecordedWorkbook& workbook, PendingJournal pending);
    void look();
    void see(RecordedWorkbook& workbook, WorkbookImage image);
    void noteSave();
    void moveRows(int row, bool insert);

    std::unique_ptr<LiveSpreadsheet> live_;
    JournalFolder journals_;
    RecoveryOffers offers_;
    SpreadsheetListener* listener_ = nullptr;
    bool shown_ = false;
    bool lookDue_ = false; ///< the user has done what could not be looked at yet
    LiveSpreadsheet::Place place_;
    unsigned placeActs_ = 0;
    bool placeKnown_ = false;
    mutable QString sheetName_; ///< of the place that is known; "" until it was asked for
    QObject later_;             ///< with it goes what is still to be told
    std::vector<std::unique_ptr<RecordedWorkbook>> workbooks_;
};

} // namespace zvonika
