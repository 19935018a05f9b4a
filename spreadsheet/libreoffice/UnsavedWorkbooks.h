#pragma once

#include "platform/Dialogs.h"
#include "spreadsheet/WorkbookPlaces.h"
#include "spreadsheet/libreoffice/Workbooks.h"

namespace zvonika {

/// What is asked before Calc ends, about the workbooks with unsaved changes, those too that the user has
/// opened. A save that is refused is offered under another name, as .xls. What a file of another kind would
/// lose by that, its password for instance, is for its owner to say: he is asked to save it himself.
class UnsavedWorkbooks {
public:
    /// `settled`: told of each workbook that the user has saved, or does not want to save.
    UnsavedWorkbooks(CalcCalls& calls, Workbooks& workbooks, Dialogs& dialogs, const WorkbookPlaces& places,
                     std::function<void(int)> settled)
        : calls_(calls), workbooks_(workbooks), dialogs_(dialogs), places_(places),
          settled_(std::move(settled)) {}

    void offer();

private:
    bool save(const OpenWorkbook& workbook); ///< whether nothing is left to be done for its changes
    QStringList otherUnsaved();
    void leaveToOwner(const QString& name, const std::function<bool()>& isUnsaved);
    bool isUnsaved(int id);
    bool savedInPlace(const OpenWorkbook& workbook);
    enum class Outcome { Saved, Refused, GivenUp };
    Outcome savedElsewhere(const OpenWorkbook& workbook);
    QString suggestedFile(const OpenWorkbook& workbook) const;
    bool done(const std::function<void()>& save);

    CalcCalls& calls_;
    Workbooks& workbooks_;
    Dialogs& dialogs_;
    const WorkbookPlaces& places_;
    std::function<void(int)> settled_;
};

} // namespace zvonika
