#include "tests/spreadsheet/embedded/ui/SheetWindowFixture.h"

#include <functional>

namespace zvonika::testing {
namespace {

class SheetEditing : public SheetWindowFixture {};

TEST_F(SheetEditing, ATypedSyllableIsCommittedByEnterAndGoesDown) {
    click("A1");
    type("Koc");
    ASSERT_NE(editor(), nullptr);
    press(Qt::Key_Return);
    EXPECT_EQ(text("A1"), QStringLiteral("Koc"));
    EXPECT_EQ(shown("A1"), QStringLiteral("Koc"));
    EXPECT_EQ(cursor(), "$A$2");
    EXPECT_EQ(listener.take().count(u'b'), 1);
    EXPECT_TRUE(window->isWindowModified());

    type("ka");
    press(Qt::Key_Tab);
    EXPECT_EQ(text("A2"), QStringLiteral("ka"));
    EXPECT_EQ(cursor(), "$B$2");
    EXPECT_EQ(QApplication::focusWidget(), &table()) << "the next cell waits for typing";
}

TEST_F(SheetEditing, TypingReplacesF2EditsEscTakesBack) {
    application.setValue(QStringLiteral("A1"), QStringLiteral("le"));
    click("A1");
    press(Qt::Key_F2);
    press(Qt::Key_End);
    type("ze");
    press(Qt::Key_Return);
    EXPECT_EQ(text("A1"), QStringLiteral("leze"));

    click("A1");
    type("x");
    press(Qt::Key_Escape);
    EXPECT_EQ(text("A1"), QStringLiteral("leze"));
    EXPECT_EQ(cursor(), "$A$1");
    type("y");
    press(Qt::Key_Return);
    EXPECT_EQ(text("A1"), QStringLiteral("y"));
}

TEST_F(SheetEditing, EnterAndTabMoveWithoutEditing) {
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, const char*> steps[] = {
        {Qt::Key_Return, Qt::NoModifier, "$B$3"},    {Qt::Key_Tab, Qt::NoModifier, "$C$3"},
        {Qt::Key_Return, Qt::ShiftModifier, "$C$2"}, {Qt::Key_Backtab, Qt::ShiftModifier, "$B$2"},
        {Qt::Key_Up, Qt::NoModifier, "$B$1"},        {Qt::Key_Return, Qt::ShiftModifier, "$B$1"},
    };
    click("B2");
    EXPECT_EQ(listener.take(), QStringLiteral("k"));
    for (const auto& [key, modifiers, expected] : steps) {
        const bool stays = cursor() == expected;
        press(key, modifiers);
        EXPECT_EQ(cursor(), expected);
        EXPECT_EQ(listener.take(), stays ? QString() : QStringLiteral("k"));
    }
}

TEST_F(SheetEditing, EveryCommandFirstTakesWhatIsBeingTyped) {
    const QString file = path(QStringLiteral("pisen.xls"));
    const std::pair<const char*, std::function<void()>> commands[] = {
        {"save by key", [&] { press(Qt::Key_S, Qt::ControlModifier); }},
        {"save as",
         [&] {
             dialogs.expectFile(QStringLiteral("Uložit jako"), file);
             action("akceUlozitJako").trigger();
         }},
        {"close",
         [&] {
             dialogs.expect(jmenoTabulky, QStringLiteral("Chcete uložit změny"), Answer::Yes);
             action("akceZavrit").trigger();
         }},
        {"close the window",
         [&] {
             dialogs.expect(jmenoTabulky, QStringLiteral("Chcete uložit změny"), Answer::Yes);
             window->close();
         }},
        {"saved by the program", [&] { application.saveActiveWorkbook(); }},
    };
    application.saveActiveWorkbookAs({file});
    for (const auto& [name, command] : commands) {
        for (const bool inLine : {false, true}) {
            SCOPED_TRACE(name);
            application.clearContents(QStringLiteral("A1"));
            application.saveActiveWorkbook();
            click("A1");
            if (inLine) line().setFocus();
            type("Koc");
            command();
            if (application.activeWorkbookName().isEmpty()) application.openWorkbook(file);
            EXPECT_FALSE(window->isWindowModified());
            EXPECT_EQ(text("A1"), QStringLiteral("Koc"));
        }
    }
}

TEST_F(SheetEditing, UndoTakesBackWhatIsBeingTyped) {
    click("A1");
    type("a");
    press(Qt::Key_Return);
    type("b");
    action("akceZpet").trigger();
    EXPECT_EQ(text("A1"), QStringLiteral("a"));
    EXPECT_EQ(text("A2"), QString());
    EXPECT_EQ(editor() && editor()->isVisible(), false);
}

TEST_F(SheetEditing, TypingStaysInItsWorkbookAndOnItsSheet) {
    const QString first = application.activeWorkbookName();
    const QString copy = path(QStringLiteral("listy.xls"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/libreoffice.xls"), copy));
    for (const bool inLine : {false, true}) {
        application.activateWindow(first);
        click("K2");
        if (inLine) line().setFocus();
        type("ne");
        inLine ? application.activateWindow(QStringLiteral("listy.xls")) : application.openWorkbook(copy);
        application.selectSheet(1);
        application.selectRange(QStringLiteral("K2"));
        EXPECT_EQ(text("K2"), QString());
        EXPECT_EQ(line().text(), QString());
        application.activateWindow(first);
        EXPECT_EQ(text("K2"), QStringLiteral("ne"));
        application.clearContents(QStringLiteral("K2"));
        application.activateWindow(QStringLiteral("listy.xls"));

        click("K3");
        if (inLine) line().setFocus();
        type("ano");
        QTest::mouseClick(&tabs(), Qt::LeftButton, {}, tabs().tabRect(1).center());
        EXPECT_EQ(text("K3"), QString());
        application.selectSheet(1);
        EXPECT_EQ(text("K3"), QStringLiteral("ano"));
        application.clearContents(QStringLiteral("K3"));
    }
    dialogs.expect(jmenoTabulky, QStringLiteral("má neuložené změny"), Answer::No)
        .expect(jmenoTabulky, QStringLiteral("má neuložené změny"), Answer::No);
    application.quit();
}

TEST_F(SheetEditing, UndoAndRedoAskTheKeeperOfTheWorkbook) {
    QString heard;
    Keeper keeper(heard);
    keeper.kept = application.activeWorkbookName();
    application.setStepKeeper(&keeper);
    EXPECT_FALSE(action("akceZpet").isEnabled());
    EXPECT_TRUE(action("akceZnovu").text().endsWith(QStringLiteral(": Hmat 2")));
    click("A1");
    type("pes");
    press(Qt::Key_Return);
    application.stepsChanged();
    EXPECT_TRUE(action("akceZpet").text().endsWith(QStringLiteral(": Hmat 1")));
    type("ryba");
    action("akceZpet").trigger();
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(heard, QStringLiteral("hhzv")) << "what was being typed comes first";
    application.setStepKeeper(nullptr);
}

TEST_F(SheetEditing, UndoAndRedoSayWhatTheyDo) {
    EXPECT_FALSE(action("akceZpet").isEnabled());
    click("A1");
    type("pes");
    press(Qt::Key_Return);
    EXPECT_TRUE(action("akceZpet").text().contains(QStringLiteral("Psaní")));

    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("A1"), QString());
    EXPECT_FALSE(action("akceZpet").isEnabled());
    press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(shown("A1"), QStringLiteral("pes"));
    press(Qt::Key_Z, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(text("A1"), QStringLiteral("pes"));
}

TEST_F(SheetEditing, ABlockGoesThroughTheClipboard) {
    QApplication::clipboard()->setText(QStringLiteral("c1,\te1,\r\nd1,\t1,5\r\n"));
    click("B1");
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().trimmed(), QStringLiteral("c1,\te1,\nd1,\t1,5"));
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(text("B2"), QString());
    click("D3");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text("E4"), QStringLiteral("1.5"));
    press(Qt::Key_Delete);
    EXPECT_EQ(text("E4"), QString());
    EXPECT_EQ(text("D3"), QString());
}

TEST_F(SheetEditing, RowsComeAndGo) {
    for (const char* address : {"A1", "A2"})
        application.setValue(QLatin1String(address), QLatin1String(address));
    click("A2");
    action("akceVlozitRadek").trigger();
    EXPECT_EQ(shown("A2"), QString());
    EXPECT_EQ(shown("A3"), QStringLiteral("A2"));
    action("akceOdstranitRadek").trigger();
    EXPECT_EQ(shown("A2"), QStringLiteral("A2"));
}

TEST_F(SheetEditing, TheLineAboveShowsAndTakesTheContents) {
    click("A1");
    application.setActiveCellValue(QStringLiteral("ok"));
    EXPECT_EQ(line().text(), QStringLiteral("ok"));
    EXPECT_EQ(window->findChild<QWidget*>(QStringLiteral("adresaBunky"))->property("text"),
              QStringLiteral("A1"));

    line().setFocus();
    press(Qt::Key_End);
    type("nem");
    press(Qt::Key_Return);
    EXPECT_EQ(text("A1"), QStringLiteral("oknem"));
    EXPECT_EQ(cursor(), "$A$2");
    EXPECT_EQ(QApplication::focusWidget(), &table());

    line().setFocus();
    type("x");
    press(Qt::Key_Escape);
    EXPECT_EQ(line().text(), QString());
    EXPECT_EQ(text("A2"), QString());
    EXPECT_EQ(QApplication::focusWidget(), &table());

    // What was typed belongs to its cell, also when the user or the program goes elsewhere.
    line().setFocus();
    type("y");
    application.selectRange(QStringLiteral("B7"));
    click("C3");
    EXPECT_EQ(text("A2"), QStringLiteral("y"));
    EXPECT_EQ(text("C3"), QString());
}

} // namespace
} // namespace zvonika::testing
