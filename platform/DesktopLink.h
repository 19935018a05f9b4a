#pragma once

#include <QString>

namespace zvonika {

/// A link as a desktop takes it: without a leading quotation mark, everything that may not stand in a link
/// percent-encoded; what is encoded already stays.
QString desktopLink(const QString& link);

} // namespace zvonika
