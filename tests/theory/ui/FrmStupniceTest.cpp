#include "theory/ui/FrmStupnice.h"

#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/Vypis.h"
#include "theory/NotovaOsnova.h"
#include "theory/Tonina.h"
#include "theory/Toniny.h"
#include "theory/VolbaStupnice.h"

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

TEST_F(FrmStupniceTest, OffersTheKeysBesideEachOther) {
    otevri({});
    for (int i = 0; i < 15; ++i) {
        ASSERT_TRUE(opt(i)) << i;
        EXPECT_EQ(opt(i)->text(), toniny.at(static_cast<std::size_t>(i)).nazev);
        EXPECT_FALSE(opt(i)->icon().isNull());
        for (int j = 0; j < i; ++j)
            EXPECT_FALSE(opt(i)->geometry().intersects(opt(j)->geometry())) << i << ' ' << j;
    }
    EXPECT_TRUE(dialog->isModal());
}

TEST_F(FrmStupniceTest, EachEndLeavesItsKey) {
    dialogy.expect("Nápověda k výběru tóniny.", "v programu Tamík. Dále je toto určení");
    const struct {
        const char* pred;
        std::optional<int> volba; ///< option that the mouse chooses
        const char* konec;        ///< a button, or a key
        const char* potom;
        int znamenek; ///< of the staff, which had three
    } pripady[] = {
        {"Es dur", 6, "Enter", "Fis dur", 6},           {"Es dur", {}, "cmdOK", "Es dur", 3},
        {"Vyberte tóninu", {}, "cmdOK", "", 0},         {"G dur", 3, "Esc", "G dur", 3},
        {"G dur", 3, "cmdZrusit", "Vyberte tóninu", 0},
    };
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.konec);
        osnova.nastavStupnici(Key("A dur"), {});
        otevri(p.pred);
        if (p.volba) QTest::mouseClick(opt(*p.volba), Qt::LeftButton, {}, {8, opt(*p.volba)->height() / 2});
        if (dialogy.count == 0) stiskni("cmdHelp");
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(tonina.stupnice().text(), p.pred) << "nothing before the end";
        const QString konec = p.konec;
        konec.startsWith("cmd")
            ? stiskni(p.konec)
            : QTest::keyClick(dialog.get(), konec == "Enter" ? Qt::Key_Return : Qt::Key_Escape);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(tonina.stupnice().text(), p.potom);
        EXPECT_EQ(osnova.predznamenani().pocet(), p.znamenek);
    }
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
