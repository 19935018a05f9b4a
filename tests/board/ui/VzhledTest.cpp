// What the parts show of the models, and that it can be told apart and read.

#include "board/ui/KnoflikDiskantu.h"
#include "board/ui/KresbaPrvku.h"
#include "board/ui/Napis.h"
#include "tests/board/ui/Sestava.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMap>
#include <QPainter>

#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>

using namespace zvonika;

namespace {

QString pristupne(Sestava& s, const char* jmeno) {
    const QWidget* prvek = s.prvek(jmeno);
    return prvek->accessibleName() + QStringLiteral(": ") + prvek->accessibleDescription();
}

bool zaskrtnuty(Sestava& s, const char* jmeno) {
    return QAccessible::queryAccessibleInterface(s.prvek(jmeno))->state().checked;
}

TEST(Vzhled, jmenaAStavyProPomocneTechnologie) {
    Sestava s;
    EXPECT_EQ(pristupne(s, "lbl(12)"), QStringLiteral("Knoflík 12, dis1: volný"));
    EXPECT_EQ(pristupne(s, "lblSynchro(49)"), QStringLiteral("Pomocný knoflík 49, e4: volný"));
    EXPECT_EQ(pristupne(s, "cmdKlavesa(1)"), QStringLiteral("Klávesa 1, e: volný"));
    EXPECT_EQ(pristupne(s, "ImgBas(30)"), QStringLiteral("Bas 30, C: volný"));
    EXPECT_EQ(s.prvek("lbl(12)")->toolTip(), QStringLiteral("dis1"));

    const std::pair<std::function<void()>, const char*> stavy[] = {
        {[&] { s.diskant.ukazHmat(13, StavKnofliku::Tah); }, "tah"},
        {[&] { s.diskant.ukazHmat(13, StavKnofliku::Tlak); }, "tlak"},
        {[&] { s.diskant.ukazInterval(13); }, "interval"},
        {[&] { s.diskant.odeberHmat(); }, "volný"},
        {[&] { s.diskant.nastavZnacku(13, true); }, "označený"},
        {[&] { s.diskant.ukazHmat(13, StavKnofliku::Tah); }, "tah, označený"}};
    for (const auto& [zmen, slovo] : stavy) {
        zmen();
        for (const char* jmeno : {"lbl(13)", "lblSynchro(13)"}) {
            EXPECT_TRUE(pristupne(s, jmeno).endsWith(QStringLiteral(": ") + QString::fromUtf8(slovo)))
                << slovo;
            EXPECT_EQ(zaskrtnuty(s, jmeno), s.diskant.oznacen(13)) << "a picture is no mark";
        }
    }

    s.basy.klik(26);
    s.diskant.nastavZnacku(28, true);
    EXPECT_TRUE(zaskrtnuty(s, "ImgBas(26)") && zaskrtnuty(s, "cmdKlavesa(28)"));
    s.basy.ukazHmat(26, StavBasu::Tlak);
    EXPECT_EQ(s.prvek("ImgBas(26)")->accessibleDescription(), QStringLiteral("tlak, označený"));
}

TEST(Vzhled, stlaceneOknoSeNakresliTaky) {
    for (const QSize velikost : {QSize(1, 1), QSize(9, 1), QSize(2, 2), QSize(3, 3)}) {
        PodobaPrvku podoba;
        podoba.tvar = TvarPrvku::Pilulka;
        podoba.hmat = HmatovaZnacka::Mriz;
        QImage platno(velikost, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&platno);
        nakresliKnoflik(painter, QRectF(QPointF(), velikost), podoba); // must come to an end
    }
}

TEST(Vzhled, vsechnyPrvkyJsouNaMiste) {
    Sestava s;
    QMap<QString, int> pocty;
    for (const QWidget* prvek : s.scena.findChildren<QWidget*>())
        ++pocty[prvek->objectName().section(u'(', 0, 0)];
    pocty.remove(QString());
    EXPECT_EQ(pocty, (QMap<QString, int>{{"lbl", 49},
                                         {"lblSynchro", 32},
                                         {"cmdKlavesa", 49},
                                         {"lblTonKlav", 49},
                                         {"lblCisKnofl", 32},
                                         {"cmdZabrana", 5},
                                         {"ImgBas", 120},
                                         {"lblRadaBasu", 6}}));
    EXPECT_EQ(s.prvek("lbl(1)")->geometry(), QRect(400, 648, 41, 41));
    EXPECT_EQ(s.prvek("cmdKlavesa(49)")->pos(), QPoint(648, 208));
    EXPECT_EQ(s.scena.childAt(s.prvek("cmdKlavesa(3)")->geometry().center()), s.prvek("cmdKlavesa(3)"))
        << "accidentals lie on top";
    const int bezne = s.prvek("lblCisKnofl(12)")->y();
    s.diskant.nastavObraceneCislovani(true);
    EXPECT_EQ(s.prvek("lblCisKnofl(12)")->y(), bezne - 136);
}

TEST(Vzhled, otocenyHmatnik) {
    Sestava s;
    const auto* zabrana = s.prvek("cmdZabrana(4)");
    const QRect predtim = zabrana->geometry();
    s.diskant.otoc();
    EXPECT_EQ(zabrana->geometry(), predtim.translated(0, -40)) << "row B stands one button higher";
    for (const char* knoflik : {"lbl(2)", "lbl(47)"})
        EXPECT_TRUE(zabrana->geometry().contains(s.prvek(knoflik)->geometry().center())) << knoflik;
}

TEST(Vzhled, otocenyHmatnikSePrectePodCisly) {
    Sestava s;
    const auto slovo = [&s] {
        QString pismena;
        for (int i = 31; i >= 0; --i) {
            const auto* cislo = s.prvek<QLabel>(qPrintable(QStringLiteral("lblCisKnofl(%1)").arg(i)));
            if (!cislo->isHidden()) pismena += cislo->text();
        }
        return pismena;
    };
    s.diskant.otoc();
    EXPECT_EQ(slovo(), QStringLiteral("otočeno"));
    EXPECT_LT(s.prvek("lblCisKnofl(12)")->y(), s.prvek("lblCisKnofl(6)")->y());
    s.diskant.nastavCislovani(true);
    EXPECT_EQ(slovo(), QStringLiteral("1234567887654321"
                                      "123otočeno654321"));
    s.diskant.nastavCislovani(false);
    EXPECT_EQ(slovo(), QString());
}

TEST(Vzhled, popisyATonyKlaves) {
    Sestava s;
    s.diskant.nastavPopis(5, QStringLiteral("3\r\n2\r\ngis,"));
    EXPECT_EQ(s.prvek<KnoflikDiskantu>("lbl(5)")->popis(), QStringLiteral("3\r\n2\r\ngis,"));
    s.diskant.nastavTonKlavesy(5, QStringLiteral("gis,"));
    EXPECT_EQ(s.prvek<QLabel>("lblTonKlav(5)")->text(), QStringLiteral("gis,"));
}

TEST(Vzhled, zmenaPrekresliJenSvujPrvek) {
    Sestava s;
    s.scena.show();
    QApplication::processEvents();
    struct Pocitadlo : QObject {
        bool eventFilter(QObject* kdo, QEvent* co) override {
            if (co->type() == QEvent::Paint) kresleni << kdo->objectName();
            return false;
        }
        QStringList kresleni;
    } pocitadlo;
    for (QWidget* prvek : s.scena.findChildren<QWidget*>())
        prvek->installEventFilter(&pocitadlo);
    s.diskant.ukazHmat(18, StavKnofliku::Tah);
    QApplication::processEvents();
    EXPECT_TRUE(pocitadlo.kresleni.contains(QStringLiteral("lbl(18)")));
    EXPECT_LE(pocitadlo.kresleni.size(), 10)
        << "itself, the wood and the neighbours whose corners it overlaps";
    pocitadlo.kresleni.clear();
    s.diskant.ukazHmat(18, StavKnofliku::Tah);
    s.basy.uvolniBasy();
    QApplication::processEvents();
    EXPECT_TRUE(pocitadlo.kresleni.isEmpty()) << pocitadlo.kresleni.join(u' ').toStdString();
}

QImage obraz(VyznamPrvku vyznam, bool tmavy, bool popsany, TvarPrvku tvar) {
    PodobaPrvku podoba;
    podoba.tvar = tvar;
    podoba.vyznam = vyznam;
    podoba.tmavy = tmavy;
    podoba.popsany = popsany;
    QImage plocha(tvar == TvarPrvku::Kolo ? QSize(34, 34) : QSize(34, 17),
                  QImage::Format_ARGB32_Premultiplied);
    plocha.fill(QColor(112, 74, 48));
    QPainter painter(&plocha);
    nakresliKnoflik(painter, QRectF(plocha.rect()), podoba);
    painter.end();
    return plocha.convertToFormat(QImage::Format_Grayscale8);
}

/// Share of the pixels that differ clearly in lightness alone.
double rozdil(const QImage& a, const QImage& b) {
    int ruznych = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            ruznych += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) > 60;
    return double(ruznych) / (a.width() * a.height());
}

