#include "platform/Hlaseni.h"
#include "playing/song/SlozkaPisni.h"
#include "tests/playing/SongFixture.h"

namespace zvonika::testing {

namespace {

class ZivotPisneTest : public SongFixture {
protected:
    void zadejNazev(const QString& nazev) { dialogs.expectInput("Nová skladba.", nazev); }
    void ocekavejBezPisne() {
        EXPECT_EQ(pisen.aktualniPisen, "");
        EXPECT_EQ(panel.titulek, "Zvonika");
        EXPECT_EQ(panel.lblTon, "1");
        EXPECT_EQ(panel.lblLadeni, "Tonavox12");
        EXPECT_TRUE(panel.listy.isEmpty());
        EXPECT_EQ(panel.Combo1, "");
        EXPECT_EQ(panel.barvaKroku, BarvaKroku::Neznamy);
        EXPECT_EQ(panel.lblStupnice + panel.lblTony + panel.lblBasy, "");
        EXPECT_EQ(panel.lblSlabika, (std::array<QString, 5>{}));
        EXPECT_FALSE(panel.popisyViditelne);
        EXPECT_FALSE(pas.viditelny);
        EXPECT_FALSE(zpetPovoleno());
        ocekavejPrikazy(false);
    }
    void ocekavejPrikazy(bool pisenOtevrena) {
        for (const char* prikaz : {"cmdTah", "cmdEndEdit", "cmdDalsi", "mnuKonecPisne", "Slider1", "Combo1"})
            EXPECT_EQ(prikazy.povolen(prikaz), pisenOtevrena) << prikaz;
        for (const char* prikaz : {"cmdEdit", "cmdNovaSkladba", "mnuOtevrit", "mnuNovaPisen"})
            EXPECT_EQ(prikazy.povolen(prikaz), !pisenOtevrena) << prikaz;
    }
    int otevrenychSesitu() {
        int pocet = 0;
        for (; !excel->activeWorkbookName().isEmpty(); ++pocet)
            excel->userClosesWorkbook();
        return pocet;
    }
};

} // namespace

TEST_F(ZivotPisneTest, NewSongIsSavedUnderItsNameAndShown) {
    diskant.nastavZnacku(20, true);
    zadejNazev("Polka.xls");
    zivot.cmdNovaSkladba();
    EXPECT_EQ(dialogs.lastPrompt, "Zadejte název nové písničky.");
    EXPECT_EQ(excel->lastSaveAs.filename, slozkaPisni + "Polka.xls.xls") << "the name is taken as typed";
    EXPECT_EQ(excel->lastSaveAs.fileFormat, -4143);
    EXPECT_EQ(pisen.aktualniPisen, "Polka.xls.xls");
    EXPECT_EQ(panel.titulek, "Polka.xls.xls");
    EXPECT_EQ(excel->activeSheetName(), "Tonavox XII");
    EXPECT_EQ(panel.lblLadeni, "Tonavox XII");
    EXPECT_EQ(panel.Combo1, "Tonavox XII");
    EXPECT_EQ(panel.listy, QStringList{"Tonavox XII"});
    EXPECT_EQ(panel.lblTon, "1");
    EXPECT_TRUE(pas.viditelny);
    EXPECT_EQ(excel->activeAddress(), "$B$1");
    EXPECT_TRUE(diskant.oznacen(20)) << "what is marked already can be recorded";
    ocekavejPrikazy(true);
}

TEST_F(ZivotPisneTest, NoNameNoSong) {
    zadejNazev("");
    zivot.cmdNovaSkladba();
    EXPECT_EQ(excel->calls("addWorkbook"), 0);
    ocekavejBezPisne();
}

TEST_F(ZivotPisneTest, MissingFoldersAreCreatedFromTheTop) {
    const QString dokumenty = "C:\\Dokumenty", heligonka = "C:\\Dokumenty\\Heligonka";
    const QVector<QPair<QSet<QString>, QStringList>> pripady{{{}, {dokumenty, heligonka, pracovniAdresar}},
                                                             {{dokumenty}, {heligonka, pracovniAdresar}},
                                                             {{dokumenty, heligonka}, {pracovniAdresar}}};
    for (const auto& [stojici, zalozene] : pripady) {
        drive.folders = stojici;
        drive.created.clear();
        dialogs.expect("Pracovní adresář neexistuje.",
                       "Cesta do C:\\Dokumenty\\Heligonka\\Zvonika nebyla nalezena.\n"
                       "Aby mohl program správně pracovat, bude nyní vytvořena tato složka.\n"
                       "Do ní se budou ukládat Vaše skladby.");
        zadejNazev("");
        zivot.cmdNovaSkladba();
        EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
        EXPECT_EQ(drive.created, zalozene);
    }
}

TEST_F(ZivotPisneTest, AnExistingSongIsReplacedOnlyOnYes) {
    const QString soubor = slozkaPisni + "Polka.xls";
    const QString otazka = "Přejete si vymazat z disku původní písničku a nahradit ji novou ?";
    drive.files = {soubor};
    zadejNazev("Polka");
    dialogs.expect("Tato skladba již existuje!", otazka, Answer::No)
        .expect("Založení nové skladby přerušeno.", "Začněte znovu a zadejte jiný název písně.");
    zivot.cmdNovaSkladba();
    EXPECT_EQ(dialogs.last.icon, Icon::Information);
    EXPECT_TRUE(drive.files.contains(soubor));
    EXPECT_EQ(excel->calls("addWorkbook"), 0);

    // A deletion that fails is asked about again.
    drive.failingDeletions = 1;
    zadejNazev("Polka");
    dialogs.expect("Tato skladba již existuje!", otazka, Answer::Yes)
        .expect("Tato skladba již existuje!", otazka, Answer::Yes);
    zivot.cmdNovaSkladba();
    EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
    EXPECT_EQ(dialogs.last.buttons, Buttons::YesNo);
    EXPECT_FALSE(drive.files.contains(soubor));
    EXPECT_EQ(pisen.aktualniPisen, "Polka.xls");
}

TEST_F(ZivotPisneTest, ARefusedNewSongLeavesNothingBehindAndTellsTheCause) {
    excel->refusal = "Název obsahuje znak, který souborový systém nedovoluje.";
    zadejNazev("a:b");
    dialogs.expect("Pracovní adresář neexistuje.",
                   "Cesta C:\\Dokumenty\\Heligonka nenalezena. Aby mohl program správně pracovat, vytvořte "
                   "nejprve ručně tento adresář !!!");
    zivot.cmdNovaSkladba();
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_EQ(panel.upozorneni, excel->refusal);
    ocekavejBezPisne();
    EXPECT_EQ(otevrenychSesitu(), 0);
}

TEST_F(ZivotPisneTest, AFailureAnywhereInANewSongLeavesNoSong) {
    for (const char* krok : {"addWorkbook", "saveActiveWorkbookAs", "activeWorkbookName", "renameActiveSheet",
                             "activeSheetName", "readBlock"}) {
        SCOPED_TRACE(krok);
        excel->fail(krok, 91);
        zadejNazev("Polka");
        dialogs.expect("Neočekávaná chyba !", "Kontaktujte firmu " + kontakt + " a sdělte číslo chyby 91");
        zivot.cmdNovaSkladba();
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
        ocekavejBezPisne();
        EXPECT_EQ(otevrenychSesitu(), 0);
    }
}

TEST_F(ZivotPisneTest, OpeningShowsTheRowAtWhichTheSongWasSaved) {
    FakeBook kniha{
        "Valčík.xls", "C:\\Valčík.xls", {{"Tonavox XII", {}, {}, 5, 4}, {"G dur", {}, {}, 2, 2}}, 0};
    kniha.sheets[0].put(5, 1, QStringLiteral("dí"));
    kniha.sheets[0].put(5, 2, QStringLiteral("c1,"));
    kniha.sheets[0].put(5, 9, QStringLiteral("Tlak"));
    kniha.sheets[0].put(5, 23, QStringLiteral("C dur"));
    disk[kniha.fullName] = kniha;
    excel->fileChoice = kniha.fullName;
    uvolneno = 0;
    zivot.cmdEdit();
    EXPECT_EQ(excel->fileChoiceTitle, "Vyberte písničku, kterou chcete zkoušet !");
    EXPECT_EQ(pisen.aktualniPisen, "Valčík.xls");
    EXPECT_EQ(panel.titulek, "Valčík.xls");
    EXPECT_EQ(excel->activeAddress(), "$B$5");
    EXPECT_EQ(panel.lblTon, "5");
    EXPECT_EQ(panel.lblStupnice, "C dur");
    EXPECT_EQ(panel.listy, (QStringList{"Tonavox XII", "G dur"}));
    EXPECT_EQ(panel.Combo1, "Tonavox XII");
    EXPECT_EQ(panel.lblLadeni, "Tonavox XII");
    EXPECT_EQ(diskant.stav(9), StavKnofliku::Tah) << "column I is not asked";
    EXPECT_EQ(panel.barvaKroku, BarvaKroku::Neznamy);
    EXPECT_EQ(pas.prvniRadekPasu, 5);
    EXPECT_EQ(pas.poziceVPasu, 1);
    EXPECT_TRUE(zpetPovoleno());
    ocekavejPrikazy(true);
}

TEST_F(ZivotPisneTest, CancelledOrFailedOpeningLeavesNoSong) {
    excel->fileChoice.reset();
    zivot.cmdEdit();
    ocekavejBezPisne();
    for (const char* krok : {"getOpenFilename", "openWorkbook", "activeWorkbookName", "activeSheetName",
                             "selectNextSheet", "readBlock"}) {
        SCOPED_TRACE(krok);
        disk["C:\\P.xls"] = {"P.xls", "C:\\P.xls", {{"A", {}, {}, 1, 1}, {"B", {}, {}, 1, 1}}, 0};
        excel->fileChoice = "C:\\P.xls";
        excel->fail(krok, 1004);
        ocekavejChybu(1004, [this] { zivot.cmdEdit(); });
        ocekavejBezPisne();
        EXPECT_EQ(otevrenychSesitu(), 0);
    }
}

TEST_F(ZivotPisneTest, AnotherSheetKeepsTheRowAndIsSaved) {
    otevriPolku(6);
    excel->addSheet("G dur");
    excel->selectSheet(QStringLiteral("G dur"));
    excel->put("B4", "e1,");
    excel->put("I4", "Tlak");
    excel->put("V4", "l13;1\\s1;1\\");
    excel->selectSheet(QStringLiteral("Tonavox XII"));
    excel->selectRange("B4");
    excel->addWorkbook(); // something else in front
    dialogs.expect("Chyba č. 340.", "ve sloupci V");
    zivot.Combo1Click("G dur");
    EXPECT_EQ(excel->activeWorkbookName(), "Polka.xls");
    EXPECT_EQ(excel->activeSheetName(), "G dur");
    EXPECT_EQ(excel->activeAddress(), "$B$4");
    EXPECT_EQ(panel.lblLadeni, "G dur");
    EXPECT_EQ(panel.Combo1, "G dur");
    EXPECT_EQ(diskant.stav(13), StavKnofliku::Tlak);
    EXPECT_EQ(diskant.popis(13), "1\r\n");
    EXPECT_EQ(panel.barvaKroku, BarvaKroku::Tlak);
    EXPECT_EQ(pas.prvniRadekPasu, 4);
    EXPECT_EQ(excel->calls("saveActiveWorkbook"), 1);

    // An empty row there: the missing direction is told, the row stays, the song is saved all the same.
    excel->selectSheet(QStringLiteral("Tonavox XII"));
    excel->selectRange("B6");
    dialogs.expect("Neprovedeno.", "");
    zivot.Combo1Click("G dur");
    EXPECT_EQ(excel->activeAddress(), "$B$6");
    EXPECT_EQ(panel.lblTon, "6");
    EXPECT_EQ(excel->calls("saveActiveWorkbook"), 2);

    ocekavejChybu(9, [this] { zivot.Combo1Click("Není"); });
    EXPECT_EQ(panel.Combo1, "G dur") << "the list shows the sheet that is there";
    excel->userClosesWorkbook();
    ocekavejChybu(9, [this] { zivot.Combo1Click("G dur"); });
}

TEST_F(ZivotPisneTest, AFailureWithoutANumberLeavesNoSongEither) {
    const auto ocekavejHlaseni = [this] {
        dialogs.expect("Neočekávaná chyba !", "Kontaktujte firmu " + kontakt + " a sdělte číslo chyby 0");
    };
    for (const char* krok : {"saveActiveWorkbookAs", "activeSheetName"}) {
        SCOPED_TRACE(krok);
        excel->withoutNumber = krok;
        zadejNazev("Polka");
        ocekavejHlaseni();
        zivot.cmdNovaSkladba();
        ocekavejBezPisne();
        EXPECT_EQ(otevrenychSesitu(), 0);
    }
    excel->withoutNumber = "activeSheetName";
    EXPECT_THROW(otevriPolku(1), std::out_of_range);
    ocekavejBezPisne();
    EXPECT_EQ(otevrenychSesitu(), 0);

    otevriPolku(1);
    excel->withoutNumber = "saveActiveWorkbook";
    ocekavejHlaseni();
    zivot.cmdEndEdit();
    ocekavejBezPisne();
    EXPECT_TRUE(panel.upozorneni.contains("saveActiveWorkbook")) << "the cause for who is asked for help";
}

TEST_F(ZivotPisneTest, TidyingUpThatFailsAsWellLeavesNoSong) {
    excel->fail("readBlock", 1004);
    excel->withoutNumber = "activateWindow"; // called first when the song is thrown away
    ocekavejChybu(1004, [this] { otevriPolku(1); });
    EXPECT_EQ(excel->withoutNumber, "") << "it did fail";
    ocekavejBezPisne();
}

TEST_F(ZivotPisneTest, EndSavesAndClosesTheSongAlsoFromBehind) {
    for (const bool vPozadi : {false, true}) {
        otevriPolku(3);
        excel->put("A1", "změna");
        if (vPozadi) excel->addWorkbook();
        uvolneno = 0;
        diskant.nastavPopis(9, "1\r\n");
        zivot.cmdEndEdit();
        ocekavejBezPisne();
        EXPECT_EQ(uvolneno, 1);
        EXPECT_EQ(diskant.stav(9), StavKnofliku::Volny);
        EXPECT_EQ(diskant.popis(9), "");
        EXPECT_TRUE(osnova.tony().isEmpty());
        EXPECT_EQ(disk[slozkaPisni + "Polka.xls"].sheets[0].at(1, 1), CellValue(QString("změna")));
        EXPECT_EQ(otevrenychSesitu(), vPozadi ? 1 : 0) << "only the song is closed";
    }
}

TEST_F(ZivotPisneTest, EndReportsWhatHappenedToTheSongAndForgetsIt) {
    struct Pripad {
        std::function<void()> coSeStalo;
        const char* titulek;
        QString text;
        Icon ikona;
    };
    const Pripad pripady[] = {
        {[this] { excel->userClosesWorkbook(); }, "Nenalezena aktuální skladba.",
         "Píseň nelze uložit !\nUživatel, nebo jiný program zavřel soubor s aktuální skladbou.\n"
         "Pro příště prosím nezavírejte soubory Excelu ručně !",
         Icon::Exclamation},
        {[this] { excel->fail("saveActiveWorkbook", 1004); }, "Neočekávaná chyba !",
         "Kontaktujte firmu " + kontakt + " a sdělte číslo chyby 1004", Icon::Critical},
        {[this] { excel->userQuits(); }, "Nenalezena externí aplikace.",
         "Soubor nelze uložit !\nUživatel, nebo jiný program zavřel Excel.\n"
         "Tato chyba může způsobit nestabilitu systému !",
         Icon::Exclamation},
    };
    for (const auto& [coSeStalo, titulek, text, ikona] : pripady) {
        SCOPED_TRACE(titulek);
        otevriPolku(3);
        coSeStalo();
        dialogs.expect(titulek, text);
        zivot.cmdEndEdit();
        EXPECT_EQ(dialogs.last.icon, ikona);
        EXPECT_EQ(dialogs.last.text, text);
        ocekavejBezPisne();
    }
}

} // namespace zvonika::testing
