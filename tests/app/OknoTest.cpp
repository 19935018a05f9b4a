// The main window as a player meets it: captions, what can be used when, focus,
// and what clicks lead to.
#include "app/Prikazy.h"
#include "app/UdalostiOkna.h"
#include "tests/app/OknoSPisni.h"

#include <QAbstractButton>
#include <QComboBox>

using namespace zvonika;
using zvonika::testing::OknoSPisni;

namespace {

const char* const prikazyPisne[] = {
    "cmdTah",      "cmdTlak",     "cmdTahNoty",   "cmdTlakNoty",  "cmdReadTah",    "cmdReadTlak",
    "cmdEndEdit",  "cmdPrvni",    "cmdDalsi",     "cmdPredchozi", "cmdPredTah",    "cmdPredTlak",
    "cmdPosledni", "cmdDalsiTah", "cmdDalsiTlak", "cmdJakDal",    "cmdJakDalZpet", "cmdTimer",
    "Slider1",     "lblTempo",    "mnuKonecPisne"};
const char* const prikazyZahajeni[] = {"cmdEdit", "cmdNovaSkladba", "mnuOtevrit", "mnuNovaPisen"};

} // namespace

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

TEST_F(OknoSPisni, KeysRecordAGripOnceAndStepByTheBellows) {
    novaPisen();
    klikni("lbl(9)");
    klikni("lblSynchro(13)");
    klikni("ImgBas(30)");
    for (int opakovani = 0; opakovani < 3; ++opakovani) // held down
        QTest::simulateEvent(&program->okno(), true, Qt::Key_F8, Qt::NoModifier, QString(), opakovani > 0);
    EXPECT_EQ(excel->text("B1"), "c1,");
    EXPECT_EQ(excel->text("C1"), "e1,");
    EXPECT_EQ(excel->text("I1"), "Tlak");
    EXPECT_EQ(program->aktualniRadek(), 2) << "a key that is held down records once";
    stiskni(Qt::Key_PageUp);
    EXPECT_EQ(program->modely().diskant.stavPomocneho(13), StavKnofliku::Tlak);
    EXPECT_EQ(program->modely().basy.stav(30), StavBasu::Tlak);
    EXPECT_EQ(program->modely().panel.barvaKroku, BarvaKroku::Tlak);
    dialogs.expect("Neprovedeno.", "chybí informace o směru tahu měchu");
    stiskni(Qt::Key_PageDown);
}

