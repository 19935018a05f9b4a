#include "conversion/ui/FrmKonverze.h"

#include "conversion/Konverze.h"
#include "platform/ShownText.h"
#include "platform/ui/PrvkyDialogu.h"
#include "spreadsheet/Address.h"
#include "theory/ui/VolbyTonin.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace zvonika {

namespace {

constexpr qsizetype nejdelsiJmeno = 60; ///< characters; the dialog must not grow by it
const QString nejdelsiTitulek = QStringLiteral("Změňte stupnici a stikněte pokračovat.");

QString prubeh(int radek) {
    return QStringLiteral("Převeden řádek %1 …").arg(radek);
}

void zvyrazni(QWidget* prvek, double zvetseni = 1) {
    QFont pismo = prvek->font();
    pismo.setBold(true);
    pismo.setPixelSize(static_cast<int>(prvek->fontInfo().pixelSize() * zvetseni));
    prvek->setFont(pismo);
}

} // namespace

FrmKonverze::FrmKonverze(Konverze& konverze, StavKonverze& stav, Udalost udalost, QWidget* parent)
    : QDialog(parent), konverze_(konverze), stav_(stav), udalost_(std::move(udalost)) {
    pripravDialog(*this, QStringLiteral("frmKonverze"), nejdelsiTitulek, parent);
    setWindowFlag(Qt::WindowStaysOnTopHint, true); // also where no window of the program is
    setMinimumWidth(sirkaTitulku(*this));
    auto* rozvrh = new QVBoxLayout(this);
    rozvrh->addWidget(postavZdroj());
    rozvrh->addWidget(postavCil(), 1);
    rozvrh->addWidget(postavTlacitka());
    connect(&stav_, &StavKonverze::zmeneno, this, &FrmKonverze::ukaz);
    ukaz();
    zamerVolbu();
}

QWidget* FrmKonverze::postavZdroj() {
    auto* zdroj = new QWidget;
    auto* rozvrh = new QGridLayout(zdroj);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    cmdVyberPisen_ = prikaz(QStringLiteral("cmdVyberPisen"), stav_.cmdVyberPisen, &Konverze::cmdVyberPisen);
    lblStupnice_ = napis(QStringLiteral("lblStupnice"), {});
    zvyrazni(lblStupnice_);
    auto* label2 = napis(QStringLiteral("Label2"), QStringLiteral("Aktuální stupnice"));
    lblKonec_ = napis(QStringLiteral("lblKonec"),
                      QStringLiteral("Konverzi aktuálního souboru bohužel nelze provést. Zkuste "
                                     "jinou korektně zapsanou skladbu !"));
    lblKonec_->setWordWrap(true);
    zvyrazni(lblKonec_);
    lblLadeni_ = napis(QStringLiteral("lblLadeni"), {});
    lblLadeni_->hide();
    rozvrh->addWidget(cmdVyberPisen_, 0, 0, 1, 2);
    rozvrh->addWidget(lblKonec_, 1, 0, 1, 2);
    rozvrh->addWidget(label2, 2, 0);
    rozvrh->addWidget(lblStupnice_, 2, 1);
    rozvrh->addWidget(lblLadeni_, 3, 0);
    rozvrh->setColumnStretch(1, 1);
    return zdroj;
}

QWidget* FrmKonverze::postavCil() {
    auto* cil = new QWidget;
    auto* rozvrh = new QVBoxLayout(cil);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    label1_ = napis(QStringLiteral("Label1"), QStringLiteral("Vyberte cílové ladění"));
    zvyrazni(label1_, 1.25);
    frame1_ = new QGroupBox;
    frame1_->setObjectName(QStringLiteral("Frame1"));
    frame1_->setAccessibleName(label1_->text());
    optStupnice_ = vytvorVolbyTonin(*frame1_);
    connect(optStupnice_, &QButtonGroup::idToggled, this, [this](int volba, bool zvolena) {
        if (zvolena) stav_.optStupnice = volba;
    });
    check1_ = new QCheckBox(QStringLiteral("Vytvořit verzi pro heligonku"));
    check1_->setObjectName(QStringLiteral("Check1"));
    connect(check1_, &QCheckBox::toggled, this, [this](bool zaskrtnuto) { stav_.Check1 = zaskrtnuto; });
    for (QWidget* prvek : std::initializer_list<QWidget*>{label1_, frame1_, check1_})
        rozvrh->addWidget(prvek, prvek == frame1_ ? 1 : 0);
    return cil;
}

