#include "song/ui/ZobrazovaciOsnovaWidget.h"

#include "song/ZobrazovaciOsnova.h"

#include <QImage>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

TEST(ZobrazovaciOsnovaWidget, ShowsEveryToneOfAGripAndIgnoresForeignText) {
    ZobrazovaciOsnova osnova;
    ZobrazovaciOsnovaWidget widget(osnova);
    widget.resize(109, 143);
    const QImage prazdna = widget.grab().toImage();
    osnova.ukaz({"c1,", "e1,", "g1,", "12", "b1,", "c2,", "e4,"});
    EXPECT_EQ(widget.akord().noty.size(), 6);
    EXPECT_EQ(widget.accessibleDescription(), QStringLiteral("c1 e1 g1 12 b1 c2 e4"));
    EXPECT_NE(widget.grab().toImage(), prazdna);
    osnova.vyprazdni();
    EXPECT_EQ(widget.grab().toImage(), prazdna);
}

TEST(ZobrazovaciOsnovaWidget, TheNoteOfAnIntervalStandsAmongTheOthersWithAHeadOfItsOwn) {
    ZobrazovaciOsnova osnova;
    ZobrazovaciOsnovaWidget widget(osnova);
    widget.resize(109, 143);
    osnova.ukaz({"c1,", "e1,", "g1,"});
    const QImage hmat = widget.grab().toImage();
    osnova.ukazInterval({"e1,", {Znamenko::Zadne, 540}});
    ASSERT_EQ(widget.akord().noty.size(), 4);
    const auto& noty = widget.akord().noty;
    EXPECT_TRUE(noty[2].interval);
    EXPECT_EQ(noty[2].poloha, noty[1].poloha);
    EXPECT_GT(noty[2].hlavicka, noty[1].hlavicka) << "beside the same note of the grip";
    EXPECT_EQ(widget.accessibleDescription(), QStringLiteral("c1 e1 g1 interval e1"));
    EXPECT_NE(widget.grab().toImage(), hmat);
    osnova.odeberInterval();
    EXPECT_EQ(widget.grab().toImage(), hmat);
    osnova.ukazInterval({"e1,", {Znamenko::Zadne, 540}});
    osnova.ukaz({"c1,", "e1,", "g1,"});
    EXPECT_EQ(widget.grab().toImage(), hmat);
}

TEST(ZobrazovaciOsnovaWidget, NothingIsClippedAtTheRim) {
    ZobrazovaciOsnova osnova;
    ZobrazovaciOsnovaWidget widget(osnova);
    osnova.ukaz({"cis1,", "dis1,", "fis1,", "gis1,", "ais1,", "e4,", "e,"});
    for (const double meritko : {0.87, 1.0, 2.0}) {
        widget.resize(int(109 * meritko), int(143 * meritko));
        const QImage obraz = widget.grab().toImage();
        for (int y = 0; y < obraz.height(); ++y)
            for (const int x : {0, obraz.width() - 1})
                EXPECT_GT(qGray(obraz.pixel(x, y)), 150) << meritko << ' ' << y;
        for (int x = 0; x < obraz.width(); ++x)
            for (const int y : {0, obraz.height() - 1})
                EXPECT_GT(qGray(obraz.pixel(x, y)), 150) << meritko << ' ' << x;
    }
}

} // namespace
} // namespace zvonika
