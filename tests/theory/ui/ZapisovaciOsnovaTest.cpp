#include "theory/ui/ZapisovaciOsnova.h"

#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/Vypis.h"
#include "theory/clsNotyZapis.h"

#include <QAbstractButton>
#include <QImage>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

namespace zvonika {
namespace {

class ZapisovaciOsnovaTest : public ::testing::Test {
protected:
    ZapisovaciOsnovaTest() {
        widget.resize(464, 306);
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&widget)); // the focus ring is in all pictures
        QObject::connect(&widget, &ZapisovaciOsnova::notaVlozena,
                         [this](int slot) { udalosti << '+' + QString::number(slot); });
        zaznamenej(&ZapisovaciOsnova::notaPosunuta, "~");
        zaznamenej(&ZapisovaciOsnova::znamenkoZmeneno, "#");
        zaznamenej(&ZapisovaciOsnova::notaOdebrana, "-");
        QObject::connect(&widget, &ZapisovaciOsnova::odmitnuto,
                         [this](const QString& duvod) { udalosti << duvod; });
    }
    template <typename Signal>
    void zaznamenej(Signal signal, const char* znak) {
        QObject::connect(&widget, signal, [this, znak](int slot, CisloTonu puvodni) {
            udalosti << QStringLiteral("%1%2 bylo %3").arg(znak).arg(slot).arg(puvodni.hodnota());
        });
    }

    QPoint bod(int slot, int jednotky) const {
        return QPoint(int(widget.mista().slot(slot).center().x()), int(widget.mista().mirka.y(jednotky)));
    }
    void klepni(int slot, int jednotky, Qt::MouseButton tlacitko = Qt::LeftButton) {
        QTest::mouseClick(&widget, tlacitko, {}, bod(slot, jednotky));
    }
    void tahni(int slot, int odkud, int kam) {
        QTest::mousePress(&widget, Qt::LeftButton, {}, bod(slot, odkud));
        QTest::mouseMove(&widget, bod(slot, (odkud + kam) / 2));
        QTest::mouseMove(&widget, bod(slot, kam));
    }
    void pust(int slot, int jednotky) {
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, bod(slot, jednotky));
    }
    void zvol(const char* jmeno) {
        QTest::mouseClick(widget.findChild<QAbstractButton*>(QLatin1String(jmeno)), Qt::LeftButton);
    }
    /// "c1 fis1 - - -"
    QString obsah() const { return obsah(osnova, zapis); }
    static QString obsah(const NotovaOsnova& osnova, const clsNotyZapis& zapis) {
        QStringList nazvy;
        for (int slot = 0; slot < NotovaOsnova::pocetNot; ++slot)
            nazvy << (osnova.nota(slot) ? zapis.ctenyNazev(slot).text().chopped(1) : QStringLiteral("-"));
        return nazvy.join(u' ');
    }
    bool jeCervena() {
        const QImage obraz = widget.grab().toImage();
        for (int y = 0; y < obraz.height(); ++y)
            for (int x = 0; x < obraz.width(); ++x)
                if (const QColor barva = obraz.pixelColor(x, y); barva.red() > 180 && barva.green() < 60)
                    return true;
        return false;
    }

    testing::ScriptedDialogs dialogy;
    NotovaOsnova osnova;
    clsNotyZapis zapis{osnova, dialogy};
    ZapisovaciOsnova widget{osnova, zapis};
    QStringList udalosti;
};

TEST_F(ZapisovaciOsnovaTest, AClickPutsANoteOnTheNearestPlaceIntoTheNextFreeSlot) {
    const int presah = int(widget.mista().mirka.mezera * 0.2);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, bod(3, 420) + QPoint(0, presah));
    QTest::mouseClick(&widget, Qt::LeftButton, {}, bod(3, 1800) - QPoint(0, presah));
    klepni(0, 120);
    EXPECT_EQ(obsah(), QStringLiteral("c1 e4 e - -"));
    EXPECT_EQ(udalosti, (QStringList{"+0", "+1", "+2"}));
    klepni(1, 1800, Qt::RightButton);
    klepni(4, 660);
    EXPECT_EQ(obsah(), QStringLiteral("c1 g1 e - -"));
    EXPECT_EQ(osnova.vybranySlot(), 1);
    klepni(0, 540);
    EXPECT_EQ(obsah(), QStringLiteral("c1 g1 e e1 -")) << "above the first note, not on it";
    udalosti.clear();
    klepni(0, 420);
    EXPECT_EQ(osnova.vybranySlot(), 0) << "on its head";
    EXPECT_TRUE(udalosti.isEmpty());
}

