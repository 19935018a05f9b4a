#pragma once

#include "spreadsheet/SpreadsheetApplication.h"
#include "spreadsheet/WorkbookImage.h"

namespace zvonika {

/// Told of what ends the unsaved changes of a workbook otherwise than by a call of the program. Calls arrive
/// on the user-interface thread.
class WorkbookWatcher {
public:
    virtual ~WorkbookWatcher() = default;
    /// The user has closed this workbook, or was asked about it at the end: what was not saved he does not
    /// want.
    virtual void workbookSettled(int workbook) = 0;
};

/// A spreadsheet application of another process, which can go at any moment and take what is not saved with
/// it. Beside the port it tells as much as it takes to keep a record of its workbooks.
class LiveSpreadsheet : public SpreadsheetApplication {
public:
    /// Where the port's calls go.
    struct Place {
        int workbook = 0; ///< as WorkbookImage::id; 0: there is no workbook
        int sheet = 1;    ///< place in the workbook, hidden sheets counted too
    };
    virtual Place place() const = 0;
    virtual bool alive() const = 0; ///< false once it is known to be gone
    /// How many acts of the user have been heard of, on whichever thread. What was asked holds until the
    /// number grows.
    virtual unsigned acts() const = 0;
    /// The workbook as it stands; nothing when it is not open any more.
    virtual std::optional<WorkbookImage> image(int workbook) = 0;
    virtual void setWatcher(WorkbookWatcher* watcher) = 0;

    /// What a step is, its record knows; what the user does in the window is taken back there.
    void beginStep() override {}
    void endStep() override {}
    void setStepKeeper(StepKeeper* keeper) override { static_cast<void>(keeper); }
    void stepsChanged() override {}
};

} // namespace zvonika
