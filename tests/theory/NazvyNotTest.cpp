#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/Vypis.h"
#include "theory/ZamenNotu.h"
#include "theory/clsNoty.h"

#include <gtest/gtest.h>
#include <vector>

namespace zvonika {
namespace {

using testing::ScriptedDialogs;

TEST(ZamenNotu, RespellsEnharmonically) {
    const QString zameny =
        "cis1,=des1, dis2,=es2, fes3,=e3, eis1,=f1, fis1,=ges1, gis1,=as1, ais1,=b1, des1,=cis1, es1,=dis1, "
        "e4,=fes4, f1,=eis1, ges1,=fis1, as1,=gis1, b1,=ais1, "
        // across the octave
        "ces1,=h, ces2,=h1, ces,=nejde his,=c1, his2,=c3, "
        // the small octave keeps a letter of the old stem, b does not
        "b,=ais, fis,=gess, gis,=ass, ais,=bs, es,=diss, as,=giss, e,=fese, f,=eisf, "
        // no other spelling
        "c1,=nejde d1,=nejde g,=nejde a2,=nejde h3,=nejde Nenalezeno=nejde ,=nejde =nejde";
    for (const QString& zamena : zameny.split(' '))
        EXPECT_EQ(ZamenNotu(ToneName(zamena.section('=', 0, 0))).text(), zamena.section('=', 1))
            << qPrintable(zamena);
}

TEST(UrciPolohuNoty, PlacesEveryFormOfName) {
    ScriptedDialogs dialogs;
    const clsNoty noty(dialogs);
    const QString polohy = "c,=0 d,=60 e,=120 f,=180 g,=240 a,=300 h,=360 b,=b360 b1,=b780 c1,=420 e4,=1800 "
                           "cis1,=k420 ces1,=b420 his,=k360 eis2,=k960 es,=b120 es1,=b540 as3,=b1560 "
                           "ges4,=b1920 "
                           // what the reading lets pass
                           "e0,=120 e4=1800 ci1=k420 ce,=b0 bes,=b360 bi1,=k780";
    for (const QString& poloha : polohy.split(' '))
        EXPECT_EQ(noty.UrciPolohuNoty(ToneName(poloha.section('=', 0, 0))), poloha.section('=', 1))
            << qPrintable(poloha);
}

TEST(UrciPolohuNoty, ReportsWhatItCannotRead) {
    const char* const tituly[] = {"", "", "druhý znak tónu", "třetí znak tónu", "čtvrtý znak tónu"};
    const struct {
        const char* nazev;
        std::vector<int> znaky; ///< which of its characters are reported; 1 for the whole name
        const char* poloha;
    } pripady[] = {
        {"cx1,", {2}, "420"},  {"bx1,", {2}, "b780"},   {"c5,", {2}, "0"},    {"cxs2", {2}, "840"},
        {"cix2", {3}, "k840"}, {"ci0,", {3}, "k0"},     {"cisx", {4}, ""},    {"cis0,", {4}, ""},
        {"ciss,", {4}, ""},    {"cisis1,", {4}, ""},    {"c", {2, 3, 4}, ""}, {"as", {3, 4}, ""},
        {"", {1}, ""},         {",", {1}, ""},          {"i,", {1}, ""},      {"E,", {1}, ""},
        {"x1,", {1}, ""},      {"Nenalezeno", {1}, ""}, {"č1,", {1}, ""},
    };
    for (const auto& p : pripady) {
        ScriptedDialogs dialogs;
        for (const int znak : p.znaky)
            dialogs.expect(tituly[znak], znak == 1 ? "Neznámý tón !" : "Neočekávaná hodnota !");
        EXPECT_EQ(clsNoty(dialogs).UrciPolohuNoty(ToneName(p.nazev)), p.poloha) << p.nazev;
        EXPECT_TRUE(dialogs.done()) << p.nazev;
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    }
}

} // namespace
} // namespace zvonika
