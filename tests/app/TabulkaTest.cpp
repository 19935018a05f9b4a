// Which spreadsheet program the songs are kept open in: the choice, and a
// chosen one that does not start.
#include "app/ui/FrmTabulka.h"
#include "tests/app/OknoSPisni.h"

#include <QRadioButton>

using namespace zvonika;
using zvonika::testing::OknoSPisni;

namespace {

const QVector<NabidkaTabulky> nabidka = {
    nabidkaVestavene(),
    {Tabulka::LibreOffice, "LibreOffice Calc 7.4", "Popis", {}},
    {Tabulka::Excel, "Excel", "Popis", "Excel není nainstalován."},
};

class JinaTabulka : public OknoSPisni {
protected:
    void SetUp() override {} // started by the cases
    void spust(SpreadsheetLauncher spoustec) {
        nastaveni.save("Cislovani", "Index", "1");
        tabulky = {
            {vestavena, {.volba = Tabulka::Excel, .spust = std::move(spoustec), .veta = "Excel neumím."}},
            Tabulka::Excel};
        OknoSPisni::SetUp();
    }
    void spustPorouchanou(Answer odpoved) {
        dialogs.expect("Neočekávaná chyba programu.", "chybě číslo 429");
        dialogs.expect("Tabulkový program", "Chcete teď pracovat s vestavěnou tabulkou Zvoniky?", odpoved);
        spust([]() -> std::unique_ptr<SpreadsheetApplication> {
            throw AutomationError(429, "Excel není na tomto počítači nainstalován.");
        });
    }
};

} // namespace

TEST(FrmTabulka, OffersWhatCanBeUsedAndStoresTheChoice) {
    const struct {
        const char *ulozena, *klik, *pak;
        int oznacena;
    } pripady[] = {
        {nullptr, nullptr, "0", 0},     {"1", nullptr, "1", 1}, {"nesmysl", "optTabulka(1)", "1", 0},
        {"1", "optTabulka(0)", "0", 1}, {"2", nullptr, "2", 2}, {"0", "optTabulka(2)", "0", 0}};
    for (const auto& [ulozena, klik, pak, oznacena] : pripady) {
        zvonika::testing::MemorySettings nastaveni;
        if (ulozena) nastaveni.save("Tabulka", "Index", ulozena);
        VolbaTabulky volba(nastaveni);
        FrmTabulka dialog(volba, nabidka);
        EXPECT_TRUE(
            dialog.findChild<QRadioButton*>(QStringLiteral("optTabulka(%1)").arg(oznacena))->isChecked());
        EXPECT_EQ(dialog.findChild<QLabel*>("lblPrekazka(2)")->text(), "Excel není nainstalován.");
        EXPECT_FALSE(dialog.findChild<QLabel*>("lblPrekazka(1)"));
        if (klik) dialog.findChild<QAbstractButton*>(klik)->click();
        dialog.findChild<QAbstractButton*>("cmdOK")->click();
        EXPECT_EQ(nastaveni.getOr("Tabulka", "Index", ""), pak);
    }
}

TEST_F(JinaTabulka, ThatFailsIsReplacedByTheBuiltInOneIfTheUserWants) {
    spustPorouchanou(Answer::Yes);
    EXPECT_TRUE(akce("mnuCislovat")->isChecked()) << "the start was gone through to its end";
    EXPECT_FALSE(stav().contains("Excel neumím."));
    novaPisen();
    EXPECT_EQ(program->okno().windowTitle(), "Polka.xls");
}

TEST_F(JinaTabulka, ThatFailsLeavesTheWindowOpenOtherwise) {
    spustPorouchanou(Answer::No);
    EXPECT_TRUE(program->okno().isVisible());
    EXPECT_FALSE(program->modely().pisen.aplikaceExcel);
    EXPECT_FALSE(akce("mnuCislovat")->isChecked()) << "the rest of the start is skipped";
}

TEST_F(JinaTabulka, ThatCannotBeStartedIsReplacedWithASentence) {
    spust({});
    EXPECT_TRUE(stav().contains("Excel neumím.")) << stav().toStdString();
    ASSERT_TRUE(excel);
    novaPisen();
    EXPECT_FALSE(stav().contains("Excel neumím."));
}
