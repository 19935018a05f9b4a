#include "song/UkonceniExcelu.h"

#include "song/Hlaseni.h"
#include "song/SpusteniExcelu.h"
#include "tests/song/SongFixture.h"

namespace zvonika::testing {

namespace {

/// An application that outlives its object as a record of what was done to it.
struct Zaznam {
    QStringList kroky;
    QString cesta;
};

class ZapisovanyExcel : public FakeSpreadsheet {
public:
    explicit ZapisovanyExcel(Zaznam& zaznam) : zaznam_(zaznam) {}
    ~ZapisovanyExcel() override { zaznam_.kroky.append("release"); }
    void quit() override {
        zaznam_.kroky.append("quit");
        FakeSpreadsheet::quit();
    }
    void saveActiveWorkbook() override {
        zaznam_.kroky.append("save");
        FakeSpreadsheet::saveActiveWorkbook();
    }
    QString defaultFilePath() const override { return zaznam_.cesta; }
    void setDefaultFilePath(const QString& path) override {
        zaznam_.kroky.append("path");
        FakeSpreadsheet::setDefaultFilePath(path);
        zaznam_.cesta = path;
    }
    void setVisible(bool shown) override {
        zaznam_.kroky.append("visible");
        FakeSpreadsheet::setVisible(shown);
    }

private:
    Zaznam& zaznam_;
};

class UkonceniExceluTest : public ::testing::Test {
protected:
    UkonceniExceluTest() {
        auto aplikace = std::make_unique<ZapisovanyExcel>(zaznam);
        excel = aplikace.get();
        pisen.aplikaceExcel = std::move(aplikace);
        pisen.puvodniCestaExcelu = "C:\\Moje";
    }
    void otevriPisen() {
        excel->addWorkbook();
        pisen.aktualniPisen = excel->activeWorkbookName();
    }
    void ukonci() {
        UkonceniExcelu(pisen, dialogs).UkonciExcel();
        EXPECT_EQ(pisen.aplikaceExcel, nullptr);
    }

    Zaznam zaznam;
    ScriptedDialogs dialogs;
    Pisen pisen;
    ZapisovanyExcel* excel = nullptr;
};

const auto nestandardni = QStringLiteral("Nestandardní ukončení.");
const auto nezavirejte =
    QStringLiteral("Nezavírejte příště prosím Excel ručně !\nAplikace si ho ovládá sama.");

} // namespace

TEST_F(UkonceniExceluTest, SavesTheSongQuitsAndGivesTheFolderBackInThisOrder) {
    otevriPisen();
    excel->addWorkbook(); // in front of the song
    ukonci();
    EXPECT_EQ(zaznam.kroky, (QStringList{"save", "quit", "path", "release"}));
    EXPECT_EQ(zaznam.cesta, "C:\\Moje");
}

TEST_F(UkonceniExceluTest, WithoutASongNothingIsSavedAndTheResetMarkerPassesAsItIs) {
    excel->addWorkbook();
    pisen.puvodniCestaExcelu = "X:\\Nastavení bylo resetováno !!";
    ukonci();
    EXPECT_EQ(zaznam.kroky, (QStringList{"quit", "path", "release"}));
    EXPECT_EQ(zaznam.cesta, pisen.puvodniCestaExcelu);
    UkonceniExcelu(pisen, dialogs).UkonciExcel(); // nothing left to do
}

TEST_F(UkonceniExceluTest, AnApplicationThatTheUserQuitIsReportedOnce) {
    otevriPisen();
    excel->userQuits();
    dialogs.expect(nestandardni, nezavirejte);
    ukonci();
    EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
    EXPECT_EQ(zaznam.kroky, (QStringList{"quit", "quit", "path", "release"}));
    EXPECT_EQ(zaznam.cesta, "C:\\Moje");
}

TEST_F(UkonceniExceluTest, ARefusedSaveIsReportedAndTheShutdownGoesOn) {
    otevriPisen();
    excel->fail("saveActiveWorkbook", error::applicationDefined);
    dialogs.expect(nestandardni, "Chyba při ukládání souboru !\nData v písni mohou být ztracena.");
    ukonci();
    EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
    EXPECT_EQ(zaznam.kroky, (QStringList{"save", "quit", "path", "release"}));
}

TEST_F(UkonceniExceluTest, LaterFailuresEnterTheSameTrapAndNeverLastForever) {
    otevriPisen();
    excel->fail("saveActiveWorkbook", 1004);
    excel->fail("quit", 70, 1000);
    dialogs.expect(nestandardni, "Chyba při ukládání");
    dialogs.expect("Neočekávaná chyba !", "Kontaktujte firmu " + kontakt + " a sdělte číslo chyby 70");
    ukonci();
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
}

TEST_F(UkonceniExceluTest, AFailedReturnOfTheFolderResumesAtQuit) {
    excel->fail("setDefaultFilePath", 1004);
    dialogs.expect(nestandardni, "Chyba při ukládání");
    ukonci();
    EXPECT_EQ(zaznam.kroky, (QStringList{"quit", "path", "quit", "path", "release"}));
    EXPECT_EQ(zaznam.cesta, "C:\\Moje");
}

TEST(SpusteniExcelu, TheFirstInstanceSetsTheFolderAndTheSecondStays) {
    Zaznam zaznam{{}, "C:\\Moje"};
    Pisen pisen;
    SpustExcel([&] { return zaznam.kroky.append("create"), std::make_unique<ZapisovanyExcel>(zaznam); },
               pisen);
    EXPECT_EQ(zaznam.kroky, (QStringList{"create", "path", "quit", "release", "create", "visible"}));
    EXPECT_EQ(pisen.puvodniCestaExcelu, "C:\\Moje");
    EXPECT_EQ(zaznam.cesta, pracovniAdresar);
    EXPECT_EQ(pisen.excel().defaultFilePath(), pracovniAdresar);
}

TEST(SpusteniExcelu, AnApplicationThatDoesNotStartLeavesNone) {
    Pisen pisen;
    int pokusy = 0;
    Zaznam zaznam;
    const SpreadsheetLauncher spoustec = [&]() -> std::unique_ptr<SpreadsheetApplication> {
        if (++pokusy == 2) throw AutomationError(429);
        return std::make_unique<ZapisovanyExcel>(zaznam);
    };
    ocekavejChybu(429, [&] { SpustExcel(spoustec, pisen); });
    EXPECT_EQ(pisen.aplikaceExcel, nullptr);
}

} // namespace zvonika::testing
