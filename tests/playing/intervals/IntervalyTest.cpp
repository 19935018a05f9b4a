#include "playing/intervals/Intervaly.h"

#include "tests/playing/recording/ZapisovaniFixture.h"

namespace zvonika {
namespace {

using testing::s;

const QString dotaz = QStringLiteral("Nota fis1, nepatří do tóniny C dur\n"
                                     "Zásady pro určení intervalu ve stupnici nemohou být uplatněny !\n"
                                     "Trváte-li i přesto na zobrazení intervalu vrchní tercie od noty fis1,\n"
                                     "zvažte, zda není na místě změna aktuální tóniny.\n"
                                     "Chcete se pokusit interval zobrazit ?");

class IntervalyTest : public testing::Zapisovani {
protected:
    IntervalyTest() { zvolToninu("C dur"); }

    /// The grip of row 1 and the key in which it was written.
    void napisHmat(const QStringList& tony, const QString& stupnice = {}) {
        for (int i = 0; i < tony.size(); ++i)
            excel->put(QStringLiteral("%1%2").arg(QChar('B' + i)).arg(1), tony[i]);
        excel->put("W1", stupnice);
    }
    /// Brown buttons of the board, its brown keys and the note on the staff.
    QString ukazano() const {
        QString text;
        for (int n = 1; n <= diskant.nastroj().pocetKnofliku(); ++n) {
            if (diskant.stav(n) == StavKnofliku::Hnedy) text += QStringLiteral("%1 ").arg(n);
            if (diskant.stavPomocneho(n) == StavKnofliku::Hnedy) text += QStringLiteral("%1p ").arg(n);
            if (diskant.barvaKlavesy(n) == BarvaKlavesy::Hneda) text += QStringLiteral("%1k ").arg(n);
        }
        return text + (zobrazovaci.interval() ? zobrazovaci.interval()->nazev : QString());
    }
    void ocekavejDotaz(Answer odpoved) {
        dialogs.expect("Upozornění !!!", dotaz, odpoved);
        if (odpoved == Answer::Yes)
            dialogs.expect("Odhad bez záruky !",
                           "Pro určení intervalu bude použita náhradní metoda na kterou se nelze "
                           "spolehnout.\n\nUrčit interval bez příslušnosti k tónině je neproveditelné !");
    }

