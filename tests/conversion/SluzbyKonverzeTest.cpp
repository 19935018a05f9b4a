// The services of the conversion one by one, also those that no run calls.
#include "conversion/KonverzeBasu.h"
#include "conversion/NahradText.h"
#include "tests/conversion/KonverzeFixture.h"
#include "theory/TabulkaNot.h"

#include <QFile>
#include <QTemporaryDir>

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
        {"C dur", "G dur", "c1,", "g,"},
        {"C Dur", "G dur", "c1,", "g,"},
        {"CDUR", "G dur", "c1,", "g,"},
        {"C dur", "G Dur", "c1,", "Empty"}, // only the source may be written so
        {"Fis dur", "C dur", "fis,", "c,"},
        {"C  dur", "G dur", "c1,", "Empty"},
        {"Vyberte tóninu", "G dur", "c1,", "Empty"},
        {"", "G dur", "c1,", "Empty"},
        {"C dur", "G dur", "A,", "Empty"},   // only the heading has it
        {"C dur", "G dur", "Ais,", "Empty"}, // the 57th is not reached
        {"C dur", "F dur", "dis4,", "as4,"}, // the 56th
        {"C dur", "G dur", "c1", "Empty"},
        {"C dur", "G dur", "C1,", "Empty"},
        {"C dur", "F dur", "h3,", "e4,"},
        {"F dur", "C dur", "e4,", "h3,"},
    };
    for (const auto& r : radky)
        EXPECT_EQ(prevedeno(r.zdroj, r.cil, r.ton), r.vysledek) << r.zdroj << ' ' << r.cil << ' ' << r.ton;
}

