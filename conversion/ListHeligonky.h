#pragma once

#include <QString>

namespace zvonika {

/// Name of the sheet that holds a version for the heligonka in this key: the instrument's tuning that
/// contains the key. A key of no tuning gives a request to change the name.
QString nazevListuHeligonky(const QString& cilova);

} // namespace zvonika
