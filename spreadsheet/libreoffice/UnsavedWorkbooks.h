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
    UnsavedWorkbooks(CalcCalls& calls, Workbooks& workbooks, Dialogs& dialogs, const WorkbookPlaces& places)
        : calls_(calls), workbooks_(workbooks), dialogs_(dialogs), places_(places) {}

    void offer();

private:
    void save(const OpenWorkbook& workbook);
    QStringList otherUnsaved();
    void leaveToOwner(const QString& name, const std::function<bool()>& isUnsaved);
    bool isUnsaved(int id);
    bool savedInPlace(const OpenWorkbook& workbook);
    bool savedElsewhere(const OpenWorkbook& workbook);
    QString suggestedFile(const OpenWorkbook& workbook) const;
    bool done(const std::function<void()>& save);

    CalcCalls& calls_;
    Workbooks& workbooks_;
    Dialogs& dialogs_;
    const WorkbookPlaces& places_;
};

} // namespace zvonika
