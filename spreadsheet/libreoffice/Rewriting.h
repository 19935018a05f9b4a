#pragma once

#include "platform/Dialogs.h"
#include "spreadsheet/libreoffice/CalcEngine.h"
#include "spreadsheet/libreoffice/OpenFiles.h"

#include <QSet>

namespace zvonika {

/// What the user is asked before Calc writes a workbook over its file.
class Rewriting {
public:
    Rewriting(Dialogs& dialogs, const OpenFiles& files) : dialogs_(dialogs), files_(files) {}

    /// False when the file is to stay as it is: nothing was changed, and Calc would write another program's
    /// workbook in its own way. 1004 when it is not to be written although there are changes.
    bool wanted(const OpenWorkbook& workbook);

private:
    bool wantedUnchanged(const OpenWorkbook& workbook);
    bool agreed(const QString& question, Answer proposed);

    Dialogs& dialogs_;
    const OpenFiles& files_;
    QSet<int> left_; ///< workbooks whose files the user leaves as they are
};

} // namespace zvonika
