#include "app/BehProgramu.h"

#include "app/Konverzace.h"
#include "app/Modely.h"
#include "app/Prostredi.h"
#include "app/ui/Form1.h"
#include "playing/song/SpusteniExcelu.h"
#include "playing/stepping/Automat.h"

namespace zvonika {

namespace {

QString vetaOVracenych(const QStringList& pisne) {
    if (pisne.isEmpty()) return {};
    return QStringLiteral("Nahrazení novou písničkou se minule nedokončilo, na svém místě je zpátky: %1.")
        .arg(pisne.join(QStringLiteral(", ")));
}

} // namespace

bool BehProgramu::spust() {
    const TabulkoveProgramy& tabulky = c_.prostredi.tabulky;
    const QStringList vracene = c_.prostredi.drive.bringBackSetAside(pracovniAdresar);
    tabulka_ = tabulky.spoustena();
    bool cele = Form_Load(tabulky.spoustec());
    if (!c_.modely.pisen.aplikaceExcel && chceNahradniTabulku()) {
        tabulka_ = tabulky.nahradniVolba();
        cele = Form_Load(tabulky.nahradni());
    }
    c_.modely.panel.upozorneni =
        QStringList{vetaOVracenych(vracene), tabulky.veta(), c_.modely.tabulkaBasu.chyba()}
            .join(u' ')
            .trimmed();
    return cele;
}

bool BehProgramu::Form_Load(const SpreadsheetLauncher& spoustec) {
    const Prostredi& prostredi = c_.prostredi;
    const bool cele = Spusteni(prostredi.nastaveni, prostredi.dialogs, krokySpusteni(spoustec)).Form_Load();
    prostredi.tabulky.spusteno();
    return cele;
}

bool BehProgramu::chceNahradniTabulku() const {
    if (!c_.prostredi.tabulky.nahradni()) return false;
    const Answer odpoved = c_.prostredi.dialogs.message(
        {QStringLiteral("Tabulkový program"),
         QStringLiteral(
             "Zvolený tabulkový program se nepodařilo spustit. Bez něho nelze písničky otevírat ani "
             "zapisovat.\n\nChcete teď pracovat s vestavěnou tabulkou Zvoniky? Volba programu se tím nemění; "
             "změnit ji můžete v nabídce Doplňky. Odpovíte-li Ne, okno zůstane otevřené, ale písničky v něm "
             "otevřít nepůjdou."),
         Icon::Question, Buttons::YesNo});
    return odpoved == Answer::Yes;
}

KrokySpusteni BehProgramu::krokySpusteni(const SpreadsheetLauncher& spoustec) {
    Modely& modely = c_.modely;
    Uvolneni& uvolneni = c_.konverzace.zapis().uvolneni;
    return {
        [this] { c_.okno.nastavVzdyNahore(); },
        [this, &modely, spoustec] {
            SpustExcel(spoustec, modely.pisen, puvodniCesta());
            modely.pisen.excel().setListener(&posluchac_);
            modely.pisen.excel().setStepKeeper(&c_.konverzace.vraceni());
        },
        [&modely](bool obracene) { modely.diskant.nastavObraceneCislovani(obracene); },
        [&modely](bool zapnuto) { modely.diskant.nastavNazvy(zapnuto, modely.tonina.stupnice().text()); },
        [&modely](bool zapnuto) { modely.diskant.nastavCislovani(zapnuto); },
        [&uvolneni] { uvolneni.UvolniBasy(); },
        [&uvolneni] { uvolneni.UvolniDiskant(); },
        [&modely](int rada, bool zakryta) { modely.diskant.nastavZabranu(rada, zakryta); },
    };
}

PuvodniCesta BehProgramu::puvodniCesta() const {
    return {c_.prostredi.nastaveni, static_cast<int>(tabulka_)};
}

void BehProgramu::Form_Unload() {
    c_.automat.zastav();
    if (c_.modely.pisen.aplikaceExcel) puvodniCesta().zapamatuj(c_.modely.pisen.puvodniCestaExcelu);
    if (c_.modely.pisen.aplikaceExcel) {
        c_.modely.pisen.aplikaceExcel->setListener(nullptr);
        c_.modely.pisen.aplikaceExcel->setStepKeeper(nullptr);
    }
    c_.konverzace.pisen().ukonceniExcelu.UkonciExcel();
}

} // namespace zvonika
