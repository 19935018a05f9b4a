#include "platform/Contact.h"
#include "tests/playing/SongFixture.h"
#include "tests/support/System.h"

namespace zvonika::testing {

namespace {

class ZivotPisneTest : public SongFixture {
protected:
    void zadejNazev(const QString& nazev) { dialogs.expectInput("Nová skladba.", nazev); }
    void ocekavejBezPisne(int sesitu = 0) {
        EXPECT_EQ(pisen.aktualniPisen, "");
        EXPECT_EQ(panel.titulek, "Zvonika");
        EXPECT_EQ(panel.lblTon, "1");
        EXPECT_EQ(panel.lblLadeni, "Tonavox12");
        EXPECT_TRUE(panel.listy.isEmpty());
        EXPECT_EQ(panel.barvaKroku, BarvaKroku::Neznamy);
        EXPECT_EQ(panel.Combo1 + panel.lblStupnice + panel.lblTony + panel.lblBasy, "");
        EXPECT_EQ(panel.lblSlabika, (std::array<QString, 5>{}));
        EXPECT_FALSE(panel.popisyViditelne || pas.viditelny || zpetPovoleno());
        EXPECT_TRUE(osnova.tony().isEmpty());
        EXPECT_EQ(diskant.stav(9), StavKnofliku::Volny);
        EXPECT_EQ(excel->workbooks(), sesitu) << "only the song is closed";
        ocekavejPrikazy(false);
    }
    void ocekavejPrikazy(bool pisenOtevrena) {
        for (const char* prikaz :
             {"cmdTah", "cmdTlak", "cmdTahNoty", "cmdTlakNoty", "cmdReadTah", "cmdReadTlak", "cmdEndEdit",
              "cmdPrvni", "cmdDalsi", "cmdPosledni", "cmdDalsiTlak", "cmdDalsiTah", "cmdJakDal", "cmdTimer",
              "Slider1", "lblTempo", "mnuKonecPisne", "Combo1"})
            EXPECT_EQ(prikazy.povolen(prikaz), pisenOtevrena) << prikaz;
        for (const char* prikaz : {"cmdEdit", "cmdNovaSkladba", "mnuOtevrit", "mnuNovaPisen"})
            EXPECT_EQ(prikazy.povolen(prikaz), !pisenOtevrena) << prikaz;
    }
    /// The next call of this name fails, with a number or, where it is 0, without one.
    void selze(const char* krok, int cislo) { cislo ? log.fail(krok, cislo) : log.failWithoutNumber(krok); }
    void ocekavejKontakt(int cislo) {
        dialogs.expect("Neočekávaná chyba !",
                       "Kontaktujte firmu " + kontakt + " a sdělte číslo chyby " + QString::number(cislo));
    }
};

} // namespace

TEST_F(ZivotPisneTest, NewSongIsSavedUnderItsNameAndShown) {
    diskant.nastavZnacku(20, true);
    zadejNazev("Polka.xls");
    zivot.cmdNovaSkladba();
    EXPECT_EQ(dialogs.lastPrompt, "Zadejte název nové písničky.");
    EXPECT_EQ(drive.files(pracovniAdresar).filter("Polka"), QStringList("Polka.xls.xls")) << "as typed";
    EXPECT_EQ(panel.titulek, "Polka.xls.xls");
    EXPECT_EQ(panel.lblLadeni, "Tonavox XII");
    EXPECT_EQ(panel.Combo1, "Tonavox XII");
    EXPECT_EQ(panel.listy, QStringList{"Tonavox XII"});
    EXPECT_EQ(panel.lblTon, "1");
    EXPECT_TRUE(pas.viditelny);
    EXPECT_EQ(excel->activeAddress(), "$B$1");
    EXPECT_TRUE(diskant.oznacen(20)) << "what is marked already can be recorded";
    ocekavejPrikazy(true);
}

TEST_F(ZivotPisneTest, AnExistingSongIsReplacedOnlyOnYes) {
    const QString otazka = "Přejete si vymazat z disku původní písničku a nahradit ji novou ?";
    store(polka, {{QStringLiteral("L"), {{QStringLiteral("stará")}}}});
    zadejNazev("Polka");
    dialogs.expect("Tato skladba již existuje!", otazka, Answer::No)
        .expect("Založení nové skladby přerušeno.", "Začněte znovu a zadejte jiný název písně.");
    zivot.cmdNovaSkladba();
    EXPECT_EQ(dialogs.last.icon, Icon::Information);
    EXPECT_EQ(storedText(polka, "A1"), "stará");
    ocekavejBezPisne();

    // A deletion that fails is told once and ends the creation.
    drive.failingDeletions = 1;
    zadejNazev("Polka");
    dialogs.expect("Tato skladba již existuje!", otazka, Answer::Yes);
    EXPECT_EQ(raised([this] { zivot.cmdNovaSkladba(); }), error::permissionDenied);
    EXPECT_EQ(storedText(polka, "A1"), "stará");
    ocekavejBezPisne();

    zadejNazev("Polka");
    dialogs.expect("Tato skladba již existuje!", otazka, Answer::Yes);
    zivot.cmdNovaSkladba();
    EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
    EXPECT_EQ(dialogs.last.buttons, Buttons::YesNo);
    EXPECT_EQ(storedText(polka, "A1"), "");
    EXPECT_EQ(pisen.aktualniPisen, "Polka.xls");
}

TEST_F(ZivotPisneTest, StepsGoWithTheSongUnderAnotherNameAndNotWithAnotherSongUnderItsName) {
    const auto krok = [this] {
        kroky.pridej({{QStringLiteral("Krok"), {CellTurned{QStringLiteral("L"), {1, 1}, {}, {}}}}, true});
    };
    otevriPolku(2);
    krok();
    zivot.cmdEndEdit();
    zadejNazev("Polka");
    dialogs.expect("Tato skladba již existuje!", "nahradit ji novou ?", Answer::Yes);
    zivot.cmdNovaSkladba();
    EXPECT_EQ(kroky.popis(SmerKroku::Zpet), "") << "of the song that it has replaced";
    krok();
    zivot.prejmenujPisen(pisen.aktualniPisen, slozkaPisni + "Jiná.xls");
    EXPECT_EQ(kroky.popis(SmerKroku::Zpet), "Krok");
    zivot.prevezmiPisen();
    EXPECT_EQ(kroky.popis(SmerKroku::Zpet), "") << "a copy starts anew";
}

TEST_F(ZivotPisneTest, AFailureAnywhereInANewSongLeavesNoSongAndTheOneItWasToReplace) {
    for (const char* krok : {"addWorkbook", "saveActiveWorkbookAs", "activeWorkbookName", "renameActiveSheet",
                             "activeSheetName", "readBlock"})
        for (const int cislo : {91, 0}) {
            SCOPED_TRACE(krok);
            store(polka, {{QStringLiteral("L"), {{QStringLiteral("stará")}}}});
            selze(krok, cislo);
            zadejNazev("Polka");
            dialogs.expect("Tato skladba již existuje!", "", Answer::Yes);
            ocekavejKontakt(cislo);
            panel.vystraha.clear();
            dialogs.whileUp = [&] {
                EXPECT_EQ(panel.vystraha.isEmpty(), cislo != 0 || dialogs.last.icon != Icon::Critical)
                    << "the cause is told beside the box";
            };
            zivot.cmdNovaSkladba();
            dialogs.whileUp = [] {};
            EXPECT_EQ(dialogs.last.icon, Icon::Critical);
            ocekavejBezPisne();
            EXPECT_EQ(storedText(polka, "A1"), "stará");
            EXPECT_EQ(drive.files(pracovniAdresar), QStringList{"Polka.xls"});
        }
}

#ifdef Q_OS_WIN
NOT_ON_WINDOWS(ZivotPisneTest, AKillAnywhereInANewSongLeavesTheOneItWasToReplaceForTheNextStart,
               "a process cannot be copied; HomeDriveTest kills one that was started anew")
#else
TEST_F(ZivotPisneTest, AKillAnywhereInANewSongLeavesTheOneItWasToReplaceForTheNextStart) {
    for (const char* krok : {"addWorkbook", "saveActiveWorkbookAs", "activeWorkbookName", "renameActiveSheet",
                             "activeSheetName", "readBlock"}) {
        SCOPED_TRACE(krok);
        store(polka, {{QStringLiteral("L"), {{QStringLiteral("stará")}}}});
        const pid_t program = ::fork();
        if (program == 0) {
            log.endProcess(krok);
            zadejNazev("Polka");
            dialogs.expect("Tato skladba již existuje!", "", Answer::Yes);
            zivot.cmdNovaSkladba();
            std::_Exit(0);
        }
        int konec = 0;
        ::waitpid(program, &konec, 0);
        ASSERT_EQ(WEXITSTATUS(konec), 9) << "it came that far";
        const QStringList vracene = drive.bringBackSetAside(pracovniAdresar);
        ASSERT_EQ(vracene.size(), 1);
        EXPECT_EQ(storedText(slozkaPisni + vracene.first(), "A1"), "stará");
        for (const QString& soubor : drive.files(pracovniAdresar))
            drive.deleteFile(slozkaPisni + soubor);
    }
}
#endif

TEST_F(ZivotPisneTest, OpeningShowsTheRowAtWhichTheSongWasSaved) {
    CellBlock radky(5, QVector<CellValue>(23));
    radky[4][0] = QStringLiteral("dí");
    radky[4][1] = QStringLiteral("c1,");
    radky[4][8] = QStringLiteral("Tlak");
    radky[4][22] = QStringLiteral("C dur");
    store("C:\\Valčík.xls",
          {{QStringLiteral("Tonavox XII"), radky, QStringLiteral("D5")}, {QStringLiteral("G dur")}});
    otevri("C:\\Valčík.xls");
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

TEST_F(ZivotPisneTest, NoNameAndCancelledOrFailedOpeningLeaveNoSong) {
    zadejNazev("");
    zivot.cmdNovaSkladba();
    ocekavejBezPisne();
    vyber(std::nullopt);
    zivot.cmdEdit();
    ocekavejBezPisne();
    store(polka, {{QStringLiteral("A")}, {QStringLiteral("B")}});
    const char* kroky[] = {"getOpenFilename", "openWorkbook", "activeWorkbookName",
                           "activeSheetName", "sheetCount",   "readBlock"};
    for (const char* krok : kroky)
        for (const int cislo : {1004, 0}) {
            SCOPED_TRACE(krok);
            if (krok != kroky[0]) vyber(polka);
            selze(krok, cislo);
            EXPECT_THROW(zivot.cmdEdit(), std::exception);
            ocekavejBezPisne();
        }
}

TEST_F(ZivotPisneTest, TidyingUpThatFailsAsWellLeavesNoSong) {
    log.fail("readBlock", 1004);
    log.failWithoutNumber("activateWindow"); // called first when the song is thrown away
    EXPECT_EQ(raised([this] { otevriPolku(1); }), 1004);
    EXPECT_FALSE(log.isOrdered("activateWindow")) << "it did fail";
    ocekavejBezPisne(1);
}

TEST_F(ZivotPisneTest, AnotherSheetKeepsTheRowAndIsSaved) {
    CellBlock gDur(4, QVector<CellValue>(22));
    gDur[3][1] = QStringLiteral("e1,");
    gDur[3][8] = QStringLiteral("Tlak");
    gDur[3][21] = QStringLiteral("l13;1\\s1;1\\");
    otevriPolku(6, gDur);
    excel->app().selectRange("B4");
    excel->put("A4", "změna");
    excel->app().addWorkbook(); // something else in front
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
    EXPECT_EQ(storedText(polka, "A4"), "změna");

    // An empty row there: the missing direction is told, the row stays, the song is saved all the same.
    excel->app().selectSheet(1);
    excel->app().selectRange("B6");
    excel->put("A6", "jiná");
    dialogs.expect("Neprovedeno.", "");
    zivot.Combo1Click("G dur");
    EXPECT_EQ(excel->activeAddress(), "$B$6");
    EXPECT_EQ(panel.lblTon, "6");
    EXPECT_EQ(storedText(polka, "A6"), "jiná");

    EXPECT_EQ(raised([this] { zivot.Combo1Click("Není"); }), 9);
    EXPECT_EQ(panel.Combo1, "G dur") << "the list shows the sheet that is there";
    excel->userClosesWorkbook();
    EXPECT_EQ(raised([this] { zivot.Combo1Click("G dur"); }), 9);
}

TEST_F(ZivotPisneTest, EndSavesAndClosesTheSongAlsoFromBehind) {
    for (const bool vPozadi : {false, true}) {
        otevriPolku(3);
        excel->put("A1", "změna");
        if (vPozadi) excel->app().addWorkbook();
        uvolneno = 0;
        diskant.nastavPopis(9, "1\r\n");
        zivot.cmdEndEdit();
        ocekavejBezPisne(vPozadi ? 1 : 0);
        EXPECT_EQ(uvolneno, 1);
        EXPECT_EQ(diskant.popis(9), "");
        EXPECT_EQ(storedText(polka, "A1"), "změna");
    }
}

TEST_F(ZivotPisneTest, EndReportsASaveThatFailedAndForgetsTheSong) {
    for (const int cislo : {1004, 0}) {
        otevriPolku(3);
        excel->put("A1", "změna");
        selze("saveActiveWorkbook", cislo);
        ocekavejKontakt(cislo);
        const QString cekano = cislo ? "Písnička zůstala otevřená v tabulce" : "saveActiveWorkbook";
        dialogs.whileUp = [&] {
            EXPECT_TRUE(panel.vystraha.contains(cekano)) << panel.vystraha.toStdString();
        };
        zivot.cmdEndEdit();
        dialogs.whileUp = [] {};
        EXPECT_TRUE(panel.vystraha.contains(cekano)) << "until the next command";
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
        ocekavejBezPisne(1);
        excel->app().closeActiveWorkbook();
    }
}

TEST_F(ZivotPisneTest, TheStepsOfASongAreForgottenWhenItsFileHasBecomeAnother) {
    for (const bool zmenena : {false, true}) {
        otevriPolku(3);
        excel->put("A1", "změna");
        kroky.pridej({{"Smazání hmatu 2", {CellTurned{"Tonavox XII", {1, 1}, {}, {}}}}, false});
        zivot.cmdEndEdit();
        if (zmenena)
            otevriPolku(2); // another program puts it there
        else
            otevri(polka);
        EXPECT_EQ(kroky.popis(SmerKroku::Zpet), zmenena ? "" : "Smazání hmatu 2");
        EXPECT_EQ(panel.upozorneni, zmenena ? "Soubor se od zavření změnil, kroky vrátit nejde." : "");
        zivot.cmdEndEdit();
        kroky.zapomen(polka);
    }
}

TEST_F(ZivotPisneTest, ARefusedSaveOfASongThatWasOnlyReadIsNoError) {
    CellBlock gDur(4, QVector<CellValue>(22));
    gDur[0][8] = QStringLiteral("Tah");
    for (const bool zmenena : {false, true}) {
        drive.readOnly = zmenena ? "" : "Soubor „Polka.xls“ je jen pro čtení.";
        otevriPolku(3, gDur);
        EXPECT_EQ(panel.vystraha.startsWith("Soubor „Polka.xls“ je jen pro čtení. "), !zmenena)
            << "said when it is opened";
        if (zmenena) excel->put("A1", "změna");
        log.fail("saveActiveWorkbook", 1004);
        EXPECT_EQ(raised([this] { zivot.Combo1Click("G dur"); }), zmenena ? 1004 : 0);
        log.fail("saveActiveWorkbook", 1004);
        if (zmenena) ocekavejKontakt(1004);
        zivot.cmdEndEdit();
        EXPECT_FALSE(log.isOrdered("saveActiveWorkbook")) << "saving was tried: the row is kept where it can";
        ocekavejBezPisne(zmenena ? 1 : 0);
        panel.vystraha.clear();
    }
}

TEST_F(ZivotPisneTest, OpeningRemindsOfAKeyThatIsNotTheOneChosen) {
    const struct {
        const char *radku, *zvolena, *veta;
    } pripady[] = {
        {"G dur", "Vyberte tóninu", "Hmat je v G dur, tónina pro zápis zvolena není."},
        {"G dur", "", "Hmat je v G dur, tónina pro zápis zvolena není."},
        {"G Dur", "C dur", "Hmat je v G dur, pro zápis je zvolena C dur."},
        {"G Dur", "G dur", ""},
        {"Vyberte tóninu", "C dur", ""},
        {"", "C dur", ""},
    };
    for (const auto& [radku, zvolena, veta] : pripady) {
        CellBlock radky(1, QVector<CellValue>(23));
        radky[0][1] = QStringLiteral("c1,");
        radky[0][8] = QStringLiteral("Tah");
        radky[0][22] = QString::fromUtf8(radku);
        store(polka, {{QStringLiteral("Tonavox XII"), radky, QStringLiteral("B1")}});
        tonina.nastavStupnici(Key(QString::fromUtf8(zvolena)));
        otevri(polka);
        EXPECT_EQ(panel.upozorneni, veta) << radku << ' ' << zvolena;
        zivot.cmdEndEdit();
    }
}

} // namespace zvonika::testing
