#include "playing/recording/RadkyHmatu.h"

#include "playing/undo/Vraceni.h"
#include "tests/playing/recording/ZapisovaniFixture.h"

namespace zvonika {
namespace {

using testing::s;

/// A song of two sheets of four grips each; in the second they are a tone higher.
class RadkyHmatuTest : public testing::Zapisovani {
protected:
    RadkyHmatuTest() {
        const auto radek = [](const char* slabika, const char* ton) {
            return QVector<CellValue>{QString::fromUtf8(slabika), QString::fromUtf8(ton)};
        };
        const CellBlock prvni{radek("a", "c1,"), radek("b", "d1,"), radek("c", "e1,"), radek("d", "f1,")};
        const CellBlock druhy{radek("a", "d1,"), radek("b", "e1,"), radek("c", "fis1,"), radek("d", "g1,")};
        pisen.plneJmeno = QStringLiteral("C:\\Dokumenty\\Dva listy.xls");
        store(pisen.plneJmeno, {{QStringLiteral("Tonavox XII"), prvni, QStringLiteral("B3")},
                                {QStringLiteral("G dur"), druhy, QStringLiteral("B1")}});
        excel->openWorkbook(pisen.plneJmeno);
        pisen.aktualniPisen = excel->activeWorkbookName();
        excel->put("X3", "vpravo");
        excel->put("IV3", "kraj");
        excel->app().setStepKeeper(&vraceni);
    }
    ~RadkyHmatuTest() override { excel->app().setStepKeeper(nullptr); }

    /// Columns A and B of both sheets, and what stands far right.
    QString oba() {
        const QString aktivni = excel->app().activeSheetName();
        QStringList listy;
        for (const int list : {1, 2}) {
            excel->app().selectSheet(list);
            QString text;
            for (int radek = 1; radek <= 6; ++radek)
                text += excel->text(adresa(1, radek)) + excel->text(adresa(2, radek)) +
                        excel->text(adresa(24, radek)) + excel->text(adresa(lastColumn, radek)) + u'|';
            listy << text;
        }
        excel->app().selectSheet(aktivni);
        return listy.join(u' ');
    }
    QString kdeStoji() { return excel->activeSheetName() + u' ' + excel->activeAddress(); }
    /// Back and again and back.
    void tamAZpet(const QString& predtim) {
        const QString potom = oba();
        for (const bool zpet : {true, false, true}) {
            zpet ? vraceni.mnuZpet() : vraceni.mnuZnovu();
            EXPECT_EQ(s(oba()), s(zpet ? predtim : potom));
        }
        EXPECT_EQ(dialogs.count, 0);
    }

