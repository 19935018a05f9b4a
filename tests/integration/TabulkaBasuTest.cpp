// The program starts without a bass table, says so, and recording loses nothing but the names.
#include "tests/integration/CelyProgram.h"

namespace zvonika::testing {

namespace {

class TabulkaBasuTest : public CelyProgram {
protected:
    void SetUp() override {
        ASSERT_TRUE(QFile::remove(soubor()));
        CelyProgram::SetUp();
    }
    QString soubor() const { return slozkaProgramu() + "/tonavox.xml"; }
};

} // namespace

TEST_F(TabulkaBasuTest, AMissingTableIsSaidAndRecordingGoesOn) {
    EXPECT_EQ(napis("lblStav"), "Tabulka basů tonavox.xml nebyla ve složce programu nalezena.");
    novaPisen();
    dialogs.expect("Bas nebyl zapsán !", "nebyla ve složce programu nalezena.");
    zapisHmat({"lbl(9)", "ImgBas(30)", "ImgBas(31)"}, true);
    EXPECT_EQ(bunka("B1"), "c1,");
    EXPECT_EQ(bunka("M1"), "");

    QFile::copy(QStringLiteral(ZVONIKA_RESOURCES "/tonavox.xml"), soubor());
    zapisHmat({"ImgBas(30)"}, false);
    EXPECT_EQ(bunka("M2"), "C") << "a repaired table counts at once";
}

} // namespace zvonika::testing
