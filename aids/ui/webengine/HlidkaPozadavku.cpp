#include "aids/ui/webengine/HlidkaPozadavku.h"

namespace zvonika {

namespace {

/// What a page shows. What it could read with a script, frames and requests of its own, is not among it.
bool jenKVideni(QWebEngineUrlRequestInfo::ResourceType druh) {
    switch (druh) {
    case QWebEngineUrlRequestInfo::ResourceTypeMainFrame:
    case QWebEngineUrlRequestInfo::ResourceTypeNavigationPreloadMainFrame:
    case QWebEngineUrlRequestInfo::ResourceTypeImage:
    case QWebEngineUrlRequestInfo::ResourceTypeStylesheet:
    case QWebEngineUrlRequestInfo::ResourceTypeFontResource:
    case QWebEngineUrlRequestInfo::ResourceTypeFavicon:
        return true;
    default:
        return false;
    }
}

} // namespace

void HlidkaPozadavku::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const QUrl adresa = info.requestUrl();
    if (adresa.scheme() != QLatin1String("file")) return;
    const bool lezi = povolene_.zachazeni(adresa) == PovoleneAdresy::Zachazeni::Zobrazit;
    if (!lezi || !jenKVideni(info.resourceType())) info.block(true);
}

} // namespace zvonika