    OkoliPisne okoliPisne{pisen, dialogs, panel, prikazy};
    Navigace navigace{okoliPisne, zobrazeni, pasPisne, diskant, [] {}};
    Vraceni vraceni{okoliPisne, kroky, navigace};
    RadkyHmatu radky{okoliPisne, kroky, navigace};
};

TEST_F(RadkyHmatuTest, WholeRowsGoInAllSheetsAsOneStep) {
    const QString predtim = oba();
    radky.mnuSmazatHmat();
    EXPECT_EQ(s(oba()), "ac1,|bd1,|df1,|||| ad1,|be1,|dg1,||||");
    EXPECT_EQ(s(panel.upozorneni), "Hmat 3 smazán ve 2 listech. Ctrl+Z ho vrátí.");
    EXPECT_EQ(excel->steps, 1);
    EXPECT_EQ(s(kdeStoji() + u' ' + panel.lblTony), "Tonavox XII $B$3 f1,");
    tamAZpet(predtim);
    EXPECT_EQ(excel->steps, 1 + 3) << "each is one step of the application";
    EXPECT_EQ(s(kdeStoji()), "Tonavox XII $B$3");
    radky.mnuVlozitHmat();
    EXPECT_EQ(s(oba()), "ac1,|bd1,||ce1,vpravokraj|df1,|| ad1,|be1,||cfis1,|dg1,||");
    EXPECT_EQ(s(panel.upozorneni), "Na řádek 3 je vložen prázdný hmat ve 2 listech. Ctrl+Z ho zase odebere.");
    EXPECT_EQ(s(kdeStoji() + u' ' + panel.lblTony), "Tonavox XII $B$3 ");
    tamAZpet(predtim);
    EXPECT_EQ(s(panel.krokZnovu), "Vložení hmatu 3");
}

TEST_F(RadkyHmatuTest, SheetsWithoutTheSongStayAsTheyAre) {
    excel->selectSheet(2);
    excel->put("B1", "");
    excel->selectSheet(1);
    const QString predtim = oba();
    radky.mnuSmazatHmat();
    EXPECT_EQ(s(oba()), "ac1,|bd1,|df1,|||| a|be1,|cfis1,|dg1,|||");
    EXPECT_EQ(s(panel.upozorneni), "Hmat 3 smazán. Ctrl+Z ho vrátí.");
    tamAZpet(predtim);
    excel->selectSheet(2);
    radky.mnuSmazatHmat(); // from where the song begins lower down
    EXPECT_EQ(s(panel.upozorneni), "Hmat 1 smazán ve 2 listech. Ctrl+Z ho vrátí.");
    excel->put("B1:B4", "");
    radky.mnuVlozitHmat();
    EXPECT_EQ(s(panel.upozorneni), "Na tomto listu žádný hmat není, není před co vkládat.");
    radky.mnuSmazatHmat();
    EXPECT_EQ(s(panel.upozorneni), "Na tomto listu žádný hmat není, není co smazat.");
}

TEST_F(RadkyHmatuTest, ARowPutBeforeTheFirstOneCanBeTakenOutOfAllSheets) {
    const QString predtim = oba();
    excel->selectRange("B1");
    radky.mnuVlozitHmat();
    radky.mnuVlozitHmat();
    radky.mnuSmazatHmat();
    radky.mnuSmazatHmat();
    EXPECT_EQ(s(oba()), s(predtim));
    for (int i = 0; i < 4; ++i)
        vraceni.mnuZpet();
    EXPECT_EQ(s(oba()), s(predtim));
}

TEST_F(RadkyHmatuTest, ARefusalInOneSheetLeavesThemAllAsTheyWere) {
    excel->selectSheet(2);
    excel->put("B65536", "konec");
    const QString predtim = oba();
    for (const char* duvod : {"a full sheet", "told late"}) {
        EXPECT_EQ(testing::raised([this] { radky.mnuVlozitHmat(); }), 1004) << duvod;
        EXPECT_EQ(s(oba()), s(predtim)) << duvod;
        EXPECT_EQ(s(excel->activeSheetName()), "G dur") << duvod;
        EXPECT_EQ(s(vraceni.undoLabel()), "") << duvod;
        excel->put("B65536", "");
        log.fail("finishWriting", 1004);
    }
    EXPECT_EQ(testing::raised([this] { radky.mnuSmazatHmat(); }), 1004);
    EXPECT_EQ(s(oba()), s(predtim));
}

TEST_F(RadkyHmatuTest, AStepOverMoreSheetsThatFailsHalfWayIsTwoHalves) {
    const QString predtim = oba();
    radky.mnuSmazatHmat();
    const QString potom = oba();
    log.fail("putBack", 1004);
    EXPECT_EQ(testing::raised([this] { vraceni.mnuZpet(); }), 1004);
    EXPECT_EQ(s(oba()), s(potom)) << "an empty row is no half of a step";
    excel->selectSheet(1);
    excel->put("B65536", "konec"); // the second half cannot be taken back
    EXPECT_EQ(testing::raised([this] { vraceni.mnuZpet(); }), 1004);
    EXPECT_EQ(s(panel.krokZpet + u'/' + panel.krokZnovu), "Smazání hmatu 3/Smazání hmatu 3");
    excel->put("B65536", "");
    vraceni.mnuZpet();
    EXPECT_EQ(s(oba()), s(predtim));
    vraceni.mnuZnovu();
    vraceni.mnuZnovu();
    EXPECT_EQ(s(oba()), s(potom));
}

TEST_F(RadkyHmatuTest, WhatWasWrittenIntoAnInsertedRowIsAskedAbout) {
    radky.mnuVlozitHmat();
    excel->put("A3", "slabika");
    excel->selectSheet(2);
    dialogs.expect("Zpět", "Tonavox XII!A3", Answer::No);
    vraceni.mnuZpet();
    EXPECT_EQ(s(excel->activeSheetName()), "G dur");
    dialogs.expect("Zpět", "Tonavox XII!A3", Answer::Yes);
    vraceni.mnuZpet();
    EXPECT_EQ(s(kdeStoji()), "G dur $B$3") << "a step of all sheets is seen in the one in front";
}

TEST_F(RadkyHmatuTest, ARowThatIsToGoBackAmongOtherOnesIsAskedAbout) {
    for (const bool vlozit : {true, false}) {
        vlozit ? radky.mnuVlozitHmat() : radky.mnuSmazatHmat();
        if (vlozit) vraceni.mnuZpet();
        excel->put("A3", "cizí");
        const QString predtim = oba();
        dialogs.expect(vlozit ? "Znovu" : "Zpět", "Tonavox XII!A3", Answer::No);
        vlozit ? vraceni.mnuZnovu() : vraceni.mnuZpet();
        EXPECT_EQ(s(oba()), s(predtim)) << vlozit;
    }
}

TEST_F(RadkyHmatuTest, TheSheetsOwnStepsAreOfTheSameList) {
    const QString predtim = oba();
    excel->userTypes("A2", "psáno");
    radky.mnuSmazatHmat();
    excel->userSelects("A2");
    excel->app().commands().deleteRow();
    oznacTony({9});
    zapis.cmdTah();
    for (const char* krok : {"Zápis hmatu 2", "Odstranění řádku", "Smazání hmatu 3", "Psaní"}) {
        EXPECT_EQ(s(vraceni.undoLabel()), krok);
        excel->app().commands().undo();
    }
    EXPECT_EQ(s(oba()), s(predtim));
    EXPECT_EQ(dialogs.count, 0);
}

} // namespace
} // namespace zvonika
