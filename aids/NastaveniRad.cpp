#include "aids/NastaveniRad.h"

#include "board/TrebleBoard.h"
#include "platform/Contact.h"
#include "platform/Dialogs.h"
#include "platform/HodnotyNastaveni.h"
#include "platform/RuntimeError.h"
#include "platform/SettingsStore.h"

#include <QStringList>

#include <utility>

namespace zvonika {

namespace {

constexpr int pocetRad = 5;
constexpr int zadnyTyp = -1;
const QString sekceZabran = QStringLiteral("Zabrany");
const QString sekceTypu = QStringLiteral("TypPrstokladu");
const QString klicTypu = QStringLiteral("Index");
const QString nula = QStringLiteral("0");

/// The key that `cmdCDur` shows for each fingering type.
const std::array<QString, 3> toninyTypu{QStringLiteral("C Dur"), QStringLiteral("G Dur"),
                                        QStringLiteral("F Dur")};

/// Rows covered by each button.
constexpr std::array<std::pair<int, int>, pocetTlacitekRad> rady{{{1, 2}, {1, 5}, {4, 5}}};

} // namespace

NastaveniRad::NastaveniRad(SettingsStore& nastaveni, TrebleBoard& diskant, Dialogs& dialogs)
    : nastaveni_(nastaveni), diskant_(diskant), dialogs_(dialogs) {}

void NastaveniRad::Form_Load() {
    for (int rada = 1; rada <= pocetRad; ++rada)
        nactiZabranu(rada);
    nactiTyp();
}

void NastaveniRad::nactiZabranu(int rada) {
    try {
        chkZabrany(rada, naPravdu(nastaveni_.getOr(sekceZabran, QString::number(rada), nula)));
    } catch (const RuntimeError&) {
        // The board shows no cover for such a text either.
    }
}

void NastaveniRad::nactiTyp() {
    int typ = zadnyTyp;
    try {
        typ = naBajt(nastaveni_.getOr(sekceTypu, klicTypu, nula));
    } catch (const RuntimeError& chyba) {
        if (chyba.number() == error::typeMismatch) return;
    }
    optTypPrstokladu(typ);
}

void NastaveniRad::optTypPrstokladu(int typ) {
    if (typ < 0 || typ >= static_cast<int>(toninyTypu.size())) {
        dialogs_.message({QStringLiteral("V programu došlo k chybě !"),
                          QStringLiteral("Neznámý typ prstokladu, ") + kontakt, Icon::Critical});
        return;
    }
    typ_ = typ;
    while (tlacitka_.popisek(TlacitkoRad::cmdCDur) != toninyTypu.at(static_cast<std::size_t>(typ)))
        tlacitka_.PosunStupnice();
}

void NastaveniRad::klikTlacitkaRad(TlacitkoRad tlacitko) {
    const auto [prvni, druha] = rady.at(static_cast<std::size_t>(tlacitko));
    for (int rada = 1; rada <= pocetRad; ++rada)
        chkZabrany(rada, rada == prvni || rada == druha);
}

void NastaveniRad::chkZabrany(int rada, bool zaskrtnuto) {
    zabrany_.at(static_cast<std::size_t>(rada)) = zaskrtnuto;
}

void NastaveniRad::cmdNic() {
    zabrany_ = {};
}

void NastaveniRad::cmdNapoveda() {
    const QStringList radky = {
        "Tento formulář slouží k určení řad, které mají být jako jediné používány při pozičním prstokladu "
        "a hře v konkrétní tónině.",
        "Ostatní řady budou přeškrtnuty, aby hráč věděl, že při striktně pozičním prstokladu je nesmí "
        "používat.",
        "Nejprve je vhodné zvolit typ prstokladu, který hráč preferuje.",
        "Tím se přednastaví odpovídající názvy stupnic pod jednotlivými tlačítky.",
        "Potom stlačte jedno ze třech tlačítek, kde se nachází název tóniny, ve které hodláte cvičit.",
        "Řady se přednastaví a stačí už jen potvrdit Ok.",
        "Zaškrtnutím políček 1 až 5 můžete označit řady ručně bez ohledu na doporučené volby.",
        "Názvy stupnic pod tlačítky informují o všech tóninách, které se hrají na stejných řadách pod "
        "společným tlačítkem.",
        "Nastavení se při potvrzení automaticky ukládá.",
    };
    dialogs_.message({QStringLiteral("Nápověda"), radky.join(QLatin1Char('\n')), Icon::Information});
}

void NastaveniRad::cmdOk() {
    for (int rada = 1; rada <= pocetRad; ++rada) {
        nastaveni_.save(sekceZabran, QString::number(rada), QString::number(int(zaskrtnuto(rada))));
        diskant_.nastavZabranu(rada, zaskrtnuto(rada));
    }
    if (typ_) nastaveni_.save(sekceTypu, klicTypu, QString::number(*typ_));
}

} // namespace zvonika
