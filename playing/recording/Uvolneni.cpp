#include "playing/recording/Uvolneni.h"

#include "board/BassBoard.h"
#include "board/TrebleBoard.h"
#include "playing/recording/Prstoklad.h"
#include "song/ZobrazovaciOsnova.h"
#include "theory/NotovaOsnova.h"

#include <algorithm>
#include <array>

namespace zvonika {

namespace {

using Krok = KrokUvolneni;

/// In the order of the steps.
constexpr std::array provedeniKroku{
    &Uvolneni::UvolniDiskant, &Uvolneni::UvolniKlavesy, &Uvolneni::UvolniIntervaly, &Uvolneni::UvolniBasy,
    &Uvolneni::UvolniNoty,    &Uvolneni::UvolniPultony, &Uvolneni::UvolniOdrazky,
};

} // namespace

const std::vector<PrikazUvolneni>& prikazyUvolneni() {
    static const std::vector<PrikazUvolneni> prikazy{
        {QStringLiteral("cmdUvolDiskant"),
         QStringLiteral("mnuUvolnitDiskant"),
         {Krok::Diskant, Krok::Klavesy, Krok::Intervaly, Krok::Noty, Krok::Pultony, Krok::Odrazky}},
        {QStringLiteral("cmdUvolBasy"), QStringLiteral("mnuUvolnitBasy"), {Krok::Basy}},
        {QStringLiteral("cmdUvolNoty"), QStringLiteral("mnuUvolnitNoty"), {Krok::Noty}},
        {QStringLiteral("cmdUvolniPultony"), QStringLiteral("mnuUvolnitPultony"), {Krok::Pultony}},
        {QStringLiteral("cmdUvolOdrazky"), QStringLiteral("mnuUvolnitOdrazky"), {Krok::Odrazky}},
        {QStringLiteral("cmdUvolKnofl"),
         QStringLiteral("mnuUvolnitVse"),
         {Krok::Diskant, Krok::Klavesy, Krok::Intervaly, Krok::Basy, Krok::Noty, Krok::Pultony,
          Krok::Odrazky}},
    };
    return prikazy;
}

bool Uvolneni::proved(const QString& prikaz) {
    const auto& prikazy = prikazyUvolneni();
    const auto nalezeny = std::find_if(prikazy.begin(), prikazy.end(), [&](const PrikazUvolneni& jeden) {
        return jeden.tlacitko == prikaz || jeden.nabidka == prikaz;
    });
    if (nalezeny == prikazy.end()) return false;
    for (const Krok krok : nalezeny->kroky)
        (this->*provedeniKroku.at(static_cast<std::size_t>(krok) - 1))();
    return true;
}

void Uvolneni::uvolniVse() {
    proved(QStringLiteral("cmdUvolKnofl"));
}

void Uvolneni::UvolniDiskant() {
    diskant_.uvolniDiskant();
    diskant_.vyprazdniPopisy();
    zobrazovaci_.vyprazdni();
    prstoklad_.zapomenPrevzate();
}

void Uvolneni::UvolniKlavesy() {
    diskant_.uvolniKlavesy();
}

void Uvolneni::UvolniIntervaly() {
    diskant_.odeberInterval();
    zobrazovaci_.odeberInterval();
}

void Uvolneni::UvolniBasy() {
    basy_.uvolniBasy();
}

void Uvolneni::UvolniNoty() {
    osnova_.odeberNoty();
}

void Uvolneni::UvolniPultony() {
    osnova_.odeberPultony();
}

void Uvolneni::UvolniOdrazky() {
    osnova_.odeberOdrazky();
}

} // namespace zvonika
