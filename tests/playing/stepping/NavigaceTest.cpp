#include "tests/playing/SongFixture.h"

namespace zvonika::testing {

namespace {

class NavigaceTest : public SongFixture {
protected:
    void naRadek(int radek) { excel->selectRange(QStringLiteral("B%1").arg(radek)); }
    QString bunka() { return excel->activeAddress(); }
};

using Povel = void (Navigace::*)();
struct Pohyb {
    const char* nazev;
    Povel povel;
    int z, na;
    bool tlak; ///< side shown afterwards; odd rows are pull, even rows push
};

const Pohyb pohyby[] = {
    {"cmdPrvni", &Navigace::cmdPrvni, 5, 1, false},
    {"cmdPredchozi", &Navigace::cmdPredchozi, 5, 4, false},
    {"cmdDalsi", &Navigace::cmdDalsi, 5, 6, false},
    {"cmdPosledni", &Navigace::cmdPosledni, 5, 30, false},
    {"cmdPredTah", &Navigace::cmdPredTah, 5, 4, false},
    {"cmdPredTlak", &Navigace::cmdPredTlak, 4, 3, true},
    {"cmdDalsiTah", &Navigace::cmdDalsiTah, 5, 6, false}, // column I says push and is not asked
    {"cmdDalsiTlak", &Navigace::cmdDalsiTlak, 4, 5, true},
    {"cmdJakDal", &Navigace::cmdJakDal, 5, 6, true},
    {"cmdJakDalZpet", &Navigace::cmdJakDalZpet, 6, 5, false},
};

} // namespace

TEST_F(NavigaceTest, EveryMovementReleasesTheBoardAndShowsTheNewRow) {
    otevriPolku(30);
    for (const Pohyb& pohyb : pohyby) {
        SCOPED_TRACE(pohyb.nazev);
        zobrazeni.cmdReadTah();
        excel->selectRange(QStringLiteral("F%1").arg(pohyb.z));
        pasPisne.obnov(pasPisne.ctiPoZmene());
        PovolZpet(prikazy);
        diskant.nastavZnacku(20, true);
        uvolneno = 0;
        (navigace.*pohyb.povel)();
        EXPECT_EQ(uvolneno, 1);
        EXPECT_FALSE(diskant.oznacen(20));
        EXPECT_EQ(bunka(), QStringLiteral("$B$%1").arg(pohyb.na));
        EXPECT_EQ(panel.lblTon, QString::number(pohyb.na));
        EXPECT_EQ(zobrazeni.zobrazenTlak(), pohyb.tlak);
        EXPECT_EQ(diskant.stav(9), pohyb.tlak ? StavKnofliku::Tlak : StavKnofliku::Tah);
        EXPECT_EQ(pas.prvniRadekPasu + pas.poziceVPasu - 1, pohyb.na);
        EXPECT_EQ(panel.lblSlabika[2], QStringLiteral("s%1").arg(pohyb.na));
        EXPECT_EQ(zpetPovoleno(), pohyb.na != 1);
    }
}

TEST_F(NavigaceTest, AMoveReadsOneBlockForBoardAndStrip) {
    otevriPolku(40);
    const struct {
        const char* co;
        std::function<void()> pohyb;
        int z, volani;
    } radky[] = {
        {"inside the strip", [this] { navigace.cmdDalsi(); }, 5, 6},
        {"out of the strip", [this] { navigace.cmdDalsi(); }, 16, 6},
        {"with the direction", [this] { navigace.cmdJakDal(); }, 5, 8},
        {"with the direction, out", [this] { navigace.cmdJakDal(); }, 16, 8},
        {"back", [this] { navigace.cmdJakDalZpet(); }, 5, 9},
        {"to the first", [this] { navigace.cmdPrvni(); }, 5, 6},
        {"by the user", [this] { navigace.sledujKurzor(); }, 5, 5},
    };
    for (const auto& [co, pohyb, z, volani] : radky) {
        SCOPED_TRACE(co);
        navigace.cmdPrvni();
        naRadek(z);
        pasPisne.obnov(pasPisne.ctiPoZmene());
        log.calls.clear();
        pohyb();
        EXPECT_EQ(log.count("readBlock"), 1);
        EXPECT_EQ(log.calls.size(), volani) << log.calls.join(u' ').toStdString();
    }
}

TEST_F(NavigaceTest, AChosenRowReleasesTheMarksAndIsTheSongs) {
    otevriPolku(5);
    excel->app().addWorkbook();
    diskant.nastavZnacku(20, true);
    navigace.naRadek(4);
    EXPECT_EQ(excel->activeWorkbookName(), "Polka.xls");
    EXPECT_EQ(bunka(), "$B$4");
    EXPECT_FALSE(diskant.oznacen(20));
    EXPECT_EQ(diskant.stav(9), StavKnofliku::Tlak);
    EXPECT_EQ(panel.barvaKroku, BarvaKroku::Tlak);
}

TEST_F(NavigaceTest, TheFingeringIsTheSongsWhateverIsInFront) {
    otevriPolku(5);
    excel->put("V3", "l9;3\\");
    naRadek(3);
    excel->app().addWorkbook();
    excel->put("V1", "l9;1\\");
    navigace.sledujKurzor();
    EXPECT_NE(excel->activeWorkbookName(), "Polka.xls") << "who only follows brings nothing to the front";
    zobrazeni.cmdReadTah();
    EXPECT_EQ(excel->activeWorkbookName(), "Polka.xls");
    EXPECT_EQ(diskant.popis(9), "3\r\n");
}

TEST_F(NavigaceTest, EachCommandReportsAFaultyFingeringOnce) {
    otevriPolku(30);
    for (int radek = 1; radek <= 30; ++radek)
        excel->put(QStringLiteral("V%1").arg(radek), "l9;1\\x9;2\\");
    for (const Pohyb& pohyb : pohyby) {
        for (int stisk = 1; stisk <= 2; ++stisk) {
            SCOPED_TRACE(QStringLiteral("%1, press %2").arg(pohyb.nazev).arg(stisk).toStdString());
            naRadek(pohyb.z);
            pasPisne.obnov(pasPisne.ctiPoZmene());
            dialogs.expect("Chyba !", "Neočekávaná hodnota ve značení prstokladu.");
            (navigace.*pohyb.povel)();
            EXPECT_EQ(diskant.popis(9), "1\r\n") << "what was read before the fault stays";
        }
    }
    dialogs.expect("Chyba !", "").expect("Chyba !", "");
    uvolneno = 0;
    navigace.cmdReadTlak();
    EXPECT_TRUE(zobrazeni.zobrazenTlak());
    navigace.cmdReadTah();
    EXPECT_FALSE(zobrazeni.zobrazenTlak());
    EXPECT_EQ(uvolneno, 0);
}

TEST_F(NavigaceTest, AFailedCommandForgetsWhatItReported) {
    otevriPolku(3);
    excel->put("V2", "x9;2\\");
    dialogs.expect("Chyba !", "").expect("Chyba !", "");
    QObject::connect(
        &panel, &SongPanel::zmeneno, &panel,
        [this] { log.fail("selectRange", 1004); }, // behind the grip that is shown already
        Qt::SingleShotConnection);
    EXPECT_EQ(raised([this] { navigace.cmdJakDal(); }), 1004);
    navigace.cmdReadTah();
}

TEST_F(NavigaceTest, TheTopTakesTwoPresses) {
    otevriPolku(3);
    naRadek(2);
    pasPisne.ZobrazPas(pasPisne.ctiOdKurzoru());
    navigace.cmdPredchozi();
    EXPECT_EQ(bunka(), "$B$1");
    EXPECT_TRUE(zpetPovoleno()) << "arriving on row 1 leaves the commands on";

    diskant.nastavZnacku(20, true);
    const int poziceVPasu = pas.poziceVPasu;
    navigace.cmdPredchozi();
    EXPECT_EQ(bunka(), "$B$1");
    EXPECT_FALSE(zpetPovoleno());
    EXPECT_FALSE(diskant.oznacen(20)) << "the board is released before the command stops";
    EXPECT_EQ(diskant.stav(9), StavKnofliku::Volny);
    EXPECT_TRUE(osnova.tony().isEmpty());
    EXPECT_EQ(pas.poziceVPasu, poziceVPasu);

    navigace.cmdDalsi();
    EXPECT_TRUE(zpetPovoleno());
}

TEST_F(NavigaceTest, ThereIsNoStopBehindTheLastGrip) {
    otevriPolku(2);
    for (int radek = 2; radek <= 20; ++radek) {
        navigace.cmdDalsi();
        EXPECT_EQ(bunka(), QStringLiteral("$B$%1").arg(radek));
    }
    EXPECT_EQ(panel.lblTon, "20");
    EXPECT_EQ(panel.lblTony, "");
    EXPECT_EQ(pas.prvniRadekPasu, 17);
    EXPECT_EQ(pas.poziceVPasu, 4);
}

TEST_F(NavigaceTest, LastGrip) {
    struct Pripad {
        int hmatu, z, na;
        bool zpet;
    };
    for (const auto& [hmatu, z, na, zpet] : {Pripad{0, 7, 1, false},
                                             {1, 3, 1, false},
                                             {2, 1, 2, true},
                                             {499, 1, 499, true},
                                             {500, 321, 321, true}, // nothing found: the cursor stays
                                             {600, 321, 321, true}}) {
        SCOPED_TRACE(hmatu);
        otevriPolku(hmatu);
        naRadek(z);
        PovolZpet(prikazy);
        navigace.cmdPosledni();
        EXPECT_EQ(bunka(), QStringLiteral("$B$%1").arg(na));
        EXPECT_EQ(panel.lblTon, QString::number(na));
        EXPECT_EQ(zpetPovoleno(), zpet);
        EXPECT_EQ(pas.prvniRadekPasu, na);
        EXPECT_EQ(panel.upozorneni.contains("500"), hmatu >= 500);
        zivot.cmdEndEdit();
    }
}

TEST_F(NavigaceTest, LastGripDoesNotTakeAFailureForAFullSheet) {
    otevriPolku(3);
    log.fail("findAndActivate", error::applicationDefined);
    EXPECT_EQ(raised([this] { navigace.cmdPosledni(); }), error::applicationDefined);
    excel->userQuits();
    EXPECT_EQ(raised([this] { navigace.cmdPosledni(); }), error::objectNotSet);
}

TEST_F(NavigaceTest, AMissingDirectionStopsSteppingWithItsMessage) {
    otevriPolku(2);
    navigace.cmdJakDal();
    EXPECT_EQ(panel.barvaKroku, BarvaKroku::Tlak);
    navigace.cmdJakDalZpet();
    EXPECT_EQ(panel.barvaKroku, BarvaKroku::Tah);
    EXPECT_EQ(zastavenoKrokovani, 0);
    for (const QString& smer : {QString(), QStringLiteral("tah"), QStringLiteral("Vpravo")}) {
        excel->put("I3", smer);
        naRadek(2);
        zastavenoKrokovani = 0;
        diskant.nastavTonKlavesy(9, "c1,");
        dialogs.expect("Neprovedeno.", "Další záznam neuveden, nebo chybí informace o směru tahu měchu.");
        navigace.cmdJakDal();
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
        EXPECT_EQ(zastavenoKrokovani, 1);
        EXPECT_EQ(panel.barvaKroku, BarvaKroku::Neznamy);
        EXPECT_EQ(diskant.tonKlavesy(9), "");
        EXPECT_EQ(bunka(), "$B$3");
    }
}

TEST_F(NavigaceTest, FollowsTheUserInTheSheetWithoutDisturbingHim) {
    otevriPolku(40);
    ZakazZpet(prikazy);
    diskant.nastavZnacku(20, true);
    uvolneno = 0;
    excel->userSelects("A6");
    navigace.sledujKurzor();
    EXPECT_EQ(bunka(), "$A$6");
    EXPECT_EQ(panel.lblTon, "6");
    EXPECT_EQ(panel.barvaKroku, BarvaKroku::Tlak);
    EXPECT_EQ(diskant.stav(9), StavKnofliku::Tlak);
    EXPECT_TRUE(diskant.oznacen(20));
    EXPECT_EQ(uvolneno, 0);
    EXPECT_EQ(pas.prvniRadekPasu, 1);
    EXPECT_EQ(pas.poziceVPasu, 6);
    EXPECT_TRUE(zpetPovoleno());

    panel.zapsano = QStringLiteral("Hmat 5 je zapsán na tlak.");
    excel->userTypes("A7", "lezl");
    navigace.sledujKurzor();
    EXPECT_FALSE(panel.zapsano.isEmpty()) << "the row is the same";
    EXPECT_EQ(panel.lblSlabika[3], "lezl");
    EXPECT_EQ(pas.pozice[6].slabika, "lezl");

    excel->userSelects("D30");
    excel->put("I30", QString());
    navigace.sledujKurzor();
    EXPECT_EQ(panel.barvaKroku, BarvaKroku::Neznamy) << "and no box";
    EXPECT_EQ(panel.zapsano, "") << "of another row";
    EXPECT_EQ(pas.prvniRadekPasu, 30);
}

TEST_F(NavigaceTest, FollowsTheUserToAnotherSheet) {
    otevriPolku(3, {{{}, QStringLiteral("e1,")}});
    excel->app().commands().selectSheet(2);
    navigace.sledujKurzor();
    EXPECT_EQ(panel.lblLadeni, "G dur");
    EXPECT_EQ(panel.Combo1, "G dur");
    EXPECT_EQ(panel.listy, (QStringList{"Tonavox XII", "G dur"}));
    EXPECT_EQ(excel->activeSheetName(), "G dur");
    excel->app().commands().renameSheet(2, "D dur");
    navigace.sledujKurzor();
    EXPECT_EQ(panel.listy, (QStringList{"Tonavox XII", "D dur"}));
}

TEST_F(NavigaceTest, DoesNotFollowForeignWorkbooksNorFailures) {
    otevriPolku(3);
    excel->app().addWorkbook();
    excel->userSelects("B2");
    navigace.sledujKurzor();
    EXPECT_EQ(panel.lblTon, "1");
    excel->userQuits();
    navigace.sledujKurzor();
    pisen.aktualniPisen.clear();
    navigace.sledujKurzor();
    EXPECT_EQ(panel.lblTon, "1");
}

} // namespace zvonika::testing
