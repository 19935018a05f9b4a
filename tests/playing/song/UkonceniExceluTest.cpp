#include "playing/song/UkonceniExcelu.h"

#include "platform/Contact.h"
#include "playing/song/SpusteniExcelu.h"
#include "tests/support/SpreadsheetWorld.h"

namespace zvonika::testing {

namespace {

const QString cestaUzivatele = QStringLiteral("C:\\Moje");
const QString resetovano = QStringLiteral("X:\\Nastavení bylo resetováno !!");

class UkonceniExceluTest : public ::testing::Test, protected SpreadsheetWorld {
protected:
    UkonceniExceluTest() {
        drive.createFolder(cestaUzivatele);
        nastavCestu(cestaUzivatele);
    }
    /// The folder that the spreadsheet keeps in its settings.
    QString cesta() const { return settings.getOr("Tabulka", "DefaultFilePath", {}); }
    void nastavCestu(const QString& cesta) { settings.save("Tabulka", "DefaultFilePath", cesta); }

    MemorySettings nastaveniProgramu;
    const PuvodniCesta puvodni{nastaveniProgramu, 0};

    /// The shutdown of a program that has opened a song, another workbook in front of it.
    void ukonci(bool sPisni, const QString& puvodniCesta,
                const std::function<void(WatchedSpreadsheet&)>& co) {
        nastavCestu(pracovniAdresar);
        auto excel = launch();
        Pisen pisen;
        pisen.puvodniCestaExcelu = puvodniCesta;
        if (sPisni) {
            excel->app().addWorkbook();
            excel->app().saveActiveWorkbookAs({QStringLiteral("Polka")});
            pisen.aktualniPisen = excel->app().activeWorkbookName();
        }
        excel->app().addWorkbook();
        log = {};
        co(*excel);
        pisen.aplikaceExcel = std::move(excel);
        UkonceniExcelu ukonceni(pisen, dialogs);
        ukonceni.UkonciExcel();
        EXPECT_EQ(pisen.aplikaceExcel, nullptr);
        ukonceni.UkonciExcel(); // nothing left to do
    }
};

} // namespace

TEST_F(UkonceniExceluTest, ItComesToItsEndWhateverFails) {
    const QString nestandardni = "Nestandardní ukončení.", neocekavana = "Neočekávaná chyba !";
    const QString ukladani = "Chyba při ukládání souboru !\nData v písni mohou být ztracena.";
    const auto cislo = [](int n) {
        return "Kontaktujte firmu " + kontakt + " a sdělte číslo chyby " + QString::number(n);
    };
    struct Selhani {
        const char* krok;
        int cislo, kolikrat;
    };
    const Selhani ulozeni{"saveActiveWorkbook", 1004, 1};
    const QPair<QString, QString> dotaz{jmenoTabulky, "„Polka.xls“ má neuložené změny"};
    const struct {
        const char* popis;
        QVector<Selhani> selhani;
        QVector<QPair<QString, QString>> hlaseni;
        const char* kroky;
        QString cesta;
    } pripady[] = {
        {"nothing fails", {}, {}, "save quit path release", cestaUzivatele},
        {"refused save of a song that was only read",
         {ulozeni},
         {},
         "save quit path release",
         cestaUzivatele},
        {"changed: refused save",
         {ulozeni},
         {{nestandardni, ukladani}, dotaz},
         "save quit path release",
         cestaUzivatele},
        {"failure without a number",
         {{"saveActiveWorkbook", 0, 1}},
         {{neocekavana, cislo(0)}},
         "save quit path release",
         cestaUzivatele},
        {"changed: no quitting for good",
         {ulozeni, {"quit", 70, 1000}},
         {{nestandardni, ukladani}, {neocekavana, cislo(70)}},
         "save quit quit quit release",
         pracovniAdresar},
        {"changed: two steps of the same number",
         {ulozeni, {"setDefaultFilePath", 1004, 1000}},
         {{nestandardni, ukladani}, dotaz, {nestandardni, ukladani}},
         "save quit path quit path quit path release",
         pracovniAdresar},
        {"no song: the folder at the third attempt",
         {{"setDefaultFilePath", 1004, 2}},
         {{nestandardni, ukladani}},
         "quit path quit path quit path release",
         cestaUzivatele},
    };
    const QMap<QString, QString> znacky{{"saveActiveWorkbook", "save"},
                                        {"quit", "quit"},
                                        {"setDefaultFilePath", "path"},
                                        {"release", "release"}};
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.popis);
        for (const auto& [titulek, text] : p.hlaseni)
            dialogs.expect(titulek, text, Answer::No);
        const bool sPisni = !QString(p.popis).startsWith("no song");
        ukonci(sPisni, cestaUzivatele, [&](WatchedSpreadsheet& excel) {
            if (QString(p.popis).startsWith("changed")) {
                excel.app().activateWindow("Polka.xls");
                excel.put("A1", "změna");
                excel.app().activateWindow("Sešit2");
            }
            for (const auto& [krok, cislo, kolikrat] : p.selhani)
                cislo ? log.fail(krok, cislo, kolikrat) : log.failWithoutNumber(krok);
        });
        QStringList kroky;
        for (const QString& volani : log.calls)
            if (znacky.contains(volani)) kroky << znacky[volani];
        EXPECT_EQ(kroky.join(u' ').toStdString(), p.kroky);
        EXPECT_EQ(cesta().toStdString(), p.cesta.toStdString());
        EXPECT_TRUE(dialogs.done());
        drive.deleteFile(pracovniAdresar + "\\Polka.xls");
    }
}