TEST_F(ZapisovaciOsnovaTest, WhatCannotBePutIsRefusedWithAReason) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(int(widget.mista().klic) + 3, bod(0, 660).y()));
    EXPECT_EQ(obsah(), QStringLiteral("- - - - -")) << "a click on the clef";
    EXPECT_TRUE(udalosti.isEmpty());
    klepni(4, MirkaOsnovy::nejvyssi);
    EXPECT_EQ(udalosti.takeLast(), QStringLiteral("Tento tón nástroj nemá."));
    klepni(4, 660);
    klepni(4, 660);
    EXPECT_EQ(udalosti.takeLast(), QStringLiteral("Tento tón už na osnově stojí."));
    for (const int jednotky : {720, 780, 840, 900})
        klepni(4, jednotky);
    udalosti.clear();
    klepni(0, 1080);
    EXPECT_EQ(udalosti, QStringList{QStringLiteral("Na osnovu se vejde pět not.")});
    EXPECT_EQ(obsah(), QStringLiteral("g1 a1 h1 c2 d2"));
}

TEST_F(ZapisovaciOsnovaTest, ADragMovesANoteAtItsEndAndTheRightButtonRemovesIt) {
    klepni(0, 660);
    klepni(4, 900);
    udalosti.clear();
    tahni(0, 660, 1020);
    EXPECT_EQ(obsah(), QStringLiteral("g1 d2 - - -"));
    QTest::keyClick(&widget, Qt::Key_Escape);
    pust(0, 1020);
    EXPECT_TRUE(udalosti.isEmpty()) << "Escape ends the drag where it began";
    tahni(0, 660, 900);
    pust(0, 900);
    tahni(0, 660, 780);
    pust(0, 780);
    EXPECT_EQ(obsah(), QStringLiteral("h1 d2 - - -"));
    klepni(0, 1200, Qt::RightButton);
    klepni(3, 780, Qt::RightButton);
    EXPECT_EQ(obsah(), QStringLiteral("- d2 - - -")) << "what stands in the column goes";
    EXPECT_EQ(udalosti, (QStringList{"Tento tón už na osnově stojí.", "~0 bylo 16", "-0 bylo 20"}));
}

TEST_F(ZapisovaciOsnovaTest, SignsOfThePaletteArePutOnTheClickedNoteAndTakenAgain) {
    zapis.NastavStupnici(Key(QStringLiteral("G dur")));
    klepni(0, 600);
    EXPECT_EQ(obsah(), QStringLiteral("fis1 - - - -")) << "the signature governs a plain note";
    udalosti.clear();
    for (const auto& [znacka, potom] : {std::pair("picOdrazka", "f1 - - - -"),
                                        {"picBecko", "fes1 - - - -"},
                                        {"picKrizek", "fis1 - - - -"},
                                        {"picOdrazka", "f1 - - - -"}}) {
        zvol(znacka);
        klepni(0, 600);
        EXPECT_EQ(obsah(), potom) << znacka;
    }
    klepni(0, 600);
    EXPECT_EQ(obsah(), QStringLiteral("fis1 - - - -")) << "the same sign again is taken away";
    EXPECT_EQ(udalosti.first(), QStringLiteral("#0 bylo 15"));
    EXPECT_EQ(udalosti.size(), 5);
    klepni(3, 900);
    EXPECT_EQ(udalosti.takeLast(), QStringLiteral("Znaménko patří k notě: klepněte na notu."));
    zvol("picNota");
    klepni(3, 900);
    EXPECT_EQ(obsah(), QStringLiteral("fis1 d2 - - -"));
}

TEST_F(ZapisovaciOsnovaTest, EverythingCanBeDoneFromTheKeyboard) {
    struct Pripad {
        const char* postup;
        QVector<int> klavesy;
        const char* obsah;
    };
    const Pripad pripady[]{
        {"add, next tone upwards where taken",
         {Qt::Key_Return, Qt::Key_Insert, Qt::Key_Enter},
         "g1 a1 h1 - -"},
        {"move the selected", {Qt::Key_Insert, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down}, "a1 - - - -"},
        {"step over a tone that is there", {Qt::Key_Insert, Qt::Key_Insert, Qt::Key_Down}, "g1 f1 - - -"},
        {"select and remove", {Qt::Key_Insert, Qt::Key_Insert, Qt::Key_Left, Qt::Key_Delete}, "- a1 - - -"},
        {"select over a gap",
         {Qt::Key_Insert, Qt::Key_Insert, Qt::Key_Insert, Qt::Key_Left, Qt::Key_Delete, Qt::Key_Right,
          Qt::Key_Right, Qt::Key_Up},
         "g1 - c2 - -"},
        {"signs", {Qt::Key_Insert, '#', Qt::Key_Insert, Qt::Key_Up, 'b'}, "gis1 b1 - - -"},
        {"no second spelling of a tone", {Qt::Key_Insert, '#', Qt::Key_Insert, 'B'}, "gis1 a1 - - -"},
        {"signs of the number block", {Qt::Key_Insert, '+', '+', '-', Qt::Key_Insert, '0'}, "ges1 a1 - - -"},
    };
    for (const Pripad& pripad : pripady) {
        NotovaOsnova sama;
        clsNotyZapis jejiZapis(sama, dialogy);
        ZapisovaciOsnova jeji(sama, jejiZapis);
        for (const int klavesa : pripad.klavesy) {
            klavesa < 0x80 ? QTest::keyClick(&jeji, char(klavesa)) : QTest::keyClick(&jeji, Qt::Key(klavesa));
        }
        EXPECT_EQ(obsah(sama, jejiZapis), QLatin1String(pripad.obsah)) << pripad.postup;
    }
}

