#include "spreadsheet/libreoffice/Clipboard.h"

#include "spreadsheet/Refusals.h"

namespace zvonika {

void Clipboard::paste() {
    workbooks_.active();
    requireCopied(copied_);
    cells_.writeAtSelection(copied_);
}

} // namespace zvonika
