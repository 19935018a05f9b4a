// Presses and keys as they come from the window system.

#include "tests/board/ui/Sestava.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>
#include <ostream>

using namespace zvonika;

namespace {

class Stisk : public ::testing::Test {
protected:
    void SetUp() override {
        s.scena.show();
        s.scena.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&s.scena));
    }

    QWindow* okno() { return s.scena.windowHandle(); }
    QPoint stred(const char* jmeno) {
        QWidget* prvek = s.prvek(jmeno);
        return prvek->mapTo(&s.scena, prvek->rect().center());
    }
    void klikni(const char* jmeno, Qt::MouseButton tlacitko = Qt::LeftButton) {
        QTest::mouseClick(okno(), tlacitko, {}, stred(jmeno));
    }
    void stiskni(int klavesa, Qt::KeyboardModifiers s_cim = {}) {
        QTest::keyClick(okno(), static_cast<Qt::Key>(klavesa), s_cim);
    }
    std::string zamereny() { return QApplication::focusWidget()->objectName().toStdString(); }

    Sestava s;
};

struct Prvek {
    const char* jmeno;
    int cislo;
    bool bas;
    friend std::ostream& operator<<(std::ostream& out, const Prvek& prvek) { return out << prvek.jmeno; }
};

TEST_F(Stisk, naOtocenemHmatnikuJeKazdyKnoflikPodRukou) {
    s.diskant.otoc();
    const Nastroj& nastroj = s.diskant.nastroj();
    for (int n = 1; n <= nastroj.pocetKnofliku(); ++n) {
        QVector<Poloha> mista{nastroj.knoflik(n).hlavni.otocena};
        if (const auto& pomocny = nastroj.knoflik(n).pomocny) mista << pomocny->otocena;
        s.kliky.clear();
        for (const Poloha& p : mista)
            QTest::mouseClick(okno(), Qt::LeftButton, {}, QPoint(p.left + 300, p.top + 285) / 15);
        EXPECT_EQ(s.kliky, QVector<int>(mista.size(), n));
    }
}

