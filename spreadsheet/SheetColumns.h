#pragma once

#include <QString>
#include <QVector>

namespace zvonika {

/// What a column of a sheet means to whoever works in it.
struct SheetColumn {
    QString label;   ///< one word for the header, or ""
    QString meaning; ///< a sentence for the tool tip and screen readers, or ""
    int width = 64;  ///< px, where the file sets none
};

/// The columns from A on; what stands behind the last of them means nothing (`value` gives that).
using SheetColumns = QVector<SheetColumn>;

} // namespace zvonika
