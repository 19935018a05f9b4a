// The main window as a player meets it: captions, what can be used when, focus, and what clicks lead to.
#include "app/Prikazy.h"
#include "tests/app/OknoSPisni.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>

using namespace zvonika;
using zvonika::testing::OknoSPisni;

namespace {

const char* const prikazyPisne[] = {
    "cmdTah",      "cmdTlak",     "cmdTahNoty",   "cmdTlakNoty",  "cmdReadTah",    "cmdReadTlak",
    "cmdEndEdit",  "cmdPrvni",    "cmdDalsi",     "cmdPredchozi", "cmdPredTah",    "cmdPredTlak",
    "cmdPosledni", "cmdDalsiTah", "cmdDalsiTlak", "cmdJakDal",    "cmdJakDalZpet", "cmdTimer",
    "Slider1",     "lblTempo",    "mnuKonecPisne"};
const char* const prikazyZahajeni[] = {"cmdEdit", "cmdNovaSkladba", "mnuOtevrit", "mnuNovaPisen"};

QStringList popiskyNabidky(const QMenu* nabidka) {
    QStringList popisky;
    for (const QAction* polozka : nabidka->actions())
        popisky << (polozka->isSeparator() ? QStringLiteral("-") : polozka->text());
    return popisky;
}

} // namespace

TEST_F(OknoSPisni, MenusReadAsTheyShould) {
    const QVector<QStringList> cekane = {
        {"Soubor", "Nová píseň", "Otevřít", "Konec písničky", "-", "Změna implicitní cesty pro Excel", "-",
         "Konec"},
        {"Úpravy", "Konverze", "-", "Uvolnit diskant", "Uvolnit basy", "Uvolnit noty", "Uvolnit půltóny",
         "Uvolnit odrážky", "Uvolnit vše"},
        {"Nastavení", "Překrýt řady", "Otočit hmatník", "-", "Názvy na knoflíkách", "Pomocné číslování"},
        {"Pošta", "Poslat zprávu autorovi"},
        {"Nápověda", "Ovládání Tamíka", "O programu"},
        {"Doplňky", "Tabulkový program"},
    };
    QVector<QStringList> skutecne;
    for (const QAction* nabidka : program->okno().menuBar()->actions())
        skutecne << QStringList(nabidka->text()) + popiskyNabidky(nabidka->menu());
    EXPECT_EQ(skutecne, cekane);
}

TEST_F(OknoSPisni, CaptionsOfTheButtons) {
    const QVector<QPair<QString, QString>> cekane = {{"cmdPredTah", "Před- chozí tah"},
                                                     {"cmdPredTlak", "Před- chozí tlak"},
                                                     {"cmdTah", "< Tah"},
                                                     {"cmdTlak", "> Tlak"},
                                                     {"cmdTahNoty", "< Tah"},
                                                     {"cmdTlakNoty", "> Tlak"},
                                                     {"cmdReadTah", "Tah"},
                                                     {"cmdJakDal", ""},
                                                     {"cmdJakDalZpet", "Zpět"},
                                                     {"cmdTimer", "Automat"},
                                                     {"cmdZvuk(0)", ""},
                                                     {"cmdZvuk(1)", "Midi"},
                                                     {"cmdZvuk(2)", "Wav"},
                                                     {"cmdUvolniPultony", "b"},
                                                     {"cmdUvolOdrazky", "Uvolnit odrážky"},
                                                     {"cmdStupnice", "Vyberte tóninu"},
                                                     {"cmdOPrg", "O programu"}};
    for (const auto& [jmeno, popisek] : cekane)
        EXPECT_EQ(qobject_cast<QAbstractButton*>(prvek(jmeno))->text(), popisek) << jmeno.toStdString();
}

TEST_F(OknoSPisni, CommandsFollowTheLifeOfTheSong) {
    const auto zkontroluj = [this](bool sPisni) {
        for (const char* jmeno : prikazyPisne)
            EXPECT_EQ(povolen(jmeno), sPisni) << jmeno;
        for (const char* jmeno : prikazyZahajeni)
            EXPECT_EQ(povolen(jmeno), !sPisni) << jmeno;
        EXPECT_FALSE(povolen("cmdZvuk(0)"));
    };
    zkontroluj(false);
    novaPisen();
    zkontroluj(true);
    EXPECT_EQ(program->okno().windowTitle(), "Polka.xls");
    klikni("cmdEndEdit");
    zkontroluj(false);
    EXPECT_EQ(program->okno().windowTitle(), "Zvonika");
}

