#include "tests/conversion/KonverzeFixture.h"

namespace zvonika::testing {
namespace {

class KonverzeTest : public KonverzeFixture {};

const QString tah("B=c1,|C=e1,|I=Tah|W=C dur");
const QString tlak("B=d1,|I=Tlak|W=C dur");

TEST_F(KonverzeTest, RewritesACopyAndLeavesTheSongAlone) {
    const QString plny(
        "A=slab-|B=c1,|C=d1,|D=e1,|E=f1,|F=g1,|G=a1,|H=h1,|I=Tah|M=C|N=C-dur|V=l9;1\\|W=C dur");
    otevri({plny, tah, tlak, "A=zbytek|V=l9;1\\"});
    excel->put("V14", "l1;1\\");
    excel->put("V15", "l2;2\\"); // beyond the ten rows below the song
    ocekavejHotovo();
    preved("G dur");

    EXPECT_EQ(dialogs.last.text,
              "Skladba byla na aktivním listu překonvertována podle nastavených požadavků a "
              "uložena do souboru \nPolka G dur.xls.");
    EXPECT_EQ(dialogs.last.icon, Icon::Information);
    EXPECT_EQ(radek(1), "A=slab-|B=g,|C=a,|D=h,|E=c1,|F=d1,|G=e1,|H=fis1,|I=Tah|M=C|N=C-dur|W=G dur");
    EXPECT_EQ(radek(2), "B=g,|C=h,|I=Tah|W=G dur");
    EXPECT_EQ(radek(3), "B=a,|I=Tlak|W=G dur");
    EXPECT_EQ(radek(4), "A=zbytek");
    EXPECT_EQ(radek(14), "");
    EXPECT_EQ(radek(15), "V=l2;2\\");
    EXPECT_EQ(list(), "Tonavox XII");
    EXPECT_EQ(excel->app().activeAddress(), "$B$1");
    EXPECT_TRUE(stav.zavreno);
    EXPECT_TRUE(konverze.predanaKopie());
    EXPECT_EQ(konverze.veta(), "");

    konverze.Form_Unload();
    EXPECT_EQ(storedText(cesta("Polka G dur.xls"), "B1"), "g,");
    EXPECT_EQ(storedText(cesta("Polka.xls"), "B1"), "c1,");
    EXPECT_EQ(pisen.aktualniPisen, "Polka G dur.xls");
}

TEST_F(KonverzeTest, NothingIsSavedBeforeEverythingIsKnown) {
    dialogs.expect("Neočekávaná chyba.", "Píseň ze které se má konvertovat, není otevřena.");
    preved("G dur");
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    otevri({tah});
    konverze.Form_Load();
    stav.optStupnice.reset();
    dialogs.expect("Neúplné údaje.",
                   "Neurčili jste do kterého ladění si přejete konverzi provést. Zaškrtněte "
                   "požadovanou volbu a zkuste to znovu.");
    konverze.cmdGo();
    EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
    dialogs.expect(
        "Chyba při výběru ladění.",
        "Ve Vámi zvoleném ladění byla píseň již zapsána. Konverze z C dur do C dur nebude provedena !");
    preved("C dur");
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    stav.lblStupnice.clear();
    dialogs.expect("Neúplné údaje.",
                   "Píseň neobsahuje záznam ve kterém ladění je zapsána. Konverze nebude provedena !");
    konverze.cmdGo();
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_EQ(drive.files(pracovniAdresar).filter("G dur"), QStringList());
    EXPECT_FALSE(stav.zavreno || stav.bezi);
    EXPECT_EQ(konverze.veta(), "");
}

TEST_F(KonverzeTest, AnOlderCopyIsReplacedOnlyWhenTheUserAgrees) {
    const QString kopie = cesta("Polka G dur.xls");
    otevri({tah});
    drive.addFile(kopie);
    excel->put("A1", "změna");
    dialogs.expect(kopie, "Soubor již existuje. Přejete si ho vymazat a nahradit novým ?", Answer::Cancel);
    dialogs.expect("Storno převodu.", "Zpracování zrušeno uživatelem.");
    preved("G dur");
    EXPECT_EQ(dialogs.last.icon, Icon::Information);
    EXPECT_TRUE(stav.zavreno && drive.fileExists(kopie));
    EXPECT_FALSE(konverze.predanaKopie());

    drive.failingDeletions = 1;
    dialogs.expect(kopie, "", Answer::Ok);
    EXPECT_EQ(raised([&] { konverze.cmdGo(); }), error::permissionDenied);
    EXPECT_FALSE(stav.bezi);
    EXPECT_EQ(storedText(cesta("Polka.xls"), "A1"), "");
    EXPECT_EQ(drive.files(pracovniAdresar), (QStringList{"Polka G dur.xls", "Polka.xls"}));

    dialogs.expect(kopie, "", Answer::Ok);
    ocekavejHotovo();
    konverze.cmdGo();
    EXPECT_EQ(storedText(kopie, "A1"), "změna");
    EXPECT_EQ(storedText(cesta("Polka.xls"), "A1"), "změna");
}

TEST_F(KonverzeTest, AnErrorBeforeTheFirstRowGoesBackToTheSongAndTakesTheCopyAway) {
    const QString kopie = cesta("Polka G dur.xls");
    for (const char* krok : {"saveActiveWorkbook", "saveActiveWorkbookAs", "renameActiveSheet"})
        for (const bool starsi : {true, false}) {
            SCOPED_TRACE(krok);
            otevri({tah});
            pisen.plneJmeno = cesta("Polka.xls");
            if (starsi) store(kopie, {{QStringLiteral("L"), {{QStringLiteral("starší")}}}});
            if (starsi) dialogs.expect(kopie, "", Answer::Ok);
            excel->put("A1", "la");
            log.fail(krok, 1004);
            EXPECT_EQ(raised([this] { preved("G dur"); }), 1004);
            EXPECT_EQ(pisen.aktualniPisen, "Polka.xls");
            EXPECT_EQ(pisen.plneJmeno, cesta("Polka.xls"));
            EXPECT_EQ(excel->activeWorkbookName(), "Polka.xls");
            EXPECT_EQ(excel->workbooks(), 1);
            EXPECT_EQ(konverze.veta(), "");
            EXPECT_FALSE(stav.selhala || stav.zavreno || konverze.predanaKopie());
            EXPECT_EQ(drive.fileExists(kopie), starsi);
            if (starsi) {
                EXPECT_EQ(storedText(kopie, "A1"), "starší");
            }
        }
    ocekavejHotovo();
    konverze.cmdGo(); // the same dialog, once the obstacle is gone
    EXPECT_EQ(pisen.plneJmeno, kopie);
    EXPECT_EQ(radek(1), "A=la|B=g,|C=h,|I=Tah|W=G dur");
}

TEST_F(KonverzeTest, ACopyWhoseSongCannotBeOpenedAgainStays) {
    otevri({tah});
    pisen.plneJmeno = cesta("Polka.xls");
    log.fail("renameActiveSheet", 1004);
    log.fail("openWorkbook", 1004);
    EXPECT_EQ(raised([this] { preved("G dur"); }), 1004);
    EXPECT_EQ(pisen.aktualniPisen, "Polka G dur.xls");
    EXPECT_TRUE(stav.selhala && konverze.predanaKopie());
    EXPECT_EQ(storedText(cesta("Polka G dur.xls"), "B1"), "c1,");
}

TEST_F(KonverzeTest, AShortFileNameKeepsItsEnd) {
    otevri({tah}, "Polk");
    drive.addFile(cesta(" G dur.xls"));
    ocekavejHotovo();
    preved("G dur");
    EXPECT_EQ(pisen.aktualniPisen, "Polk G dur.xls");
}

TEST_F(KonverzeTest, AnEmptySongLeavesACopyForWritingByHand) {
    otevri({"W=C dur"});
    dialogs.expect("Přerušeno na začátku.",
                   "Smažte soubor Polka G dur.xls\nEventuelně může být tento soubor použit");
    preved("G dur");
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_EQ(list(), "G dur Nedokončeno");
    EXPECT_TRUE(stav.zavreno && konverze.predanaKopie());
}

TEST_F(KonverzeTest, HeligonkaVersionsCarryTheNameOfATuning) {
    const std::pair<QString, QStringList> radky[] = {{"G dur-C dur-F dur", {"F dur", "G dur"}},
                                                     {"B-Es-As", {"Es dur", "B dur", "As dur"}},
                                                     {"A dur-D dur-G dur", {"D dur", "A dur"}},
                                                     {"Změnit tento název listu", {"E dur"}}};
    for (const auto& [nazev, cile] : radky)
        for (const QString& cil : cile) {
            otevri({tah});
            stav.Check1 = true;
            ocekavejHotovo();
            preved(cil.toUtf8());
            EXPECT_EQ(list(), nazev) << cil.toStdString();
        }
}

TEST_F(KonverzeTest, RowsOfAnyShapeAreReadToTheirEnd) {
    const struct {
        const char *popis, *puvodni, *prevedeny;
        const char *konec = "", *zbyva = ""; ///< where the run ends before the row below, and what is left
    } radky[] = {
        {"gap in the grip", "B=c1,|E=e1,|I=Tah", "B=g,|E=h,|I=Tah"},
        {"direction too early", "B=c1,|C=Tlak|D=e1,", "B=g,|C=Tlak|D=e1,"},
        {"no direction", "B=c1,|C=e1,", "B=g,|C=h,", "D2", "řádek 3"},
        {"another direction", "B=c1,|I=tah", "B=g,|I=tah", "C2", "řádek 3"},
        {"other text as direction", "B=c1,|C=c1,|D=c1,|E=c1,|F=c1,|G=c1,|H=c1,|I=x|J=e1,|L=e1,",
         "B=g,|C=g,|D=g,|E=g,|F=g,|G=g,|H=g,|J=h,|L=e1,", "K2", "řádek 3"},
        {"no tones", "C=c1,|I=Tah", "C=c1,|I=Tah", "B2", "řádky 2–3"},
        {"an empty row", "A=la", "A=la", "B2", "řádek 3"},
    };
    for (const auto& r : radky) {
        otevri({tah, r.puvodni + QString("|W=C dur"), tah});
        ocekavejHotovo();
        preved("G dur");
        const bool dalsiRadek = !*r.konec;
        EXPECT_EQ(radek(2), r.prevedeny + QString(dalsiRadek ? "|W=G dur" : "|W=C dur")) << r.popis;
        EXPECT_EQ(excel->text("B3"), dalsiRadek ? "g," : "c1,") << r.popis;
        const QString veta = "Převod skončil u prázdné buňky %1. Nepřevedeno zůstalo: %2.";
        EXPECT_TRUE(konverze.veta().endsWith(dalsiRadek ? QString() : veta.arg(r.konec, r.zbyva))) << r.popis;
        EXPECT_EQ(konverze.veta().contains("Převod skončil"), !dalsiRadek) << r.popis;
    }
}

TEST_F(KonverzeTest, TheKeyMayChangeInsideTheSong) {
    const QString druhy("B=g,|C=a,|I=Tah|W=G dur");
    const auto zmena = [&](Answer odpoved) { dialogs.expect("Přechod do jiné stupnice", "", odpoved); };
    otevri({tah, druhy, tah});
    zmena(Answer::Cancel);
    preved("D dur");
    EXPECT_EQ(dialogs.last.text, "Na řádku 2 se mění původní stupnice z C dur do G dur.\n"
                                 "Chcete-li tento úsek konvertovat do jiné stupnice, stiskněte Ano.");
    EXPECT_EQ(dialogs.last.buttons, Buttons::YesNoCancel);
    EXPECT_EQ(dialogs.last.defaultAnswer, Answer::No);
    EXPECT_EQ(dialogs.last.icon, Icon::Question);
    EXPECT_TRUE(stav.zavreno);
    EXPECT_EQ(list(), "D dur Nedokončeno");
    EXPECT_EQ(konverze.veta(), "Konverze není dokončena, list kopie se jmenuje „D dur Nedokončeno“.");

    otevri({tah, druhy, druhy});
    zmena(Answer::No); // the section goes into the same target
    ocekavejHotovo();
    preved("D dur");
    EXPECT_EQ(radek(2), "B=d1,|C=e1,|I=Tah|W=D dur");
    EXPECT_EQ(excel->text("W3"), "D dur");

    otevri({tah, druhy, druhy, tah}, "Valčík.xls");
    zmena(Answer::Yes);
    preved("D dur");
    EXPECT_TRUE(stav.ceka && !stav.bezi);
    EXPECT_EQ(excel->app().activeAddress(), "$B$2");
    stav.optStupnice.reset();
    dialogs.expect("Neúplné údaje.", "Neurčili jste");
    konverze.cmdPokracovat();
    EXPECT_TRUE(stav.ceka);
    excel->app().addWorkbook(); // another workbook comes to the front meanwhile
    vyber("F dur");
    dialogs.expect("Přechod do jiné stupnice", "Na řádku 4 se mění původní stupnice z G dur do C dur.",
                   Answer::No);
    ocekavejHotovo();
    konverze.cmdPokracovat();
    EXPECT_FALSE(stav.ceka) << "nobody is waited for any more";
    EXPECT_EQ(excel->text("B1"), "d1,");
    EXPECT_EQ(radek(2), "B=f1,|C=g1,|I=Tah|W=F dur");
    EXPECT_EQ(excel->text("W4"), "F dur");
    EXPECT_EQ(list(), "Tonavox XII");
}

TEST_F(KonverzeTest, ARowWithoutAKeyEndsTheRun) {
    otevri({tah, "B=d1,|I=Tah"});
    dialogs.expect("Přechod do jiné stupnice", "z C dur do .", Answer::No);
    dialogs.expect("Neúplné údaje.",
                   "Není uvedeno ladění zdrojového řádku. Konverze bude předčasně ukončena.");
    preved("G dur");
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_FALSE(stav.zavreno);
    EXPECT_EQ(excel->text("B2"), "d1,");
    EXPECT_EQ(list(), "G dur Nedokončeno");
}

TEST_F(KonverzeTest, WhatIsLostIsTold) {
    otevri({tah, "B=h3,|C=cizí|I=Tah|W=C dur", "B=e4,|C=x|D=y|I=Tlak|W=C dur"});
    excel->put("B1", CellValue(15.0)); // a number is no tone either
    ocekavejHotovo();
    preved("Fis dur");
    EXPECT_EQ(excel->text("B3"), "ais4,");
    EXPECT_EQ(excel->text("B1"), "");
    EXPECT_EQ(
        konverze.veta(),
        "Ztratil se nejnižší tón (řádek 1): sloupec B je tam prázdný a pro každého, kdo kopii čte, končí "
        "písnička před řádkem 1. Převod: v tabulce chybí 4 tóny (řádky 1–3), mimo rozsah nástroje "
        "2 tóny (řádky 2–3).");
}

TEST_F(KonverzeTest, AKeyThatIsNoneIsNamedAsTheReasonOfTheLoss) {
    otevri({"B=c1,|C=e1,|I=Tah|W=Vyberte tóninu", "B=d1,|I=Tlak|W=Vyberte tóninu", "B=e1,|I=Tah|W=C Dur"});
    dialogs.expect("Přechod do jiné stupnice", "", Answer::No);
    ocekavejHotovo();
    preved("G dur");
    EXPECT_EQ(konverze.veta().section(": ", 2),
              "„Vyberte tóninu“ ve sloupci W není tónina, bez ní nebylo čím nahradit 3 tóny (řádky 1–2).");
    EXPECT_EQ(excel->text("B3"), "h,");
}

TEST_F(KonverzeTest, ASongChosenInTheDialogIsClosedAgain) {
    pisen.aktualniPisen = "zavřená ručně.xls";
    konverze.Form_Load();
    const QString titulek = "Vyberte písničku, kterou chcete konvertovat !";
    dialogs.expectFile(titulek, std::nullopt);
    konverze.cmdVyberPisen();
    dialogs.expectFile(titulek, soubor("Bez tóniny.xls", {"B=c1,"}))
        .expect("Nevhodný soubor.",
                "Vyberte jinou píseň.\nPokročilí uživatelé mohou zapsat ladění do sloupce W.");
    konverze.cmdVyberPisen();
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_EQ(excel->workbooks(), 0);
    EXPECT_EQ(pisen.aktualniPisen, "zavřená ručně.xls");
    EXPECT_TRUE(stav.vyberPovolen);
    dialogs.expectFile(titulek, soubor("Polka.xls", {tah}));
    konverze.cmdVyberPisen();
    EXPECT_EQ(stav.lblStupnice, "C dur");
    EXPECT_EQ(stav.cmdVyberPisen, "Polka.xls");
    EXPECT_FALSE(stav.vyberPovolen);
    vyber("G dur");
    ocekavejHotovo();
    konverze.cmdGo();
    konverze.Form_Unload();
    EXPECT_FALSE(konverze.predanaKopie());
    EXPECT_EQ(excel->workbooks(), 0);
    EXPECT_EQ(pisen.aktualniPisen, "zavřená ručně.xls");
    EXPECT_EQ(konverze.veta(), "Kopie je v souboru „Polka G dur.xls“.");
    konverze.Form_Load();
    dialogs.expectFile(titulek, soubor("Bez tóniny.xls", {"B=c1,"})).expect("Nevhodný soubor.", "");
    log.fail("saveActiveWorkbook", 91);
    EXPECT_EQ(raised([this] { konverze.cmdVyberPisen(); }), 91);
    EXPECT_EQ(pisen.aktualniPisen, "zavřená ručně.xls") << "also where saving fails";
}

TEST_F(KonverzeTest, ClicksThatComeInDuringTheRunStartNothing) {
    otevri({tah, tlak, tlak});
    zpravy = [&] {
        EXPECT_TRUE(stav.bezi);
        konverze.cmdGo();
        konverze.cmdPokracovat();
        konverze.cmdVyberPisen();
    };
    ocekavejHotovo();
    preved("G dur");
    EXPECT_EQ(drive.files(pracovniAdresar).filter("G dur").size(), 1);
    EXPECT_EQ(excel->text("B3"), "a,");
}

TEST_F(KonverzeTest, ACursorMovedMeanwhileDoesNotLeadTheRunAstray) {
    otevri({tah, tlak});
    zpravy = [this] { excel->userSelects("D9"); };
    ocekavejHotovo();
    preved("G dur");
    EXPECT_EQ(radek(1), "B=g,|C=h,|I=Tah|W=G dur");
    EXPECT_EQ(radek(2), "B=a,|I=Tlak|W=G dur");
    EXPECT_EQ(radek(9), "");
}

TEST_F(KonverzeTest, ANameThatAnotherSheetHasLeavesTheWorkingName) {
    store(cesta("Polka.xls"), {{"Tonavox XII", bunky({tah, tlak})}, {"G dur-C dur-F dur"}});
    pisen.aktualniPisen = "Polka.xls";
    excel->app().openWorkbook(cesta("Polka.xls"));
    stav.Check1 = true;
    ocekavejHotovo();
    preved("F dur");
    EXPECT_TRUE(stav.zavreno);
    EXPECT_EQ(list(), "F dur Nedokončeno");
    EXPECT_TRUE(konverze.veta().startsWith("Převedený list zůstal „F dur Nedokončeno“, na „"))
        << konverze.veta().toStdString();
}

TEST_F(KonverzeTest, AFailureInTheRunLeavesTheDialogUsable) {
    otevri({tah, tlak});
    log.fail("setValue", 1004);
    EXPECT_THROW(preved("G dur"), AutomationError);
    EXPECT_FALSE(stav.bezi || stav.zavreno);
    EXPECT_TRUE(stav.selhala);
    const auto titulek = QStringLiteral("Vyberte písničku, kterou chcete konvertovat !");
    dialogs.expectFile(titulek, std::nullopt);
    konverze.cmdVyberPisen();
    EXPECT_TRUE(stav.selhala);
    konverze.cmdGo(); // the half-converted copy is not converted once more
    EXPECT_EQ(drive.files(pracovniAdresar).filter("Polka").size(), 2);
    dialogs.expectFile(titulek, soubor("Bez tóniny.xls", {"B=c1,"})).expect("Nevhodný soubor.", "");
    konverze.cmdVyberPisen();
    EXPECT_TRUE(stav.selhala);
    dialogs.expectFile(titulek, soubor("Valčík.xls", {tah}));
    konverze.cmdVyberPisen();
    EXPECT_FALSE(stav.selhala);
    konverze.cmdKonec();
    EXPECT_TRUE(stav.zavreno);
    excel->app().closeActiveWorkbook();
    EXPECT_THROW(konverze.Form_Unload(), AutomationError);
}

} // namespace
} // namespace zvonika::testing
