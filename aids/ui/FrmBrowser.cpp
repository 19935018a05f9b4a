#include "aids/ui/FrmBrowser.h"

#include "aids/ui/HledaniNaStrance.h"
#include "aids/ui/IkonyProhlizece.h"
#include "platform/ShownText.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QToolBar>

#include <utility>

namespace zvonika {

namespace {

constexpr int tikBusy = 50; // ms between looks at whether the page is there
constexpr int delkaHistorie = 30;

const QString nacitani = QStringLiteral("Working...");

QString naAdresu(const QUrl& adresa) {
    return adresa.toDisplayString(QUrl::PreferLocalFile);
}

} // namespace

struct FrmBrowser::TlacitkoListy {
    QString klic;
    QString popisek;
    QList<QKeySequence> klavesy;
};

const QVector<FrmBrowser::TlacitkoListy>& FrmBrowser::tlacitka() {
    static const QVector<TlacitkoListy> tabulka = {
        {"Back", "Zpět", {QKeySequence("Alt+Left")}},
        {"Forward", "Vpřed", {QKeySequence("Alt+Right")}},
        {"Refresh", "Obnovit", {QKeySequence("F5"), QKeySequence("Ctrl+R")}},
        {"Home", "Domů", {QKeySequence("Alt+Home")}},
        {"Search", "Hledat", {QKeySequence("Ctrl+F"), QKeySequence("F3")}},
        {"Stop", "Zastavit", {}},
    };
    return tabulka;
}

FrmBrowser::FrmBrowser(const ProstrediProhlizece& prostredi, const QString& StartingAddress, QWidget* parent)
    : QMainWindow(parent), prostredi_(prostredi), povolene_(prostredi.slozkaPrirucky) {
    setObjectName(QStringLiteral("frmBrowser"));
    setWindowTitle(QStringLiteral("Nápověda"));
    setContextMenuPolicy(Qt::NoContextMenu);
    timTimer_.setObjectName(QStringLiteral("timTimer"));
    timTimer_.setInterval(tikBusy);
    connect(&timTimer_, &QTimer::timeout, this, &FrmBrowser::timTimer_Timer);
    postavListu();
    postavAdresu();
    postavStranku();
    historieZmenena();
    if (StartingAddress.isEmpty()) return;
    cboAddress_->addItem(StartingAddress);
    cboAddress_->setEditText(StartingAddress);
    cboAddress_Click();
}

FrmBrowser::~FrmBrowser() {
    konec();
    delete brwWebBrowser_->widget(); // before the window that it tells of its doings
}

void FrmBrowser::postavListu() {
    auto* lista = addToolBar(QStringLiteral("Lišta"));
    lista->setObjectName(QStringLiteral("tbToolBar"));
    lista->setAccessibleName(QStringLiteral("Tlačítka nápovědy"));
    lista->setMovable(false);
    lista->setIconSize({24, 24});
    lista->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    for (const TlacitkoListy& radek : tlacitka()) {
        QAction* akce = lista->addAction(imlIcons(radek.klic), radek.popisek);
        akce->setObjectName(radek.klic);
        akce->setShortcuts(radek.klavesy);
        if (!radek.klavesy.isEmpty())
            akce->setToolTip(radek.popisek +
                             QStringLiteral(" (%1)").arg(radek.klavesy.constFirst().toString()));
        connect(akce, &QAction::triggered, this, [this, klic = radek.klic] { tbToolBar_ButtonClick(klic); });
        lista->widgetForAction(akce)->setFocusPolicy(Qt::TabFocus);
    }
}

void FrmBrowser::postavAdresu() {
    addToolBarBreak();
    auto* pas = addToolBar(QStringLiteral("Adresa"));
    pas->setMovable(false);
    auto* picAddress = new QWidget;
    picAddress->setObjectName(QStringLiteral("picAddress"));
    auto* lblAddress = new QLabel(QStringLiteral("&Address:"));
    lblAddress->setObjectName(QStringLiteral("lblAddress"));
    cboAddress_ = new QComboBox;
    cboAddress_->setObjectName(QStringLiteral("cboAddress"));
    cboAddress_->setAccessibleName(QStringLiteral("Adresa stránky"));
    cboAddress_->setEditable(true);
    cboAddress_->setInsertPolicy(QComboBox::NoInsert);
    cboAddress_->setCompleter(nullptr);
    cboAddress_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    cboAddress_->setMinimumContentsLength(10);
    lblAddress->setBuddy(cboAddress_);
    auto* rozvrh = new QHBoxLayout(picAddress);
    rozvrh->setContentsMargins(6, 0, 6, 4);
    rozvrh->addWidget(lblAddress);
    rozvrh->addWidget(cboAddress_, 1);
    pas->addWidget(picAddress);
    connect(cboAddress_, &QComboBox::textActivated, this, &FrmBrowser::cboAddress_Click);
    cboAddress_->installEventFilter(this);
    cboAddress_->lineEdit()->installEventFilter(this);
}

bool FrmBrowser::eventFilter(QObject* cil, QEvent* udalost) {
    // Enter is taken before the list hears of it: it would choose the address a second time.
    if (udalost->type() != QEvent::KeyPress || (cil != cboAddress_ && cil != cboAddress_->lineEdit()))
        return false;
    const int klavesa = static_cast<QKeyEvent*>(udalost)->key();
    if (klavesa != Qt::Key_Return && klavesa != Qt::Key_Enter) return false;
    cboAddress_Click();
    return true;
}

void FrmBrowser::postavStranku() {
    auto* stred = new QWidget;
    auto* rozvrh = new QVBoxLayout(stred);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    rozvrh->setSpacing(0);
    const VytvorenyProhlizec vytvoreny = prostredi_.tvurce({povolene_, *this, stred});
    brwWebBrowser_ = vytvoreny.prohlizec;
    QWidget* stranka = brwWebBrowser_->widget();
    stranka->setObjectName(QStringLiteral("brwWebBrowser"));
    stranka->setAccessibleName(QStringLiteral("Stránka nápovědy"));
    hledani_ = new HledaniNaStrance(stred);
    connect(hledani_, &HledaniNaStrance::hledat, this,
            [this](const QString& text, bool dozadu) { brwWebBrowser_->najdi(text, dozadu); });
    connect(hledani_, &HledaniNaStrance::zavreno, stranka, qOverload<>(&QWidget::setFocus));
    rozvrh->addWidget(stranka, 1);
    rozvrh->addWidget(hledani_);
    setCentralWidget(stred);
    postavStav(vytvoreny.duvodNahrady);
    stranka->setFocus();
}

void FrmBrowser::postavStav(const QString& duvodNahrady) {
    lblStav_ = new QLabel;
    lblStav_->setObjectName(QStringLiteral("lblStav"));
    lblStav_->setTextFormat(Qt::PlainText);
    // A long address must not keep the window from being made narrow.
    lblStav_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(lblStav_, 1);
    if (duvodNahrady.isEmpty()) return;
    auto* lblNahrada = new QLabel(QStringLiteral("Zjednodušené zobrazení: %1.").arg(duvodNahrady));
    lblNahrada->setObjectName(QStringLiteral("lblNahrada"));
    statusBar()->addPermanentWidget(lblNahrada);
}

void FrmBrowser::prejdi(const QUrl& adresa) {
    bezOtazek_ = false;
    timTimer_.start();
    brwWebBrowser_->prejdi(adresa);
}

void FrmBrowser::tbToolBar_ButtonClick(const QString& klic) {
    timTimer_.start();
    if (klic == QLatin1String("Back")) return brwWebBrowser_->zpet();
    if (klic == QLatin1String("Forward")) return brwWebBrowser_->vpred();
    if (klic == QLatin1String("Refresh")) return brwWebBrowser_->obnov();
    if (klic == QLatin1String("Home")) return brwWebBrowser_->prejdi(prostredi_.domov);
    if (klic == QLatin1String("Search")) return hledani_->otevri();
    timTimer_.stop();
    brwWebBrowser_->zastav();
    timTimer_Timer(); // nothing is being loaded any more: the caption must not say so
}

void FrmBrowser::cboAddress_Click() {
    const QUrl adresa = povolene_.zTextu(cboAddress_->currentText());
    if (!adresa.isEmpty()) prejdi(adresa);
}

void FrmBrowser::timTimer_Timer() {
    if (brwWebBrowser_->zaneprazdnen()) {
        setWindowTitle(nacitani);
        return;
    }
    timTimer_.stop();
    const QString titulek = brwWebBrowser_->titulek();
    setWindowTitle(shownTitle(titulek.isEmpty() ? cboAddress_->currentText() : titulek));
}

void FrmBrowser::prejito(const QUrl& adresa) {
    const QSignalBlocker ticho(cboAddress_); // an address set by the program is no choice
    const QString text = naAdresu(adresa);
    const int znama = cboAddress_->findText(text);
    if (znama >= 0) cboAddress_->removeItem(znama);
    cboAddress_->insertItem(0, text);
    cboAddress_->setMaxCount(delkaHistorie);
    cboAddress_->setCurrentIndex(0);
    cboAddress_->setEditText(text);
    timTimer_.start(); // the caption follows links as well
}

void FrmBrowser::historieZmenena() {
    findChild<QAction*>(QStringLiteral("Back"))->setEnabled(brwWebBrowser_ && brwWebBrowser_->muzeZpet());
    findChild<QAction*>(QStringLiteral("Forward"))->setEnabled(brwWebBrowser_ && brwWebBrowser_->muzeVpred());
}

// The box comes up behind the control's own step. A page that asks again and again is asked about once.
void FrmBrowser::odkazVen(const QUrl& adresa, bool zvoleny) {
    if (zvoleny) return predejVen(adresa);
    if (std::exchange(bezOtazek_, true)) return;
    QMetaObject::invokeMethod(
        this, [this, adresa] { zeptejSe(adresa); }, Qt::QueuedConnection);
}

void FrmBrowser::zeptejSe(const QUrl& adresa) {
    const QPointer<FrmBrowser> zde(this);
    const bool ano = prostredi_.smiVen && prostredi_.smiVen(adresa.toDisplayString());
    if (!zde) return;
    bezOtazek_ = !ano;
    ano ? predejVen(adresa)
        : oznameno(QStringLiteral("Odkaz nebyl otevřen: %1").arg(adresa.toDisplayString()));
}

void FrmBrowser::predejVen(const QUrl& adresa) {
    const bool otevreno = prostredi_.otevriVen && prostredi_.otevriVen(adresa.toString(QUrl::FullyEncoded));
    oznameno(otevreno ? QStringLiteral("Odkaz byl předán vašemu programu: %1").arg(adresa.toDisplayString())
                      : QStringLiteral("Odkaz nelze otevřít: %1").arg(adresa.toDisplayString()));
}

void FrmBrowser::oznameno(const QString& veta) {
    lblStav_->setText(shownName(veta));
}

void FrmBrowser::nalezeno(int kolikaty, int celkem) {
    hledani_->ukazVysledek(kolikaty, celkem);
}

void FrmBrowser::konec() {
    if (std::exchange(skoncil_, true)) return;
    timTimer_.stop();
    Q_EMIT zavreno();
}

void FrmBrowser::closeEvent(QCloseEvent* event) {
    event->accept();
    konec();
}

} // namespace zvonika
