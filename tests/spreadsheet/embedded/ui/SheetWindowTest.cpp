#include "tests/spreadsheet/embedded/ui/SheetWindowFixture.h"
#include "tests/support/Raised.h"

#include <QMenu>
#include <QMenuBar>

namespace zvonika::testing {
namespace {

class SheetFile : public SheetWindowFixture {
protected:
    void saveAs(const char* name) { application.saveActiveWorkbookAs({path(QLatin1String(name))}); }
    bool emptyPageIsUp() const {
        return !window->findChild<QLabel*>(QStringLiteral("prazdnaStranka"))->isHidden();
    }
};

TEST_F(SheetFile, ClosingTheWindowClosesTheWorkbook) {
    saveAs("pisen.xls");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("pisen.xls[*] – Tabulka Zvoniky"));
    EXPECT_FALSE(window->close());
    EXPECT_EQ(application.activeWorkbookName(), QString());
    EXPECT_TRUE(emptyPageIsUp());
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Tabulka Zvoniky"));
    EXPECT_FALSE(action("akceUlozit").isEnabled());
    EXPECT_TRUE(action("akceUkoncit").isEnabled());

    window->show();
    window->close();
    EXPECT_FALSE(window->isVisible()) << "without a workbook it just goes";

    application.openWorkbook(path(QStringLiteral("pisen.xls")));
    EXPECT_TRUE(window->isVisible()) << "it comes back with the next workbook";
    EXPECT_FALSE(emptyPageIsUp());
}

TEST_F(SheetFile, TheEmptyWindowComesBackWhenTheProgramSendsTheUserThere) {
    QWidget program;
    const auto goThere = [&] {
        program.show();
        program.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&program));
        application.showToUser();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        const QWidget* focus = QApplication::focusWidget();
        EXPECT_TRUE(focus && focus->isVisible()) << "keys have somewhere to go";
    };
    int presses = 0;
    QObject::connect(window, &SheetWindow::f6Pressed, [&presses] { ++presses; });
    press(Qt::Key_W, Qt::ControlModifier);
    for (int time = 1; time <= 2; ++time) {
        ASSERT_FALSE(window->isVisible());
        goThere();
        EXPECT_TRUE(emptyPageIsUp());
        press(Qt::Key_F6);
        EXPECT_EQ(presses, time);
        window->close();
    }
    goThere();
    application.addWorkbook();
    EXPECT_FALSE(emptyPageIsUp());
    EXPECT_EQ(QApplication::focusWidget(), &table());
}

TEST_F(SheetFile, AsksBeforeChangesAreLost) {
    saveAs("pisen.xls");
    click("A1");
    type("x");
    press(Qt::Key_Return);
    dialogs.expect(jmenoTabulky, QStringLiteral("Chcete uložit změny"), Answer::Cancel);
    window->close();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(text("A1"), QStringLiteral("x"));

    dialogs.expect(jmenoTabulky, QStringLiteral("Chcete uložit změny"), Answer::No);
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(application.activeWorkbookName(), QString());
    application.openWorkbook(path(QStringLiteral("pisen.xls")));
    EXPECT_EQ(text("A1"), QString());
}

TEST_F(SheetFile, QuittingEndsTheApplicationByTheMenuOnly) {
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(application.activeRow(), 1) << "the key that ends the program does nothing here";
    action("akceUkoncit").trigger();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(raised([&] { application.activeRow(); }), error::objectNotSet);
}

TEST_F(SheetFile, OneWorkbookIsShownOfSeveral) {
    application.setValue(QStringLiteral("A1"), QStringLiteral("první"));
    const QString first = application.activeWorkbookName();
    application.addWorkbook();
    EXPECT_EQ(shown("A1"), QString());
    application.activateWindow(first);
    EXPECT_EQ(shown("A1"), QStringLiteral("první"));

    auto* menu = window->findChild<QMenuBar*>()->actions().first()->menu();
    Q_EMIT menu->aboutToShow();
    QMenu* books = menu->findChild<QMenu*>();
    ASSERT_EQ(books->actions().size(), 2);
    EXPECT_TRUE(books->actions().first()->isChecked());
    books->actions().last()->trigger();
    EXPECT_NE(application.activeWorkbookName(), first);
    EXPECT_EQ(shown("A1"), QString());
}

