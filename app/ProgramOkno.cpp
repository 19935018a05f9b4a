// The main window's side of Program: what stands in the scene, and how window and models hear of each other.
#include "app/PoradiFokusu.h"
#include "app/Program.h"
#include "app/ui/SevrenyVyber.h"
#include "board/ui/Hmatnik.h"
#include "song/ui/PanelTextu.h"
#include "song/ui/PasWidget.h"
#include "song/ui/ZobrazovaciOsnovaWidget.h"
#include "theory/NazevIntervalu.h"
#include "theory/NazvyTonu.h"
#include "theory/ui/FrmStupnice.h"
#include "theory/ui/ZapisovaciOsnova.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenuBar>
#include <QMultiMap>
#include <QShortcut>

namespace zvonika {

void Program::postavNastroje() {
    postavHmatnik();
    postavOsnovy();
    postavVolbuIntervalu();
    nastavZkratky();
    nastavPoradiFokusu();
    connect(okno_.get(), &Form1::prikaz, this, &Program::proved);
    connect(okno_.get(), &Form1::listVybran, this, [this](const QString& list) {
        provedUdalost([&] { konverzace_.zivotPisne.Combo1Click(list); });
    });
    connect(okno_.get(), &Form1::tempoZmeneno, this, [this](int pozice) { automat_.Slider1Change(pozice); });
    okno_->priZavreni = [this] { Form_Unload(); };
}

void Program::postavHmatnik() {
    QWidget* scena = okno_->centralWidget();
    const Umisti umisti = [this](QWidget* prvek, const QRect& twips) { okno_->umisti(prvek, twips); };
    const auto prst = [this](int n, bool pomocny) {
        provedUdalost([this, n, pomocny] {
            pomocny ? konverzace_.prstoklad.dvojklikLblSynchro(n) : konverzace_.prstoklad.dvojklikLbl(n);
        });
    };
    // Without the comma that ends every name.
    const auto nazev = [](int n) { return nazevTonu(CisloTonu(n)).text().chopped(1); };
    const ObsluhaDiskantu diskant{
        [this](int n) { provedUdalost([this, n] { konverzace_.klikDiskantu.klik(n); }); }, prst, nazev};
    vytvorDiskant(scena, modely_.diskant, diskant, umisti);
    vytvorKlaviaturu(scena, modely_.diskant, diskant, umisti);
    vytvorBasy(scena, modely_.basy,
               {[this](int bas) { provedUdalost([this, bas] { modely_.basy.klik(bas); }); },
                [this](int bas) { return modely_.tabulkaBasu.nazev(bas); }},
               umisti);
}

void Program::postavOsnovy() {
    QWidget* scena = okno_->centralWidget();
    auto* pas = new PasWidget(modely_.pas, scena);
    okno_->umisti(pas, {7680, 60, 8260, 2920});
    connect(pas, &PasWidget::zvolenaPozice, this, &Program::prejdiNaPozici);
    okno_->umisti(new ZobrazovaciOsnovaWidget(modely_.zobrazovaciOsnova, scena), {7680, 3060, 1500, 2150});
    auto* zapis = new ZapisovaciOsnova(modely_.zapisovaciOsnova, konverzace_.notyZapis, scena);
    okno_->umisti(zapis, {12060, 3060, 3880, 2240});
    okno_->umisti(new PanelTextu(modely_.panel, scena), {60, 8100, 3720, 2240});
    pripojOsnovuZapisu(*zapis);
}

void Program::postavVolbuIntervalu() {
    QWidget* scena = okno_->centralWidget();
    auto* nadpis = new QLabel(QStringLiteral("Interval:"), scena);
    nadpis->setObjectName(QStringLiteral("lblInterval"));
    okno_->umisti(nadpis, {7680, 7370, 1500, 260});
    auto* volba = new SevrenyVyber(scena);
    volba->setObjectName(QStringLiteral("cmbInterval"));
    volba->setAccessibleName(QStringLiteral("Velikost intervalu"));
    volba->setToolTip(QStringLiteral("Jak velký interval se má ukázat"));
    for (const QStringView jmeno : jmenaIntervalu)
        volba->addItem(jmeno.toString());
    volba->setMaxVisibleItems(volba->count());
    volba->setCurrentIndex(modely_.krokyIntervalu - 1);
    connect(volba, &QComboBox::currentIndexChanged, this,
            [this](int index) { modely_.krokyIntervalu = index + 1; });
    okno_->umisti(volba, {7680, 7640, 1500, 360});
}

void Program::pripojOsnovuZapisu(ZapisovaciOsnova& zapis) {
    const auto zmenena = [this](int slot, CisloTonu puvodni) {
        provedUdalost([&] { konverzace_.zapisNoty.notaZmenena(slot, puvodni); });
    };
    connect(&zapis, &ZapisovaciOsnova::notaVlozena, this,
            [this](int slot) { provedUdalost([&] { konverzace_.zapisNoty.notaVlozena(slot); }); });
    connect(&zapis, &ZapisovaciOsnova::notaPosunuta, this, zmenena);
    connect(&zapis, &ZapisovaciOsnova::znamenkoZmeneno, this, zmenena);
    connect(&zapis, &ZapisovaciOsnova::notaOdebrana, this, [this](int, CisloTonu puvodni) {
        provedUdalost([&] { konverzace_.zapisNoty.notaOdebrana(puvodni); });
    });
    connect(&zapis, &ZapisovaciOsnova::odmitnuto, this,
            [this](const QString& duvod) { provedUdalost([&] { modely_.panel.upozorneni = duvod; }); });
}

void Program::prejdiNaPozici(int pozice) {
    provedUdalost([&] {
        SongSheet(modely_.pisen).vyberRadek(modely_.pas.prvniRadekPasu + pozice - 1);
        konverzace_.navigace.sledujKurzor();
    });
}

void Program::propojModely() {
    connect(&modely_.tonina, &Tonina::changed, this, [this] {
        konverzace_.klikDiskantu.nasledujToninu();
        ukazToninu();
    });
    ukazToninu();
    konverzace_.navigace.nastavZastaveniCasovace([this] { automat_.zastav(); });
    connect(&modely_.timer1, &Timer1::zmeneno, this, &Program::poPrikazu);
}

void Program::ukazToninu() {
    if (auto* tlacitko = qobject_cast<QAbstractButton*>(okno_->prvek(QStringLiteral("cmdStupnice")))) {
        tlacitko->setText(tonina());
        tlacitko->setAccessibleName(QStringLiteral("Zapsaná stupnice: ") + tonina());
    }
}

void Program::vyberStupnici() {
    FrmStupnice dialog(konverzace_.volbaStupnice, modely_.tonina, okno_.get());
    dialog.exec();
}

void Program::nastavZkratky() {
    const auto zkratka = [this](const QKeySequence& klavesy, const std::function<void()>& akce) {
        connect(new QShortcut(klavesy, okno_.get()), &QShortcut::activated, this, akce);
    };
    zkratka(Qt::Key_F6, [this] { prejdiNaTabulku(); });
    // Page-turner pedals send these two.
    zkratka(Qt::Key_PageDown, [this] { proved(QStringLiteral("cmdJakDal")); });
    zkratka(Qt::Key_PageUp, [this] { proved(QStringLiteral("cmdJakDalZpet")); });
    zkratka(Qt::Key_F10,
            [this] { okno_->menuBar()->setActiveAction(okno_->menuBar()->actions().constFirst()); });
}

void Program::nastavPoradiFokusu() {
    QMultiMap<int, QWidget*> podleMista;
    const QList<QWidget*> prvky = okno_->centralWidget()->findChildren<QWidget*>();
    // Backwards: of equal keys the one inserted last comes first.
    for (auto prvek = prvky.crbegin(); prvek != prvky.crend(); ++prvek)
        if (!(*prvek)->objectName().isEmpty())
            podleMista.insert(poradiFokusu((*prvek)->objectName()), *prvek);
    okno_->nastavPoradi(podleMista.values());
}

void Program::prejdiNaTabulku() {
    provedUdalost([this] { modely_.pisen.excel().showToUser(); });
}

// The window of a workbook that has just come up would take it along.
void Program::ponechKlavesnici() {
    if (modely_.pisen.otevrena()) okno_->activateWindow();
}

void Program::prejdiNaHlavniOkno() {
    QWidget* kam = napoveda_.otevrena() ? napoveda_.okno() : static_cast<QWidget*>(okno_.get());
    kam->raise();
    kam->activateWindow();
}

} // namespace zvonika
