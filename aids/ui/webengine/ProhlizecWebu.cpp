#include "aids/ui/webengine/ProhlizecWebu.h"

#include "aids/ui/webengine/HlidkaPozadavku.h"
#include "aids/ui/webengine/StrankaWebu.h"

#include <QMenu>
#include <QVBoxLayout>
#include <QWebEngineDownloadRequest>
#include <QWebEngineFindTextResult>
#include <QWebEngineHistory>

namespace zvonika {

ProhlizecWebu::ProhlizecWebu(const MistoProhlizece& misto)
    : QWidget(misto.rodic), sledovani_(misto.sledovani), povolene_(misto.povolene),
      profil_(std::make_unique<QWebEngineProfile>()), pohled_(std::make_unique<QWebEngineView>()),
      stranka_(new StrankaWebu(profil_.get(), misto, pohled_.get())) {
    pripravProfil();
    pripravPohled();
    sleduj();
}

ProhlizecWebu::~ProhlizecWebu() {
    stranka_->disconnect(this);
}

void ProhlizecWebu::pripravPohled() {
    pohled_->setPage(stranka_);
    pohled_->setContextMenuPolicy(Qt::CustomContextMenu);
    pohled_->setAcceptDrops(false); // a file let go over the page is not meant for it
    connect(pohled_.get(), &QWidget::customContextMenuRequested, this, &ProhlizecWebu::ukazNabidku);
    setFocusProxy(pohled_.get());
    auto* rozvrh = new QVBoxLayout(this);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    rozvrh->addWidget(pohled_.get());
}

void ProhlizecWebu::pripravProfil() {
    profil_->setHttpAcceptLanguage(QStringLiteral("cs"));
    profil_->setUrlRequestInterceptor(new HlidkaPozadavku(povolene_, profil_.get()));
    connect(profil_.get(), &QWebEngineProfile::downloadRequested, this,
            [this](QWebEngineDownloadRequest* stahovani) {
                stahovani->cancel();
                sledovani_.oznameno(QStringLiteral("V okně nápovědy se soubory nestahují."));
            });
}

void ProhlizecWebu::sleduj() {
    connect(stranka_, &QWebEnginePage::loadStarted, this, [this] { nacita_ = true; });
    connect(stranka_, &QWebEnginePage::loadFinished, this, [this] {
        nacita_ = false;
        sledovani_.prejito(stranka_->url());
    });
    connect(stranka_, &QWebEnginePage::urlChanged, this, [this](const QUrl& adresa) {
        if (!nacita_) sledovani_.prejito(adresa); // a place on the same page
        sledovani_.historieZmenena();
    });
    connect(stranka_, &QWebEnginePage::renderProcessTerminated, this,
            [this](QWebEnginePage::RenderProcessTerminationStatus stav, int) {
                if (stav != QWebEnginePage::NormalTerminationStatus) vykreslovaniPadlo();
            });
    connect(stranka_, &QWebEnginePage::findTextFinished, this, [this](const QWebEngineFindTextResult& nalez) {
        sledovani_.nalezeno(nalez.activeMatch(), nalez.numberOfMatches());
    });
}

void ProhlizecWebu::vykreslovaniPadlo() {
    nacita_ = false;
    spadla_ = stranka_->url();
    sledovani_.oznameno(QStringLiteral("Zobrazení stránky se zhroutilo. Vrátíte ji tlačítkem Obnovit."));
}

void ProhlizecWebu::prejdi(const QUrl& adresa) {
    if (!stranka_->smi(adresa, true)) return;
    spadla_.clear();
    pohled_->load(adresa);
}

void ProhlizecWebu::zpet() {
    pohled_->back();
}

void ProhlizecWebu::vpred() {
    pohled_->forward();
}

bool ProhlizecWebu::muzeZpet() const {
    return stranka_->history()->canGoBack();
}

bool ProhlizecWebu::muzeVpred() const {
    return stranka_->history()->canGoForward();
}

void ProhlizecWebu::obnov() {
    if (!spadla_.isEmpty())
        prejdi(QUrl(spadla_)); // a copy: going there forgets it
    else
        pohled_->reload();
    sledovani_.oznameno({});
}

QString ProhlizecWebu::titulek() const {
    return stranka_->title();
}

void ProhlizecWebu::najdi(const QString& text, bool dozadu) {
    stranka_->findText(text, dozadu ? QWebEnginePage::FindBackward : QWebEnginePage::FindFlags());
}

void ProhlizecWebu::ukazNabidku(const QPoint& misto) {
    QMenu nabidka;
    QAction* kopirovat = nabidka.addAction(QStringLiteral("Kopírovat"), this,
                                           [this] { stranka_->triggerAction(QWebEnginePage::Copy); });
    kopirovat->setEnabled(stranka_->hasSelection());
    nabidka.addAction(QStringLiteral("Vybrat vše"), this,
                      [this] { stranka_->triggerAction(QWebEnginePage::SelectAll); });
    nabidka.exec(pohled_->mapToGlobal(misto));
}

} // namespace zvonika
