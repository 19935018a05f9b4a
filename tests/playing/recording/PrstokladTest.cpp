#include "playing/recording/Prstoklad.h"

#include "board/TrebleBoard.h"
#include "playing/stepping/ZobrazeniPrstokladu.h"
#include "tests/support/ScriptedDialogs.h"

#include <gtest/gtest.h>

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

TEST(Prstoklad, EntriesGrowInTheOrderOfEnteringAsTyped) {
    testing::ScriptedDialogs dialogs;
    Prstoklad prstoklad(dialogs);
    dialogs.expectInput(oznaceni, "1").expectInput(oznaceni, "4").expectInput(oznaceni, "9;x\\");
    prstoklad.dvojklikLbl(12);
    prstoklad.dvojklikLblSynchro(14);
    prstoklad.dvojklikLbl(1);
    EXPECT_EQ(prstoklad.prstoklad(), QStringLiteral("l12;1\\s14;4\\l1;9;x\\\\"));
    EXPECT_EQ(dialogs.lastPrompt,
              QStringLiteral("Zadejte číslo prstu, kterým má být mačkán tento knoflík. 1 = palec "
                             "až 5 = malíček."));
}

TEST(Prstoklad, AnEmptyAnswerAddsNothing) {
    testing::ScriptedDialogs dialogs;
    Prstoklad prstoklad(dialogs);
    dialogs.expectInput(oznaceni, "2").expectInput(oznaceni, "");
    prstoklad.dvojklikLbl(5);
    prstoklad.dvojklikLbl(5);
    EXPECT_EQ(prstoklad.odeber(), QStringLiteral("l5;2\\"));
    EXPECT_EQ(prstoklad.prstoklad(), QString());
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
