#include "song/ui/PanelTextu.h"

#include "song/SongPanel.h"
#include "tests/theory/Vypis.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

class PanelTextuTest : public ::testing::Test {
protected:
    QLabel* label(const QString& jmeno) const { return widget.findChild<QLabel*>(jmeno); }
    void rozmer(double meritko) {
        QFont pismo = widget.font();
        pismo.setPixelSize(int(13 * meritko + 0.5));
        widget.setFont(pismo);
        widget.resize(int(247 * meritko), int(127 * meritko));
    }

    SongPanel panel;
    PanelTextu widget{panel};
};

TEST_F(PanelTextuTest, ShowsWhatThePanelSays) {
    panel.lblSlabika = {"Koč-", "ka", "le-", "ze", "dí-"};
    panel.lblTony = QStringLiteral("c1, e1,");
    panel.lblBasy = QStringLiteral("C");
    panel.lblStupnice = QStringLiteral("C dur");
    panel.lblStrana = QStringLiteral("zapsáno na tlak");
    panel.popisyViditelne = true;
    panel.oznamZmenu();
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(label(QStringLiteral("lblSlabika(%1)").arg(i))->text(), panel.lblSlabika[std::size_t(i)]);
    const std::pair<const char*, QString> popisky[]{
        {"lblTony", "c1, e1,"},           {"lblBasy", "C"},          {"lblStupnice", "C dur"},
        {"lblStrana", "zapsáno na tlak"}, {"lblPopisD", "Diskant:"}, {"lblPopisB", "Basy:"}};
    for (const auto& [jmeno, text] : popisky) {
        EXPECT_EQ(label(jmeno)->text(), text) << jmeno;
        EXPECT_FALSE(label(jmeno)->isHidden()) << jmeno;
    }
    panel.popisyViditelne = false;
    panel.oznamZmenu();
    EXPECT_TRUE(label("lblPopisD")->isHidden());
    EXPECT_TRUE(label("lblPopisB")->isHidden());
}

TEST_F(PanelTextuTest, ATextIsCutOnlyWhereItCannotFitAndThenStandsInTheToolTip) {
    rozmer(1);
    widget.show();
    panel.lblTony = QStringLiteral("cis1, dis1, fis1, gis1, ais1, cis2, dis2,");
    panel.lblSlabika[2] = QStringLiteral("Koč-");
    panel.lblSlabika[1] = QStringLiteral("nejneobhospodařovávatelnějšími");
    panel.oznamZmenu();
    EXPECT_EQ(label("lblTony")->toolTip(), QString());
    EXPECT_EQ(label("lblSlabika(2)")->toolTip(), QString());
    EXPECT_EQ(label("lblSlabika(1)")->toolTip(), panel.lblSlabika[1]);
    EXPECT_EQ(label("lblSlabika(1)")->text(), panel.lblSlabika[1]);
}

TEST_F(PanelTextuTest, LabelsStayInsideAndApartAtEverySize) {
    for (const double meritko : {0.8, 1.0, 2.0}) {
        rozmer(meritko);
        widget.show();
        const auto popisky = widget.findChildren<QLabel*>();
        ASSERT_EQ(popisky.size(), 11);
        for (const QLabel* a : popisky) {
            EXPECT_TRUE(widget.rect().contains(a->geometry())) << a->objectName().toStdString();
            for (const QLabel* b : popisky)
                EXPECT_TRUE(a == b || !a->geometry().intersects(b->geometry()))
                    << a->objectName().toStdString() << ' ' << b->objectName().toStdString();
        }
    }
}

} // namespace
} // namespace zvonika
