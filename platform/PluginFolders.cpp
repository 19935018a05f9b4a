#include "platform/PluginFolders.h"

#include <QCoreApplication>

namespace zvonika {

QStringList pluginFolders() {
    const QString here = QCoreApplication::applicationDirPath();
    return {here + QStringLiteral("/plugins"), here + QStringLiteral("/../lib/zvonika")};
}

} // namespace zvonika
