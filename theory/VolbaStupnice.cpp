#include "theory/VolbaStupnice.h"

#include "platform/Dialogs.h"
#include "theory/Tonina.h"
#include "theory/Toniny.h"
#include "theory/clsNotyZapis.h"

namespace zvonika {

namespace {

const QString napoveda = QStringLiteral("Tóninu skladby, kterou hodláte zapsat, je vhodné identifikovat a "
                                        "určit předem z těchto důvodů. Má-li program "
                                        "tuto informaci k dispozici a je-li správná, můžete kdykoliv později "
                                        "tuto skladbu automaticky konvertovat do "
                                        "všech ostatních tónin. To je výhodné nejen pro nácvik hry v dalších "
                                        "tóninách na zvonice, ale také, pokud "
                                        "současně hrajete na heligonku, pro zařazení skladby do stupnice "
                                        "odpovídající ladění Vaší heligonky s možností "
                                        "využití takto upravené skladby v programu Tamík. Dále je toto "
                                        "určení výhodné např. pro nácvik prstokladu podle "
                                        "školy hry, kde může být předepsáno při nácviku prstokladu, které "
                                        "řady se ve které stupnici nemají používat. "
                                        "Znáte-li tedy tóninu, můžete využít funkce překrýt řady pro snazší "
                                        "orientaci při nácviku prstokladu, ať už podle "
                                        "školy, nebo pro upevnění vlastního návyku. Jestliže nevíte do které "
                                        "tóniny skladba, kterou budete zapisovat "
                                        "náleží, stiskněte tlačítko Zrušit nastavení.");

} // namespace

VolbaStupnice::VolbaStupnice(Dialogs& dialogs, Tonina& tonina, NotovaOsnova& osnova)
    : dialogs_(dialogs), tonina_(tonina), osnova_(osnova) {}

void VolbaStupnice::cmdOK(std::optional<int> vybrana) {
    const Key stupnice = vybrana ? toniny.at(static_cast<std::size_t>(*vybrana)).key() : Key();
    tonina_.nastavStupnici(stupnice);
    clsNotyZapis(osnova_, dialogs_).NastavStupnici(stupnice);
}

void VolbaStupnice::cmdZrusit() {
    tonina_.nastavStupnici(Key::vyberteToninu());
    // A signature left on the staff would keep altering notes in a key that nobody has chosen.
    clsNotyZapis(osnova_, dialogs_).NastavStupnici(Key::vyberteToninu());
}

void VolbaStupnice::cmdHelp() {
    dialogs_.message({QStringLiteral("Nápověda k výběru tóniny."), napoveda, Icon::Information});
}

} // namespace zvonika
