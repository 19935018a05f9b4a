#include "spreadsheet/libreoffice/Installation.h"

#include "platform/PluginFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace zvonika {

namespace {

constexpr int oldestVersion = 7;
const QString office = QStringLiteral("/soffice.bin");

/// "7.4" from the line "ProductKey=LibreOffice 7.4".
QString versionOf(const QString& program) {
    QFile file(program + QStringLiteral("/bootstraprc"));
    if (!file.open(QIODevice::ReadOnly)) return {};
    static const QRegularExpression line(QStringLiteral("^ProductKey=.*?(\\d+\\.\\d+)"),
                                         QRegularExpression::MultilineOption);
    return line.match(QString::fromUtf8(file.readAll())).captured(1);
}

bool hasWindows(const QString& program) {
    return !QDir(program).entryList({QStringLiteral("libvclplug_*lo.so")}, QDir::Files).isEmpty();
}

QString firstFile(const QStringList& folders, const QString& name) {
    for (const QString& folder : folders)
        if (QString file = folder + QLatin1Char('/') + name; QFileInfo(file).isFile()) return file;
    return {};
}

const QString withoutConnection = QStringLiteral(
    "Zvonika tu nemá doplněk pro spojení s LibreOffice: byla bez něj sestavena. Nainstalujte balíčky "
    "libreoffice-calc a libreoffice-dev a sestavte ji znovu.");

bool hasConnection(const Installation& found) {
    return !found.plugin.isEmpty() && !found.guardian.isEmpty();
}

QString whatIsMissing(const Installation& found) {
    if (!hasConnection(found)) return withoutConnection;
    if (found.version.section(QLatin1Char('.'), 0, 0).toInt() < oldestVersion)
        return QStringLiteral("Nainstalovaný LibreOffice %1 je příliš starý. Nainstalujte aspoň verzi %2.0.")
            .arg(found.version)
            .arg(oldestVersion);
    if (!QFileInfo::exists(found.program + QStringLiteral("/libsclo.so")))
        return QStringLiteral(
            "V nainstalovaném LibreOffice chybí tabulkový program Calc. Nainstalujte balíček "
            "libreoffice-calc.");
    if (!hasWindows(found.program))
        return QStringLiteral(
            "Nainstalovaný LibreOffice je bez oken, pouze pro převody souborů. Nainstalujte balíček "
            "libreoffice-core místo libreoffice-core-nogui.");
    return {};
}

} // namespace

InstallationPlaces InstallationPlaces::usual() {
    InstallationPlaces places;
    if (const QString command = QStandardPaths::findExecutable(QStringLiteral("soffice")); !command.isEmpty())
        places.programFolders << QFileInfo(QFileInfo(command).canonicalFilePath()).absolutePath();
    places.programFolders << QStringLiteral("/usr/lib/libreoffice/program")
                          << QStringLiteral("/usr/lib64/libreoffice/program");
    const QDir opt(QStringLiteral("/opt"));
    const QStringList own =
        opt.entryList({QStringLiteral("libreoffice*")}, QDir::Dirs, QDir::Name | QDir::Reversed);
    for (const QString& folder : own)
        places.programFolders << opt.filePath(folder + QStringLiteral("/program"));
    places.pluginFolders = zvonika::pluginFolders();
    return places;
}

Installation findLibreOffice(const InstallationPlaces& places) {
    Installation first;
    first.plugin = firstFile(places.pluginFolders, QStringLiteral("libzvonika_libreoffice.so"));
    first.guardian = firstFile(places.pluginFolders, QStringLiteral("zvonika-hlidac"));
    first.missing =
        hasConnection(first)
            ? QStringLiteral("LibreOffice není na tomto počítači nainstalován. Nainstalujte balíček "
                             "libreoffice-calc.")
            : withoutConnection;
    for (const QString& folder : places.programFolders) {
        if (!QFileInfo(folder + office).isFile()) continue;
        Installation found = first;
        found.program = folder;
        found.version = versionOf(folder);
        found.missing = whatIsMissing(found);
        if (found.usable()) return found;
        if (first.program.isEmpty()) first = found;
    }
    return first;
}

} // namespace zvonika
