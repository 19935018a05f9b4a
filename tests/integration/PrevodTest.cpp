// The conversion from the menu to the copy on the disk.
#include "tests/integration/CelyProgram.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QTimer>

namespace zvonika::testing {

namespace {

class PrevodTest : public CelyProgram {
protected:
    /// "Polka.xls" in C dur, the current row is the first: c1 as push, e4 and g1 as pull.
    void pripravPisen() {
        novaPisen();
        zapisHmat({"lbl(9)"}, true);
        zapisHmat({"lbl(16)", "lbl(49)"}, false);
        excel->writeBlock("W1:W2", {{QStringLiteral("C dur")}, {QStringLiteral("C dur")}});
        klikni("cmdPrvni");
    }
    /// Opens the dialog by its menu entry; `prace` is what the user does in it.
    void vDialogu(const std::function<void(QWidget*)>& prace) {
        QTimer::singleShot(0, program.get(), [&] { prace(QApplication::activeModalWidget()); });
        program->okno().findChild<QAction*>("mnuKonverze")->trigger();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    static void stiskni(QWidget* dialog, const char* jmeno) {
        QTest::mouseClick(dialog->findChild<QWidget*>(jmeno), Qt::LeftButton, {}, QPoint(8, 10));
    }
    void preved(const char* volba) {
        vDialogu([&](QWidget* dialog) {
            stiskni(dialog, volba);
            stiskni(dialog, "cmdGo");
            if (dialog->isVisible()) stiskni(dialog, "cmdKonec");
        });
    }
};

} // namespace

TEST_F(PrevodTest, TheWindowShowsTheCopyAndWhatWasLost) {
    pripravPisen();
    dialogs.expect("Hotovo", "uložena do souboru \nPolka Fis dur.xls.");
    preved("optStupnice(6)");
    EXPECT_EQ(program->okno().windowTitle(), "Polka Fis dur.xls");
    EXPECT_EQ(napis("lblLadeni"), "Tonavox XII");
    EXPECT_EQ(program->modely().panel.Combo1, "Tonavox XII");
    EXPECT_EQ(napis("lblTony"), "fis1,");
    EXPECT_EQ(napis("lblTon"), "1");
    EXPECT_EQ(napis("lblStav"), "Převod: mimo rozsah nástroje 1 tón (řádek 2). Ukázáno na tah, zapsáno na "
                                "tlak (Ctrl+→). Hmat je v Fis dur, tónina pro zápis zvolena není.");
    EXPECT_EQ(textBunky(sesit(pisen("Polka.xls")), "B1"), "c1,");
    EXPECT_EQ(textBunky(sesit(pisen("Polka Fis dur.xls")), "C2"), "ais4,");
    klikni("cmdDalsi");
    EXPECT_EQ(napis("lblTon"), "2");
    klikni("cmdEndEdit");
    ocekavejStavBezPisne();
}

TEST_F(PrevodTest, WhyACopyWasRefusedStandsOutUntilTheNextCommand) {
    pripravPisen();
    excel->setDefaultFilePath("C:\\Neni");
    dialogs.expect("Neočekávaná chyba !", "neexistuje");
    preved("optStupnice(6)");
    EXPECT_TRUE(napis("lblVarovani").contains("neexistuje")) << napis("lblVarovani").toStdString();
    klikni("cmdDalsi");
    EXPECT_EQ(napis("lblVarovani"), "");
}

TEST_F(PrevodTest, ASongOfNoWindowIsConvertedAndClosed) {
    pripravPisen();
    klikni("cmdEndEdit");
    QFile::remove(slozkaProgramu() + "/konverze.xml");
    dialogs.expectFile("Vyberte písničku, kterou chcete konvertovat !", pisen("Polka.xls"));
    dialogs.expect("Hotovo", "Polka G dur.xls");
    vDialogu([](QWidget* dialog) {
        stiskni(dialog, "cmdVyberPisen");
        stiskni(dialog, "optStupnice(1)");
        stiskni(dialog, "cmdGo");
    });
    ocekavejStavBezPisne();
    EXPECT_EQ(
        napis("lblStav"),
        "Tabulka tónů konverze.xml nebyla ve složce programu nalezena. Ztratil se nejnižší tón (řádky 1–2): "
        "sloupec B je tam prázdný a pro každého, kdo kopii čte, končí písnička před řádkem 1. Převod: v "
        "tabulce "
        "chybí 3 tóny (řádky 1–2). Kopie je v souboru „Polka G dur.xls“.");
}

} // namespace zvonika::testing