TEST_F(ZapisovaciOsnovaTest, ItsOwnKeysComeBeforeShortcutsOfTheWindow) {
    const auto prevezme = [this](int klavesa, const QString& text, Qt::KeyboardModifiers s = {}) {
        QKeyEvent udalost(QEvent::ShortcutOverride, klavesa, s, text);
        udalost.ignore();
        QApplication::sendEvent(&widget, &udalost);
        return udalost.isAccepted();
    };
    EXPECT_TRUE(prevezme(Qt::Key_Delete, {}));
    EXPECT_TRUE(prevezme(Qt::Key_B, QStringLiteral("b")));
    EXPECT_FALSE(prevezme(Qt::Key_PageDown, {}));
    EXPECT_FALSE(prevezme(Qt::Key_B, QStringLiteral("b"), Qt::ControlModifier));
}

TEST_F(ZapisovaciOsnovaTest, HoveringShowsANoteThatIsNotThere) {
    const QImage predtim = widget.grab().toImage();
    const QPoint misto = bod(2, 900); // the pointer itself stays: it is not over every window that is tested
    QMouseEvent pohyb(QEvent::MouseMove, misto, widget.mapToGlobal(misto), Qt::NoButton, {}, {});
    QApplication::sendEvent(&widget, &pohyb);
    const QImage nad = widget.grab().toImage();
    EXPECT_NE(nad, predtim);
    const QRect slot0 = widget.mista().slot(0).toAlignedRect();
    EXPECT_NE(nad.copy(slot0), predtim.copy(slot0)) << "the ghost stands where the note would go";
    EXPECT_EQ(obsah(), QStringLiteral("- - - - -"));
    QEvent odchod(QEvent::Leave);
    QApplication::sendEvent(&widget, &odchod);
    EXPECT_EQ(widget.grab().toImage(), predtim);
}

TEST_F(ZapisovaciOsnovaTest, ANoteOutsideTheKeyIsRedAndToldSo) {
    zapis.NastavStupnici(Key(QStringLiteral("C dur")));
    klepni(0, 600);
    EXPECT_FALSE(jeCervena());
    EXPECT_EQ(widget.accessibleDescription(),
              QStringLiteral("bez předznamenání; nota 1: f1 (vybraná); volných míst: 4"));
    zapis.nastavZnamenko(0, Znamenko::Krizek);
    EXPECT_TRUE(jeCervena());
    zapis.NastavStupnici(Key(QStringLiteral("G dur")));
    EXPECT_FALSE(jeCervena());
    zapis.nastavZnamenko(0, Znamenko::Odrazka);
    EXPECT_EQ(
        widget.accessibleDescription(),
        QStringLiteral("předznamenání: křížky 1; nota 1: f1 (mimo stupnici) (vybraná); volných míst: 4"));
}

TEST_F(ZapisovaciOsnovaTest, PartsKeepApartAtEverySize) {
    for (const double meritko : {0.7, 0.87, 1.0, 1.5, 2.0, 3.3}) {
        SCOPED_TRACE(meritko);
        QFont pismo = widget.font();
        pismo.setPixelSize(std::max(9, int(13 * meritko)));
        widget.setFont(pismo);
        widget.resize(int(232 * meritko), int(153 * meritko));
        const MistaZapisu& mista = widget.mista();
        EXPECT_LE(mista.slot(4).right(), widget.width());
        EXPECT_GE(mista.sirkaSlotu, 2.2 * mista.mirka.mezera);
        EXPECT_LE(mista.paleta.right(), mista.prvniSlot);
        EXPECT_LE(mista.paleta.bottom(), mista.mirka.y(MirkaOsnovy::f2) - 1.9 * mista.mirka.mezera);
        EXPECT_GE(mista.paleta.height(), 18 * meritko);
        EXPECT_LE(mista.mirka.y(MirkaOsnovy::nejnizsi), mista.nazvy);
        EXPECT_GE(mista.mirka.y(1800), 0);
        for (int slot = 0; slot < NotovaOsnova::pocetNot; ++slot)
            EXPECT_EQ(mista.slotNa(mista.slot(slot).center().x()), slot);
        EXPECT_EQ(mista.slotNa(mista.prvniSlot - 1), std::nullopt);
    }
}

} // namespace
} // namespace zvonika
