#pragma once

#include "spreadsheet/WorkbookPlaces.h"
#include "spreadsheet/libreoffice/CalcCalls.h"

namespace zvonika {

/// The default folder, which the user may change in Calc's own options.
class CalcFolder {
public:
    CalcFolder(CalcCalls& calls, WorkbookPlaces& places);

    QString path();
    void setPath(const QString& path);
    /// Takes over what the user has chosen.
    void keep();

private:
    CalcCalls& calls_;
    WorkbookPlaces& places_;
    QString known_; ///< native, as Calc was last known to have it
};

} // namespace zvonika
