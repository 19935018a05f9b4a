#include "aids/ui/VolbaProhlizece.h"

#include "aids/ui/ProhlizecTextu.h"

#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

namespace zvonika {

namespace {

/// Nothing is said where nobody can have it.
#ifdef Q_OS_WIN
const QString nenainstalovano;
#else
const QString nenainstalovano = QStringLiteral("není nainstalována součást Qt WebEngine");
#endif

QString duvod(WebSandbox stav) {
    switch (stav) {
    case WebSandbox::NotForRoot:
        return QStringLiteral("program běží pod správcem systému, kde úplný prohlížeč spustit nelze");
    case WebSandbox::NoUserNamespaces:
        return QStringLiteral("systém nedovoluje úplnému prohlížeči oddělit zobrazené stránky od počítače");
    case WebSandbox::Usable:
    case WebSandbox::SwitchedOff:
        break;
    }
    return {};
}

QString souborPluginu(const QStringList& slozky) {
    for (const QString& slozka : slozky)
        for (const QFileInfo& soubor : QDir(slozka).entryInfoList({QStringLiteral("*zvonika_webengine.*")}))
            return soubor.absoluteFilePath();
    return {};
}

/// Null with the reason.
TovarnaProhlizece* tovarna(const QStringList& slozky, WebSandbox (*piskoviste)(), QString& proc) {
    const QString soubor = souborPluginu(slozky);
    proc = nenainstalovano;
    if (soubor.isEmpty()) return nullptr;
    proc = duvod(piskoviste());
    if (!proc.isEmpty()) return nullptr;
    // Loaded once and kept: the engine cannot be taken out of a process again.
    QPluginLoader zavadec(soubor);
    auto* nalezena = qobject_cast<TovarnaProhlizece*>(zavadec.instance());
    if (!nalezena) proc = nenainstalovano;
    return nalezena;
}

} // namespace

TvurceProhlizece volbaProhlizece(const QStringList& slozky, WebSandbox (*piskoviste)()) {
    return [slozky, piskoviste](const MistoProhlizece& misto) -> VytvorenyProhlizec {
        QString proc;
        if (TovarnaProhlizece* plna = tovarna(slozky, piskoviste, proc)) return {plna->vytvor(misto), {}};
        return {new ProhlizecTextu(misto), proc};
    };
}

TvurceProhlizece jednoduchyProhlizec() {
    return [](const MistoProhlizece& misto) -> VytvorenyProhlizec { return {new ProhlizecTextu(misto), {}}; };
}

} // namespace zvonika
