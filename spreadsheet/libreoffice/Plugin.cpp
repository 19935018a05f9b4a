#include "spreadsheet/libreoffice/Plugin.h"

#include "platform/Log.h"
#include "platform/RuntimeError.h"
#include "spreadsheet/libreoffice/Installation.h"

#include <QLibrary>

namespace zvonika {

namespace {

[[noreturn]] void cannotLoad(const QString& reason) {
    throw RuntimeError(error::cannotCreateObject,
                       QStringLiteral("Spojení s LibreOffice nelze načíst: %1").arg(reason));
}

void load(QLibrary& library) {
    library.setLoadHints(QLibrary::PreventUnloadHint);
    if (library.load()) return;
    qCWarning(callsLog).noquote() << library.errorString();
    cannotLoad(QStringLiteral(
        "jeho součásti k sobě nepatří. Přeinstalujte LibreOffice, nebo sestavte Zvoniku znovu."));
}

// The plug-in names these four and finds them where they are loaded already, so that it can be used with any
// installation. The order is that of their dependence on each other.
void loadUno(const QString& program) {
    for (const char* name :
         {"libuno_sal.so.3", "libuno_salhelpergcc3.so.3", "libuno_cppu.so.3", "libuno_cppuhelpergcc3.so.3"}) {
        QLibrary library(program + QLatin1Char('/') + QLatin1String(name));
        load(library);
    }
}

} // namespace

ConnectToCalc loadCalcPlugin(const Installation& installation) {
    loadUno(installation.program);
    QLibrary plugin(installation.plugin);
    load(plugin);
    const auto version = reinterpret_cast<CalcPluginVersion>(plugin.resolve("zvonikaCalcPluginVersion"));
    const auto connect = reinterpret_cast<ConnectToCalc>(plugin.resolve("zvonikaConnectToCalc"));
    if (!version || !connect || version() != calcPluginVersion)
        cannotLoad(QStringLiteral("doplněk patří k jiné verzi Zvoniky."));
    return connect;
}

} // namespace zvonika