TEST_F(OknoSPisni, StepsAreTakenBackByMenuKeysAndFromTheSheet) {
    EXPECT_FALSE(povolen("mnuZpet"));
    novaPisen();
    klikni("lbl(9)");
    stiskni(Qt::Key_F7);
    EXPECT_TRUE(povolen("mnuZpet"));
    for (const auto& znovu : {QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")}) {
        QTest::keySequence(&program->okno(), QKeySequence("Ctrl+Z"));
        EXPECT_EQ(excel->text("B1"), "");
        EXPECT_FALSE(povolen("mnuZpet"));
        EXPECT_TRUE(povolen("mnuZnovu"));
        QTest::keySequence(&program->okno(), znovu);
        EXPECT_EQ(excel->text("B1"), "c1,");
    }
    const auto zTabulky = [this] { excel->app().commands().undo(); };
    dialogs.whileUp = zTabulky;
    dialogs.expect("Neprovedeno.", "chybí informace o směru tahu měchu");
    excel->selectRange("B2");
    stiskni(Qt::Key_PageDown);
    EXPECT_EQ(excel->text("B1"), "c1,") << "not while a procedure waits for its box";
    dialogs.whileUp = [] {};
    zTabulky();
    EXPECT_EQ(excel->text("B1"), "");
    klikni("cmdEndEdit");
    EXPECT_FALSE(povolen("mnuZnovu"));
}

TEST_F(OknoSPisni, KeysOfDisabledCommandsDoNothing) {
    klikni("lbl(9)");
    for (const Qt::Key klavesa : {Qt::Key_F7, Qt::Key_F8, Qt::Key_F9, Qt::Key_PageDown, Qt::Key_PageUp})
        stiskni(klavesa);
    EXPECT_FALSE(program->modely().timer1.zapnuty());
}

TEST_F(OknoSPisni, EachCommandOfASideIsThatOfItsSide) {
    novaPisen();
    const char* const smery[] = {"Tlak", "Tah", "Tlak", "Tah", "Tlak"};
    for (int radek = 1; radek <= 5; ++radek) {
        excel->put(QStringLiteral("B%1").arg(radek), "g1,");
        excel->put(QStringLiteral("I%1").arg(radek), smery[radek - 1]);
    }
    const struct {
        const char* prikaz;
        int radek;
        StavKnofliku strana;
    } kroky[] = {{"cmdPrvni", 1, StavKnofliku::Tah},      {"cmdDalsiTlak", 2, StavKnofliku::Tlak},
                 {"cmdDalsiTah", 3, StavKnofliku::Tah},   {"cmdReadTlak", 3, StavKnofliku::Tlak},
                 {"cmdReadTah", 3, StavKnofliku::Tah},    {"cmdPredTlak", 2, StavKnofliku::Tlak},
                 {"cmdPredTah", 1, StavKnofliku::Tah},    {"cmdDalsi", 2, StavKnofliku::Tah},
                 {"cmdPredchozi", 1, StavKnofliku::Tah},  {"cmdPosledni", 5, StavKnofliku::Tah},
                 {"cmdJakDalZpet", 4, StavKnofliku::Tah}, {"cmdJakDal", 5, StavKnofliku::Tlak}};
    for (const auto& [prikaz, radek, strana] : kroky) {
        klikni(prikaz);
        EXPECT_EQ(program->aktualniRadek(), radek) << prikaz;
        EXPECT_EQ(program->modely().diskant.stav(16), strana) << prikaz;
    }
}

TEST_F(OknoSPisni, AClickOnTheStripGoesToThatGrip) {
    pisenSHmaty(24);
    for (int i = 1; i < 20; ++i)
        klikni("cmdDalsi"); // the strip has been redrawn from a row further down
    const int prvni = program->modely().pas.prvniRadekPasu;
    ASSERT_GT(prvni, 1);
    klikni("lbl(40)");
    QWidget* pas = prvek("pas");
    QTest::mouseClick(pas, Qt::LeftButton, {}, prvek("lblSlabika2(3)")->mapTo(pas, QPoint(4, 4)));
    EXPECT_EQ(program->aktualniRadek(), prvni + 2);
    EXPECT_EQ(program->modely().pas.poziceVPasu, 3);
    EXPECT_FALSE(program->modely().diskant.oznacen(40)) << "as by every step";
}

TEST_F(OknoSPisni, TheStatusLineFollowsWhatIsDone) {
    novaPisen();
    EXPECT_TRUE(stav().contains("tónina není zvolena", Qt::CaseInsensitive)) << stav().toStdString();
    program->modely().tonina.nastavStupnici(Key("G dur"));
    EXPECT_EQ(qobject_cast<QAbstractButton*>(prvek("cmdStupnice"))->text(), "G dur");
    klikni("cmdPrvni");
    const QString nicOznaceno = stav();
    EXPECT_FALSE(nicOznaceno.contains("není zvolena")) << nicOznaceno.toStdString();
    for (const char* zapisovane : {"lbl(9)", "ImgBas(30)"}) {
        klikni(zapisovane);
        EXPECT_NE(stav(), nicOznaceno) << zapisovane;
        klikni("cmdUvolKnofl");
        EXPECT_EQ(stav(), nicOznaceno) << zapisovane;
    }
    excel->put("B1", "hovadina");
    klikni("cmdPrvni");
    EXPECT_TRUE(stav().contains("hovadina")) << stav().toStdString();
    klikni("cmdUvolKnofl");
    EXPECT_FALSE(stav().contains("hovadina")) << "a notice is over with the next command";
}

TEST_F(OknoSPisni, TheIntervalThatIsShownIsTheOneThatCounts) {
    auto* volba = qobject_cast<QComboBox*>(prvek("cmbInterval"));
    EXPECT_EQ(volba->currentIndex(), program->modely().krokyIntervalu - 1);
    volba->setCurrentIndex(4);
    EXPECT_EQ(program->modely().krokyIntervalu, 5);
}

TEST_F(OknoSPisni, ExitAsks) {
    for (const Answer odpoved : {Answer::No, Answer::Yes}) {
        dialogs.expect("Konec programu !", "Opravdu chcete ukončit program ?", odpoved);
        akce("mnuKonec")->trigger();
        EXPECT_EQ(dialogs.last.buttons, Buttons::YesNo);
        EXPECT_EQ(program->okno().isVisible(), odpoved == Answer::No);
    }
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

TEST_F(OknoSPisni, AWrongToneIsPutRightFromTheKeyboardInFourActs) {
    pisenSHmaty(2);
    excel->put("M1", "D");
    QWidget& okno = program->okno();
    const auto stiskni = [&okno](Qt::Key klavesa) { QTest::keyClick(okno.windowHandle(), klavesa); };
    const auto zamereny = [] { return QApplication::focusWidget()->objectName().toStdString(); };
    klikni("cmdDalsi");
    klikni("cmdPrvni");
    prvek("cmdTlak")->setFocus();
    stiskni(Qt::Key_F5);
    EXPECT_EQ(zamereny(), "lbl(16)");
    stiskni(Qt::Key_Space);
    stiskni(Qt::Key_Left);
    const QString spravny = QApplication::focusWidget()->accessibleName();
    stiskni(Qt::Key_Space);
    stiskni(Qt::Key_F7);
    EXPECT_NE(excel->text("B1"), "g1,");
    EXPECT_EQ(spravny.section(", ", -1) + ',', excel->text("B1"));
    EXPECT_EQ(excel->text("I1") + excel->text("M1"), "TahD");
    klikni("cmdPrvni");
    stiskni(Qt::Key_F5);
    stiskni(Qt::Key_Tab);
    stiskni(Qt::Key_Tab);
    EXPECT_EQ(zamereny(), "ImgBas(32)") << "the first bass is as near";

    QWidget tabulka;
    tabulka.show();
    tabulka.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tabulka));
    prvek("cmdTlak")->setFocus();
    akce("mnuPrevzitHmat")->trigger();
    EXPECT_EQ(okno.focusWidget(), prvek("cmdTlak")) << "who is in the sheet stays there";
}

TEST(UdalostiOkna, TheCauseOfAFailureStandsBesideTheBoxAndUntilTheNextCommand) {
    zvonika::testing::ScriptedDialogs dialogs;
    zvonika::testing::ZaznamovyShell shell;
    Modely modely(nastrojZvonika(), {});
    UdalostiOkna udalosti(modely, dialogs, shell);
    const QString& vystraha = modely.panel.vystraha;
    dialogs.expect("Neočekávaná chyba !", "Disk je plný.");
    dialogs.whileUp = [&] { EXPECT_EQ(vystraha.toStdString(), "Disk je plný."); };
    udalosti.proved([] { throw RuntimeError(1004, QStringLiteral("Disk je plný.")); });
    udalosti.nasleduj([] {}); // the user clicks into the sheet
    EXPECT_EQ(vystraha.toStdString(), "Disk je plný.");
    udalosti.proved([] {});
    EXPECT_EQ(vystraha, QString());
}
