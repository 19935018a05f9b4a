#include "aids/ui/FrmZmenaCesty.h"

#include "aids/ZmenaCesty.h"
#include "song/SongSheet.h"
#include "tests/support/FakeDrive.h"
#include "tests/support/ScriptedDialogs.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

class FrmZmenaCestyTest : public ::testing::Test {
protected:
    void SetUp() override {
        pisen.puvodniCestaExcelu = "C:\\Stará";
        dialog.emplace(zmena.emplace(pisen, drive, dialogy));
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
    }
    template <typename T>
    T* prvek(const char* jmeno) {
        return dialog->findChild<T*>(QLatin1String(jmeno));
    }

    Pisen pisen;
    testing::FakeDrive drive;
    testing::ScriptedDialogs dialogy;
    std::optional<ZmenaCesty> zmena;
    std::optional<FrmZmenaCesty> dialog;
};

TEST_F(FrmZmenaCestyTest, ATypedFolderIsRefusedThenTaken) {
    EXPECT_EQ(prvek<QLabel>("lblStaraCesta")->text(), "C:\\Stará");
    dialogy.expect("Chyba, nic nezadáno.", "");
    QTest::keyClick(&*dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClicks(prvek<QLineEdit>("txtCesta"), "C:\\Nove");
    EXPECT_TRUE(prvek<QRadioButton>("Option1(2)")->isChecked());
    dialogy.expect("Neexistující složka", "");
    QTest::keyClick(&*dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    drive.folders.insert("C:\\Nove");
    dialogy.expect("Změna konfigurace Excelu z Tamíka.", "C:\\Nove");
    QTest::keyClick(&*dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(pisen.puvodniCestaExcelu, "C:\\Nove");
}

TEST_F(FrmZmenaCestyTest, CancelChangesNothing) {
    prvek<QRadioButton>("Option1(3)")->click();
    QTest::mouseClick(prvek<QWidget>("CancelButton"), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(pisen.puvodniCestaExcelu, "C:\\Stará");
}

} // namespace
} // namespace zvonika
