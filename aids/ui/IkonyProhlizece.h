#pragma once

#include <QIcon>
#include <QString>

namespace zvonika {

/// The image list of the help window (`imlIcons`): the picture of a toolbar button by its key "Back",
/// "Forward", "Refresh", "Home", "Search" or "Stop"; empty for any other. Sharp up to 96 pixels.
QIcon imlIcons(const QString& klic);

} // namespace zvonika
