#pragma once

#include "spreadsheet/libreoffice/Cells.h"
#include "spreadsheet/libreoffice/Workbooks.h"

namespace zvonika {

/// The program's own clipboard: values of cells. The user's is Calc's.
class Clipboard {
public:
    Clipboard(Workbooks& workbooks, Cells& cells) : workbooks_(workbooks), cells_(cells) {}

    void copy(const QString& address) { copied_ = cells_.read(address); }
    /// At the selection of the active workbook.
    void paste();

private:
    Workbooks& workbooks_;
    Cells& cells_;
    CellBlock copied_;
};

} // namespace zvonika