TEST_F(Stisk, kazdyPrvekSeStiskneJednouZeVsechStran) {
    const Prvek prvky[] = {{"lbl(1)", 1, false},          {"lbl(28)", 28, false},
                           {"lblSynchro(4)", 4, false},   {"cmdKlavesa(5)", 5, false},
                           {"cmdKlavesa(49)", 49, false}, {"ImgBas(1)", 1, true},
                           {"ImgBas(120)", 120, true}};
    for (const auto& [jmeno, cislo, bas] : prvky) {
        SCOPED_TRACE(jmeno);
        QVector<int>& kliky = bas ? s.klikyBasu : s.kliky;
        const auto ocekavej = [&, cislo = cislo](int kolik, const char* ceho) {
            EXPECT_EQ(kliky, QVector<int>(kolik, cislo)) << ceho;
            kliky.clear();
        };
        klikni(jmeno);
        klikni(jmeno);
        klikni(jmeno, Qt::RightButton);
        EXPECT_TRUE(s.dvojkliky.isEmpty());
        ocekavej(2, "presses of the left button");
        QTest::mouseDClick(okno(), Qt::LeftButton, {}, stred(jmeno));
        ocekavej(s.dvojkliky.isEmpty() ? 2 : 1,
                 "double click: a quick second one is a click, or the finger's");
        EXPECT_EQ(s.dvojkliky.isEmpty(), !QString(jmeno).startsWith("lbl"));
        s.dvojkliky.clear();
        s.prvek(jmeno)->setFocus();
        stiskni(Qt::Key_Space);
        stiskni(Qt::Key_Return);
        QKeyEvent drzeny(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
        QApplication::sendEvent(s.prvek(jmeno), &drzeny);
        ocekavej(2, "keys; a held one repeats nothing");
        QAccessibleInterface* pristup = QAccessible::queryAccessibleInterface(s.prvek(jmeno));
        ASSERT_TRUE(pristup && pristup->actionInterface());
        pristup->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        ocekavej(1, "assistive technology");
    }
}

TEST_F(Stisk, dvojklikAF2OteviraPrstoklad) {
    QTest::mouseDClick(okno(), Qt::LeftButton, {}, stred("lbl(12)"));
    QTest::mouseDClick(okno(), Qt::LeftButton, {}, stred("lblSynchro(14)"));
    stiskni(Qt::Key_F2);
    stiskni(Qt::Key_F2, Qt::ShiftModifier); // takes a finger back
    const QVector<std::pair<int, bool>> cekane{{12, false}, {14, true}, {14, true}};
    EXPECT_EQ(s.dvojkliky, cekane);
    EXPECT_EQ(s.kliky, (QVector<int>{12, 14})) << "the first press of each is a click, F2 is none";
}

TEST_F(Stisk, zabranaNepolykaKliky) {
    for (int r = 1; r <= 5; ++r) {
        const auto jmeno = QStringLiteral("cmdZabrana(%1)").arg(r);
        QWidget* zabrana = s.scena.findChild<QWidget*>(jmeno);
        EXPECT_FALSE(zabrana->isVisible());
        s.diskant.nastavZabranu(r, true);
        EXPECT_TRUE(zabrana->isVisible());
    }
    const std::pair<const char*, int> podZabranou[] = {
        {"lblSynchro(7)", 5}, {"lbl(2)", 4}, {"lbl(48)", 3}, {"lbl(49)", 2}, {"lblSynchro(47)", 1}};
    for (const auto& [jmeno, r] : podZabranou) {
        QWidget* zabrana = s.scena.findChild<QWidget*>(QStringLiteral("cmdZabrana(%1)").arg(r));
        EXPECT_TRUE(zabrana->geometry().contains(stred(jmeno))) << jmeno;
        klikni(jmeno);
    }
    EXPECT_EQ(s.kliky, (QVector<int>{7, 2, 48, 49, 47}));
}

struct Krok {
    const char* odkud;
    int klavesa;
    const char* kam;
};

TEST_F(Stisk, sipkyChodiPoSousedech) {
    const Krok kroky[] = {
        {"lbl(20)", Qt::Key_Up, "lbl(23)"},
        {"lbl(20)", Qt::Key_Down, "lbl(17)"},
        {"lbl(20)", Qt::Key_Left, "lblSynchro(19)"},
        {"lbl(20)", Qt::Key_Right, "lbl(18)"},
        {"lblSynchro(2)", Qt::Key_Right, "lblSynchro(2)"},
        {"lbl(1)", Qt::Key_Down, "lbl(1)"},
        {"cmdKlavesa(9)", Qt::Key_Up, "cmdKlavesa(10)"},
        {"cmdKlavesa(9)", Qt::Key_Left, "cmdKlavesa(8)"},
        {"cmdKlavesa(9)", Qt::Key_End, "cmdKlavesa(49)"},
        {"cmdKlavesa(49)", Qt::Key_Right, "cmdKlavesa(49)"},
        {"ImgBas(30)", Qt::Key_Up, "ImgBas(31)"},
        {"ImgBas(30)", Qt::Key_Left, "ImgBas(10)"},
        {"ImgBas(30)", Qt::Key_Right, "ImgBas(50)"},
        {"ImgBas(40)", Qt::Key_Up, "ImgBas(40)"},
        {"ImgBas(10)", Qt::Key_Left, "ImgBas(10)"},
    };
    for (const Krok& krok : kroky) {
        s.prvek(krok.odkud)->setFocus();
        stiskni(krok.klavesa);
        EXPECT_EQ(zamereny(), krok.kam) << krok.odkud;
    }
}

TEST_F(Stisk, kazdaSkupinaJeJednaZastavkaTabulatoru) {
    const auto zastavky = [this] {
        QStringList jmena;
        for (const QWidget* prvek : s.scena.findChildren<QWidget*>())
            if (prvek->focusPolicy() & Qt::TabFocus) jmena << prvek->objectName();
        return jmena.join(u' ').toStdString();
    };
    EXPECT_EQ(zastavky(), "ImgBas(30) lbl(9) cmdKlavesa(9)");
    klikni("lblSynchro(40)");
    s.prvek("ImgBas(26)")->setFocus();
    EXPECT_EQ(zastavky(), "ImgBas(26) lblSynchro(40) cmdKlavesa(9)");
    stiskni(Qt::Key_Tab);
    EXPECT_EQ(zamereny(), "lblSynchro(40)");
    stiskni(Qt::Key_Tab);
    EXPECT_EQ(zamereny(), "cmdKlavesa(9)");
    stiskni(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(zamereny(), "lblSynchro(40)");
}

} // namespace
