#include "app/ZapojeniOkna.h"

#include "app/Konverzace.h"
#include "app/Modely.h"
#include "app/OknaPomucek.h"
#include "app/PoradiFokusu.h"
#include "app/Prostredi.h"
#include "app/RozvodPrikazu.h"
#include "app/UdalostiOkna.h"
#include "app/ui/Form1.h"
#include "app/ui/SevrenyVyber.h"
#include "board/ui/Hmatnik.h"
#include "playing/recording/CekajiciPrsty.h"
#include "playing/stepping/Automat.h"
#include "song/ui/PanelTextu.h"
#include "song/ui/PasWidget.h"
#include "song/ui/ZobrazovaciOsnovaWidget.h"
#include "theory/NazevIntervalu.h"
#include "theory/NazvyTonu.h"
#include "theory/ui/ZapisovaciOsnova.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenuBar>
#include <QMultiMap>
#include <QShortcut>

#include <utility>

namespace zvonika {

ZapojeniOkna::ZapojeniOkna(const CastiProgramu& casti, const RozvodPrikazu& prikazy)
    : c_(casti), prikazy_(prikazy) {
    postavHmatnik();
    postavBasy();
    postavOsnovy();
    postavVolbuIntervalu();
    pripojZkratky();
    nastavPoradiFokusu();
    pripojOkno();
    pripojModely();
}

void ZapojeniOkna::umisti(QWidget* prvek, const QRect& twips) {
    c_.okno.umisti(prvek, twips);
}

void ZapojeniOkna::postavHmatnik() {
    const KonverzaceZapisu k = c_.konverzace.zapis();
    const Umisti kam = [this](QWidget* prvek, const QRect& twips) { umisti(prvek, twips); };
    const auto nazev = [](int n) { return nazevTonu(CisloTonu(n)).bezCarky(); };
    const ObsluhaDiskantu diskant{
        [this, k](int n) { c_.udalosti.proved([k, n] { k.klikDiskantu.klik(n); }); },
        [this](int n, bool pomocny) { klikPrstu(n, pomocny); }, nazev};
    vytvorDiskant(c_.okno.centralWidget(), c_.modely.diskant, diskant, kam);
    vytvorKlaviaturu(c_.okno.centralWidget(), c_.modely.diskant, diskant, kam);
}

void ZapojeniOkna::klikPrstu(int knoflik, bool pomocny) {
    c_.udalosti.proved([this, knoflik, pomocny] {
        ZadaniPrstu& zadani = c_.konverzace.zapis().zadaniPrstu;
        pomocny ? zadani.dvojklikLblSynchro(knoflik) : zadani.dvojklikLbl(knoflik);
    });
}

void ZapojeniOkna::postavBasy() {
    vytvorBasy(c_.okno.centralWidget(), c_.modely.basy,
               {[this](int bas) { c_.udalosti.proved([this, bas] { c_.modely.basy.klik(bas); }); },
                [this](int bas) { return c_.modely.tabulkaBasu.nazev(bas); }},
               [this](QWidget* prvek, const QRect& twips) { umisti(prvek, twips); });
}

void ZapojeniOkna::postavOsnovy() {
    QWidget* scena = c_.okno.centralWidget();
    auto* pas = new PasWidget(c_.modely.pas, scena);
    umisti(pas, {7680, 60, 8260, 2920});
    connect(pas, &PasWidget::zvolenaPozice, this, &ZapojeniOkna::prejdiNaPozici);
    umisti(new ZobrazovaciOsnovaWidget(c_.modely.zobrazovaciOsnova, scena), {7680, 3060, 1500, 2150});
    auto* zapis = new ZapisovaciOsnova(c_.modely.zapisovaciOsnova, c_.konverzace.zapis().notyZapis, scena);
    umisti(zapis, {12060, 3060, 3880, 2240});
    umisti(new PanelTextu(c_.modely.panel, scena), {60, 8100, 3720, 2240});
    pripojOsnovuZapisu(*zapis);
}

void ZapojeniOkna::postavVolbuIntervalu() {
    QWidget* scena = c_.okno.centralWidget();
    auto* nadpis = new QLabel(QStringLiteral("Interval:"), scena);
    nadpis->setObjectName(QStringLiteral("lblInterval"));
    umisti(nadpis, {7680, 7370, 1500, 260});
    auto* volba = new SevrenyVyber(scena);
    volba->setObjectName(QStringLiteral("cmbInterval"));
    volba->setAccessibleName(QStringLiteral("Velikost intervalu"));
    volba->setToolTip(QStringLiteral("Jak velký interval se má ukázat"));
    for (const QStringView jmeno : jmenaIntervalu)
        volba->addItem(jmeno.toString());
    volba->setMaxVisibleItems(volba->count());
    volba->setCurrentIndex(c_.modely.krokyIntervalu - 1);
    connect(volba, &QComboBox::currentIndexChanged, this,
            [this](int index) { c_.modely.krokyIntervalu = index + 1; });
    umisti(volba, {7680, 7640, 1500, 360});
}

void ZapojeniOkna::pripojOkno() {
    connect(&c_.okno, &Form1::prikaz, this, [this](const QString& prikaz) { prikazy_.proved(prikaz); });
    connect(&c_.okno, &Form1::listVybran, this, [this](const QString& list) {
        c_.udalosti.proved([&] { c_.konverzace.pisen().zivotPisne.Combo1Click(list); });
    });
    connect(&c_.okno, &Form1::tempoZmeneno, this, [this](int pozice) { c_.automat.Slider1Change(pozice); });
}

void ZapojeniOkna::pripojOsnovuZapisu(const ZapisovaciOsnova& osnova) {
    ZapisNoty& zapis = c_.konverzace.zapis().zapisNoty;
    const auto zmenena = [this, &zapis](int slot, CisloTonu puvodni) {
        c_.udalosti.proved([&] { zapis.notaZmenena(slot, puvodni); });
    };
    connect(&osnova, &ZapisovaciOsnova::notaVlozena, this,
            [this, &zapis](int slot) { c_.udalosti.proved([&] { zapis.notaVlozena(slot); }); });
    connect(&osnova, &ZapisovaciOsnova::notaPosunuta, this, zmenena);
    connect(&osnova, &ZapisovaciOsnova::znamenkoZmeneno, this, zmenena);
    connect(&osnova, &ZapisovaciOsnova::notaOdebrana, this, [this, &zapis](int, CisloTonu puvodni) {
        c_.udalosti.proved([&] { zapis.notaOdebrana(puvodni); });
    });
    connect(&osnova, &ZapisovaciOsnova::odmitnuto, this, [this](const QString& duvod) {
        c_.udalosti.proved([&] { c_.modely.panel.upozorneni = duvod; });
    });
}

void ZapojeniOkna::prejdiNaPozici(int pozice) {
    c_.udalosti.proved(
        [&] { c_.konverzace.pisen().navigace.naRadek(c_.modely.pas.prvniRadekPasu + pozice - 1); });
}

void ZapojeniOkna::pripojModely() {
    connect(&c_.modely.tonina, &Tonina::changed, this, [this] {
        c_.konverzace.zapis().klikDiskantu.nasledujToninu();
        ukazToninu();
    });
    ukazToninu();
    connect(&c_.modely.prstoklad, &Prstoklad::zmeneno, this, &ZapojeniOkna::ukazPrstoklad);
    connect(&c_.modely.diskant, &TrebleBoard::knoflikZmenen, this, [this] {
        if (!c_.modely.prstoklad.prazdny()) ukazPrstoklad(); // which of their buttons are marked
    });
    ukazPrstoklad();
    c_.konverzace.pisen().navigace.nastavZastaveniCasovace([this] { c_.automat.zastav(); });
    Vraceni& vraceni = c_.konverzace.vraceni();
    c_.udalosti.nastavObnovu([&vraceni] { vraceni.obnovPopisy(); });
    vraceni.nastavUdalost([this](const auto& procedura) { c_.udalosti.proved(procedura); });
    connect(&c_.modely.timer1, &Timer1::zmeneno, this, [this] { c_.udalosti.ukazStav(); });
}

void ZapojeniOkna::ukazToninu() {
    const QString tonina = c_.modely.tonina.stupnice().text();
    if (auto* tlacitko = qobject_cast<QAbstractButton*>(c_.okno.prvek(QStringLiteral("cmdStupnice")))) {
        tlacitko->setText(tonina);
        tlacitko->setAccessibleName(QStringLiteral("Zapsaná stupnice: ") + tonina);
    }
}

void ZapojeniOkna::ukazPrstoklad() {
    const QString veta = cekajiciPrsty(c_.modely.prstoklad, c_.modely.diskant);
    c_.modely.stavy.povol(QStringLiteral("mnuVzitPrst"), !veta.isEmpty());
    if (std::exchange(c_.modely.panel.prstokladCeka, veta) != veta) c_.modely.panel.oznamZmenu();
}

void ZapojeniOkna::pripojZkratky() {
    zkratka(Qt::Key_F6, [this] { c_.udalosti.proved([this] { c_.modely.pisen.excel().showToUser(); }); });
    // Page-turner pedals send these two.
    zkratka(Qt::Key_PageDown, [this] { prikazy_.proved(QStringLiteral("cmdJakDal")); });
    zkratka(Qt::Key_PageUp, [this] { prikazy_.proved(QStringLiteral("cmdJakDalZpet")); });
    zkratka(Qt::Key_F10, [menu = c_.okno.menuBar()] { menu->setActiveAction(menu->actions().constFirst()); });
}

void ZapojeniOkna::zkratka(const QKeySequence& klavesy, const std::function<void()>& akce) {
    connect(new QShortcut(klavesy, &c_.okno), &QShortcut::activated, this, akce);
}

void ZapojeniOkna::nastavPoradiFokusu() {
    QMultiMap<int, QWidget*> podleMista;
    const QList<QWidget*> prvky = c_.okno.centralWidget()->findChildren<QWidget*>();
    // Backwards: of equal keys the one inserted last comes first.
    for (auto prvek = prvky.crbegin(); prvek != prvky.crend(); ++prvek)
        if (!(*prvek)->objectName().isEmpty())
            podleMista.insert(poradiFokusu((*prvek)->objectName()), *prvek);
    c_.okno.nastavPoradi(podleMista.values());
}

} // namespace zvonika
