#pragma once

#include "platform/Dialogs.h"
#include "spreadsheet/WorkbookPlaces.h"
#include "spreadsheet/libreoffice/CalcCalls.h"
#include "spreadsheet/libreoffice/ReadAhead.h"

namespace zvonika {

/// The workbooks that are open in Calc, as the port has them. The active one is the one that the program has
/// opened or activated last.
class Workbooks {
public:
    Workbooks(CalcCalls& calls, ReadAhead& seen, Dialogs& dialogs, const WorkbookPlaces& places)
        : calls_(calls), seen_(seen), dialogs_(dialogs), places_(places) {}

    void add();
    void open(const QString& fullName);
    void saveActiveAs(const SaveAsArguments& arguments); ///< replaces an existing file if the user agrees
    void saveActive(); ///< one that was never saved goes into the default folder
    void closeActive();
    QString activeName();  ///< "" when there is none
    OpenWorkbook active(); ///< 91 when there is none
    void activate(const QString& name);

    QVector<OpenWorkbook> all(); ///< those too that the user has opened
    void activate(int id);
    /// Saves the active workbook in this native file, there or not.
    void storeAs(const QString& nativePath);

private:
    void saveUnder(const QString& nativePath);
    bool isActive(const QString& name);
    void refuseTwins(const QString& nativePath, int exceptId);

    CalcCalls& calls_;
    ReadAhead& seen_;
    Dialogs& dialogs_;
    const WorkbookPlaces& places_;
};

} // namespace zvonika
