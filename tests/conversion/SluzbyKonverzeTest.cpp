// The services of the conversion one by one, also those that no run calls.
#include "conversion/KonverzeBasu.h"
#include "conversion/NahradText.h"
#include "conversion/ZtratyKonverze.h"
#include "tests/conversion/KonverzeFixture.h"

#include <QFile>

namespace zvonika::testing {
namespace {

class SluzbyKonverze : public KonverzeFixture {
protected:
    void zapisTabulku(const QByteArray& polozky) {
        QFile soubor(slozka.filePath("konverze.xml"));
        ASSERT_TRUE(soubor.open(QIODevice::WriteOnly));
        soubor.write("<konverze>" + polozky + "</konverze>");
        drive.programFolderPath = slozka.path();
    }
    QString prevedeno(const char* zdroj, const char* cil, const char* ton) {
        return sluzby.Konvertuj(zdroj, cil, QString::fromUtf8(ton)).value_or("Empty");
    }

    QTemporaryDir slozka;
    clsKonverze sluzby{pisen, dialogs, drive, [this] { zpravy(); }};
};

TEST_F(SluzbyKonverze, ATonIsLookedUpByTheNamesOfItsKeys) {
    otevri({});
    const struct {
        const char *zdroj, *cil, *ton, *vysledek;
    } radky[] = {
        {"C dur", "G dur", "c1,", "g,"},     {"C Dur", "G dur", "c1,", "g,"},
        {"C dur", "G Dur", "c1,", "Empty"}, // only the source may be written so
        {"Fis dur", "C dur", "fis,", "c,"},  {"Vyberte tóninu", "G dur", "c1,", "Empty"},
        {"C dur", "G dur", "A,", "Empty"},   // only the heading has it
        {"C dur", "G dur", "Ais,", "Empty"}, // the 57th is not reached
        {"C dur", "F dur", "dis4,", "as4,"}, // the 56th
        {"C dur", "G dur", "C1,", "Empty"},
    };
    for (const auto& r : radky)
        EXPECT_EQ(prevedeno(r.zdroj, r.cil, r.ton), r.vysledek) << r.zdroj << ' ' << r.cil << ' ' << r.ton;
}

TEST_F(SluzbyKonverze, TheTableIsReadAfreshAndAnyFaultGivesNothing) {
    otevri({});
    const QByteArray hlavicka = "<nota/>";
    zapisTabulku(hlavicka + "<nota><Cdur>c,</Cdur><Gdur>g,</Gdur></nota><nota><Gdur>a,</Gdur></nota>"
                            "<nota><Cdur>e,</Cdur><Gdur>h,</Gdur></nota>");
    EXPECT_EQ(prevedeno("C dur", "G dur", "c,"), "g,");
    EXPECT_EQ(prevedeno("C dur", "D dur", "c,"), "Empty");
    EXPECT_EQ(prevedeno("C dur", "G dur", "e,"), "Empty"); // an entry without the key ends the search
    zapisTabulku(hlavicka + "<nota><Cdur>c,</Cdur><Gdur>jiné</Gdur></nota>");
    EXPECT_EQ(prevedeno("C dur", "G dur", "c,"), "jiné");
    QFile::remove(slozka.filePath("konverze.xml"));
    EXPECT_EQ(prevedeno("C dur", "G dur", "c,"), "Empty");
    EXPECT_TRUE(sluzby.chybaTabulky().contains("nebyla ve složce programu nalezena"));
    drive.programFolderPath = ZVONIKA_RESOURCES;
    pisen.aktualniPisen = "zavřená.xls";
    EXPECT_EQ(prevedeno("C dur", "G dur", "c1,"), "Empty");
}

TEST_F(SluzbyKonverze, ATargetWorkbookIsMadeWhereNothingIsInItsWay) {
    const QString cil = cesta("Polka G dur.xls"), existuje = "Tato skladba již existuje!";
    const QString preruseno = "Založení nové skladby přerušeno.";
    otevri({"A=Koč-|B=c1,", "A=ka"});
    EXPECT_TRUE(sluzby.VytvorCilovySoubor("G dur", "Polka.xls"));
    EXPECT_EQ(list(), "Tonavox12");
    EXPECT_EQ(excel->app().activeAddress(), "$B$1");
    EXPECT_EQ(storedText(cil, "A2"), "ka");
    EXPECT_EQ(storedText(cil, "B1"), "");

    otevri({"A=nová"});
    drive.addFile(cil);
    for (const int zabranenych : {1, 0}) {
        drive.failingDeletions = zabranenych;
        dialogs.expect(existuje, "vymazat z disku", Answer::Yes);
        if (zabranenych) dialogs.expect(preruseno, "zadejte jiný název písně.");
        EXPECT_EQ(sluzby.VytvorCilovySoubor("G dur", "Polka.xls"), !zabranenych);
        EXPECT_EQ(excel->workbooks(), zabranenych ? 1 : 2);
    }
    EXPECT_EQ(storedText(cil, "A1"), "nová");

    // The middle one of the missing folders is not made, and that saving fails then is not told.
    otevri({});
    drive.removeFolder("C:\\Dokumenty");
    dialogs.expect("Pracovní adresář neexistuje.", "Cesta do C:\\Dokumenty\\Heligonka  nebyla nalezena.\n");
    EXPECT_FALSE(sluzby.VytvorCilovySoubor("G dur", "Polka.xls"));
    EXPECT_TRUE(drive.folderExists("C:\\Dokumenty"));
    EXPECT_FALSE(drive.folderExists("C:\\Dokumenty\\Heligonka"));
}

TEST(NahradText, SearchesOnFromThePlaceOfTheFind) {
    const struct {
        const char *text, *hledany, *nahrada;
        VolbyNahrady volby;
        const char* vysledek;
        int provedeno;
    } radky[] = {
        {"C dur a", " ", "", {Qt::CaseInsensitive, 1, 1}, "Cdur a", 1},
        {"C DUR Dur", "Dur", "mol", {}, "C DUR mol", 1},
        {"xxxx", "xx", "x", {}, "x", 3}, // what was put there is searched again
        {"aaa", "a", "b", {Qt::CaseSensitive, 2}, "abb", 2},
        {"abc", "x", "y", {}, "abc", 0},
    };
    for (const auto& r : radky) {
        int provedeno = -1, zprav = 0;
        EXPECT_EQ(NahradText(
                      r.text, r.hledany, r.nahrada, r.volby, [&] { ++zprav; }, provedeno),
                  r.vysledek);
        EXPECT_EQ(provedeno, r.provedeno) << r.text;
        EXPECT_EQ(zprav, r.provedeno) << r.text;
    }
}

TEST_F(SluzbyKonverze, BassesAreFoundInTheTablesOfASecondWorkbook) {
    // Each of the pushed basses has a C in its name.
    const QStringList tahTlak{"F=C1", "F=C2", "F=C3|G=G", "F=C4", "F=C5", "F=C"};
    const struct {
        const char *bas, *smer;
        const char* novy; ///< null: not found and told
    } pripady[] = {
        {"G", "Tah", "B"},      // then free cells, which find the free part of the table
        {"C", "Tlak", "Es"},    // the search begins behind F1 and finds C2 to C5 first: the fifth is the last
        {"c", "Tlak", nullptr}, // only ever part of a name
        {"X", "Tlak", nullptr}, // nowhere at all
    };
    KonverzeBasu basy(pisen, dialogs);
    for (const auto& [bas, smer, novy] : pripady) {
        SCOPED_TRACE(bas);
        otevri({QStringLiteral("B=c1,|M=%1").arg(bas)});
        store(cesta("Tabulky.xls"),
              {{"Tonavox XII", bunky(tahTlak)}, {"B-Es-As", bunky({"", "", "G=B", "", "", "F=Es"})}});
        excel->app().openWorkbook(cesta("Tabulky.xls"));
        excel->app().activateWindow("Polka.xls");
        pisen.cilovyListNazev = "Tabulky.xls";
        if (!novy)
            dialogs.expect("Neočekávaná chyba.",
                           QStringLiteral("Ani napočtvrté se nepodařilo překonvertovat basový tón %1. "
                                          "Konverze nebude dokončena.")
                               .arg(bas));
        EXPECT_EQ(basy.KonvertujBasy(smer, "B-Es-As"), novy != nullptr);
        if (!novy) continue;
        EXPECT_EQ(excel->activeWorkbookName(), "Polka.xls");
        EXPECT_EQ(radek(1), QStringLiteral("B=c1,|M=%1").arg(novy));
        EXPECT_EQ(excel->app().activeAddress(), "$T$1");
    }
    dialogs.expect("Neočekávaná chyba.", "Chybí záznam o směru tahu měchu.");
    EXPECT_FALSE(basy.KonvertujBasy("tah", "B-Es-As"));
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
}

TEST(ZtratyKonverze, RowsAreNamedShortly) {
    const struct {
        QList<int> radky;
        const char* popis;
    } radky[] = {
        {{3}, "řádek 3"},
        {{3, 4}, "řádky 3–4"},
        {{1, 3, 5, 6, 7, 9}, "řádky 1, 3, 5–7, 9"},
        {{1, 3, 5, 7, 9, 11, 12, 13}, "řádky 1, 3, 5, 7, 9, 11–13"},
        {{1, 3, 5, 7, 9, 11, 13, 14}, "řádky 1, 3, 5, 7, 9, 11 a další, celkem 8 řádků"},
    };
    for (const auto& r : radky)
        EXPECT_EQ(popisRadku(r.radky), QString::fromUtf8(r.popis));
}

TEST(ZtratyKonverze, CountsAreInGoodCzech) {
    ZtratyKonverze ztraty;
    for (const char* tony : {"1 tón", "2 tóny", "3 tóny", "4 tóny", "5 tónů"}) {
        ztraty.pridejMimoNastroj(8);
        EXPECT_EQ(ztraty.veta(), QStringLiteral("Převod: mimo rozsah nástroje %1 (řádek 8).").arg(tony));
    }
}

} // namespace
} // namespace zvonika::testing
