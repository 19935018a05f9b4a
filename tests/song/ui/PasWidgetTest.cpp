#include "song/ui/PasWidget.h"

#include "tests/theory/Vypis.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

/// Remembers what a widget was asked to paint.
class HlidacKresleni : public QObject {
public:
    using QObject::QObject;
    QRegion kresleno;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) kresleno += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

class PasWidgetTest : public ::testing::Test {
protected:
    PasWidgetTest() {
        widget.resize(532, 195);
        widget.show();
        for (std::size_t i = 0; i < pas.pozice.size(); ++i)
            pas.pozice[i] = {QStringLiteral("s%1").arg(i + 1), {"g1,"}, SmerMechu::Tah};
        pas.viditelny = true;
        pas.prvniRadekPasu = 5;
        pas.oznamZmenu();
    }
    QLabel* slabika(int i) const {
        return widget.findChild<QLabel*>(QStringLiteral("lblSlabika2(%1)").arg(i));
    }
    QVector<int> cervene() {
        const QImage obraz = widget.grab().toImage();
        QVector<int> pozice;
        for (int i = 1; i <= delkaPasu; ++i)
            if (maCervenou(obraz.copy(widget.sloupec(i)))) pozice.append(i);
        return pozice;
    }
    static bool maCervenou(const QImage& obraz) {
        for (int y = 0; y < obraz.height(); ++y)
            for (int x = 0; x < obraz.width(); ++x)
                if (obraz.pixelColor(x, y) == QColor(255, 0, 0)) return true;
        return false;
    }

    Pas pas;
    PasWidget widget{pas};
};

TEST_F(PasWidgetTest, ShowsSyllablesAndReadsGripsAloud) {
    pas.pozice[0] = {QStringLiteral("ka"), {"g1,", "h1,"}, SmerMechu::Tlak};
    pas.pozice[1] = {};
    pas.oznamZmenu();
    EXPECT_EQ(slabika(1)->text(), QStringLiteral("ka"));
    EXPECT_EQ(slabika(16)->text(), QStringLiteral("s16"));
    EXPECT_EQ(slabika(1)->accessibleName(), QStringLiteral("Hmat 5: ka, g1 h1, tlak"));
    EXPECT_EQ(slabika(2)->accessibleName(), QStringLiteral("Hmat 6: prázdný"));
    EXPECT_EQ(widget.accessibleDescription(), slabika(1)->accessibleName());
}

TEST_F(PasWidgetTest, OnlyTheCurrentSyllableIsRed) {
    EXPECT_EQ(cervene(), QVector<int>{1});
    pas.poziceVPasu = 16;
    pas.oznamPosun();
    EXPECT_EQ(cervene(), QVector<int>{16});
    EXPECT_TRUE(widget.accessibleDescription().startsWith(QStringLiteral("Hmat 20:")));
    pas.viditelny = false;
    pas.oznamZmenu();
    EXPECT_EQ(cervene(), QVector<int>{});
    EXPECT_EQ(slabika(16)->text(), QString());
}

TEST_F(PasWidgetTest, AStepPaintsTwoColumnsAndDrawsNoNotes) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
    QApplication::processEvents();
    const int kresleni = widget.prekresleni();
    HlidacKresleni hlidac;
    widget.installEventFilter(&hlidac);
    pas.poziceVPasu = 2;
    pas.oznamPosun();
    QApplication::processEvents();
    EXPECT_FALSE(hlidac.kresleno.isEmpty());
    const QRegion dovoleno = QRegion(widget.sloupec(1)) + widget.sloupec(2);
    EXPECT_TRUE((hlidac.kresleno - dovoleno).isEmpty());
    EXPECT_EQ(widget.prekresleni(), kresleni);
    pas.oznamZmenu();
    widget.grab();
    EXPECT_EQ(widget.prekresleni(), kresleni + 1);
}

TEST_F(PasWidgetTest, NotesOfEachPositionLandInItsColumn) {
    const QImage predtim = widget.grab().toImage();
    pas.pozice[6].tony = QStringList{"cis1,", "d1,", "dis1,", "rubbish", "fis2,", "gis2,", "a2,"};
    pas.oznamZmenu();
    const QImage potom = widget.grab().toImage();
    for (int i = 1; i <= delkaPasu; ++i)
        EXPECT_EQ(predtim.copy(widget.sloupec(i)) != potom.copy(widget.sloupec(i)), i == 7) << i;
}

TEST_F(PasWidgetTest, AClickAnywhereInAColumnChoosesItsPosition) {
    QSignalSpy zvolena(&widget, &PasWidget::zvolenaPozice);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.sloupec(9).center());
    QTest::mouseClick(slabika(3), Qt::LeftButton);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(2, 90)); // the clef
    ASSERT_EQ(zvolena.size(), 2);
    EXPECT_EQ(zvolena[0][0].toInt(), 9);
    EXPECT_EQ(zvolena[1][0].toInt(), 3);
}

TEST_F(PasWidgetTest, ColumnsFillTheStripWithoutOverlapAndLongSyllablesAreCut) {
    pas.pozice[3].slabika = QStringLiteral("nejneobhospodařovávatelnějšími");
    pas.oznamZmenu();
    for (const int sirka : {380, 463, 532, 1064}) {
        widget.resize(sirka, sirka * 195 / 532);
        for (int i = 1; i <= delkaPasu; ++i) {
            EXPECT_TRUE(widget.sloupec(i).contains(slabika(i)->geometry())) << i;
            const int predchozi = i > 1 ? widget.sloupec(i - 1).right() + 1 : widget.sloupec(1).left();
            EXPECT_EQ(widget.sloupec(i).left(), predchozi);
        }
        EXPECT_LE(widget.sloupec(delkaPasu).right(), widget.width());
        EXPECT_EQ(slabika(4)->toolTip(), pas.pozice[3].slabika);
        EXPECT_EQ(slabika(5)->toolTip(), QString());
    }
}

} // namespace
} // namespace zvonika
