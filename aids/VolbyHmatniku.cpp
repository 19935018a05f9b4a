#include "aids/VolbyHmatniku.h"

#include "board/TrebleBoard.h"
#include "platform/SettingsStore.h"
#include "song/CommandStates.h"
#include "theory/Tonina.h"

namespace zvonika {

VolbyHmatniku::VolbyHmatniku(TrebleBoard& diskant, const Tonina& tonina, SettingsStore& nastaveni,
                             CommandStates& stavy)
    : diskant_(diskant), tonina_(tonina), nastaveni_(nastaveni), stavy_(stavy) {}

void VolbyHmatniku::mnu2Rady() {
    const bool zapnout = !diskant_.nazvyZapnuty();
    diskant_.nastavNazvy(zapnout, tonina_.stupnice().text());
    if (!zapnout) diskant_.vyprazdniPopisy();
    uloz(QStringLiteral("PopisKnof"), zapnout);
}

void VolbyHmatniku::mnuCislovat() {
    const bool zapnout = !diskant_.cislovani();
    diskant_.nastavCislovani(zapnout);
    uloz(QStringLiteral("Cislovani"), zapnout);
}

void VolbyHmatniku::mnuOtocitHmatnik() {
    diskant_.otoc();
    stavy_.zamkni(QStringLiteral("mnuOtocitHmatnik"));
}

void VolbyHmatniku::uloz(const QString& sekce, bool zapnuto) {
    nastaveni_.save(sekce, QStringLiteral("Index"), QString::number(int(zapnuto)));
}

} // namespace zvonika
