#include "aids/ui/webengine/StrankaWebu.h"

#include <QAuthenticator>
#include <QWebEngineCertificateError>
#include <QWebEngineFullScreenRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineSettings>

namespace zvonika {

namespace {

using Nastaveni = QWebEngineSettings::WebAttribute;

/// What a page could reach out with; the engine's own defaults are kinder to it.
constexpr Nastaveni zakazano[] = {
    QWebEngineSettings::LocalContentCanAccessRemoteUrls,
    QWebEngineSettings::AllowRunningInsecureContent,
    QWebEngineSettings::AllowGeolocationOnInsecureOrigins,
    QWebEngineSettings::AllowWindowActivationFromJavaScript,
    QWebEngineSettings::JavascriptCanOpenWindows,
    QWebEngineSettings::JavascriptCanAccessClipboard,
    QWebEngineSettings::JavascriptCanPaste,
    QWebEngineSettings::LocalStorageEnabled,
    QWebEngineSettings::PluginsEnabled,
    QWebEngineSettings::PdfViewerEnabled,
    QWebEngineSettings::ScreenCaptureEnabled,
    QWebEngineSettings::FullScreenSupportEnabled,
    QWebEngineSettings::HyperlinkAuditingEnabled,
    QWebEngineSettings::DnsPrefetchEnabled,
};

} // namespace

StrankaWebu::StrankaWebu(QWebEngineProfile* profil, const MistoProhlizece& misto, QObject* rodic)
    : QWebEnginePage(profil, rodic), povolene_(misto.povolene), sledovani_(misto.sledovani) {
    omezPravaStranky();
    odmitejZadosti();
    connect(this, &QWebEnginePage::loadFinished, this, [this] { naCeste_ = false; });
}

void StrankaWebu::omezPravaStranky() {
    for (const Nastaveni vlastnost : zakazano)
        settings()->setAttribute(vlastnost, false);
    settings()->setAttribute(QWebEngineSettings::PlaybackRequiresUserGesture, true);
    // Not that they may: this way the engine asks here about each, also where a server has led to it.
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::AllowAllUnknownUrlSchemes);
}

void StrankaWebu::odmitejZadosti() {
    connect(this, &QWebEnginePage::featurePermissionRequested, this, [this](const QUrl& kdo, Feature prava) {
        setFeaturePermission(kdo, prava, PermissionDeniedByUser);
    });
    connect(this, &QWebEnginePage::fullScreenRequested, this,
            [](QWebEngineFullScreenRequest zadost) { zadost.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest zadost) { zadost.reject(); });
    connect(this, &QWebEnginePage::certificateError, this, [this](QWebEngineCertificateError chyba) {
        chyba.rejectCertificate();
        sledovani_.oznameno(
            QStringLiteral("Stránka se neprokázala platným certifikátem, proto nebyla otevřena."));
    });
    // An empty answer is taken as a refusal; without one the engine would ask with a box of its own.
    connect(this, &QWebEnginePage::authenticationRequired, this,
            [](const QUrl&, QAuthenticator* overeni) { *overeni = QAuthenticator(); });
}

bool StrankaWebu::smi(const QUrl& adresa, bool zvolena) {
    switch (povolene_.zachazeni(adresa)) {
    case PovoleneAdresy::Zachazeni::Zobrazit:
        return true;
    case PovoleneAdresy::Zachazeni::Ven:
        sledovani_.odkazVen(adresa, zvolena);
        return false;
    case PovoleneAdresy::Zachazeni::Odmitnout:
        break;
    }
    sledovani_.oznameno(QStringLiteral("Odkaz vede mimo příručku, proto nebyl otevřen."));
    return false;
}

bool StrankaWebu::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    if (!isMainFrame) return povolene_.zachazeni(url) == PovoleneAdresy::Zachazeni::Zobrazit;
    // The manual's own links are the user's choice. A page of the web clicks on its links itself if it likes,
    // and what comes while another address is being loaded, a server has put in its place.
    const bool vlastni = type == NavigationTypeLinkClicked && this->url().isLocalFile() && !naCeste_;
    naCeste_ = smi(url, vlastni);
    return naCeste_;
}

QWebEnginePage* StrankaWebu::createWindow(WebWindowType) {
    return this; // a link that asks for a window of its own is followed in this one
}

} // namespace zvonika
