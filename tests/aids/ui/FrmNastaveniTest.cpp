#include "aids/ui/FrmNastaveni.h"

#include "aids/NastaveniRad.h"
#include "aids/ui/FraZabrany.h"
#include "board/TrebleBoard.h"
#include "tests/support/MemorySettings.h"
#include "tests/support/ScriptedDialogs.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

class FrmNastaveniTest : public ::testing::Test {
protected:
    void otevri() {
        dialog = std::make_unique<FrmNastaveni>(formular);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
    template <typename T = QWidget>
    T* prvek(const QString& jmeno) const {
        return dialog->findChild<T*>(jmeno);
    }
    QCheckBox* chk(int rada) const { return prvek<QCheckBox>(QStringLiteral("chkZabrany(%1)").arg(rada)); }
    void stiskni(const char* jmeno) const { QTest::mouseClick(prvek(jmeno), Qt::LeftButton, {}, {10, 8}); }
    QString zaskrtnute() const {
        QString rady;
        for (int rada = 1; rada <= 5; ++rada)
            if (chk(rada)->isChecked()) rady += QString::number(rada);
        return rady;
    }

    testing::MemorySettings nastaveni;
    testing::ScriptedDialogs dialogy;
    TrebleBoard diskant{nastrojZvonika()};
    NastaveniRad formular{nastaveni, diskant, dialogy};
    std::unique_ptr<FrmNastaveni> dialog;
};

TEST_F(FrmNastaveniTest, OpensAsItWasStored) {
    nastaveni.save("Zabrany", "4", "1");
    nastaveni.save("TypPrstokladu", "Index", "1");
    otevri();
    EXPECT_EQ(dialog->windowTitle(), "Slouží k pozičnímu prstokladu");
    EXPECT_TRUE(prvek<QRadioButton>("optTypPrstokladu(1)")->isChecked());
    EXPECT_EQ(prvek<QPushButton>("cmdFDur")->text(), "C Dur");
    EXPECT_EQ(prvek<QLabel>("Label1(8)")->text(), "A Dur");
    EXPECT_EQ(zaskrtnute(), "4");
    EXPECT_TRUE(prvek("fraZabrany")->isVisible());
    for (int rada = 1; rada < 5; ++rada)
        EXPECT_GT(chk(rada)->x(), chk(rada + 1)->x()) << "row 5 is the leftmost";
}

TEST_F(FrmNastaveniTest, TypeButtonAndBoxesByMouseThenEnter) {
    otevri();
    stiskni("optTypPrstokladu(2)");
    EXPECT_EQ(prvek<QPushButton>("cmdCDur")->text(), "F Dur");
    stiskni("cmdGDur");
    EXPECT_EQ(zaskrtnute(), "15");
    stiskni("chkZabrany(3)");
    stiskni("chkZabrany(5)");
    diskant.nastavZabranu(4, true);
    EXPECT_TRUE(nastaveni.values.empty() && !diskant.zakryta(1)) << "nothing before Ok";
    QTest::keyClick(dialog.get(), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    QString ulozeno, zakryte;
    for (const auto& [klic, hodnota] : nastaveni.values)
        ulozeno += klic + '=' + hodnota + ' ';
    for (int rada = 1; rada <= 5; ++rada)
        if (diskant.zakryta(rada)) zakryte += QString::number(rada);
    EXPECT_EQ(ulozeno, "TypPrstokladu/Index=2 Zabrany/1=1 Zabrany/2=0 Zabrany/3=1 Zabrany/4=0 Zabrany/5=0 ");
    EXPECT_EQ(zakryte, "13");
}

TEST_F(FrmNastaveniTest, KeysTickABoxAndShowTheHelp) {
    otevri();
    QTest::keyClick(dialog->windowHandle(), Qt::Key_4, Qt::AltModifier);
    EXPECT_EQ(zaskrtnute(), "4");
    EXPECT_TRUE(formular.zaskrtnuto(4));
    stiskni("cmdNic");
    EXPECT_EQ(zaskrtnute(), "");
    dialogy.expect("Nápověda",
                   "Tento formulář slouží k určení řad, které mají být jako jediné používány při "
                   "pozičním prstokladu a hře v konkrétní tónině.\nOstatní řady budou přeškrtnuty");
    stiskni("cmdNapoveda");
    EXPECT_EQ(dialogy.last.text.count('\n'), 8);
    EXPECT_TRUE(dialogy.last.text.endsWith("Nastavení se při potvrzení automaticky ukládá."));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(FrmNastaveniTest, CancellingStoresNothing) {
    for (const bool klavesou : {true, false}) {
        otevri();
        stiskni("cmdCDur");
        klavesou ? QTest::keyClick(dialog.get(), Qt::Key_Escape) : stiskni("cmdZrušit");
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(nastaveni.get("Zabrany", "1"), std::nullopt);
        EXPECT_FALSE(diskant.zakryta(1));
    }
}

} // namespace
} // namespace zvonika
