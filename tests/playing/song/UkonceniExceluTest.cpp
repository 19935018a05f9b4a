#include "playing/song/UkonceniExcelu.h"

#include "platform/Hlaseni.h"
#include "playing/song/SpusteniExcelu.h"
#include "tests/playing/SongFixture.h"

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
    bool bezPameti = false; ///< saving fails without a number
    void quit() override {
        zaznam_.kroky.append("quit");
        FakeSpreadsheet::quit();
    }
    void saveActiveWorkbook() override {
        zaznam_.kroky.append("save");
        if (bezPameti) throw std::bad_alloc();
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

TEST_F(UkonceniExceluTest, AFailureWithoutANumberDoesNotStopTheShutdown) {
    otevriPisen();
    excel->bezPameti = true;
    dialogs.expect("Neočekávaná chyba !", "Kontaktujte firmu " + kontakt + " a sdělte číslo chyby 0");
    ukonci();
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

TEST_F(UkonceniExceluTest, EachStepReportsItsOwnFailureAlsoOfTheSameNumber) {
    otevriPisen();
    excel->fail("saveActiveWorkbook", 1004);
    excel->fail("setDefaultFilePath", 1004, 1000);
    for (int krok = 0; krok < 2; ++krok)
        dialogs.expect(nestandardni, "Chyba při ukládání souboru !\nData v písni mohou být ztracena.");
    ukonci();
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

TEST(SpusteniExcelu, AFailedStartLeavesNoApplicationAndTheFolderOfTheUser) {
    struct Pripad {
        int nespustenyOd, nespustenyDo; ///< starts that fail
        QString selze;                  ///< what fails in the instance that is number `instance`
        int instance;
        QString cesta; ///< the default folder afterwards
    };
    const Pripad pripady[] = {
        {1, 1, "", 0, "C:\\Moje"},                   // not even the first one: nothing was changed
        {2, 2, "", 0, "C:\\Moje"},                   // given back by a third one
        {2, 3, "", 0, pracovniAdresar},              // nobody left to give it back
        {0, 0, "quit", 1, "C:\\Moje"},               // given back by the first one itself
        {0, 0, "setDefaultFilePath", 1, "C:\\Moje"}, // never changed
        {0, 0, "setVisible", 2, "C:\\Moje"},         // the second one started and failed then
    };
    for (const auto& [od, az, selze, instance, cesta] : pripady) {
        SCOPED_TRACE(QStringLiteral("%1 %2 %3").arg(od).arg(az).arg(selze).toStdString());
        Pisen pisen;
        int pokusy = 0;
        Zaznam zaznam{{}, "C:\\Moje"};
        const SpreadsheetLauncher spoustec = [&, od = od, az = az, selze = selze, instance = instance] {
            ++pokusy;
            if (pokusy >= od && pokusy <= az) throw AutomationError(429);
            auto aplikace = std::make_unique<ZapisovanyExcel>(zaznam);
            if (pokusy == instance) aplikace->fail(selze, 429);
            return aplikace;
        };
        ocekavejChybu(429, [&] { SpustExcel(spoustec, pisen); });
        EXPECT_EQ(pisen.aplikaceExcel, nullptr);
        EXPECT_EQ(zaznam.cesta, cesta);
        EXPECT_GE(zaznam.kroky.count("quit"), zaznam.kroky.count("release")) << "none is left running";
    }
}

} // namespace zvonika::testing