TEST_F(OknoSPisni, MenuEntriesCallTheirButtons) {
    dialogs.expectInput("Nová skladba.", "Valčík");
    akce("mnuNovaPisen")->trigger();
    EXPECT_EQ(program->okno().windowTitle(), "Valčík.xls");
    klikni("lbl(9)");
    EXPECT_TRUE(program->modely().diskant.oznacen(9));
    akce("mnuUvolnitDiskant")->trigger();
    EXPECT_FALSE(program->modely().diskant.oznacen(9));
    akce("mnuKonecPisne")->trigger();
    EXPECT_EQ(program->okno().windowTitle(), "Zvonika");
}

TEST_F(OknoSPisni, AGripGoesFromTheBoardIntoTheSheetAndBack) {
    novaPisen();
    klikni("lbl(9)");
    klikni("lblSynchro(13)");
    klikni("ImgBas(30)");
    QTest::keyClick(&program->okno(), Qt::Key_F8);
    EXPECT_EQ(excel->text("B1"), "c1,");
    EXPECT_EQ(excel->text("C1"), "e1,");
    EXPECT_EQ(excel->text("I1"), "Tlak");
    EXPECT_EQ(excel->text("W1"), "Vyberte tóninu");
    EXPECT_EQ(program->aktualniRadek(), 2);
    QTest::keyClick(&program->okno(), Qt::Key_PageUp);
    EXPECT_EQ(program->modely().diskant.stav(9), StavKnofliku::Tlak);
    EXPECT_EQ(program->modely().diskant.stavPomocneho(13), StavKnofliku::Tlak);
    EXPECT_EQ(program->modely().basy.stav(30), StavBasu::Tlak);
    EXPECT_EQ(program->modely().panel.barvaKroku, BarvaKroku::Tlak);
}

TEST_F(OknoSPisni, CheckMarksTellWhatIsSwitchedOn) {
    EXPECT_FALSE(akce("mnu2Rady")->isChecked());
    program->modely().diskant.nastavNazvy(true, "G dur");
    EXPECT_TRUE(akce("mnu2Rady")->isChecked());
    EXPECT_FALSE(akce("mnuCislovat")->isChecked());
    program->modely().diskant.nastavCislovani(true);
    EXPECT_TRUE(akce("mnuCislovat")->isChecked());
}

TEST_F(OknoSPisni, ANoteOnTheStaffMarksItsButtonAndSignsFollow) {
    QWidget* osnova = prvek("osnovaZapisu");
    osnova->setFocus();
    QTest::keyClick(osnova, Qt::Key_Return); // the first note a player puts by keyboard: g1
    EXPECT_TRUE(program->modely().diskant.oznacen(16));
    QTest::keyClick(osnova, 'n'); // a natural before a plain note changes nothing but the look
    EXPECT_TRUE(program->modely().diskant.oznacen(16));
    QTest::keyClick(osnova, '#');
    EXPECT_FALSE(program->modely().diskant.oznacen(16));
    EXPECT_TRUE(program->modely().diskant.oznacen(17));
    QTest::keyClick(osnova, Qt::Key_Delete);
    EXPECT_FALSE(program->modely().diskant.oznacen(17));
}

TEST_F(OknoSPisni, AClickOnTheStripGoesToThatGrip) {
    novaPisen();
    for (const char* bunka : {"B1", "B2", "B3"})
        excel->put(bunka, "g1,");
    klikni("cmdPrvni");
    QWidget* pas = prvek("pas");
    QTest::mouseClick(pas, Qt::LeftButton, {}, prvek("lblSlabika2(3)")->mapTo(pas, QPoint(4, 4)));
    EXPECT_EQ(program->aktualniRadek(), 3);
    EXPECT_EQ(program->modely().pas.poziceVPasu, 3);
}

TEST_F(OknoSPisni, TheSheetLeadsAndTheBoardFollows) {
    novaPisen();
    for (const char* bunka : {"B1", "B2", "B3"})
        excel->put(bunka, "g1,");
    excel->put("I3", "Tah");
    excel->userSelects("D3");
    EXPECT_EQ(qobject_cast<QLabel*>(prvek("lblTon"))->text(), "3");
    EXPECT_EQ(program->modely().diskant.stav(16), StavKnofliku::Tah);
    EXPECT_EQ(excel->activeAddress(), "$D$3") << "the user's cell stays where he put it";
    excel->userTypes("A3", "dí-");
    EXPECT_EQ(program->modely().pas.pozice[2].slabika, "dí-");
}