    int kroky = 2;
    Intervaly intervaly{
        {pisen, dialogs, panel, diskant, zobrazovaci, tonina, kroky, QStringLiteral(ZVONIKA_RESOURCES)}};
    Uvolneni uvolneni{diskant, basy, osnova, zobrazovaci, prstoklad};
};

TEST_F(IntervalyTest, TheResultIsShownEverywhereAndTold) {
    const struct {
        const char* stupnice;
        int n, kroky;
        bool spodni;
        const char *ukazano, *veta;
    } radky[] = {
        {"C dur", 9, 2, false, "13 13p 13k e1,", "Vrchní tercie od tónu c1 ve stupnici C dur je e1."},
        {"C dur", 9, 2, true, "6 6k a,", "Spodní tercie od tónu c1 ve stupnici C dur je a."},
        {"F dur", 2, 1, true, "1 1k e,", "Spodní sekunda od tónu f ve stupnici F dur je e."},
        {"C dur", 8, 1, false, "9 9k c1,", "Vrchní sekunda od tónu h ve stupnici C dur je c1."},
        {"C dur", 9, 1, true, "8 8p 8k h,", "Spodní sekunda od tónu c1 ve stupnici C dur je h."},
        {"C dur", 47, 1, false, "49 49p 49k e4,", "Vrchní sekunda od tónu d4 ve stupnici C dur je e4."},
        {"Es dur", 1, 2, false, "4 4p 4k g,",
         "Odhad: e do stupnice Es dur nepatří, stupně se počítají od es1 o oktávu níž. Vrchní tercie od e je "
         "g."},
    };
    for (const auto& radek : radky) {
        SCOPED_TRACE(radek.veta);
        zvolToninu(QString::fromUtf8(radek.stupnice));
        kroky = radek.kroky;
        diskant.nastavZnacku(radek.n, true);
        if (QByteArrayView(radek.veta).startsWith("Odhad")) {
            dialogs.expect("Upozornění !!!", "Nota e, nepatří do tóniny Es dur", Answer::Yes);
            dialogs.expect("Odhad bez záruky !", "náhradní metoda", Answer::Ok);
        }
        radek.spodni ? intervaly.cmdSpodInterval() : intervaly.cmdInterval();
        EXPECT_EQ(s(ukazano()), radek.ukazano);
        EXPECT_EQ(s(panel.upozorneni), radek.veta);
        diskant.nastavZnacku(radek.n, false);
    }
    EXPECT_EQ(zobrazovaci.interval()->poloha, (PolohaNoty{Znamenko::Zadne, 240}));
}

TEST_F(IntervalyTest, TheToneThatThePlayerMeans) {
    const auto mineno = [this] {
        intervaly.cmdInterval();
        return s(panel.upozorneni.section(QStringLiteral(" ve "), 0, 0));
    };
    EXPECT_EQ(mineno(), "Označte knoflík, klávesu nebo notu, od které se má interval ukázat.");
    zobrazovaci.ukaz({"nic", "g1,", "e1,"});
    EXPECT_EQ(mineno(), "Vrchní tercie od tónu e1");
    oznacTony({11, 14});
    EXPECT_EQ(mineno(), "Vrchní tercie od tónu f1");
    diskant.nastavZnacku(14, false);
    EXPECT_EQ(mineno(), "Vrchní tercie od tónu d1");
}

TEST_F(IntervalyTest, FromTheLowestToneOfTheRow) {
    oznacTony({9});
    napisHmat({"g1,", "xyz", "e1,", "h1,"});
    intervaly.cmdIntervalOdNejnizsiho();
    EXPECT_EQ(s(ukazano()), "16 16p 16k g1,");
    excel->selectRange("D2");
    intervaly.cmdIntervalOdNejnizsiho();
    EXPECT_EQ(s(ukazano()), "");
    EXPECT_EQ(s(panel.upozorneni), "V řádku 2 není zapsán hmat s tónem, od kterého by šel interval určit.");
    EXPECT_EQ(excel->activeAddress(), "$D$2");
}

TEST_F(IntervalyTest, WithoutASongTheLowestToneIsRefused) {
    pisen.aktualniPisen.clear();
    const QString text = "NENÍ OTEVŘENA ŽÁDNÁ SKLADBA !\n"
                         "Tlačítko, které bylo stisknuto má zobrazit zvolený interval od nejnižšího tónu\n"
                         "aktuálního, již dříve zapsaného hmatu. V tuto chvíli nelze tuto funkci vykonat.";
    dialogs.expect("Požadavek odmítnut !", text);
    intervaly.cmdIntervalOdNejnizsiho();
    EXPECT_EQ(dialogs.last.text, text);
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
}

TEST_F(IntervalyTest, AToneOutsideTheKeyAsksAndIsEstimated) {
    napisHmat({"fis1,", "a1,"});
    ocekavejDotaz(Answer::No);
    intervaly.cmdIntervalOdNejnizsiho();
    EXPECT_EQ(dialogs.last.text, dotaz);
    EXPECT_EQ(dialogs.last.icon, Icon::Question);
    EXPECT_EQ(dialogs.last.buttons, Buttons::YesNo);
    EXPECT_EQ(dialogs.last.defaultAnswer, Answer::No);
    EXPECT_EQ(s(ukazano()), "");
    EXPECT_EQ(s(panel.upozorneni), "");

    ocekavejDotaz(Answer::Yes);
    intervaly.cmdIntervalOdNejnizsiho();
    EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
    EXPECT_EQ(s(ukazano()), "18 18k a1,");
    EXPECT_EQ(s(panel.upozorneni), "Odhad: fis1 do stupnice C dur nepatří, stupně se počítají od f1. Vrchní "
                                   "tercie od fis1 je a1.");
}

TEST_F(IntervalyTest, TheKeyOfTheStepsIsTheCurrentOneOrElseThatOfTheRow) {
    napisHmat({"fis1,"}, "G dur");
    zvolToninu("D dur");
    intervaly.cmdIntervalOdNejnizsiho();
    EXPECT_EQ(s(panel.upozorneni), "Vrchní tercie od tónu fis1 ve stupnici D dur je a1.");
    zvolToninu("Vyberte tóninu");
    intervaly.cmdIntervalOdNejnizsiho();
    EXPECT_EQ(s(panel.upozorneni), "Vrchní tercie od tónu fis1 ve stupnici G dur je a1.");
    excel->put("W1", "Vyberte tóninu");
    intervaly.cmdIntervalOdNejnizsiho();
    EXPECT_EQ(s(panel.upozorneni),
              "Nejdříve zvolte tóninu (Ctrl+T): interval se počítá po stupních její stupnice.");
    EXPECT_EQ(s(ukazano()), "");
}

TEST_F(IntervalyTest, WhatCannotBeShownLeavesNothingShown) {
    oznacTony({2});
    kroky = 8;
    intervaly.cmdInterval();
    dialogs.expect("", "Vyberte kratší interval !");
    intervaly.cmdSpodInterval();
    EXPECT_EQ(s(ukazano()), "");
    zvolToninu("Fis dur");
    oznacTony({13});
    intervaly.cmdInterval();
    EXPECT_EQ(s(panel.upozorneni), "Tón e1 ve stupnici Fis dur není, interval od něj nejde určit.");
    Intervaly bezTabulky{
        {pisen, dialogs, panel, diskant, zobrazovaci, tonina, kroky, QStringLiteral("/nikde")}};
    dialogs.expect("", "Vyberte kratší interval !");
    bezTabulky.cmdInterval();
    EXPECT_EQ(s(panel.upozorneni), "Tabulka tónů konverze.xml nebyla ve složce programu nalezena.");
}

TEST_F(IntervalyTest, AStaffMarkThatIsNoSemitoneIsReported) {
    ZobrazeniIntervalu zobrazeni(diskant, zobrazovaci, dialogs);
    dialogs.expect("", "Neznámý půltón");
    EXPECT_FALSE(zobrazeni.ukaz(ToneName("e1,"), "x540"));
    EXPECT_FALSE(zobrazeni.ukaz(ToneName("e1,"), ""));
    EXPECT_EQ(s(ukazano()), "");
}

TEST_F(IntervalyTest, TheBrownCoversAndUncovers) {
    oznacTony({9, 13});
    diskant.nastavZnacku(9, false);
    diskant.nastavZnacku(9, true); // c1 is the last one again
    diskant.ukazHmat(28, StavKnofliku::Tah);
    intervaly.cmdInterval();
    EXPECT_EQ(s(ukazano()), "13 13p 13k e1,");
    kroky = 11;
    intervaly.cmdInterval();
    EXPECT_EQ(diskant.stavPomocneho(13), StavKnofliku::Cerveny);
    EXPECT_EQ(diskant.barvaKlavesy(13), BarvaKlavesy::Cervena);
    EXPECT_EQ(s(ukazano()), "28 28p 28k g2,");
    uvolneni.UvolniIntervaly();
    EXPECT_EQ(s(ukazano()), "");
    EXPECT_EQ(diskant.stav(28), StavKnofliku::Tah);
    EXPECT_EQ(diskant.barvaKlavesy(28), BarvaKlavesy::WindowBackground);

    intervaly.cmdInterval();
    diskant.nastavZnacku(28, true); // the player presses the brown button
    uvolneni.UvolniIntervaly();
    EXPECT_EQ(diskant.stav(28), StavKnofliku::Cerveny);
    EXPECT_EQ(s(ukazano()), "");
}

} // namespace
} // namespace zvonika
