#include "tests/playing/recording/ZapisovaniFixture.h"

namespace zvonika {
namespace {

using testing::s;

/// Every part of the input board that a release may reset, as letters: D marks and pictures of the treble, K
/// red keys, I interval buttons, B basses, N notes, P signs, O naturals, Z display staff.
class UvolneniTest : public testing::Zapisovani {
protected:
    void naplnDesku() {
        zvolToninu("G dur");
        for (const int n : {2, 3}) { // a natural and an accidental
            diskant.nastavZnacku(n, true);
            diskant.nastavTonKlavesy(n, QStringLiteral("x"));
        }
        diskant.ukazInterval(20);
        diskant.nastavPopis(2, QStringLiteral("1\r\n"));
        basy.nastavZnacku(26, true);
        osnova.polozNotu(0, {{Znamenko::Zadne, 420}, CisloTonu(9)});
        osnova.polozNotu(1, {{Znamenko::Krizek, 480}, CisloTonu(12)});
        osnova.polozNotu(2, {{Znamenko::Odrazka, 600}, CisloTonu(14)});
        zobrazovaci.ukaz({QStringLiteral("c1,")});
        zobrazovaci.ukazInterval({QStringLiteral("h1,"), {Znamenko::Zadne, 780}});
        pridejPrst(2, "1");
    }
    QString stav() {
        QString stav;
        const auto pridej = [&](bool jeTam, char pismeno) {
            stav += jeTam ? QString(QLatin1Char(pismeno)) : QString();
        };
        pridej(diskant.oznacen(2) && diskant.oznacen(3) && diskant.stavPomocneho(2) == StavKnofliku::Cerveny,
               'D');
        pridej(diskant.barvaKlavesy(2) == BarvaKlavesy::Cervena && diskant.tonKlavesy(3) == u'x', 'K');
        pridej(diskant.stav(20) == StavKnofliku::Hnedy && zobrazovaci.interval(), 'I');
        pridej(basy.oznacen(26) && basy.stav(26) == StavBasu::Cerveny, 'B');
        pridej(osnova.nota(0).has_value(), 'N');
        pridej(osnova.nota(1) && osnova.nota(1)->poloha.znamenko == Znamenko::Krizek, 'P');
        pridej(osnova.nota(2) && osnova.nota(2)->poloha.znamenko == Znamenko::Odrazka, 'O');
        pridej(!zobrazovaci.tony().isEmpty(), 'Z');
        return stav;
    }

    Uvolneni uvolneni{diskant, basy, osnova, zobrazovaci, prstoklad};
};

TEST_F(UvolneniTest, EachCommandResetsItsPartsAndNothingElse) {
    const struct {
        const char *tlacitko, *nabidka, *zbyva;
    } radky[] = {
        {"cmdUvolDiskant", "mnuUvolnitDiskant", "B"},
        {"cmdUvolBasy", "mnuUvolnitBasy", "DKINPOZ"},
        {"cmdUvolNoty", "mnuUvolnitNoty", "DKIBZ"},
        {"cmdUvolniPultony", "mnuUvolnitPultony", "DKIBNOZ"},
        {"cmdUvolOdrazky", "mnuUvolnitOdrazky", "DKIBNPZ"},
        {"cmdUvolKnofl", "mnuUvolnitVse", ""},
    };
    for (const auto& [tlacitko, nabidka, zbyva] : radky)
        for (const char* prikaz : {tlacitko, nabidka}) {
            naplnDesku();
            ASSERT_EQ(s(stav()), "DKIBNPOZ");
            EXPECT_TRUE(uvolneni.proved(prikaz));
            EXPECT_EQ(s(stav()), zbyva) << prikaz;
            EXPECT_FALSE(prstoklad.odeber().isEmpty()) << prikaz;
        }
    naplnDesku();
    EXPECT_FALSE(uvolneni.proved("cmdTah"));
    EXPECT_EQ(s(stav()), "DKIBNPOZ");
}

TEST_F(UvolneniTest, ReleasedBoardsHaveTheirColoursAndCaptionsBack) {
    naplnDesku();
    diskant.nastavNazvy(true, QStringLiteral("C dur"));
    diskant.nastavPopis(2, QStringLiteral("1\r\nf,"));
    uvolneni.uvolniVse();
    EXPECT_EQ(diskant.barvaKlavesy(2), BarvaKlavesy::CaptionText);
    EXPECT_EQ(diskant.barvaKlavesy(3), BarvaKlavesy::WindowText);
    EXPECT_EQ(s(diskant.tonKlavesy(2) + diskant.tonKlavesy(3)), "");
    EXPECT_EQ(s(diskant.popis(2)), "f,");
}

} // namespace
} // namespace zvonika