TEST_F(OknoSPisni, ASoundButtonEndsTheProcessWithoutTheShutdown) {
    drive.addFile(pracovniAdresar + "\\Polka.mid");
    novaPisen();
    EXPECT_FALSE(povolen("cmdZvuk(0)"));
    ASSERT_TRUE(povolen("cmdZvuk(1)"));
    const int ulozeno = log.count("saveActiveWorkbook");
    dialogs.expect("", "'9'");
    klikni("cmdZvuk(1)");
    EXPECT_TRUE(shell.ukonceno);
    EXPECT_EQ(log.count("saveActiveWorkbook"), ulozeno);
    EXPECT_TRUE(excel->running());
}

TEST_F(OknoSPisni, ExitAsksAndClosingDoesNot) {
    dialogs.expect("Konec programu !", "Opravdu chcete ukončit program ?", Answer::No);
    akce("mnuKonec")->trigger();
    EXPECT_TRUE(program->okno().isVisible());
    novaPisen();
    excel->put("B1", "c1,");
    program->okno().close();
    EXPECT_FALSE(program->okno().isVisible());
    EXPECT_EQ(program->modely().pisen.aplikaceExcel, nullptr);
    EXPECT_EQ(storedText(pracovniAdresar + "\\Polka.xls", "B1"), "c1,");
}

TEST_F(OknoSPisni, AFailedOpeningIsOneBoxAndTheProgramGoesOn) {
    dialogs.expectFile("Vyberte písničku, kterou chcete zkoušet !", QStringLiteral("/kde/nic.xls"));
    dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 1004");
    klikni("cmdEdit");
    EXPECT_EQ(dialogs.count, 1);
    EXPECT_TRUE(povolen("cmdEdit"));
    EXPECT_EQ(program->okno().windowTitle(), "Zvonika");
    novaPisen();
    EXPECT_TRUE(povolen("cmdTah"));
}

TEST_F(OknoSPisni, TheStatusLineWarnsWhileNoKeyIsChosen) {
    const auto stav = [this] { return qobject_cast<QLabel*>(program->okno().prvek("lblStav"))->text(); };
    EXPECT_FALSE(stav().isEmpty());
    novaPisen();
    EXPECT_TRUE(stav().contains("tónina není zvolena", Qt::CaseInsensitive)) << stav().toStdString();
    program->modely().tonina.nastavStupnici(Key("G dur"));
    klikni("cmdPrvni");
    EXPECT_FALSE(stav().contains("není zvolena")) << stav().toStdString();
    EXPECT_EQ(qobject_cast<QAbstractButton*>(prvek("cmdStupnice"))->text(), "G dur");
}

TEST_F(OknoSPisni, EveryControlHasANameAndTheTabKeyReachesTheGroups) {
    novaPisen();
    QStringList beze;
    for (const QWidget* w : program->okno().centralWidget()->findChildren<QWidget*>())
        if (w->focusPolicy() != Qt::NoFocus && w->window() == &program->okno() &&
            w->accessibleName().isEmpty())
            beze << w->metaObject()->className() + (' ' + w->objectName());
    EXPECT_TRUE(beze.isEmpty()) << beze.join(' ').toStdString();

    QStringList zastavky;
    prvek("cmdEndEdit")->setFocus();
    for (int i = 0; i < 80; ++i) {
        const QWidget* w = QApplication::focusWidget();
        if (zastavky.contains(w->objectName())) break;
        zastavky << w->objectName();
        QTest::keyClick(&program->okno(), Qt::Key_Tab);
    }
    EXPECT_EQ(zastavky.filter(QRegularExpression("^lbl(Synchro)?\\(")).size(), 1)
        << zastavky.join(' ').toStdString();
    EXPECT_EQ(zastavky.filter("ImgBas").size(), 1);
    int predchozi = -1;
    for (const char* jmeno : {"cmdEndEdit", "cmdStupnice", "osnovaZapisu", "cmdTah", "cmdTlak", "cmdPrvni",
                              "cmdJakDal", "cmdTimer", "Slider1", "cmdUvolKnofl", "cmdOPrg"}) {
        EXPECT_GT(zastavky.indexOf(jmeno), predchozi) << jmeno << ": " << zastavky.join(' ').toStdString();
        predchozi = int(zastavky.indexOf(jmeno));
    }
}