TEST_F(SluzbyKonverze, EveryNameComesBackFromEveryKey) {
    otevri({});
    const TabulkaNot tabulka(drive.programFolderPath);
    QMap<QString, QMap<QString, QMap<QString, QString>>> prevody; // source, target, name → name
    for (const DurovaTonina& z : toniny)
        for (const DurovaTonina& d : toniny)
            for (int i = 1; i <= 56; ++i) {
                const QString zdroj = z.nazev.toString(), cil = d.nazev.toString();
                const QString ton = *tabulka.ton(i, QString(zdroj).remove(u' '));
                const auto novy = sluzby.Konvertuj(zdroj, cil, ton);
                ASSERT_TRUE(novy) << ton.toStdString();
                prevody[zdroj][cil][ton] = *novy;
            }
    for (const QString& zdroj : prevody.keys())
        for (const QString& cil : prevody.keys()) {
            const auto& tam = prevody[zdroj][cil];
            ASSERT_EQ(tam.size(), 56);
            for (auto ton = tam.begin(); ton != tam.end(); ++ton)
                EXPECT_EQ(prevody[cil][zdroj].value(ton.value()), ton.key());
        }
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

TEST_F(SluzbyKonverze, TheQuestionAtAKeyChange) {
    const struct {
        Answer odpoved;
        const char* vysledek;
    } radky[] = {{Answer::Yes, "Zmenit"}, {Answer::No, "Ne"}, {Answer::Cancel, "Storno"}};
    for (const auto& [odpoved, vysledek] : radky) {
        dialogs.expect("Přechod do jiné stupnice", "", odpoved);
        EXPECT_EQ(sluzby.ZmenaLadeni("C dur", "Vyberte tóninu", "12"), vysledek);
    }
    EXPECT_EQ(dialogs.last.text, "Na řádku 12 se mění původní stupnice z C dur do Vyberte tóninu.\n"
                                 "Chcete-li tento úsek konvertovat do jiné stupnice, stiskněte Ano.");
    EXPECT_EQ(dialogs.last.buttons, Buttons::YesNoCancel);
    EXPECT_EQ(dialogs.last.defaultAnswer, Answer::No);
    EXPECT_EQ(dialogs.last.icon, Icon::Question);
}

TEST_F(SluzbyKonverze, ATargetWorkbookTakesTheSyllables) {
    otevri({"A=Koč-|B=c1,", "A=ka"});
    EXPECT_TRUE(sluzby.VytvorCilovySoubor("G dur", "Polka.xls"));
    const FakeBook& kniha = disk.at(pracovniAdresar + "\\Polka G dur.xls");
    EXPECT_EQ(kniha.sheets.front().name, "Tonavox12");
    EXPECT_EQ(kniha.sheets.front().at(2, 1), CellValue(QString("ka")));
    EXPECT_EQ(kniha.sheets.front().at(1, 2), CellValue());
    EXPECT_EQ(excel->activeAddress(), "$B$1");
    EXPECT_EQ(excel->lastSaveAs.fileFormat, -4143);
}

TEST_F(SluzbyKonverze, AMissingFolderIsMadeWithoutItsMiddleLevel) {
    otevri({});
    drive.folders.clear();
    dialogs.expect("Pracovní adresář neexistuje.", "Cesta do C:\\Dokumenty\\Heligonka  nebyla nalezena.\n");
    EXPECT_TRUE(sluzby.VytvorCilovySoubor("G dur", "Polka.xls"));
    EXPECT_EQ(drive.created, (QStringList{"C:\\Dokumenty", pracovniAdresar}));
}

TEST_F(SluzbyKonverze, AnExistingTargetStaysUnlessTheUserHasItDeleted) {
    const QString cil = pracovniAdresar + "\\Polka G dur.xls";
    const QString otazka = "Tato skladba již existuje!";
    const QString preruseno = "Založení nové skladby přerušeno.";
    otevri({});
    drive.files.insert(cil);
    dialogs.expect(otazka, "vymazat z disku", Answer::No).expect(preruseno, "zadejte jiný název písně.");
    EXPECT_FALSE(sluzby.VytvorCilovySoubor("G dur", "Polka.xls"));
    drive.failingDeletions = 1;
    dialogs.expect(otazka, "", Answer::Yes).expect(preruseno, "");
    EXPECT_FALSE(sluzby.VytvorCilovySoubor("G dur", "Polka.xls"));
    EXPECT_EQ(excel->calls("addWorkbook"), 0);
    dialogs.expect(otazka, "", Answer::Yes);
    EXPECT_TRUE(sluzby.VytvorCilovySoubor("G dur", "Polka.xls"));

    excel->fail("saveActiveWorkbookAs", 1004); // not reported
    EXPECT_FALSE(sluzby.VytvorCilovySoubor("D dur", "Polka.xls"));
    EXPECT_EQ(excel->book().fullName, "");
}

TEST(NahradText, SearchesOnFromThePlaceOfTheFind) {
    const struct {
        const char *text, *hledany, *nahrada;
        VolbyNahrady volby;
        const char* vysledek;
        int provedeno;
    } radky[] = {
        {"C dur a", " ", "", {Qt::CaseInsensitive, 1, 1}, "Cdur a", 1},
        {"C DUR Dur", "Dur", "dur", {Qt::CaseInsensitive, 1, 1}, "C dur Dur", 1},
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

class KonverzeBasuTest : public KonverzeFixture {
protected:
    void SetUp() override {
        const auto tabulky = soubor("Tabulky.xls", {});
        FakeBook& kniha = disk.at(tabulky);
        kniha.sheets.push_back({"B-Es-As", {}, {}, 1, 1});
        for (int i = 1; i <= 6; ++i)
            kniha.sheets[0].put(i, 6,
                                i == 6 ? QString("C") : QStringLiteral("C%1").arg(i)); // each contains C
        kniha.sheets[0].put(3, 7, QString("G"));
        kniha.sheets[1].put(6, 6, QString("Es"));
        kniha.sheets[1].put(3, 7, QString("B"));
        otevri({"B=c1,|M=G"});
        excel->openWorkbook(tabulky);
        excel->activateWindow("Polka.xls");
        pisen.cilovyListNazev = "Tabulky.xls";
        excel->selectRange("B1");
    }
    void ocekavejNenalezen(const char* bas) {
        dialogs.expect("Neočekávaná chyba.",
                       QStringLiteral("Ani napočtvrté se nepodařilo překonvertovat basový tón %1. "
                                      "Konverze nebude dokončena.")
                           .arg(bas));
    }

    KonverzeBasu basy{pisen, dialogs};
};

TEST_F(KonverzeBasuTest, ARowOfBassesIsTakenFromTheTableOfTheTarget) {
    EXPECT_TRUE(basy.KonvertujBasy("Tah", "B-Es-As")); // free cells find the free part of the table
    EXPECT_EQ(excel->activeWorkbookName(), "Polka.xls");
    EXPECT_EQ(radek(1), "B=c1,|M=B");
    EXPECT_EQ(excel->activeAddress(), "$T$1");
}

TEST_F(KonverzeBasuTest, TheFifthSearchIsTheLast) {
    excel->put("M1", "C");
    EXPECT_TRUE(basy.KonvertujBasy("Tlak", "B-Es-As")); // it begins behind F1 and finds C2 to C5 first
    EXPECT_EQ(excel->text("M1"), "Es");
    for (const char* bas : {"c", "X"}) { // only ever part of a name; nowhere at all
        excel->put("M1", bas);
        ocekavejNenalezen(bas);
        EXPECT_FALSE(basy.KonvertujBasy("Tlak", "B-Es-As"));
        excel->activateWindow("Polka.xls");
    }
}

TEST_F(KonverzeBasuTest, ARowWithoutADirectionIsRefused) {
    dialogs.expect("Neočekávaná chyba.", "Chybí záznam o směru tahu měchu.");
    EXPECT_FALSE(basy.KonvertujBasy("tah", "B-Es-As"));
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    pisen.cilovyListNazev = "není";
    EXPECT_TRUE(basy.AktivujZdroj());
}

} // namespace
} // namespace zvonika::testing
