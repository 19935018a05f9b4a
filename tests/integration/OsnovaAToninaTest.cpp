// The key dialog, the entry staff and the board, worked by hand.
#include "tests/integration/CelyProgram.h"
#include "theory/ui/ZapisovaciOsnova.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

namespace zvonika::testing {

namespace {

constexpr int c1 = 9, e1 = 13, f1 = 14, fis1 = 15, g1 = 16, a1 = 18; ///< buttons
constexpr int radekC1 = 420, radekF1 = 600, radekG1 = 660, radekA1 = 720;
constexpr int cDur = 0, gDur = 1;

class OsnovaAToninaTest : public CelyProgram {
protected:
    /// Does something that opens the key dialog, and there chooses a key and presses a button.
    template <typename Akce>
    void vDialogu(Akce akce, std::optional<int> volba, const char* tlacitko) {
        QTimer hlidka;
        bool obslouzen = false;
        QObject::connect(&hlidka, &QTimer::timeout, [&] {
            const QWidget* dialog = QApplication::activeModalWidget();
            if (obslouzen || !dialog || !dialog->windowHandle()->isExposed()) return;
            obslouzen = true;
            EXPECT_EQ(dialog->objectName(), "frmStupnice");
            if (volba) klikniV(dialog, QStringLiteral("optStupnice(%1)").arg(*volba));
            klikniV(dialog, QLatin1String(tlacitko));
        });
        hlidka.start(5);
        akce();
        EXPECT_TRUE(obslouzen) << "no dialog";
    }
    void zvolToninu(int volba) {
        vDialogu([this] { klikni("cmdStupnice"); }, volba, "cmdOK");
    }
    void klikniV(const QWidget* dialog, const QString& jmeno) const {
        const auto* cil = dialog->findChild<QWidget*>(jmeno);
        QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {},
                          cil->mapTo(dialog, QPoint(8, cil->height() / 2)));
    }

    ZapisovaciOsnova* osnova() const { return program->okno().findChild<ZapisovaciOsnova*>(); }
    QWindow* okno() const { return program->okno().windowHandle(); }
    QPoint misto(int slot, int radek) const {
        const MistaZapisu& mista = osnova()->mista();
        return mistoVOkne(osnova(), QPointF(mista.slot(slot).center().x(), mista.mirka.y(radek)).toPoint());
    }
    void klikniNaOsnovu(int slot, int radek, Qt::MouseButton tlacitko = Qt::LeftButton) const {
        QTest::mouseClick(okno(), tlacitko, {}, misto(slot, radek));
    }
    void tahni(int slot, int odkud, int kam) const {
        QTest::mousePress(okno(), Qt::LeftButton, {}, misto(slot, odkud));
        QTest::mouseMove(okno(), misto(slot, (odkud + kam) / 2));
        QTest::mouseMove(okno(), misto(slot, kam));
        QTest::mouseRelease(okno(), Qt::LeftButton, {}, misto(slot, kam));
    }
    void otazkaMimoStupnici(const QString& nota, Answer odpoved) {
        dialogs.expect("Nota je mimo stupnici.", "Nota " + nota + " se ve stupnici G dur nepoužívá.",
                       odpoved);
    }
    QList<int> oznacene() const {
        QList<int> oznacene;
        for (int n = 1; n <= pocetKnofliku; ++n)
            if (program->modely().diskant.oznacen(n)) oznacene << n;
        return oznacene;
    }
    QList<int> tonyOsnovy() const {
        QList<int> tony;
        for (const auto& nota : program->modely().zapisovaciOsnova.noty())
            if (nota) tony << nota->ton.hodnota();
        return tony;
    }
    void ocekavej(const QList<int>& tony) const {
        EXPECT_EQ(oznacene(), tony) << "board";
        QList<int> naOsnove = tonyOsnovy();
        std::ranges::sort(naOsnove);
        EXPECT_EQ(naOsnove, tony) << "staff";
    }
};

} // namespace

