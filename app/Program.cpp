#include "app/Program.h"

#include "app/OProgramu.h"
#include "app/OknaPomucek.h"
#include "app/OknoKonverze.h"
#include "app/Prikazy.h"
#include "playing/song/SpusteniExcelu.h"
#include "playing/stepping/PrikazyPisne.h"
#include "playing/stepping/StavovyRadek.h"

#include <QApplication>
#include <QLineEdit>

#include <algorithm>

namespace zvonika {

Program::Program(const Prostredi& prostredi)
    : prostredi_(prostredi), modely_(prostredi.nastroj, prostredi.drive.programFolder()),
      udalosti_(prostredi.dialogs, prostredi.shell),
      konverzace_(modely_, prostredi_, [this] { vyberStupnici(); }),
      automat_(modely_.stavy, modely_.timer1, prostredi.hodiny, krokAutomatu()), napoveda_(prostredi_) {
    zaregistrujPrikazy();
    konverzace_.zivotPisne.stavBezPisne();
    okno_ = std::make_unique<Form1>(modely_.panel, modely_.stavy, modely_.diskant, modely_.timer1);
    postavNastroje();
    propojModely();
}

Program::~Program() = default;

bool Program::Main() {
    bool cele = Form_Load(prostredi_.tabulky.spoustec());
    if (!modely_.pisen.aplikaceExcel && chceNahradniTabulku())
        cele = Form_Load(prostredi_.tabulky.nahradni());
    modely_.panel.upozorneni =
        QStringList{prostredi_.tabulky.veta(), modely_.tabulkaBasu.chyba()}.join(u' ').trimmed();
    poPrikazu();
    okno_->show();
    prejdiNaHlavniOkno(); // the sheet's window came up first
    return cele;
}

bool Program::Form_Load(const SpreadsheetLauncher& spoustec) {
    const bool cele = Spusteni(prostredi_.nastaveni, prostredi_.dialogs, krokySpusteni(spoustec)).Form_Load();
    prostredi_.tabulky.spusteno();
    return cele;
}

bool Program::chceNahradniTabulku() const {
    if (!prostredi_.tabulky.nahradni()) return false;
    const Answer odpoved = prostredi_.dialogs.message(
        {QStringLiteral("Tabulkový program"),
         QStringLiteral(
             "Zvolený tabulkový program se nepodařilo spustit. Bez něho nelze písničky otevírat ani "
             "zapisovat.\n\nChcete teď pracovat s vestavěnou tabulkou Zvoniky? Volba programu se tím nemění; "
             "změnit ji můžete v nabídce Doplňky."),
         Icon::Question, Buttons::YesNo});
    return odpoved == Answer::Yes;
}

KrokySpusteni Program::krokySpusteni(const SpreadsheetLauncher& spoustec) {
    return {
        [this] { okno_->nastavVzdyNahore(); },
        [this, spoustec] {
            SpustExcel(spoustec, modely_.pisen);
            modely_.pisen.excel().setListener(this);
        },
        [this](bool obracene) { modely_.diskant.nastavObraceneCislovani(obracene); },
        [this](bool zapnuto) { modely_.diskant.nastavNazvy(zapnuto, tonina()); },
        [this](bool zapnuto) { modely_.diskant.nastavCislovani(zapnuto); },
        [this] { konverzace_.uvolneni.UvolniBasy(); },
        [this] { konverzace_.uvolneni.UvolniDiskant(); },
        [this](int rada, bool zakryta) { modely_.diskant.nastavZabranu(rada, zakryta); },
    };
}

void Program::zaregistrujPrikazy() {
    Konverzace& k = konverzace_;
    prikazy_ = {
        {"cmdNovaSkladba",
         [this, &k] {
             k.zivotPisne.cmdNovaSkladba();
             ponechKlavesnici();
         }},
        {"cmdEdit",
         [this, &k] {
             k.zivotPisne.cmdEdit();
             ponechKlavesnici();
         }},
        {"cmdEndEdit", [&k] { k.zivotPisne.cmdEndEdit(); }},
        {"cmdStupnice", [this] { vyberStupnici(); }},
        {"cmdTah", [&k] { k.zapisHmatu.cmdTah(); }},
        {"cmdTlak", [&k] { k.zapisHmatu.cmdTlak(); }},
        {"cmdTahNoty", [&k] { k.zapisHmatuZNot.cmdTahNoty(); }},
        {"cmdTlakNoty", [&k] { k.zapisHmatuZNot.cmdTlakNoty(); }},
        {"cmdPrvni", [&k] { k.navigace.cmdPrvni(); }},
        {"cmdPredchozi", [&k] { k.navigace.cmdPredchozi(); }},
        {"cmdDalsi", [&k] { k.navigace.cmdDalsi(); }},
        {"cmdPosledni", [&k] { k.navigace.cmdPosledni(); }},
        {"cmdPredTah", [&k] { k.navigace.cmdPredTah(); }},
        {"cmdPredTlak", [&k] { k.navigace.cmdPredTlak(); }},
        {"cmdDalsiTah", [&k] { k.navigace.cmdDalsiTah(); }},
        {"cmdDalsiTlak", [&k] { k.navigace.cmdDalsiTlak(); }},
        {"cmdReadTah", [&k] { k.navigace.cmdReadTah(); }},
        {"cmdReadTlak", [&k] { k.navigace.cmdReadTlak(); }},
        {"cmdJakDal", [&k] { k.navigace.cmdJakDal(); }},
        {"cmdJakDalZpet", [&k] { k.navigace.cmdJakDalZpet(); }},
        {"cmdTimer", [this] { automat_.cmdTimer(); }},
        {"cmdInterval", [&k] { k.intervaly.cmdInterval(); }},
        {"cmdSpodInterval", [&k] { k.intervaly.cmdSpodInterval(); }},
        {"cmdIntervalOdNejnizsiho", [&k] { k.intervaly.cmdIntervalOdNejnizsiho(); }},
        {"mnuhtm", [this] { napoveda_.mnuhtm(*okno_); }},
        {"cmdOPrg", [this] { cmdOPrg(prostredi_.dialogs); }},
        {"mnuTabulka", [this] { mnuTabulka(*okno_, prostredi_, modely_.panel); }},
        {"mnuKonverze", [this, &k] { mnuKonverze(*okno_, modely_, k.zivotPisne, prostredi_); }},
        {"mnuMailAutorovi",
         [this] {
             if (!mnuMailAutorovi(prostredi_.dialogs, prostredi_.shell))
                 modely_.panel.upozorneni = QStringLiteral("Nenašel se program, který by zprávu odeslal.");
         }},
    };
    for (const PrikazUvolneni& radek : prikazyUvolneni())
        prikazy_.insert(radek.tlacitko, [&k, tlacitko = radek.tlacitko] { k.uvolneni.proved(tlacitko); });
    zaregistrujPomucky();
}

void Program::zaregistrujPomucky() {
    VolbyHmatniku& volby = konverzace_.volbyHmatniku;
    prikazy_.insert({
        {"mnu2Rady", [&volby] { volby.mnu2Rady(); }},
        {"mnuCislovat", [&volby] { volby.mnuCislovat(); }},
        {"mnuOtocitHmatnik", [&volby] { volby.mnuOtocitHmatnik(); }},
        {"mnuPrekrytRady", [this] { mnuPrekrytRady(*okno_, modely_.diskant, prostredi_); }},
        {"mnuNastavCestu", [this] { mnuNastavCestu(*okno_, modely_.pisen, prostredi_); }},
    });
}

void Program::proved(const QString& prikaz) {
    if (!modely_.stavy.povolen(prikaz)) return;
    if (prikaz == QLatin1String("mnuKonec")) {
        if (mnuKonec(prostredi_.dialogs)) okno_->close();
        return;
    }
    if (prikaz.startsWith(QLatin1String("cmdZvuk"))) {
        udalosti_.provedBezZachyceni([this, prikaz] { konverzace_.zvuk.cmdZvuk(prikaz.mid(8, 1).toInt()); });
        return;
    }
    if (const Obsluha obsluha = prikazy_.value(prikaz)) provedUdalost(obsluha);
}

bool Program::provedUdalost(const Obsluha& obsluha) {
    if (udalosti_.bezi()) return false;
    modely_.panel.upozorneni.clear();
    const bool provedeno = udalosti_.proved(obsluha);
    poPrikazu();
    return provedeno;
}

bool Program::volnoProKrok() const {
    if (udalosti_.bezi() || QApplication::activeModalWidget()) return false;
    // A step while the player writes would spread his text over the rows; one behind another window goes
    // unseen.
    return okno_->isVisible() && !qobject_cast<QLineEdit*>(QApplication::focusWidget());
}

KrokAutomatu Program::krokAutomatu() {
    return {
        [this] { return volnoProKrok(); },
        [this] { okno_->domaluj(); },
        [this] { return provedUdalost([this] { konverzace_.navigace.cmdJakDal(); }); },
    };
}

void Program::poPrikazu() {
    StavProgramu stav;
    stav.pisenOtevrena = modely_.pisen.otevrena();
    stav.automatBezi = modely_.timer1.zapnuty();
    stav.stupnice = tonina();
    stav.neniCoZapsat = modely_.diskant.oznacene().empty() && modely_.basy.oznacene().empty() &&
                        modely_.zapisovaciOsnova.volnySlot() == 0;
    stav.radekPrazdny = modely_.panel.lblTony.isEmpty() && modely_.panel.lblBasy.isEmpty();
    stav.upozorneni = modely_.panel.upozorneni;
    modely_.panel.stav = stavovyRadek(stav);
    modely_.panel.oznamZmenu();
}

int Program::aktualniRadek() const {
    try {
        return modely_.pisen.excel().activeRow();
    } catch (const RuntimeError&) {
        return 0;
    }
}

void Program::cursorMoved() {
    provedUdalost([this] { konverzace_.navigace.sledujKurzor(); });
}

void Program::cellsEdited() {
    provedUdalost([this] { konverzace_.navigace.sledujKurzor(); });
}

void Program::Form_Unload() {
    automat_.zastav();
    if (modely_.pisen.aplikaceExcel) modely_.pisen.aplikaceExcel->setListener(nullptr);
    konverzace_.ukonceniExcelu.UkonciExcel();
}

} // namespace zvonika