TEST(Vzhled, oznacenaKlavesaJeCisteCervenaAJejiZnakJeVidetIBezBarvy) {
    for (const TvarPrvku tvar : {TvarPrvku::BilaKlavesa, TvarPrvku::CernaKlavesa})
        for (const QSize velikost : {QSize(93, 15), QSize(58, 12), QSize(116, 24)}) {
            QImage plocha(velikost, QImage::Format_RGB32);
            QPainter painter(&plocha);
            nakresliKlavesu(painter, plocha.rect(), {.tvar = tvar, .vyznam = VyznamPrvku::Oznaceny});
            painter.end();
            int cervenych = 0, bilych = 0;
            for (int bod = 0; bod < velikost.width() * velikost.height(); ++bod) {
                const QRgb barva = plocha.pixel(bod % velikost.width(), bod / velikost.width());
                cervenych += barva == qRgb(255, 0, 0);
                bilych += qGray(barva) > 220; // on a face whose grey is 88
            }
            EXPECT_GT(cervenych, velikost.width() * velikost.height() * 2 / 5) << int(tvar);
            EXPECT_GT(bilych, velikost.height() * velikost.height() / 16) << int(tvar);
        }
}

TEST(Vzhled, stavySeLisiIBezBarev) {
    constexpr VyznamPrvku vyznamy[] = {VyznamPrvku::Volny, VyznamPrvku::Oznaceny, VyznamPrvku::Tah,
                                       VyznamPrvku::Tlak, VyznamPrvku::Interval};
    for (const TvarPrvku tvar : {TvarPrvku::Kolo, TvarPrvku::Pilulka})
        for (const bool popsany : {false, true})
            for (const bool tmavy : {false, true})
                for (const VyznamPrvku a : vyznamy)
                    for (const VyznamPrvku b : vyznamy)
                        if (a < b) {
                            EXPECT_GT(rozdil(obraz(a, tmavy, popsany, tvar), obraz(b, tmavy, popsany, tvar)),
                                      0.03)
                                << int(a) << " " << int(b) << (tmavy ? " tmavy" : "")
                                << (popsany ? " popsany" : "");
                        }
    for (const VyznamPrvku smer : {VyznamPrvku::Tah, VyznamPrvku::Tlak}) {
        const QImage sipka = obraz(smer, false, true, TvarPrvku::Kolo);
        EXPECT_GT(rozdil(sipka, sipka.mirrored(true, false)), 0.03) << "arrows point to a side";
    }
}