TEST_F(OsnovaAToninaTest, TheKeyIsChosenAndGivenUpInTheDialog) {
    EXPECT_EQ(napis("cmdStupnice"), "Vyberte tóninu");
    zvolToninu(gDur);
    EXPECT_EQ(napis("cmdStupnice"), "G dur");
    EXPECT_EQ(program->modely().zapisovaciOsnova.stupnice().text(), "G dur");
    novaPisen();
    zapisHmat({"lbl(16)"}, true);
    EXPECT_EQ(bunka("W1"), "G dur");
    vDialogu([this] { klikni("cmdStupnice"); }, std::nullopt, "cmdZrusit");
    EXPECT_EQ(napis("cmdStupnice"), "Vyberte tóninu");
}

TEST_F(OsnovaAToninaTest, BoardAndStaffFollowEachOther) {
    zvolToninu(cDur);
    klikniNaOsnovu(0, radekG1);
    ocekavej({g1});
    tahni(0, radekG1, radekA1);
    ocekavej({a1});
    klikni("lbl(9)");
    ocekavej({c1, a1});
    klikniNaOsnovu(0, radekA1, Qt::RightButton);
    ocekavej({c1});
    klikni("lbl(9)");
    ocekavej({});
}

TEST_F(OsnovaAToninaTest, TheStaffIsRecordedWithTheKeySignature) {
    zvolToninu(gDur);
    novaPisen();
    klikniNaOsnovu(0, radekF1);
    ocekavej({fis1});
    klikniNaOsnovu(1, radekA1);
    klikni("cmdTlakNoty");
    EXPECT_EQ(bunka("B1"), "fis1,");
    EXPECT_EQ(bunka("C1"), "a1,");
    EXPECT_EQ(bunka("I1"), "Tlak");
}

TEST_F(OsnovaAToninaTest, AButtonOutOfTheKeyAsks) {
    zvolToninu(gDur);
    otazkaMimoStupnici("f1,", Answer::Cancel);
    klikni("lbl(14)");
    EXPECT_EQ(dialogs.last.buttons, Buttons::YesNoCancel);
    EXPECT_EQ(dialogs.last.icon, Icon::Question);
    ocekavej({});
    EXPECT_EQ(program->modely().diskant.stav(f1), StavKnofliku::Volny);

    otazkaMimoStupnici("f1,", Answer::Yes);
    klikni("lbl(14)");
    ocekavej({f1});
    EXPECT_EQ(program->modely().zapisovaciOsnova.nota(0)->poloha, (PolohaNoty{Znamenko::Odrazka, radekF1}));
    klikni("lbl(14)");
    ocekavej({});

    otazkaMimoStupnici("f1,", Answer::No);
    vDialogu([this] { klikni("lbl(14)"); }, cDur, "cmdOK");
    EXPECT_EQ(napis("cmdStupnice"), "C dur");
    ocekavej({f1});
    EXPECT_EQ(dialogs.count, 3);
}

TEST_F(OsnovaAToninaTest, ANaturalOutOfTheKeyAsksAndCancelReleases) {
    zvolToninu(gDur);
    klikniNaOsnovu(0, radekF1);
    klikni("picOdrazka");
    otazkaMimoStupnici("f1,", Answer::Cancel);
    klikniNaOsnovu(0, radekF1);
    EXPECT_TRUE(dialogs.done());
    ocekavej({});
    klikni("picNota");
    klikniNaOsnovu(0, radekF1);
    ocekavej({fis1});
    klikni("picOdrazka");
    otazkaMimoStupnici("f1,", Answer::Yes);
    klikniNaOsnovu(0, radekF1);
    ocekavej({f1});
}

TEST_F(OsnovaAToninaTest, ADragOntoATakenToneChangesNothing) {
    klikniNaOsnovu(0, radekC1);
    klikniNaOsnovu(1, radekG1);
    tahni(1, radekG1, radekC1);
    ocekavej({c1, g1});
    EXPECT_EQ(napis("lblStav"), "Tento tón už na osnově stojí.");
    EXPECT_EQ(dialogs.count, 0);
}

TEST_F(OsnovaAToninaTest, TheSixthToneStaysOnTheBoardAlone) {
    for (const int n : {c1, 11, e1, f1, g1, a1})
        klikni(QStringLiteral("lbl(%1)").arg(n));
    EXPECT_EQ(oznacene().size(), 6);
    EXPECT_EQ(tonyOsnovy().size(), 5);
    EXPECT_TRUE(napis("lblStav").contains("Osnova pro zápis má jen pět not."))
        << napis("lblStav").toStdString();
}

} // namespace zvonika::testing
