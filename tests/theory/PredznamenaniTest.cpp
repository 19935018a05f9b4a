#include "theory/Predznamenani.h"

#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/Vypis.h"
#include "theory/NazvyTonu.h"
#include "theory/TonNaOsnove.h"
#include "theory/Toniny.h"
#include "theory/clsNoty.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

using testing::ScriptedDialogs;

/// The plain notes that the signature alters, as it is read from left to right ("f2 c2 ...").
QStringList znamenka(const Predznamenani& predznamenani) {
    QStringList tony;
    for (int i = 0; i < predznamenani.pocet(); ++i)
        tony += nazevNaOsnove({Znamenko::Odrazka, predznamenani.jednotky(i)}, {}).text().chopped(1);
    return tony;
}

TEST(Predznamenani, StandsInItsUsualOrderAndPlaces) {
    const QStringList krizky{"f2", "c2", "g2", "d2", "a1", "e2", "h1"};
    const QStringList becka{"h1", "e2", "a1", "d2", "g1", "c2", "f1"};
    for (const DurovaTonina& tonina : toniny) {
        const Predznamenani predznamenani(tonina.key());
        const int p = tonina.predznamenani;
        EXPECT_EQ(predznamenani.druh(), p > 0 ? Znamenko::Krizek : p < 0 ? Znamenko::Becko : Znamenko::Zadne);
        EXPECT_EQ(znamenka(predznamenani), p < 0 ? becka.first(-p) : krizky.first(p)) << tonina.key();
    }
    for (const char* text : {"", "Vyberte tóninu", "a moll", "g dur"})
        EXPECT_EQ(Predznamenani(Key(text)).pocet(), 0) << text;
    for (const char* text : {"D Dur", "ddur", "Fis Dur"})
        EXPECT_GT(Predznamenani(Key(text)).pocet(), 0) << text;
}

TEST(TonNaOsnove, NameNumberAndPlaceAgree) {
    ScriptedDialogs dialogs;
    const clsNoty noty(dialogs);
    int platnych = 0;
    for (Znamenko znamenko : {Znamenko::Zadne, Znamenko::Krizek, Znamenko::Becko}) {
        for (int jednotky = -120; jednotky <= 1980; jednotky += 30) {
            const PolohaNoty poloha{znamenko, jednotky};
            const ToneName jmeno = nazevNaOsnove(poloha, {});
            EXPECT_EQ(tonNaOsnove(poloha, {}), cisloTonu(jmeno)) << poloha << jmeno;
            if (jmeno.jePrazdny()) continue;
            ++platnych;
            EXPECT_EQ(PolohaNoty::zTextu(noty.UrciPolohuNoty(jmeno)), poloha) << jmeno;
        }
    }
    // Plain e to e4, sharps from eis to dis4, flats from fes to fes4.
    EXPECT_EQ(platnych, 29 + 28 + 29);
}

} // namespace
} // namespace zvonika
