// The program starts without a whole bass table, says so, and recording loses nothing but the names.
#include "tests/integration/CelyProgram.h"

#include <QDir>

namespace zvonika::testing {

namespace {

class TabulkaBasuTest : public CelyProgram {
protected:
    void SetUp() override {} // started by the cases

    QString soubor() const { return slozkaProgramu() + "/tonavox.xml"; }
    void spustSTabulkou(const QByteArray& obsah) {
        ulozSoubor(soubor(), obsah);
        spust();
    }
    /// Records c1 with the basses C and G; the box must say what the table lacks.
    void ocekavejZapisBezBasu(const QString& vada, const QString& zapsanyBas) {
        novaPisen();
        dialogs.expect("Bas nebyl zapsán !", vada);
        zapisHmat({"lbl(9)", "ImgBas(30)", "ImgBas(31)"}, true);
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
        EXPECT_EQ(bunka("B1"), "c1,");
        EXPECT_EQ(bunka("I1"), "Tlak");
        EXPECT_EQ(bunka("M1"), zapsanyBas);
        EXPECT_EQ(bunka("N1"), "");
        EXPECT_EQ(kurzor(), "$B$2");
    }
};

} // namespace

TEST_F(TabulkaBasuTest, FaultsAreSaidAtTheStartWithoutABox) {
    const QByteArray cela = obsahSouboru(soubor());
    const QByteArray dvakrat = "<basy><knoflik><cislo>1</cislo><bas>C</bas></knoflik>"
                               "<knoflik><cislo>2</cislo><bas>C</bas></knoflik></basy>";
    const std::pair<QByteArray, const char*> pripady[] = {
        {"", "je poškozená a nejde přečíst."},
        {cela.left(cela.size() / 2), "je poškozená a nejde přečíst."},
        {"PK\x03\x04 nic", "je poškozená a nejde přečíst."},
        {"<jine/>", "nezná 120 ze 120 basových knoflíků."},
        {dvakrat, "nezná 119 ze 120 basových knoflíků a má vadné nebo opakované položky (1)."}};
    for (const auto& [obsah, vada] : pripady) {
        spustSTabulkou(obsah);
        EXPECT_EQ(napis("lblStav"), "Tabulka basů tonavox.xml " + QString::fromUtf8(vada));
        EXPECT_EQ(dialogs.count, 0);
        EXPECT_TRUE(povolen("cmdNovaSkladba"));
    }
}

TEST_F(TabulkaBasuTest, AMissingTableIsSaidAndRecordingGoesOn) {
    ASSERT_TRUE(QFile::remove(soubor()));
    spust();
    EXPECT_EQ(napis("lblStav"), "Tabulka basů tonavox.xml nebyla ve složce programu nalezena.");
    ocekavejZapisBezBasu("nebyla ve složce programu nalezena.", "");

    QFile::copy(QStringLiteral(ZVONIKA_RESOURCES "/tonavox.xml"), soubor());
    zapisHmat({"ImgBas(30)"}, false);
    EXPECT_EQ(bunka("M2"), "C") << "a repaired table counts at once";
}

TEST_F(TabulkaBasuTest, AnIncompleteTableLosesOnlyWhatItDoesNotName) {
    spustSTabulkou("<basy><knoflik><cislo>31</cislo><bas>G</bas></knoflik></basy>");
    EXPECT_EQ(napis("lblStav"), "Tabulka basů tonavox.xml nezná 119 ze 120 basových knoflíků.");
    ocekavejZapisBezBasu("nezná 119 ze 120 basových knoflíků.", "G");
}

TEST_F(TabulkaBasuTest, AFolderInPlaceOfTheTable) {
    ASSERT_TRUE(QFile::remove(soubor()) && QDir().mkdir(soubor()));
    spust();
    EXPECT_EQ(napis("lblStav"),
              "Tabulka basů tonavox.xml nejde přečíst: není to soubor, nebo k němu nemáte oprávnění.");
    ocekavejZapisBezBasu("nejde přečíst", "");
}

} // namespace zvonika::testing
