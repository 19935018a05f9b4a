// A song from its first grip to its second opening, with syllables and corrections typed in the sheet.
#include "tests/integration/CelyProgram.h"

namespace zvonika::testing {

namespace {

class PisenTest : public CelyProgram {
protected:
    /// Three grips: c1 push with C, e1 g1 pull with G, g1 push.
    void zapisTriHmaty() {
        novaPisen();
        zapisHmat({"lbl(9)", "ImgBas(30)"}, true);
        zapisHmat({"lbl(13)", "lbl(16)", "ImgBas(31)"}, false);
        zapisHmat({"lbl(16)"}, true);
    }
    QString slabikaPasu(int pozice) const {
        return program->modely().pas.pozice.at(static_cast<std::size_t>(pozice) - 1).slabika;
    }
    StavKnofliku knoflik(int n) const { return program->modely().diskant.stav(n); }
    StavBasu bas(int n) const { return program->modely().basy.stav(n); }
};

} // namespace

TEST_F(PisenTest, GripsStandInTheSheetAsTheyWerePlayed) {
    zapisTriHmaty();
    const std::pair<const char*, const char*> cekane[] = {
        {"B1", "c1,"},           {"C1", ""},  {"I1", "Tlak"}, {"M1", "C"},    {"B2", "e1,"}, {"C2", "g1,"},
        {"I2", "Tah"},           {"M2", "G"}, {"B3", "g1,"},  {"I3", "Tlak"}, {"B4", ""},    {"I4", ""},
        {"W1", "Vyberte tóninu"}};
    for (const auto& [adresa, obsah] : cekane)
        EXPECT_EQ(bunka(adresa), QString::fromUtf8(obsah)) << adresa;
    EXPECT_EQ(kurzor(), "$B$4");
    EXPECT_EQ(excel->activeSheetName(), "Tonavox XII");
    EXPECT_EQ(napis("lblTon"), "4");
}

TEST_F(PisenTest, StripAndPanelFollowTheSyllablesTypedInTheSheet) {
    zapisTriHmaty();
    klikni("cmdPrvni");
    prejdiNaTabulku();
    klavesaTabulky(Qt::Key_Left);
    for (const char* slabika : {"Koč-", "ka", "le-"}) {
        piseDoTabulky(QString::fromUtf8(slabika));
        klavesaTabulky(Qt::Key_Return);
    }
    EXPECT_EQ(bunka("A1"), "Koč-");
    EXPECT_EQ(slabikaPasu(1), "Koč-");
    EXPECT_EQ(slabikaPasu(3), "le-");
    EXPECT_EQ(kurzor(), "$A$4");
    EXPECT_EQ(napis("lblSlabika(1)"), "le-") << "the panel stands on the row of the cursor";

    klikniNaBunku("A2");
    EXPECT_EQ(napis("lblTon"), "2");
    EXPECT_EQ(napis("lblSlabika(2)"), "ka");
    EXPECT_EQ(napis("lblTony"), "e1, g1,");
    EXPECT_EQ(napis("lblBasy"), "G");
    EXPECT_EQ(kurzor(), "$A$2") << "the user's cell stays where it is";
    klavesaTabulky(Qt::Key_F6);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&program->okno()));
    klavesa(Qt::Key_PageDown);
    EXPECT_EQ(kurzor(), "$B$3");
    EXPECT_EQ(program->modely().pas.poziceVPasu, 3);
}

