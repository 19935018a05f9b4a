#pragma once

#include "platform/Dialogs.h"
#include "spreadsheet/WorkbookPlaces.h"
#include "spreadsheet/libreoffice/CalcCalls.h"
#include "spreadsheet/libreoffice/OpenFiles.h"
#include "spreadsheet/libreoffice/ReadAhead.h"
#include "spreadsheet/libreoffice/Rewriting.h"

namespace zvonika {

/// The workbooks that are open in Calc, as the port has them. The active one is the one that the program has
/// opened or activated last.
class Workbooks {
public:
    Workbooks(CalcCalls& calls, ReadAhead& seen, Dialogs& dialogs, const WorkbookPlaces& places,
              OpenFiles& files)
        : calls_(calls), seen_(seen), dialogs_(dialogs), places_(places), files_(files),
          rewriting_(dialogs, files) {}

    void add();
    /// A file that is open already comes to the front as it is.
    void open(const QString& fullName);
    void saveActiveAs(const SaveAsArguments& arguments); ///< replaces an existing file if the user agrees
    /// One that was never saved goes into the default folder. What stands against it is asked (Rewriting).
    void saveActive();
    void closeActive();
    QString activeName();  ///< "" when there is none
    OpenWorkbook active(); ///< 91 when there is none
    void activate(const QString& name);

    QVector<OpenWorkbook> all(); ///< those too that the user has opened
    void activate(int id);
    /// Saves the active workbook as .xls in this native file, there or not.
    void storeAs(const QString& nativePath);

private:
    void saveUnder(const QString& nativePath);
    void saveInPlace(const OpenWorkbook& workbook);
    bool isActive(const QString& name);
    std::optional<OpenWorkbook> at(const QString& nativePath);
    std::optional<OpenWorkbook> twin(const QString& nativePath, int exceptId);
    void makeRoom(const QString& nativePath, int exceptId = 0);
    void putAway(const OpenWorkbook& twin);

    CalcCalls& calls_;
    ReadAhead& seen_;
    Dialogs& dialogs_;
    const WorkbookPlaces& places_;
    OpenFiles& files_;
    Rewriting rewriting_;
};

} // namespace zvonika
