#include "platform/media/MediaCommand.h"

#include "platform/Drive.h"

#include <QDir>

namespace zvonika {

QString systemCommand(const QString& command, const Drive& drive) {
    const qsizetype verb = command.indexOf(QLatin1Char(' '));
    if (verb < 0) return command;
    const qsizetype type = command.lastIndexOf(QStringLiteral(" type "));
    const qsizetype end = type > verb ? type : command.size();
    QString file = command.mid(verb + 1, end - verb - 1);
    const bool quoted =
        file.size() > 1 && file.startsWith(QLatin1Char('"')) && file.endsWith(QLatin1Char('"'));
    if (quoted) file = file.mid(1, file.size() - 2);
    if (hasDrive(file)) file = QDir::toNativeSeparators(drive.nativePath(file));
    if (file.contains(QLatin1Char(' '))) file = QLatin1Char('"') + file + QLatin1Char('"');
    return command.left(verb + 1) + file + command.mid(end);
}

} // namespace zvonika
