#include "app/ui/Form1.h"

#include "app/Prikazy.h"
#include "app/ui/OvladaniAutomatu.h"
#include "app/ui/PrikazoveTlacitko.h"
#include "app/ui/TwipsScene.h"
#include "board/TrebleBoard.h"
#include "platform/ShownText.h"
#include "song/CommandStates.h"
#include "song/SongPanel.h"
#include "song/ui/ElidovanyPopisek.h"
#include "theory/ui/BarvyVyznamu.h"

#include <QAccessible>
#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>

#include <algorithm>
#include <optional>

namespace zvonika {

namespace {

constexpr QColor barvaVarovani{0xA1, 0x1B, 0x12};

PrikazoveTlacitko::Vyznam vyznam(DruhTlacitka druh) {
    switch (druh) {
    case DruhTlacitka::Tah:
        return PrikazoveTlacitko::Vyznam::Tah;
    case DruhTlacitka::Tlak:
        return PrikazoveTlacitko::Vyznam::Tlak;
    case DruhTlacitka::Hlavni:
        return PrikazoveTlacitko::Vyznam::Hlavni;
    case DruhTlacitka::Bezne:
        break;
    }
    return PrikazoveTlacitko::Vyznam::Bezny;
}

std::optional<QColor> barva(BarvaKroku krok) {
    switch (krok) {
    case BarvaKroku::Tah:
        return barvyTahu::krok;
    case BarvaKroku::Tlak:
        return barvyTlaku::krok;
    case BarvaKroku::TlakPoZapisu:
        return barvyTlaku::krokPoZapisu;
    case BarvaKroku::Neznamy:
        break;
    }
    return std::nullopt;
}

constexpr qsizetype nejdelsiStav = 2500; // characters

QLabel* popisek(const QString& jmeno, const QString& text, QWidget* rodic) {
    auto* label = new QLabel(text, rodic);
    label->setObjectName(jmeno);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

Form1::Form1(SongPanel& panel, CommandStates& stavy, TrebleBoard& hmatnik, Timer1& timer1)
    : panel_(panel), stavy_(stavy), hmatnik_(hmatnik),
      scena_(new TwipsScene({sirkaSceny, vyskaSceny}, this)) {
    setObjectName(QStringLiteral("Form1"));
    setCentralWidget(scena_);
    setContextMenuPolicy(Qt::NoContextMenu);
    postavTlacitka();
    postavVyberListu();
    postavPopisky();
    postavAutomat(timer1);
    postavMenu();
    postavStavovyRadek();
    connect(&panel_, &SongPanel::zmeneno, this, &Form1::ukazPanel);
    connect(&stavy_, &CommandStates::zmeneno, this, &Form1::povol);
    connect(&hmatnik_, &TrebleBoard::cislovaniZmeneno, this, &Form1::ukazZaskrtnuti);
    connect(&hmatnik_, &TrebleBoard::nazvyZmeneny, this, &Form1::ukazZaskrtnuti);
    ukazPanel();
}

void Form1::postavStavovyRadek() {
    varovani_ = radekStavu(QStringLiteral("lblVarovani"), 3);
    varovani_->nastavTucne(true);
    varovani_->nastavBarvu(barvaVarovani);
    stav_ = radekStavu(QStringLiteral("lblStav"), 2);
    prstoklad_ = radekStavu(QStringLiteral("lblPrstoklad"), 0);
    statusBar()->setSizeGripEnabled(false);
}

// What a command has to tell may be longer than the window, which must not grow by it: it goes into two lines
// of small letters then.
ElidovanyPopisek* Form1::radekStavu(const QString& jmeno, int dil) {
    auto* radek = new ElidovanyPopisek(jmeno, this);
    radek->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    radek->nastavDvaRadky();
    radek->setMinimumHeight(radek->fontMetrics().height() * 7 / 4);
    statusBar()->addWidget(radek, dil);
    return radek;
}

void Form1::umisti(QWidget* prvek, const QRect& twips) {
    scena_->place(prvek, twips);
}

void Form1::nastavVzdyNahore() {
    setWindowFlag(Qt::WindowStaysOnTopHint, true);
}

void Form1::domaluj() {
    QEvent pozadavek(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(this, &pozadavek);
}

void Form1::nastavPoradi(const QList<QWidget*>& poradi) {
    for (qsizetype i = 1; i < poradi.size(); ++i)
        setTabOrder(poradi[i - 1], poradi[i]);
}

QWidget* Form1::prvek(const QString& jmeno) const {
    return findChild<QWidget*>(jmeno);
}

void Form1::postavTlacitka() {
    for (const TlacitkoPrikazu& radek : tlacitkaPrikazu())
        pridejTlacitko(radek);
    spojSousedy();
    tlacitka_[QStringLiteral("cmdJakDal")]->nastavObrazek(PrikazoveTlacitko::Obrazek::Sipka);
    tlacitka_[QStringLiteral("cmdZvuk(0)")]->nastavObrazek(PrikazoveTlacitko::Obrazek::Nota);
}

void Form1::pridejTlacitko(const TlacitkoPrikazu& radek) {
    auto* tlacitko = new PrikazoveTlacitko(radek.popisek, vyznam(radek.druh), scena_);
    tlacitko->setObjectName(radek.jmeno);
    const QString nazev = radek.pristupne.isEmpty() ? radek.popisek : radek.pristupne;
    tlacitko->setAccessibleName(nazev);
    tlacitko->setToolTip(radek.zkratka.isEmpty() ? nazev
                                                 : nazev + QStringLiteral(" (%1)").arg(radek.zkratka));
    if (!radek.zkratka.isEmpty()) pridejZkratku(*tlacitko, radek.zkratka);
    connect(tlacitko, &QPushButton::clicked, this, [this, jmeno = radek.jmeno] { Q_EMIT prikaz(jmeno); });
    tlacitka_.insert(radek.jmeno, tlacitko);
    umisti(tlacitko, radek.twips);
    tlacitko->setEnabled(stavy_.povolen(radek.jmeno));
}

/// Not the button's own shortcut, which only acts a tenth of a second later.
void Form1::pridejZkratku(PrikazoveTlacitko& tlacitko, const QString& klavesy) {
    auto* zkratka = new QShortcut(QKeySequence(klavesy), this);
    zkratka->setAutoRepeat(false); // a key held down must not record grip after grip
    connect(zkratka, &QShortcut::activated, &tlacitko, &QPushButton::click);
}

/// The others of its row; of a button that has a row for itself, the like ones of its column.
void Form1::spojSousedy() {
    using Prikazy = std::vector<PrikazoveTlacitko*>;
    const auto vyber = [this](const TlacitkoPrikazu& prvni, const auto& sousedi) {
        Prikazy sousede;
        for (const TlacitkoPrikazu& druhe : tlacitkaPrikazu())
            if (druhe.jmeno != prvni.jmeno && sousedi(prvni.twips, druhe.twips))
                sousede.push_back(tlacitka_[druhe.jmeno]);
        return sousede;
    };
    const auto vRade = [](const QRect& a, const QRect& b) {
        return a.top() == b.top() && a.height() == b.height();
    };
    const auto veSloupci = [](const QRect& a, const QRect& b) {
        return a.left() == b.left() && a.size() == b.size();
    };
    for (const TlacitkoPrikazu& radek : tlacitkaPrikazu()) {
        Prikazy sousede = vyber(radek, vRade);
        if (sousede.empty()) sousede = vyber(radek, veSloupci);
        tlacitka_[radek.jmeno]->nastavSousedy(std::move(sousede));
    }
}

void Form1::postavVyberListu() {
    combo_ = new QComboBox(scena_);
    combo_->setObjectName(QStringLiteral("Combo1"));
    combo_->setAccessibleName(QStringLiteral("Listy písničky (ladění)"));
    combo_->setToolTip(combo_->accessibleName());
    umisti(combo_, {60, 530, 2380, 380});
    // activated, not currentTextChanged: only the user's choice counts
    connect(combo_, &QComboBox::activated, this,
            [this](int volba) { Q_EMIT listVybran(combo_->itemData(volba).toString()); });
    combo_->setEnabled(stavy_.povolen(combo_->objectName()));
}

void Form1::postavPopisky() {
    lblLadeni_ = new ElidovanyPopisek(QStringLiteral("lblLadeni"), scena_);
    lblLadeni_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    lblLadeni_->nastavDvaRadky(); // "G dur-C dur-F dur"
    umisti(lblLadeni_, {2520, 530, 1260, 380});
    umisti(popisek(QStringLiteral("lblPopisStupnice"), QStringLiteral("Zapsaná stupnice:"), scena_),
           {12060, 5870, 2000, 390});
    lblTon_ = popisek(QStringLiteral("lblTon"), {}, scena_);
    lblTon_->setAlignment(Qt::AlignCenter);
    lblTon_->setAccessibleName(QStringLiteral("Číslo hmatu"));
    lblTon_->setToolTip(lblTon_->accessibleName());
    umisti(lblTon_, {15000, 8090, 940, 390});
    auto* popisHmatu = popisek(QStringLiteral("lblPopisHmatu"), QStringLiteral("Hmat:"), scena_);
    popisHmatu->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    umisti(popisHmatu, {14020, 8090, 900, 390});
}

void Form1::postavAutomat(Timer1& timer1) {
    auto* ovladani =
        new OvladaniAutomatu(*tlacitka_[QStringLiteral("cmdTimer")], timer1, scena_,
                             [this](QWidget* prvek, const QRect& twips) { umisti(prvek, twips); });
    connect(ovladani, &OvladaniAutomatu::tempoZmeneno, this, &Form1::tempoZmeneno);
    for (const char* jmeno : {"Slider1", "lblTempo"}) {
        QWidget* nalezeny = prvek(QString::fromLatin1(jmeno));
        nalezeny->setEnabled(stavy_.povolen(nalezeny->objectName()));
    }
}

void Form1::postavMenu() {
    for (const Menu& menu : menuPrikazu()) {
        QMenu* rolovaci = menuBar()->addMenu(menu.popisek);
        for (const PolozkaMenu& polozka : menu.polozky)
            polozka.jmeno.isEmpty() ? void(rolovaci->addSeparator()) : pridejPolozku(*rolovaci, polozka);
    }
}

void Form1::pridejPolozku(QMenu& menu, const PolozkaMenu& polozka) {
    QAction* akce = menu.addAction(polozka.popisek);
    akce->setObjectName(polozka.jmeno);
    akce->setCheckable(polozka.zaskrtavaci);
    akce->setShortcuts(QKeySequence::listFromString(polozka.zkratka));
    akce->setAutoRepeat(false); // a key held down must not delete row after row
    akce->setEnabled(stavy_.povolen(polozka.jmeno));
    connect(akce, &QAction::triggered, this, [this, p = polozka.prikaz] {
        Q_EMIT prikaz(p);
        ukazZaskrtnuti(); // the entry has switched its mark by itself, done or not
    });
    akce_.insert(polozka.jmeno, akce);
}

void Form1::povol(const QString& jmeno, bool povolit) {
    if (QAction* akce = akce_.value(jmeno))
        akce->setEnabled(povolit);
    else if (QWidget* nalezeny = prvek(jmeno))
        nalezeny->setEnabled(povolit);
}

void Form1::ukazPanel() {
    setWindowTitle(shownTitle(panel_.titulek));
    lblTon_->setText(panel_.lblTon);
    lblLadeni_->nastavText(shownName(panel_.lblLadeni));
    stav_->nastavText(shownName(panel_.stav, nejdelsiStav));
    ukazPrstoklad();
    ukazVarovani();
    ukazListy();
    ukazBarvuKroku();
    ukazKroky();
}

/// What would be taken back stands beside the entry's own caption.
void Form1::ukazKroky() {
    const auto popis = [](const char* popisek, const QString& krok) {
        const QString text = QString::fromUtf8(popisek);
        return krok.isEmpty() ? text : text + QStringLiteral(": ") + shownName(krok);
    };
    akce_[QStringLiteral("mnuZpet")]->setText(popis("Zpět", panel_.krokZpet));
    akce_[QStringLiteral("mnuZnovu")]->setText(popis("Znovu", panel_.krokZnovu));
}

/// As wide as it is long, up to half of the line.
void Form1::ukazPrstoklad() {
    const QString text = shownName(panel_.prstokladCeka, nejdelsiStav);
    const int sirka = prstoklad_->fontMetrics().horizontalAdvance(text) + 2;
    prstoklad_->setFixedWidth(std::min(sirka, statusBar()->width() / 2));
    prstoklad_->setVisible(!text.isEmpty());
    prstoklad_->nastavText(text);
}

/// The hint gives way to a warning as a whole: half a sentence of each would tell neither.
bool Form1::vejdeSeVedle(const QString& varovani) const {
    const int sirka = varovani_->fontMetrics().horizontalAdvance(varovani) +
                      stav_->fontMetrics().horizontalAdvance(panel_.stav);
    const int prstoklad = panel_.prstokladCeka.isEmpty() ? 0 : prstoklad_->width();
    return sirka + prstoklad + 4 * varovani_->fontMetrics().averageCharWidth() < statusBar()->width();
}

void Form1::ukazVarovani() {
    const QString text = panel_.varovani();
    varovani_->setVisible(!text.isEmpty());
    stav_->setVisible(text.isEmpty() || vejdeSeVedle(text));
    if (text == varovani_->text()) return;
    varovani_->nastavText(text);
    QAccessibleEvent udalost(varovani_, QAccessible::Alert);
    if (!text.isEmpty()) QAccessible::updateAccessibility(&udalost);
}

void Form1::ukazListy() {
    QStringList ukazane;
    for (int i = 0; i < combo_->count(); ++i)
        ukazane << combo_->itemData(i).toString();
    if (ukazane != panel_.listy) {
        combo_->clear();
        for (const QString& list : panel_.listy)
            combo_->addItem(shownName(list), list);
    }
    combo_->setCurrentIndex(combo_->findData(panel_.Combo1));
}

void Form1::ukazBarvuKroku() {
    tlacitka_[QStringLiteral("cmdJakDal")]->nastavBarvu(barva(panel_.barvaKroku));
    tlacitka_[QStringLiteral("cmdJakDalZpet")]->nastavBarvu(barva(panel_.barvaKroku));
}

void Form1::ukazZaskrtnuti() {
    akce_[QStringLiteral("mnu2Rady")]->setChecked(hmatnik_.nazvyZapnuty());
    akce_[QStringLiteral("mnuCislovat")]->setChecked(hmatnik_.cislovani());
}

void Form1::closeEvent(QCloseEvent* event) {
    event->accept();
    if (const auto zavreni = std::exchange(priZavreni, nullptr)) zavreni();
}

} // namespace zvonika
