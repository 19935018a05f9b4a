#include "platform/ui/DesktopShell.h"

#include "platform/DesktopLink.h"

#include <QDesktopServices>
#include <QUrl>

#include <cstdlib>

namespace zvonika {

bool DesktopShell::open(const QString& link) {
    return QDesktopServices::openUrl(QUrl(desktopLink(link)));
}

void DesktopShell::endProcess(int exitCode) {
    std::_Exit(exitCode);
}

} // namespace zvonika