TEST_F(UkonceniExceluTest, TheSongIsSavedAndAResetMarkerGivenBackAsItIs) {
    ukonci(true, resetovano, [](WatchedSpreadsheet& excel) {
        excel.app().activateWindow("Polka.xls");
        excel.put("A1", "Koč");
        excel.app().addWorkbook();
    });
    EXPECT_EQ(storedText(pracovniAdresar + "\\Polka.xls", "A1"), "Koč");
    EXPECT_EQ(cesta(), resetovano);
}

TEST_F(UkonceniExceluTest, TheFirstInstanceSetsTheFolderAndTheSecondStays) {
    Pisen pisen;
    SpustExcel([&] { return log.calls.append("create"), launch(); }, pisen, puvodni);
    EXPECT_EQ(pisen.puvodniCestaExcelu, cestaUzivatele);
    EXPECT_EQ(pisen.excel().defaultFilePath(), pracovniAdresar);
    log.calls.removeAll("defaultFilePath");
    EXPECT_EQ(log.calls.join(u' '), "create setDefaultFilePath quit release create setVisible");
}

// Beside a run, or after one that was killed, the spreadsheet has the program's folder.
TEST_F(UkonceniExceluTest, TheProgramsOwnFolderIsNeverTakenForTheUsers) {
    const auto zjistena = [this](const PuvodniCesta& cesta) {
        Pisen pisen;
        SpustExcel([this] { return launch(); }, pisen, cesta);
        return pisen.puvodniCestaExcelu;
    };
    nastavCestu(pracovniAdresar);
    EXPECT_EQ(zjistena(puvodni), "C:\\Dokumenty") << "nobody knows what it was";
    nastavCestu(cestaUzivatele);
    EXPECT_EQ(zjistena(puvodni), cestaUzivatele);
    EXPECT_EQ(cesta(), pracovniAdresar) << "this run was not ended";
    EXPECT_EQ(zjistena(puvodni), cestaUzivatele);
    EXPECT_EQ(zjistena(PuvodniCesta(nastaveniProgramu, 1)), "C:\\Dokumenty")
        << "each spreadsheet has its own";
    puvodni.zapamatuj(pracovniAdresar);
    EXPECT_EQ(zjistena(puvodni), pracovniAdresar) << "unless the user has chosen it himself";
}

TEST_F(UkonceniExceluTest, AFailedStartLeavesNoApplicationAndTheFolderOfTheUser) {
    const struct {
        int nespustenyOd, nespustenyDo; ///< starts that fail
        const char* selze;              ///< what fails in the instance that is number `instance`
        int instance;
        QString cesta; ///< the default folder afterwards
    } pripady[] = {
        {1, 1, "", 0, cestaUzivatele},                   // not even the first one: nothing was changed
        {2, 2, "", 0, cestaUzivatele},                   // given back by a third one
        {2, 3, "", 0, pracovniAdresar},                  // nobody left to give it back
        {0, 0, "quit", 1, cestaUzivatele},               // given back by the first one itself
        {0, 0, "setDefaultFilePath", 1, cestaUzivatele}, // never changed
        {0, 0, "setVisible", 2, cestaUzivatele},         // the second one started and failed then
    };
    for (const auto& p : pripady) {
        SCOPED_TRACE(
            QStringLiteral("%1 %2 %3").arg(p.nespustenyOd).arg(p.nespustenyDo).arg(p.selze).toStdString());
        Pisen pisen;
        log = {};
        nastavCestu(cestaUzivatele);
        int pokusy = 0;
        const SpreadsheetLauncher spoustec = [&] {
            ++pokusy;
            if (pokusy >= p.nespustenyOd && pokusy <= p.nespustenyDo) throw AutomationError(429);
            if (pokusy == p.instance) log.fail(p.selze, 429);
            return launch();
        };
        EXPECT_EQ(raised([&] { SpustExcel(spoustec, pisen, puvodni); }), 429);
        EXPECT_EQ(pisen.aplikaceExcel, nullptr);
        EXPECT_EQ(cesta().toStdString(), p.cesta.toStdString());
        EXPECT_GE(log.count("quit"), log.count("release")) << "none is left running";
    }
}

} // namespace zvonika::testing