TEST_F(SheetFile, ATabShowsItsSheetBothWays) {
    const QString copy = path(QStringLiteral("listy.xls"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/libreoffice.xls"), copy));
    application.openWorkbook(copy);
    ASSERT_GE(application.sheetCount(), 2);
    application.selectSheet(2);
    EXPECT_EQ(tabs().currentIndex(), 1);
    application.selectRange(QStringLiteral("C4"));
    application.setValue(QStringLiteral("C4"), QStringLiteral("druhý"));
    listener.take();

    QTest::mouseClick(&tabs(), Qt::LeftButton, {}, tabs().tabRect(0).center());
    EXPECT_EQ(application.activeSheetIndex(), 1);
    EXPECT_EQ(listener.take(), QStringLiteral("k"));
    EXPECT_NE(shown("C4"), QStringLiteral("druhý"));
    QTest::mouseClick(&tabs(), Qt::LeftButton, {}, tabs().tabRect(1).center());
    EXPECT_EQ(shown("C4"), QStringLiteral("druhý"));
    EXPECT_EQ(table().activeCell(), indexOf("C4")) << "each sheet keeps its cell";
}

TEST_F(SheetFile, ATabIsRenamedInItsPlace) {
    const QString before = application.activeSheetName();
    const QPoint centre = tabs().tabRect(0).center();
    QTest::mouseDClick(&tabs(), Qt::LeftButton, {}, centre);
    auto* name = tabs().findChild<QLineEdit*>();
    ASSERT_NE(name, nullptr);
    EXPECT_EQ(name->text(), before);
    type("a/b");
    dialogs.expect(jmenoTabulky, QString());
    press(Qt::Key_Return);
    EXPECT_EQ(application.activeSheetName(), before) << "refused, and open for another try";
    press(Qt::Key_A, Qt::ControlModifier);
    type("C & G dur");
    press(Qt::Key_Return);
    EXPECT_EQ(application.activeSheetName(), QStringLiteral("C & G dur"));
    EXPECT_EQ(tabs().tabText(0), QStringLiteral("C && G dur"));
    EXPECT_EQ(listener.take(), QStringLiteral("b"));

    QTest::mouseDClick(&tabs(), Qt::LeftButton, {}, centre);
    type("x");
    press(Qt::Key_Escape);
    EXPECT_EQ(application.activeSheetName(), QStringLiteral("C & G dur"));
}

TEST_F(SheetFile, ShowsFiveRowsAndAllColumnsOfAGripInALowWindow) {
    window->resize(1366, 190);
    QApplication::processEvents();
    EXPECT_GE(table().viewport()->height(), 5 * table().rowHeight(0));
    EXPECT_LT(table().columnViewportPosition(22), table().viewport()->width() - 20) << "column W";
    window->resize(470, 700);
    EXPECT_EQ(window->width(), 470) << "fits beside the main window";
}

TEST_F(SheetFile, WidthsComeFromTheFileAndGoIntoIt) {
    EXPECT_EQ(table().columnWidth(0), 110);
    table().setColumnWidth(0, 205);
    EXPECT_TRUE(window->isWindowModified());
    saveAs("siroka.xls");
    application.closeActiveWorkbook();
    application.openWorkbook(path(QStringLiteral("siroka.xls")));
    EXPECT_NEAR(table().columnWidth(0), 205, 2);
    EXPECT_EQ(table().columnWidth(1), 52);
}

TEST_F(SheetFile, SixthFunctionKeyGoesToTheProgram) {
    int presses = 0;
    QObject::connect(window, &SheetWindow::f6Pressed, [&presses] { ++presses; });
    press(Qt::Key_F6);
    click("A1");
    type("x");
    press(Qt::Key_F6);
    EXPECT_EQ(presses, 2);
}

TEST_F(SheetFile, PageKeysAreTheProgramsAsLongAsItTakesThem) {
    bool takes = false;
    QString offered;
    window->takePageKey = [&](bool down) { return offered += down ? '+' : '-', takes; };
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers with;
        bool taken, turns;
    } cases[] = {
        {Qt::Key_PageDown, {}, false, true}, {Qt::Key_PageDown, Qt::AltModifier, true, true},
        {Qt::Key_PageUp, {}, true, false},   {Qt::Key_PageUp, Qt::AltModifier, true, true},
        {Qt::Key_PageDown, {}, true, false}, {Qt::Key_PageUp, {}, false, true},
    };
    for (const auto& c : cases) {
        takes = c.taken;
        const int row = application.activeRow();
        press(c.key, c.with);
        const int moved = (application.activeRow() - row) * (c.key == Qt::Key_PageDown ? 1 : -1);
        EXPECT_EQ(moved > 2, c.turns) << moved;
    }
    EXPECT_EQ(offered, "+-+-");
    click("A1");
    type("x");
    press(Qt::Key_PageDown);
    EXPECT_EQ(text("A1"), "x") << "what was typed is kept";
}

TEST_F(SheetFile, StatusSaysWhatIsShown) {
    application.setValue(QStringLiteral("B1"), QStringLiteral("c1,"));
    application.setValue(QStringLiteral("B2"), QStringLiteral("d1,"));
    const std::pair<const char*, const char*> cases[] = {
        {"B1", "Hmat 1 z 2  ·  B: tón"},
        {"W2", "Hmat 2 z 2  ·  W: tónina"},
        {"J3", "Volný řádek 3, hmatů 2"},
        {"B1:C2", "Hmat 1 z 2  ·  výběr B1:C2"},
    };
    for (const auto& [address, expected] : cases) {
        application.selectRange(QLatin1String(address));
        EXPECT_EQ(status(), QString::fromUtf8(expected));
    }
}

TEST_F(SheetFile, StatusSaysWhenChangesAreNotSafe) {
    QFile inTheWay(state.filePath(QStringLiteral("zaznamy")));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    application.setValue(QStringLiteral("B1"), QStringLiteral("c1,"));
    const QString trouble = application.trouble();
    EXPECT_TRUE(trouble.startsWith(QStringLiteral("Změny nejsou zajištěny proti výpadku: ")));
    for (const auto& [width, shown] : {std::pair(1366, true), {1000, true}, {470, false}}) {
        window->resize(width, 300);
        QApplication::processEvents();
        EXPECT_EQ(status().startsWith(trouble), shown) << width;
        for (const QString& sentence : status().split(QStringLiteral("  ·  "), Qt::SkipEmptyParts))
            EXPECT_TRUE(
                part<QLabel>("stavTabulky").toolTip().split(QStringLiteral("  ·  ")).contains(sentence))
                << "cut at " << width << ": " << sentence.toStdString();
    }
    inTheWay.remove();
    application.setValue(QStringLiteral("B2"), QStringLiteral("d1,"));
    EXPECT_FALSE(status().contains(QStringLiteral("výpadku")));
    EXPECT_TRUE(inTheWay.exists());
}

TEST_F(SheetFile, EveryPartHasAName) {
    const auto parts = window->findChildren<QWidget*>();
    for (const QWidget* part : parts) {
        const bool toolkits =
            part->objectName().startsWith(QStringLiteral("qt_")) || part->parent() == &tabs();
        if (toolkits || part->focusPolicy() == Qt::NoFocus || !part->isVisibleTo(window)) continue;
        EXPECT_FALSE(part->accessibleName().isEmpty()) << part->metaObject()->className();
    }
    EXPECT_EQ(table().model()->headerData(0, Qt::Horizontal, Qt::AccessibleTextRole),
              QStringLiteral("A slabika"));
    EXPECT_EQ(table().model()->index(1, 1).data(Qt::AccessibleTextRole), QStringLiteral("B2 tón: prázdná"));
}

} // namespace
} // namespace zvonika::testing
