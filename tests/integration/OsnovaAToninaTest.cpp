// The key dialog, the entry staff and the board, worked by hand.
#include "tests/integration/CelyProgram.h"
#include "theory/ui/ZapisovaciOsnova.h"

#include <QApplication>
#include <QTimer>

namespace zvonika::testing {

namespace {

constexpr int c1 = 9, f1 = 14, fis1 = 15, g1 = 16, a1 = 18; ///< buttons
constexpr int radekF1 = 600, radekG1 = 660, radekA1 = 720;
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
    void ocekavej(const std::vector<int>& tony) const {
        EXPECT_EQ(program->modely().diskant.oznacene(), tony) << "board";
        std::vector<int> naOsnove;
        for (const auto& nota : program->modely().zapisovaciOsnova.noty())
            if (nota) naOsnove.push_back(nota->ton.hodnota());
        std::ranges::sort(naOsnove);
        EXPECT_EQ(naOsnove, tony) << "staff";
    }
};

} // namespace

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
    EXPECT_EQ(bunka("W1"), "G dur");
    vDialogu([this] { klikni("cmdStupnice"); }, std::nullopt, "cmdZrusit");
    EXPECT_EQ(napis("cmdStupnice"), "Vyberte tóninu");
}

TEST_F(OsnovaAToninaTest, AButtonOutOfTheKeyMayChangeTheKey) {
    zvolToninu(gDur);
    dialogs.expect("Nota je mimo stupnici.", "Nota f1, se ve stupnici G dur nepoužívá.", Answer::No);
    vDialogu([this] { klikni("lbl(14)"); }, cDur, "cmdOK");
    EXPECT_EQ(napis("cmdStupnice"), "C dur");
    ocekavej({f1});
}

} // namespace zvonika::testing
