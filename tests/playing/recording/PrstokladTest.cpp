#include "playing/recording/Prstoklad.h"

#include "playing/recording/CekajiciPrsty.h"
#include "playing/recording/RozepsanyHmat.h"
#include "playing/recording/ZadaniPrstu.h"
#include "playing/stepping/ZobrazeniPrstokladu.h"
#include "tests/playing/recording/ZapisovaniFixture.h"

namespace zvonika {
namespace {

const auto oznaceni = QStringLiteral("Označení prstokladu");
const auto chyba = QStringLiteral("Chyba !");
const auto chyba340 = QStringLiteral("Chyba č. 340.");
const QString texty[] = {
    QStringLiteral("Neočekávaná hodnota ve značení prstokladu."),
    QStringLiteral("Požadavek na vyznačení prstokladu nemohl být proveden, neboť záznam ve sloupci V "
                   "neobsahuje platnou hodnotu. Knoflík, na který odkazuje tento záznam, neexistuje. "
                   "Pro odstranění této chyby smažte prosím v Excelu na aktuálním řádku ve sloupci V "
                   "celý obsah buňky. Data o aktuálním hmatu zůstanou zachována. Prstoklad pak včetně "
                   "potvrzení hmatu můžete zapsat znovu.")};

/// The board with a key in which f is asked about.
class ZadaniPrstuTest : public testing::Zapisovani {
protected:
    /// The two presses of a double click, as the window hands them on.
    void dvojklik(int n, bool pomocny = false) {
        klik.klik(n);
        pomocny ? zadani.dvojklikLblSynchro(n) : zadani.dvojklikLbl(n);
    }
    QString ceka() const { return cekajiciPrsty(prstoklad, diskant); }