TEST_F(PisenTest, TheBoardFollowsACorrectionAndItsUndo) {
    zapisTriHmaty();
    klikni("cmdPrvni");
    prejdiNaTabulku();
    piseDoTabulky("d1,");
    klavesaTabulky(Qt::Key_Return);
    klavesaTabulky(Qt::Key_Up);
    EXPECT_EQ(knoflik(9), StavKnofliku::Volny);
    EXPECT_EQ(knoflik(11), StavKnofliku::Tlak);
    EXPECT_EQ(program->modely().pas.pozice[0].tony, QStringList{"d1,"});

    klavesaTabulky(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(bunka("B1"), "c1,");
    EXPECT_EQ(knoflik(9), StavKnofliku::Tlak);
    EXPECT_EQ(knoflik(11), StavKnofliku::Volny);
    EXPECT_EQ(program->modely().pas.pozice[0].tony, QStringList{"c1,"});
    klavesaTabulky(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(knoflik(11), StavKnofliku::Tlak);
}

TEST_F(PisenTest, AutomaticSteppingWaitsForASyllableBeingWritten) {
    zapisTriHmaty();
    klikni("cmdPrvni");
    klikni("cmdTimer");
    prejdiNaTabulku();
    hodiny.uplyn(RucniHodiny::Ms(2000));
    EXPECT_EQ(kurzor(), "$B$2");
    klavesaTabulky(Qt::Key_Left);
    piseDoTabulky("ka");
    hodiny.uplyn(RucniHodiny::Ms(10000));
    piseDoTabulky("lina");
    klavesaTabulky(Qt::Key_Up);
    EXPECT_EQ(bunka("A2"), "kalina");
    const int radek = program->aktualniRadek();
    hodiny.uplyn(RucniHodiny::Ms(2000));
    EXPECT_EQ(program->aktualniRadek(), radek + 1);
}

TEST_F(PisenTest, TheSongOpensAsItWasEnded) {
    zapisTriHmaty();
    klikni("cmdPrvni");
    klavesa(Qt::Key_PageDown);
    klikni("cmdEndEdit");
    ocekavejStavBezPisne();
    EXPECT_EQ(soubory(), QStringList{"Polka.xls"}) << "no lock, no temporary file stays";
    const auto kniha = sesit(pisen("Polka.xls"));
    EXPECT_EQ(kniha.sheetName(0), u"Tonavox XII");
    EXPECT_EQ(textBunky(kniha, "C2"), "g1,");
    EXPECT_EQ(knoflik(13), StavKnofliku::Volny);

    otevri(pisen("Polka.xls"));
    EXPECT_EQ(dialogs.lastFolder, pracovni());
    EXPECT_EQ(program->okno().windowTitle(), "Polka.xls");
    EXPECT_EQ(napis("lblTon"), "2") << "the row the song was left on";
    EXPECT_EQ(kurzor(), "$B$2");
    EXPECT_EQ(knoflik(13), StavKnofliku::Tah);
    EXPECT_EQ(knoflik(16), StavKnofliku::Tah);
    EXPECT_EQ(bas(31), StavBasu::Tah);
    klavesa(Qt::Key_PageUp);
    EXPECT_EQ(knoflik(9), StavKnofliku::Tlak);
    EXPECT_EQ(bas(30), StavBasu::Tlak);
    EXPECT_EQ(knoflik(13), StavKnofliku::Volny);
}

TEST_F(PisenTest, ADoubleClickMarksOnceAndAsksForTheFinger) {
    novaPisen();
    dialogs.expectInput("Označení prstokladu", "3");
    dvojklikni("lbl(9)");
    EXPECT_TRUE(program->modely().diskant.oznacen(9));
    klikni("cmdTah");
    EXPECT_EQ(bunka("V1"), "l9;3\\");
    klikni("cmdPrvni");
    EXPECT_TRUE(program->modely().diskant.popis(9).startsWith("3"));
}

TEST_F(PisenTest, FingersThatWaitAreSeenAndTakenBack) {
    novaPisen();
    dialogs.expectInput("Označení prstokladu", "3").expectInput("Označení prstokladu", "4");
    dvojklikni("lbl(9)");
    dvojklikni("lbl(9)"); // marked, and stays so
    EXPECT_EQ(napis("lblPrstoklad"), "Prstoklad čeká: 9 = 3, 9 = 4.");
    klavesa(Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ(napis("lblStav"), "Vzato zpět: 9 = 4. Tento prst se nezapíše.");
    klikni("cmdUvolKnofl");
    EXPECT_EQ(napis("lblPrstoklad"), "Prstoklad čeká: 9 = 3. Neoznačeno: 9.");
    klikni("lbl(13)");
    klikni("cmdTah");
    EXPECT_FALSE(prvek("lblPrstoklad")->isVisible() || povolen("mnuVzitPrst"));
}

TEST_F(PisenTest, APedalStepsInTheSheetWindowToo) {
    zapisTriHmaty();
    klikni("cmdPrvni");
    prejdiNaTabulku();
    klavesaTabulky(Qt::Key_PageDown);
    EXPECT_EQ(kurzor(), "$B$2");
    EXPECT_EQ(knoflik(13), StavKnofliku::Tah);
    klavesaTabulky(Qt::Key_PageUp);
    EXPECT_EQ(kurzor(), "$B$1");
    excel->addWorkbook(); // which is not the song
    klavesaTabulky(Qt::Key_PageDown);
    EXPECT_GT(program->aktualniRadek(), 3);
}

TEST_F(PisenTest, SavedUnderAnotherNameInTheSheetItStaysTheSong) {
    zapisTriHmaty();
    ulozSoubor(pisen("Valčík.mid"), "MThd");
    dialogs.expectFile("Uložit jako", pisen("Valčík.xls"));
    excel->commands().files().saveAs();
    EXPECT_EQ(program->okno().windowTitle(), "Valčík.xls");
    EXPECT_TRUE(povolen("cmdZvuk(1)")) << "the sound of that name";
    klikni("lbl(20)");
    klikni("cmdTah");
    klikni("cmdEndEdit");
    ocekavejStavBezPisne();
    EXPECT_EQ(textBunky(sesit(pisen("Valčík.xls")), "B4"), "h1,");
}

} // namespace zvonika::testing