TEST(Napis, jeVzdyCelyVeSvemMiste) {
    const QSize mista[] = {{27, 11}, {28, 13}, {34, 16}, {24, 14}, {60, 26}};
    for (const QSize& velikost : mista)
        for (const char* text : {"cis1,", "gis3,", "Heses", "fisis2,", "3\r\ngis1,"}) {
            QImage plocha(velikost + QSize(40, 40), QImage::Format_ARGB32_Premultiplied);
            plocha.fill(Qt::transparent);
            const QRect misto(QPoint(20, 20), velikost);
            QPainter painter(&plocha);
            Napis napis;
            napis.nastav(QString::fromUtf8(text));
            QFont pismo = QApplication::font();
            pismo.setBold(true);
            napis.kresli(painter, misto, pismo, Qt::black);
            painter.end();
            int venku = 0, uvnitr = 0;
            for (int y = 0; y < plocha.height(); ++y)
                for (int x = 0; x < plocha.width(); ++x)
                    if (qAlpha(plocha.pixel(x, y)) > 128) ++(misto.contains(x, y) ? uvnitr : venku);
            EXPECT_GT(uvnitr, 10) << text;
            EXPECT_EQ(venku, 0) << text << " in " << velikost.width() << "x" << velikost.height() << " at "
                                << napis.velikostPisma() << " px";
        }
}

} // namespace
