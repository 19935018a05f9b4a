#include "tests/theory/Vypis.h"
#include "theory/Toniny.h"
#include "theory/ui/MirkaOsnovy.h"
#include "theory/ui/ObrazPredznamenani.h"
#include "theory/ui/PolohaNazvu.h"
#include "theory/ui/RozvrzeniAkordu.h"
#include "theory/ui/Znacky.h"

#include <QImage>

#include <cmath>
#include <gtest/gtest.h>

namespace zvonika {
namespace {

TEST(PolohaNazvu, PlacesEverySpellingOfTheBoardAndSkipsForeignText) {
    const QString polohy =
        "e,=120 cis1,=k420 es1,=b540 b1,=b780 h,=360 b,=b360 his,=k360 ces1,=b420 as2,=b1140 "
        "e4,=1800 fes4,=b1860 e= e1= = ,= 1,= Nenalezeno= cisis1,= c5,= d,= h4,= E1,= "
        "SUM(A1),=";
    for (const QString& poloha : polohy.split(' '))
        EXPECT_EQ(polohaNazvu(ToneName(poloha.section('=', 0, 0))),
                  PolohaNoty::zTextu(poloha.section('=', 1)))
            << qPrintable(poloha);
    const QVector<PolohaNoty> ocekavane{
        {Znamenko::Zadne, 420}, {Znamenko::Krizek, 420}, {Znamenko::Zadne, 120}};
    EXPECT_EQ(polohyNazvu({"c1,", "nic", "cis1,", "c1,", "e,"}), ocekavane) << "each place once, in order";
}

TEST(MirkaOsnovy, TheWholeRangeFitsOnWholeDevicePixelsAtEverySize) {
    for (const double dpr : {1.0, 1.25, 2.0, 3.0})
        for (const double vyska : {90.0, 124.0, 140.0, 281.5, 420.0}) {
            const QRectF pole(0, 11, 500, vyska);
            const auto mirka = MirkaOsnovy::proPole(pole, 1000, dpr);
            const double pulHlavicky = mirka.mezera * 0.45;
            EXPECT_GE(mirka.y(MirkaOsnovy::nejvyssi) - pulHlavicky, pole.top() - 1) << vyska << ' ' << dpr;
            EXPECT_LE(mirka.y(MirkaOsnovy::nejnizsi) + pulHlavicky, pole.bottom() + 1) << vyska << ' ' << dpr;
            EXPECT_GT((mirka.mezera * dpr + 1) * MirkaOsnovy::vyskaRozsahu, vyska * dpr) << "could be larger";
            EXPECT_NEAR(std::remainder(mirka.y(MirkaOsnovy::f2) * dpr, 1), 0, 1e-6);
            for (int jednotky = MirkaOsnovy::nejnizsi; jednotky <= MirkaOsnovy::nejvyssi; jednotky += 60)
                EXPECT_EQ(mirka.jednotky(mirka.y(jednotky) + mirka.mezera * 0.2), jednotky);
        }
    EXPECT_EQ(MirkaOsnovy::proPole({0, 0, 100, 1000}, 7.9, 1).mezera, 7);
    EXPECT_EQ((MirkaOsnovy{8, 100}.jednotky(-1e6)), MirkaOsnovy::nejvyssi);
    EXPECT_EQ((MirkaOsnovy{8, 100}.jednotky(1e6)), MirkaOsnovy::nejnizsi);
}

QRectF mistoHlavicky(const MistoNoty& nota) {
    return {nota.hlavicka - 0.58, -nota.poloha.jednotky / 120.0 - 0.42, 1.16, 0.84};
}

QRectF mistoZnamenka(const MistoNoty& nota) {
    return rozmerZnamenka(nota.poloha.znamenko).translated(nota.znamenko, -nota.poloha.jednotky / 120.0);
}

TEST(RozvrzeniAkordu, NothingLiesOnAnythingElseAndNoRoomIsLost) {
    const std::pair<const char*, double> akordy[]{
        // with the most room that it may take
        {"c1,", 1.4},
        {"c1, e1, g1, c2,", 1.4},
        {"c1, d1,", 2.6},
        {"cis1, cis2,", 2.5},
        {"c1, d1, e1, f1, g1, a1, h1,", 99},
        {"c1, cis1, ces1, d1, dis1,", 99},
        {"cis1, dis1, fis1, gis1, ais1, cis2, dis2,", 99},
        {"b1, es2, as1, des2, ges1,", 99},
        {"e, fis2, g2, gis2, e4,", 99},
    };
    for (const auto& [nazvy, nejvyse] : akordy) {
        SCOPED_TRACE(nazvy);
        const QStringList tony = QString(nazvy).split(' ');
        const auto akord = rozvrhniAkord(polohyNazvu(tony));
        ASSERT_EQ(akord.noty.size(), tony.size());
        EXPECT_LE(akord.sirka(), nejvyse);
        QVector<QRectF> mista;
        for (const MistoNoty& nota : akord.noty) {
            mista.append(mistoHlavicky(nota));
            if (nota.poloha.znamenko != Znamenko::Zadne) mista.append(mistoZnamenka(nota));
        }
        for (qsizetype i = 0; i < mista.size(); ++i) {
            EXPECT_GE(mista[i].left(), akord.vlevo - 1e-9);
            EXPECT_LE(mista[i].right(), akord.vpravo + 1e-9);
            for (qsizetype j = 0; j < i; ++j)
                EXPECT_FALSE(mista[i].intersects(mista[j])) << i << " and " << j;
        }
    }
    EXPECT_EQ(rozvrhniAkord({}).sirka(), 0);
}

TEST(Znacky, SignsKeepTheSizesThatTheLayoutCountsWith) {
    const std::pair<Znamenko, const QPainterPath*> znacky[]{{Znamenko::Krizek, &znacky::krizek()},
                                                            {Znamenko::Becko, &znacky::becko()},
                                                            {Znamenko::Odrazka, &znacky::odrazka()}};
    for (const auto& [znamenko, cesta] : znacky) {
        const QRectF skutecny = cesta->boundingRect(), slibeny = rozmerZnamenka(znamenko);
        EXPECT_TRUE(slibeny.adjusted(-0.02, -0.02, 0.02, 0.02).contains(skutecny)) << int(znamenko);
        EXPECT_GT(skutecny.height(), slibeny.height() * 0.95) << int(znamenko);
    }
    EXPECT_NEAR(znacky::hlavicka().boundingRect().height(), 1, 0.08); // fills a space
    EXPECT_NEAR(znacky::houslovyKlic().boundingRect().height(), 7, 0.4);
}

TEST(Znacky, HollowPartsAreHollowAndStrokesAreNot) {
    EXPECT_FALSE(znacky::becko().contains(QPointF(0.4, -0.05)));
    EXPECT_TRUE(znacky::becko().contains(QPointF(0.8, -0.1)));
    EXPECT_FALSE(znacky::odrazka().contains(QPointF(0.35, 0)));
    EXPECT_FALSE(znacky::krizek().contains(QPointF(0.5, 0)));
    EXPECT_TRUE(znacky::krizek().contains(QPointF(0.32, 0.52)));
    EXPECT_FALSE(znacky::houslovyKlic().contains(QPointF(1.2, 0)));
    EXPECT_TRUE(znacky::houslovyKlic().contains(QPointF(0.2, 0.06)));
}

TEST(ObrazPredznamenani, EveryKeyLooksDifferent) {
    QVector<QImage> obrazy;
    for (const DurovaTonina& tonina : toniny) {
        const QImage obraz = obrazPredznamenani(Predznamenani(tonina.key()), {92, 41}, 2).toImage();
        EXPECT_EQ(obraz.size(), QSize(184, 82));
        EXPECT_FALSE(obrazy.contains(obraz)) << tonina.nazev.toUtf8().toStdString();
        obrazy.append(obraz);
    }
}

} // namespace
} // namespace zvonika
