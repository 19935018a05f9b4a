#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/Vypis.h"
#include "theory/ZamenNotu.h"
#include "theory/clsNoty.h"

#include <gtest/gtest.h>
#include <vector>

namespace zvonika {
namespace {

using testing::nazev;
using testing::ScriptedDialogs;

TEST(ZamenNotu, RespellsEnharmonically) {
    struct Pripad {
        const char *nazev, *zamena;
    };
    for (const Pripad& p : {Pripad{"cis1,", "des1,"},
                            {"dis2,", "es2,"},
                            {"fes3,", "e3,"},
                            {"eis1,", "f1,"},
                            {"fis1,", "ges1,"},
                            {"gis1,", "as1,"},
                            {"ais1,", "b1,"},
                            {"des1,", "cis1,"},
                            {"es1,", "dis1,"},
                            {"e4,", "fes4,"},
                            {"f1,", "eis1,"},
                            {"ges1,", "fis1,"},
                            {"as1,", "gis1,"},
                            {"b1,", "ais1,"},
                            // across the octave
                            {"ces1,", "h,"},
                            {"ces2,", "h1,"},
                            {"ces,", "nejde"},
                            {"his,", "c1,"},
                            {"his2,", "c3,"},
                            // the small octave keeps a letter of the old stem, b does not
                            {"b,", "ais,"},
                            {"fis,", "gess,"},
                            {"gis,", "ass,"},
                            {"ais,", "bs,"},
                            {"es,", "diss,"},
                            {"as,", "giss,"},
                            {"e,", "fese,"},
                            {"f,", "eisf,"},
                            // no other spelling
                            {"c1,", "nejde"},
                            {"d1,", "nejde"},
                            {"g,", "nejde"},
                            {"a2,", "nejde"},
                            {"h3,", "nejde"},
                            {"Nenalezeno", "nejde"},
                            {",", "nejde"},
                            {"", "nejde"}})
        EXPECT_EQ(ZamenNotu(nazev(p.nazev)), nazev(p.zamena)) << p.nazev;
}

TEST(UrciPolohuNoty, PlacesEveryFormOfName) {
    struct Pripad {
        const char *nazev, *poloha;
    };
    ScriptedDialogs dialogs;
    const clsNoty noty(dialogs);
    for (const Pripad& p : {Pripad{"c,", "0"},
                            {"d,", "60"},
                            {"e,", "120"},
                            {"f,", "180"},
                            {"g,", "240"},
                            {"a,", "300"},
                            {"h,", "360"},
                            {"b,", "b360"},
                            {"b1,", "b780"},
                            {"c1,", "420"},
                            {"e4,", "1800"},
                            {"cis1,", "k420"},
                            {"ces1,", "b420"},
                            {"his,", "k360"},
                            {"eis2,", "k960"},
                            {"es,", "b120"},
                            {"es1,", "b540"},
                            {"as3,", "b1560"},
                            {"ges4,", "b1920"},
                            // what the reading lets pass
                            {"e0,", "120"},
                            {"e4", "1800"},
                            {"ci1", "k420"},
                            {"ce,", "b0"},
                            {"bes,", "b360"},
                            {"bi1,", "k780"}})
        EXPECT_EQ(noty.UrciPolohuNoty(nazev(p.nazev)), QString::fromUtf8(p.poloha)) << p.nazev;
    EXPECT_EQ(dialogs.count, 0);
}

TEST(UrciPolohuNoty, ReportsWhatItCannotRead) {
    struct Pripad {
        const char* nazev;
        std::vector<const char*> tituly;
        const char* poloha;
    };
    const char* const druhy = "druhý znak tónu";
    const char* const treti = "třetí znak tónu";
    const char* const ctvrty = "čtvrtý znak tónu";
    for (const Pripad& p : {Pripad{"cx1,", {druhy}, "420"},
                            {"bx1,", {druhy}, "b780"},
                            {"c5,", {druhy}, "0"},
                            {"cxs2", {druhy}, "840"},
                            {"cix2", {treti}, "k840"},
                            {"ci0,", {treti}, "k0"},
                            {"cisx", {ctvrty}, ""},
                            {"cis0,", {ctvrty}, ""},
                            {"ciss,", {ctvrty}, ""},
                            {"cisis1,", {ctvrty}, ""},
                            {"c", {druhy, treti, ctvrty}, ""},
                            {"as", {treti, ctvrty}, ""}}) {
        ScriptedDialogs dialogs;
        for (const char* titul : p.tituly)
            dialogs.expect(QString::fromUtf8(titul), QStringLiteral("Neočekávaná hodnota !"));
        EXPECT_EQ(clsNoty(dialogs).UrciPolohuNoty(nazev(p.nazev)), QString::fromUtf8(p.poloha)) << p.nazev;
        EXPECT_TRUE(dialogs.done()) << p.nazev;
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    }
}

TEST(UrciPolohuNoty, RefusesAnUnknownLetter) {
    for (const char* neznamy : {"", ",", "i,", "E,", "x1,", "Nenalezeno", "č1,"}) {
        ScriptedDialogs dialogs;
        dialogs.expect({}, QStringLiteral("Neznámý tón !"));
        EXPECT_EQ(clsNoty(dialogs).UrciPolohuNoty(nazev(neznamy)), QString()) << neznamy;
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    }
}

TEST(PolohaNoty, IsReadFromItsText) {
    EXPECT_EQ(PolohaNoty::zTextu(QStringLiteral("k420")), (PolohaNoty{Znamenko::Krizek, 420}));
    EXPECT_EQ(PolohaNoty::zTextu(QStringLiteral("b780")), (PolohaNoty{Znamenko::Becko, 780}));
    EXPECT_EQ(PolohaNoty::zTextu(QStringLiteral("0")), (PolohaNoty{Znamenko::Zadne, 0}));
    for (const char* text : {"", "k", "x420", "kb420", "42x"})
        EXPECT_FALSE(PolohaNoty::zTextu(QString::fromUtf8(text))) << text;
}

TEST(PolohaNoty, RoundsToTheNearestStep) {
    for (const auto& [jednotky, stupen] : {std::pair{120, 120}, {149, 120}, {150, 180}, {-29, 0}, {-31, -60}})
        EXPECT_EQ(PolohaNoty::zaokrouhli(jednotky), stupen) << jednotky;
}

} // namespace
} // namespace zvonika
