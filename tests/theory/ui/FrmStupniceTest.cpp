#include "theory/ui/FrmStupnice.h"

#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/Vypis.h"
#include "theory/NotovaOsnova.h"
#include "theory/Tonina.h"
#include "theory/Toniny.h"
#include "theory/VolbaStupnice.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace zvonika {
namespace {

class FrmStupniceTest : public ::testing::Test {
protected:
    void otevri(const QString& stupnice) {
        tonina.nastavStupnici(Key(stupnice));
        dialog = std::make_unique<FrmStupnice>(volba, tonina);
        dialog->show();
    }
    QRadioButton* opt(int i) const {
        return dialog->findChild<QRadioButton*>(QStringLiteral("optStupnice(%1)").arg(i));
    }
    void stiskni(const char* tlacitko) const {
        QTest::mouseClick(dialog->findChild<QPushButton*>(QLatin1String(tlacitko)), Qt::LeftButton);
    }

    testing::ScriptedDialogs dialogy;
    Tonina tonina;
    NotovaOsnova osnova;
    VolbaStupnice volba{dialogy, tonina, osnova};
    std::unique_ptr<FrmStupnice> dialog;
};

TEST_F(FrmStupniceTest, OffersTheKeysInTheirOrderAndSaysWhatItIsFor) {
    otevri({});
    for (int i = 0; i < 15; ++i) {
        ASSERT_TRUE(opt(i)) << i;
        EXPECT_EQ(opt(i)->text(), toniny.at(static_cast<std::size_t>(i)).nazev);
        EXPECT_FALSE(opt(i)->icon().isNull());
        for (int j = 0; j < i; ++j)
            EXPECT_FALSE(opt(i)->geometry().intersects(opt(j)->geometry())) << i << ' ' << j;
    }
    EXPECT_TRUE(dialog->isModal());
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Znáte-li tóninu, vyberte a potvrďte Ok !"));
    QStringList napisy;
    for (const QLabel* napis : dialog->findChildren<QLabel*>())
        napisy.append(napis->text());
    EXPECT_TRUE(napisy.contains(QStringLiteral("Vyberte stupnici")));
    EXPECT_TRUE(napisy.contains(QStringLiteral("Slouží pro nastavení před zapisováním skladby !")));
}

TEST_F(FrmStupniceTest, TheCurrentKeyIsSelectedAndOkTakesTheChoice) {
    otevri(QStringLiteral("Es dur"));
    EXPECT_TRUE(opt(10)->isChecked());
    QTest::mouseClick(opt(6), Qt::LeftButton, {}, QPoint(8, opt(6)->height() / 2));
    EXPECT_FALSE(opt(10)->isChecked());
    EXPECT_EQ(tonina.stupnice().text(), QStringLiteral("Es dur")); // nothing before Ok
    QTest::keyClick(dialog.get(), Qt::Key_Return);
    EXPECT_EQ(tonina.stupnice().text(), QStringLiteral("Fis dur"));
    EXPECT_EQ(osnova.predznamenani().pocet(), 6);
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(FrmStupniceTest, OkWithoutAChoiceMakesTheKeyEmpty) {
    otevri(QStringLiteral("Vyberte tóninu"));
    stiskni("cmdOK");
    EXPECT_EQ(tonina.stupnice().text(), QString());
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(FrmStupniceTest, EscapeChangesNothing) {
    otevri(QStringLiteral("G dur"));
    opt(3)->setChecked(true);
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_EQ(tonina.stupnice().text(), QStringLiteral("G dur"));
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(FrmStupniceTest, ZrusitClearsTheKeyAndHelpLeavesTheDialogOpen) {
    otevri(QStringLiteral("G dur"));
    dialogy.expect(QStringLiteral("Nápověda k výběru tóniny."), QStringLiteral("Tóninu skladby"));
    stiskni("cmdHelp");
    EXPECT_TRUE(dialog->isVisible());
    stiskni("cmdZrusit");
    EXPECT_EQ(tonina.stupnice(), Key::vyberteToninu());
    EXPECT_FALSE(dialog->isVisible());
}

TEST_F(FrmStupniceTest, StaysAboveAWindowThatIsKeptOnTop) {
    QWidget hlavni;
    EXPECT_FALSE(FrmStupnice(volba, tonina, &hlavni).windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    hlavni.setWindowFlag(Qt::WindowStaysOnTopHint, true);
    QWidget scena(&hlavni);
    EXPECT_TRUE(FrmStupnice(volba, tonina, &scena).windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

} // namespace
} // namespace zvonika
