// The shutdown, and whose default folder the spreadsheet has before, during and after the run.
#include "tests/integration/CelyProgram.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTimer>

namespace zvonika::testing {

namespace {

class UkonceniTest : public CelyProgram {
protected:
    void SetUp() override {} // started by the cases

    /// What really stands in the file, read by somebody else.
    QString vychoziSlozka() const {
        const QSettings ini(souborNastaveniTabulky(), QSettings::IniFormat);
        return ini.value("Tabulka/DefaultFilePath").toString();
    }
    void spustSeSlozkouUzivatele() {
        QDir(domov()).mkpath("Dokumenty/Ucetnictvi");
        vlastniNastaveniTabulky.save("Tabulka", "DefaultFilePath", uzivatelova);
        spust();
    }
    void ocekavejUkonceni() const {
        EXPECT_FALSE(program->okno().isVisible());
        EXPECT_EQ(program->modely().pisen.aplikaceExcel, nullptr);
        EXPECT_EQ(vychoziSlozka(), uzivatelova);
    }
    const QString uzivatelova = QStringLiteral("C:\\Dokumenty\\Ucetnictvi");
};

} // namespace

TEST_F(UkonceniTest, TheUsersFolderComesBackAfterTheRun) {
    spustSeSlozkouUzivatele();
    EXPECT_EQ(vychoziSlozka(), pracovniAdresar);
    EXPECT_EQ(excel->defaultFilePath(), pracovniAdresar);
    EXPECT_TRUE(tabulka->isVisible());
    dialogs.expectFile("Vyberte písničku, kterou chcete zkoušet !", std::nullopt);
    klikni("cmdEdit");
    EXPECT_EQ(dialogs.lastFolder, pracovni());
    ocekavejStavBezPisne();
    zavriOkno();
    ocekavejUkonceni();
}

TEST_F(UkonceniTest, ClosingSavesTheSongAndEndsTheSheet) {
    spustSeSlozkouUzivatele();
    novaPisen();
    zapisHmat({"lbl(9)"}, true);
    zavriOkno();
    ocekavejUkonceni();
    EXPECT_TRUE(tabulka.isNull());
    EXPECT_EQ(textBunky(sesit(pisen("Polka.xls")), "B1"), "c1,");
    EXPECT_EQ(soubory(), QStringList{"Polka.xls"});
}

TEST_F(UkonceniTest, ASongThatCannotBeSavedInItsPlaceMaySaveItselfElsewhere) {
    spustSeSlozkouUzivatele();
    novaPisen();
    zapisHmat({"lbl(9)"}, true);
    ASSERT_TRUE(QDir(pracovni()).removeRecursively());
    const QString jinde = domov() + "/Dokumenty/Polka.xls";
    // The program's one message; then the sheet's own question about what it still holds.
    dialogs.expect("Nestandardní ukončení.",
                   "Chyba při ukládání souboru !\nData v písni mohou být ztracena.");
    dialogs.expect(jmenoTabulky, "Sešit „Polka.xls“ má neuložené změny.", Answer::Yes);
    dialogs.expect(jmenoTabulky, "Soubor „Polka.xls“ nelze uložit: složka");
    dialogs.expectFile("Uložit jako", jinde);
    zavriOkno();
    ocekavejUkonceni();
    EXPECT_EQ(textBunky(sesit(jinde), "B1"), "c1,");
}

TEST_F(UkonceniTest, AResetFolderIsTheSheetsOwnDefaultInTheNextRun) {
    spustSeSlozkouUzivatele();
    const auto volbou = [this](const char* volba) {
        QTimer::singleShot(0, [volba] {
            QWidget* dialog = QApplication::activeModalWidget();
            QTest::mouseClick(dialog->findChild<QWidget*>(QLatin1String(volba)), Qt::LeftButton, {}, {8, 8});
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        program->proved(QStringLiteral("mnuNastavCestu"));
    };
    dialogs.expect("Reset nastavení", "Po ukončení Tamíka");
    volbou("Option1(3)");
    EXPECT_EQ(excel->defaultFilePath(), pracovniAdresar);
    zavriOkno();
    spust();
    EXPECT_EQ(program->modely().pisen.puvodniCestaExcelu, "C:\\Dokumenty");

    dialogs.expect("Změna konfigurace Excelu z Tamíka.", "C:\\Dokumenty");
    volbou("Option1(0)");
    zavriOkno();
    EXPECT_EQ(vychoziSlozka(), "C:\\Dokumenty");
}

} // namespace zvonika::testing
