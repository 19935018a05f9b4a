#include "app/Program.h"

#include "app/ObsluhyOkna.h"
#include "app/OknaPomucek.h"

#include <QApplication>
#include <QLineEdit>

namespace zvonika {

Program::Program(const Prostredi& prostredi)
    : prostredi_(prostredi), modely_(prostredi.nastroj, prostredi.drive.programFolder()),
      udalosti_(modely_, prostredi.dialogs, prostredi.shell),
      konverzace_(modely_, prostredi_,
                  [this] { cmdStupnice(okno_, konverzace_.pomucky().volbaStupnice, modely_.tonina); }),
      automat_(modely_.stavy, modely_.timer1, prostredi.hodiny, krokAutomatu()),
      okno_(modely_.panel, modely_.stavy, modely_.diskant, modely_.timer1), napoveda_(prostredi_),
      beh_(casti(), *this), prikazy_(modely_.stavy, obsluhyOkna(casti())), zapojeni_(casti(), prikazy_) {
    okno_.priZavreni = [this] { beh_.Form_Unload(); };
}

Program::~Program() = default;

CastiProgramu Program::casti() {
    return {prostredi_, modely_, udalosti_, konverzace_, automat_, okno_, napoveda_};
}

bool Program::Main() {
    const bool cele = beh_.spust();
    udalosti_.ukazStav();
    okno_.show();
    nabidniNeulozene();
    prejdiNaHlavniOkno(); // the sheet's window came up first
    return cele;
}

void Program::nabidniNeulozene() {
    NeulozenePisne& neulozene = konverzace_.pisen().neulozenePisne;
    if (modely_.pisen.aplikaceExcel && neulozene.nejake()) udalosti_.proved([&] { neulozene.nabidni(); });
}

bool Program::volnoProKrok() const {
    if (udalosti_.bezi() || QApplication::activeModalWidget()) return false;
    // A step while the player writes would spread his text over the rows; one behind another window goes
    // unseen.
    return okno_.isVisible() && !qobject_cast<QLineEdit*>(QApplication::focusWidget()) && !hracPise();
}

bool Program::hracPise() const {
    try {
        return modely_.pisen.aplikaceExcel && modely_.pisen.excel().userIsTyping();
    } catch (const RuntimeError&) {
        return false; // the step itself reports it
    }
}

KrokAutomatu Program::krokAutomatu() {
    return {
        [this] { return volnoProKrok(); },
        [this] { okno_.domaluj(); },
        [this] { return udalosti_.proved([this] { konverzace_.pisen().navigace.cmdJakDal(); }); },
    };
}

int Program::aktualniRadek() const {
    try {
        return modely_.pisen.excel().activeRow();
    } catch (const RuntimeError&) {
        return 0;
    }
}

bool Program::jePisenVpredu() const {
    try {
        return modely_.pisen.otevrena() &&
               modely_.pisen.excel().activeWorkbookName() == modely_.pisen.aktualniPisen;
    } catch (const RuntimeError&) {
        return false;
    }
}

bool Program::krokPedalu(bool dopredu) {
    if (!jePisenVpredu()) return false;
    proved(dopredu ? QStringLiteral("cmdJakDal") : QStringLiteral("cmdJakDalZpet"));
    return true;
}

// Also while a box is up: what is asked of the spreadsheet next must name the song as it is called by now.
void Program::workbookRenamed(const QString& before, const QString& now, const QString& fullName) {
    if (modely_.pisen.aktualniPisen.compare(before, Qt::CaseInsensitive) != 0) return;
    konverzace_.pisen().zivotPisne.prejmenujPisen(now, fullName);
    if (modely_.pisen.aplikaceExcel)
        modely_.pisen.aplikaceExcel->stepsChanged(); // those of the song by its new name
    udalosti_.ukazStav();
}

void Program::cursorMoved() {
    automat_.odpocin();
    udalosti_.nasleduj([this] { konverzace_.pisen().navigace.sledujKurzor(); });
}

void Program::prejdiNaHlavniOkno() {
    QWidget& kam = napoveda_.otevrena() ? *napoveda_.okno() : okno_;
    kam.raise();
    kam.activateWindow();
}

} // namespace zvonika