QWidget* FrmKonverze::postavTlacitka() {
    auto* rada = new QWidget;
    auto* rozvrh = new QHBoxLayout(rada);
    rozvrh->setContentsMargins(0, 0, 0, 0);
    auto* cmdKonec = tlacitko(QStringLiteral("cmdKonec"), QStringLiteral("Konec"));
    connect(cmdKonec, &QPushButton::clicked, this, &FrmKonverze::reject);
    cmdPokracovat_ =
        prikaz(QStringLiteral("cmdPokracovat"), QStringLiteral("Pokračovat"), &Konverze::cmdPokracovat);
    cmdGo_ = prikaz(QStringLiteral("cmdGo"), QStringLiteral("Provést"), &Konverze::cmdGo);
    lblPrubeh_ = napis(QStringLiteral("lblPrubeh"), {});
    lblPrubeh_->setMinimumWidth(lblPrubeh_->fontMetrics().horizontalAdvance(prubeh(lastRow)));
    rozvrh->addWidget(cmdKonec);
    rozvrh->addWidget(lblPrubeh_, 1);
    rozvrh->addWidget(cmdPokracovat_);
    rozvrh->addWidget(cmdGo_);
    return rada;
}

QPushButton* FrmKonverze::prikaz(const QString& jmeno, const QString& popisek,
                                 void (Konverze::*procedura)()) {
    QPushButton* prvek = tlacitko(jmeno, popisek);
    connect(prvek, &QPushButton::clicked, this,
            [this, procedura] { udalost_([this, procedura] { (konverze_.*procedura)(); }); });
    return prvek;
}

void FrmKonverze::reject() {
    konverze_.cmdKonec();
}

void FrmKonverze::ukaz() {
    if (stav_.zavreno) {
        if (isVisible()) done(Rejected);
        return;
    }
    setWindowTitle(stav_.titulek);
    ukazZdroj();
    ukazBeh();
    if (!std::exchange(cekal_, stav_.ceka) && stav_.ceka) zamerVolbu();
}

void FrmKonverze::ukazZdroj() {
    const QString pisen = shownName(stav_.cmdVyberPisen, nejdelsiJmeno);
    cmdVyberPisen_->setText(QString(pisen).replace(u'&', QStringLiteral("&&")));
    cmdVyberPisen_->setAccessibleName(pisen);
    for (QWidget* prvek : std::initializer_list<QWidget*>{cmdVyberPisen_, cmdGo_, label1_})
        prvek->setVisible(stav_.lzeKonvertovat);
    lblKonec_->setVisible(!stav_.lzeKonvertovat);
    lblStupnice_->setText(shownName(stav_.lblStupnice, nejdelsiJmeno));
    lblLadeni_->setText(stav_.lblLadeni);
}

void FrmKonverze::ukazBeh() {
    const bool lzeVolit = stav_.lzeKonvertovat && !stav_.bezi;
    cmdVyberPisen_->setEnabled(stav_.vyberPovolen && !stav_.bezi);
    frame1_->setEnabled(lzeVolit);
    check1_->setEnabled(lzeVolit);
    // A waiting run is gone on with, a failed one is over: a half-converted copy would be taken for a song.
    cmdGo_->setEnabled(!stav_.bezi && !stav_.ceka && !stav_.selhala);
    cmdGo_->setDefault(!stav_.ceka);
    cmdPokracovat_->setVisible(stav_.pokracovatViditelne);
    cmdPokracovat_->setEnabled(!stav_.bezi && stav_.ceka);
    cmdPokracovat_->setDefault(stav_.ceka);
    lblPrubeh_->setText(stav_.bezi && stav_.radek > 0 ? prubeh(stav_.radek) : QString());
    stav_.bezi ? setCursor(Qt::WaitCursor) : unsetCursor();
}

/// The next thing to do is to choose a key.
void FrmKonverze::zamerVolbu() {
    QAbstractButton* zvolena = optStupnice_->checkedButton();
    if (!stav_.lzeKonvertovat || (!zvolena && stav_.vyberPovolen)) return;
    (zvolena ? zvolena : optStupnice_->button(0))->setFocus();
}

} // namespace zvonika