    KlikDiskantu klik{diskant, noty, tonina, dialogs, {[] {}, [](const QString&) {}}};
    ZadaniPrstu zadani{klik, prstoklad, dialogs};
    Uvolneni uvolneni{diskant, basy, osnova, zobrazovaci, prstoklad};
};

TEST_F(ZadaniPrstuTest, EntriesGrowInTheOrderOfEnteringAsTyped) {
    dialogs.expectInput(oznaceni, "1").expectInput(oznaceni, "4").expectInput(oznaceni, "9;x\\");
    dvojklik(12);
    dvojklik(14, true);
    dvojklik(1);
    EXPECT_EQ(prstoklad.prstoklad(), QStringLiteral("l12;1\\s14;4\\l1;9;x\\\\"));
    dialogs.expectInput(oznaceni, "");
    dvojklik(5);
    EXPECT_EQ(prstoklad.odeber(), QStringLiteral("l12;1\\s14;4\\l1;9;x\\\\"))
        << "an empty answer adds nothing";
    EXPECT_TRUE(prstoklad.prazdny());
}

TEST_F(ZadaniPrstuTest, ADoubleClickOnAMarkedButtonChangesNothingElseAndAsksNothingElse) {
    zvolToninu("G dur");
    dialogs.expect("Nota je mimo stupnici.", "f,", Answer::Yes);
    for (const int n : {9, 2, 13})
        klik.klik(n);
    osnova.vyberSlot(osnova.slotTonu(CisloTonu(2)));
    const RozepsanyHmat predtim = odecti({diskant, basy, osnova, noty, prstoklad});
    dialogs.expectInput(oznaceni, "");
    dvojklik(2);
    EXPECT_TRUE(odecti({diskant, basy, osnova, noty, prstoklad}) == predtim)
        << "mark, order, note and natural";
    EXPECT_EQ(osnova.vybranySlot(), osnova.slotTonu(CisloTonu(2)));

    klik.klik(2); // a slow second click: each is one of its own
    dialogs.expect("Nota je mimo stupnici.", "f,", Answer::Cancel);
    klik.klik(2);
    EXPECT_FALSE(diskant.oznacen(2));
    dialogs.expect("Nota je mimo stupnici.", "f,", Answer::Cancel);
    zadani.dvojklikLbl(2); // no finger for a button that stays free
    dialogs.expect("Nota je mimo stupnici.", "f,", Answer::Yes).expectInput(oznaceni, "2");
    zadani.dvojklikLbl(2);
    EXPECT_TRUE(diskant.oznacen(2));
}

TEST_F(ZadaniPrstuTest, AFingerTakesThePlaceOfTheOneTakenOverUntilItIsTakenBack) {
    prstoklad.prevezmi("l12;1\\l9;2\\s12;3\\");
    prstoklad.pridej(u'l', 12, "5");
    EXPECT_EQ(prstoklad.prstoklad(), "l9;2\\s12;3\\l12;5\\");
    prstoklad.odeberPosledni({9, 12});
    EXPECT_EQ(prstoklad.prstoklad(), "l12;1\\l9;2\\s12;3\\");
    prstoklad.odeberPosledni({9});
    EXPECT_EQ(prstoklad.prstoklad(), "l12;1\\s12;3\\") << "the last of those that are listed";
    prstoklad.odeberPosledni({});
    EXPECT_EQ(prstoklad.prstoklad(), "l12;1\\s12;3\\");
}

TEST_F(ZadaniPrstuTest, AFingerTakenOverGoesWithItsButtonAndComesBackWithIt) {
    prstoklad.prevezmi("l12;1\\l9;2\\s12;3\\");
    prstoklad.pridej(u'l', 14, "4");
    const struct {
        std::vector<int> oznacene;
        const char *ceka, *zapiseSe;
    } radky[] = {
        {{9, 12, 14}, "12 = 1, 9 = 2, pomocný 12 = 3, 14 = 4.", "l12;1\\l9;2\\s12;3\\l14;4\\"},
        {{9, 14}, "9 = 2, 14 = 4.", "l9;2\\l14;4\\"},
        {{12}, "12 = 1, pomocný 12 = 3, 14 = 4. Neoznačeno: 14.", "l12;1\\s12;3\\l14;4\\"},
        {{}, "14 = 4. Neoznačeno: 14.", "l14;4\\"},
    };
    for (const auto& [oznacene, veta, zapiseSe] : radky) {
        diskant.uvolniDiskant();
        oznacTony(oznacene);
        EXPECT_EQ(ceka(), QStringLiteral("Prstoklad čeká: ") + veta);
        EXPECT_EQ(prstoklad.prstoklad(diskant.oznacene()), zapiseSe);
    }
    uvolneni.uvolniVse(); // as every step does
    oznacTony({9});
    EXPECT_EQ(ceka(), "Prstoklad čeká: 14 = 4. Neoznačeno: 14.") << "another grip begins";
    prstoklad.odeberPosledni({9});
    EXPECT_TRUE(prstoklad.prazdny());
}

TEST_F(ZadaniPrstuTest, WhatWaitsIsListedWithTheButtonsThatAreNotMarked) {
    int zmen = 0;
    QObject::connect(&prstoklad, &Prstoklad::zmeneno, [&] { ++zmen; });
    oznacTony({12, 14});
    prstoklad.pridej(u'l', 12, "1");
    prstoklad.pridej(u's', 14, "4");
    EXPECT_EQ(ceka(), "Prstoklad čeká: 12 = 1, pomocný 14 = 4.");
    prstoklad.pridej(u'l', 5, "x\\");
    diskant.uvolniDiskant();
    EXPECT_EQ(ceka(), "Prstoklad čeká: 12 = 1, pomocný 14 = 4, 5 = x\\. Neoznačeno: 12, 14, 5.");
    prstoklad.odeberPosledni({});
    EXPECT_EQ(ceka(), "Prstoklad čeká: 12 = 1, pomocný 14 = 4. Neoznačeno: 12, 14.");
    prstoklad.nastav("l9;2\\s1;3\\cizi\\l60;1"); // of a stranger's song: nothing is dropped
    EXPECT_EQ(ceka(), "Prstoklad čeká: 9 = 2, pomocný 1 = 3, cizi\\, 60 = 1. Neoznačeno: 9, 1.");
    EXPECT_EQ(prstoklad.prstoklad(), "l9;2\\s1;3\\cizi\\l60;1");
    oznacTony({9});
    zapis.cmdTah();
    EXPECT_EQ(ceka(), "") << "recorded";
    EXPECT_EQ(excel->text("V1"), "l9;2\\s1;3\\cizi\\l60;1");
    prstoklad.odeberPosledni({}); // where none waits
    EXPECT_EQ(zmen, 6);
}

class ZobrazeniPrstokladuTest : public ::testing::Test {
protected:
    testing::ScriptedDialogs dialogs;
    TrebleBoard diskant{nastrojZvonika()};
    ZobrazeniPrstokladu zobrazeni{diskant, dialogs};
};

TEST_F(ZobrazeniPrstokladuTest, EachEntryGoesToItsButtonTheNewestOnTop) {
    const struct {
        const char* zaznam;
        int n;
        const char *popis, *popisPomocneho;
    } radky[] = {
        {"l12;1\\s14;4\\", 12, "1\r\ndis1,", ""},
        {"l12;1\\s14;4\\", 14, "f1,", "4\r\nf1,"},
        {"l05;2;x\\", 5, "2;x\r\ngis,", "gis,"},
        {"l5;2\\l5;3\\", 5, "3\r\n2\r\ngis,", "gis,"},
        {"l5;1\\s5;2\\s5;3\\", 5, "1\r\ngis,", "3\r\n2\r\ngis,"},
        {"", 5, "gis,", "gis,"},
    };
    diskant.nastavNazvy(true, QStringLiteral("C dur"));
    for (const auto& [zaznam, n, popis, popisPomocneho] : radky) {
        diskant.vyprazdniPopisy();
        zobrazeni.ZobrazPrstoklad(QString::fromUtf8(zaznam));
        EXPECT_EQ(diskant.popis(n).toStdString(), popis) << zaznam;
        EXPECT_EQ(diskant.popisPomocneho(n).toStdString(), popisPomocneho) << zaznam;
    }
}

TEST_F(ZobrazeniPrstokladuTest, WhatCannotBeReadIsReported) {
    const struct {
        const char* zaznam;
        QString titulek;
    } radky[] = {
        {"l2;1\\L5;1\\", chyba},     // unknown kind
        {"l2;1\\s1;1\\", chyba340},  // no such twin
        {"l2;1\\l50;1\\", chyba340}, // no such button
        {"l2;1\\l0;1\\", chyba340},  //
        {"l2;1\\l;1\\", chyba340},   // no number
        {"l2;1\\l5\\", chyba340},    // no semicolon
        {"l2;1\\;5\\", chyba340},    // no kind
        {"l2;1\\\\", chyba340},      // an empty entry
        {"l2;1\\l5;1", chyba340},    // no end
    };
    for (const auto& [zaznam, titulek] : radky) {
        SCOPED_TRACE(zaznam);
        diskant.vyprazdniPopisy();
        dialogs.expect(titulek, texty[titulek == chyba340]);
        zobrazeni.ZobrazPrstoklad(zaznam);
        EXPECT_TRUE(dialogs.done());
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
        EXPECT_EQ(diskant.popis(2), QStringLiteral("1\r\n")); // what was read before stays
        EXPECT_FALSE(ZobrazeniPrstokladu::jePlatny(zaznam, diskant.nastroj()));
    }
}

TEST_F(ZobrazeniPrstokladuTest, AValidRecordIsOneThatIsShownWithoutABox) {
    for (const char* zaznam : {"", "l1;1\\", "l49;x;y\\s49;2\\", "l012;1\\", "l5;\\"}) {
        EXPECT_TRUE(ZobrazeniPrstokladu::jePlatny(zaznam, diskant.nastroj())) << zaznam;
        zobrazeni.ZobrazPrstoklad(zaznam);
    }
}

} // namespace
} // namespace zvonika
