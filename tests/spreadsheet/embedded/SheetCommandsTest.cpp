#include "spreadsheet/embedded/Failures.h"
#include "tests/spreadsheet/embedded/Rig.h"
#include "tests/spreadsheet/embedded/SmallMemory.h"

#include <new>

namespace zvonika::testing {

namespace {

class SheetCommandsTest : public ::testing::Test, protected World {
protected:
    SheetCommandsTest() {
        app.setVisible(true);
        app.addWorkbook();
        app.setListener(&listener);
    }
    CellBlock block(const char* address) const { return app.readBlock(QString::fromLatin1(address)); }
    void select(const char* address) {
        const CellRange range = *parseAddress(QString::fromLatin1(address));
        user.select(range, range.first);
        listener.take();
    }
    void saveAs(const QString& name) { app.saveActiveWorkbookAs({path(name)}); }

    Listener listener;
    std::unique_ptr<EmbeddedApplication> owned = launch();
    EmbeddedApplication& app = *owned;
    SheetCommands& user = app.commands();
};

#ifndef __SANITIZE_ADDRESS__ // needs more room than any limit leaves
TEST_F(SheetCommandsTest, WhatCouldNotBeCopiedIsNotCutOut) {
    app.setValue(QStringLiteral("O65536"), QStringLiteral("daleko"));
    select("A:O");
    dialogs.expect(jmenoTabulky, QStringLiteral("Nestačí paměť"));
    {
        const SmallMemory memory(4 << 20); // nearly a million cells are copied, one is to be emptied
        EXPECT_EQ(user.cut(), QString());
    }
    EXPECT_TRUE(dialogs.done());
    EXPECT_EQ(cellText(app.value(QStringLiteral("O65536"))), QStringLiteral("daleko"));
    EXPECT_EQ(listener.take(), QString());
}
#endif

} // namespace

TEST_F(SheetCommandsTest, TheProgramHearsOfCursorAndCells) {
    user.select(single({3, 2}), {3, 2});
    EXPECT_EQ(listener.take(), QStringLiteral("k"));
    user.select({{3, 2}, {9, 4}}, {3, 2});
    EXPECT_EQ(listener.take(), QString()) << "the active cell is where it was";
    user.clear();
    EXPECT_EQ(listener.take(), QString());
    user.type({3, 1}, QStringLiteral("Koč"));
    EXPECT_EQ(listener.take(), QStringLiteral("b"));
    user.type({3, 1}, QStringLiteral("Koč"));
    EXPECT_EQ(listener.take(), QString());
    user.undo();
    EXPECT_EQ(listener.take(), QStringLiteral("bk")) << "the cursor goes to the cell that was taken back";
    user.undo();
    EXPECT_EQ(listener.take(), QString());
    user.renameSheet(1, QStringLiteral("G dur"));
    EXPECT_EQ(listener.take(), QStringLiteral("b"));
    user.setColumnWidth(1, 30);
    EXPECT_EQ(listener.take(), QString());
}

TEST_F(SheetCommandsTest, TheProgramsCallTakesTheTypingAndReportsItWhenItIsOver) {
    const auto isTyping = [&](const char* text) {
        typing = [this, text] { user.type({1, 1}, QString::fromLatin1(text)); };
    };
    isTyping("Koc");
    saveAs(QStringLiteral("pisen.xls"));
    EXPECT_EQ(cellText(app.value(QStringLiteral("A1"))), QStringLiteral("Koc"));
    EXPECT_FALSE(app.session().active()->file().isModified()) << "it is in the file";
    EXPECT_EQ(listener.take(), QString());
    QCoreApplication::processEvents();
    EXPECT_EQ(listener.take(), QStringLiteral("b"));
    isTyping("le");
    dialogs.expect(jmenoTabulky, QStringLiteral("pisen.xls"), Answer::Yes);
    app.quit();
    QCoreApplication::processEvents();
    const auto opened = Document::open(path(QStringLiteral("pisen.xls")));
    EXPECT_EQ(cellText(opened->cells().value(1, {1, 1})), QStringLiteral("le"));
}

TEST_F(SheetCommandsTest, StepsOfAWorkbookThatIsKeptAreHandedOver) {
    Keeper keeper(listener.heard);
    const QString list = app.activeSheetName();
    const CellValue nothing, a = QStringLiteral("a"), b = QStringLiteral("b");
    const CellPosition a1{1, 1}, b1{1, 2};
    const auto turned = [&](CellPosition cell, const CellValue& before, const CellValue& after) {
        return CellTurned{list, cell, before, after};
    };
    user.type({9, 9}, QStringLiteral("dříve")); // the workbook's own
    keeper.kept = app.activeWorkbookName();
    app.setStepKeeper(&keeper);
    const struct {
        std::function<void()> act;
        WorkStep step;
    } acts[] = {
        {[&] { user.type(a1, QStringLiteral("a")); }, {QStringLiteral("Psaní"), {turned(a1, nothing, a)}}},
        {[&] { user.paste(QStringLiteral("b\ta")); },
         {QStringLiteral("Vložení"), {turned(a1, a, b), turned(b1, nothing, a)}}},
        {[&] { user.insertRow(); }, {QStringLiteral("Vložení řádku"), {RowMoved{list, 1, true, {}}}}},
        {[&] { user.deleteRow(); }, {QStringLiteral("Odstranění řádku"), {RowMoved{list, 1, false, {}}}}},
        {[&] { user.deleteRow(); },
         {QStringLiteral("Odstranění řádku"),
          {RowMoved{list, 1, false, {turned(a1, b, nothing), turned(b1, a, nothing)}}}}},
        {[&] { user.type(a1, QStringLiteral("b")); }, {QStringLiteral("Psaní"), {turned(a1, nothing, b)}}},
        {[&] { user.cut(); }, {QStringLiteral("Vyjmutí"), {turned(a1, b, nothing)}}},
        {[&] { user.type(a1, QStringLiteral("b")); }, {QStringLiteral("Psaní"), {turned(a1, nothing, b)}}},
        {[&] { user.clear(); }, {QStringLiteral("Vymazání"), {turned(a1, b, nothing)}}},
    };
    for (const auto& [act, step] : acts) {
        select("A1");
        act();
        EXPECT_EQ(listener.take(), QStringLiteral("hb")) << step.label.toStdString();
        ASSERT_FALSE(keeper.steps.empty());
        EXPECT_EQ(keeper.steps.back(), step) << step.label.toStdString();
    }
    EXPECT_EQ(keeper.steps.size(), std::size(acts));
    user.undo();
    user.redo();
    EXPECT_EQ(listener.take(), QStringLiteral("zv"));
    EXPECT_EQ(user.undoLabel() + user.redoLabel(), QStringLiteral("Hmat 1Hmat 2"));
    keeper.kept.clear();
    EXPECT_EQ(user.undoLabel(), QString()) << "nothing is left that would reach a recorded grip";
    user.type(a1, QStringLiteral("c"));
    EXPECT_EQ(listener.take(), QStringLiteral("b"));
    user.undo();
    EXPECT_EQ(cellText(app.value(QStringLiteral("A1"))), QString());
    for (const auto& move : {&EmbeddedApplication::insertRow, &EmbeddedApplication::deleteRow}) {
        user.type(a1, QStringLiteral("c"));
        (app.*move)(1);
        EXPECT_EQ(user.undoLabel(), QString());
    }
}

TEST_F(SheetCommandsTest, WhatAStepTakesOverComesBeforeIt) {
    Keeper keeper(listener.heard);
    keeper.kept = app.activeWorkbookName();
    app.setStepKeeper(&keeper);
    typing = [this] {
        user.type({1, 1}, QStringLiteral("Koc"));
        user.undo(); // within a call of the program
    };
    app.beginStep();
    EXPECT_EQ(listener.take(), QStringLiteral("h"));
    EXPECT_EQ(cellText(app.value(QStringLiteral("A1"))), QStringLiteral("Koc"));
    app.endStep();
    QCoreApplication::processEvents();
    EXPECT_EQ(listener.take(), QStringLiteral("b"));
}

TEST_F(SheetCommandsTest, TypingMeansNumbersAndTexts) {
    for (const char* typed : {"3,5", "15", "'15", "=A1"})
        user.type({1, app.session().active()->cells().usedColumns(1) + 1}, QString::fromLatin1(typed));
    EXPECT_EQ(block("A1:D1"), CellBlock({{3.5, 15.0, QStringLiteral("15"), QStringLiteral("=A1")}}));
}

TEST_F(SheetCommandsTest, ConfirmingWhatTheEditorShowedKeepsAFormula) {
    const QString copy = path(QStringLiteral("vzorce.xls"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/libreoffice.xls"), copy));
    app.openWorkbook(copy);
    Document& document = *user.document();
    user.type({1, 6}, document.cells().editText(1, {1, 6}));
    EXPECT_TRUE(document.cells().isFormula(1, {1, 6}));
    EXPECT_EQ(listener.take(), QString());
}

TEST_F(SheetCommandsTest, CopiedCellsKeepTheirTypesAndForeignTextIsReadAsTyped) {
    app.writeBlock(QStringLiteral("A1"), {{QStringLiteral("15"), 15.0}, {QStringLiteral("c"), {}}});
    select("A1:B2");
    const QString copied = user.copy();
    EXPECT_EQ(copied, QStringLiteral("15\t15\nc\t\n"));
    select("D4");
    user.paste(copied);
    EXPECT_EQ(block("D4:E5"), block("A1:B2"));
    EXPECT_EQ(app.session().active()->cursor().selection().range, *parseAddress(u"D4:E5"));
    select("G1");
    user.paste(QStringLiteral("15\tx\n3,5"));
    EXPECT_EQ(block("G1:H2"), CellBlock({{15.0, QStringLiteral("x")}, {3.5, {}}}));
    select("J1:K2");
    user.paste(QStringLiteral("Tah"));
    const CellValue tah = QStringLiteral("Tah");
    EXPECT_EQ(block("J1:K2"), CellBlock({{tah, tah}, {tah, tah}}));
    select("A1:B2");
    EXPECT_EQ(user.cut(), copied);
    EXPECT_EQ(block("A1:B2"), CellBlock({{{}, {}}, {{}, {}}}));
    user.undo();
    EXPECT_EQ(block("A1:B1"), CellBlock({{QStringLiteral("15"), 15.0}}));
}

TEST_F(SheetCommandsTest, AWholeColumnIsCopiedAsFarAsItIsUsed) {
    app.writeBlock(QStringLiteral("A1"), {{QStringLiteral("Koč")}, {QStringLiteral("ka")}});
    select("A:A");
    EXPECT_EQ(user.copy(), QStringLiteral("Koč\nka\n"));
    user.clear();
    EXPECT_EQ(app.session().active()->cells().usedRows(1), 0);
}

TEST_F(SheetCommandsTest, NoFailureReachesTheEventLoop) {
    dialogs.expect(jmenoTabulky, QStringLiteral("Nestačí paměť"))
        .expect(jmenoTabulky, QStringLiteral("V tabulce nastala neočekávaná chyba."));
    EXPECT_FALSE(runForUser(dialogs, [] { throw std::bad_alloc(); }));
    user.select(single({0, 0}), {0, 0});
}

TEST_F(SheetCommandsTest, SavingAsksForANameOnce) {
    dialogs.expectFile(QStringLiteral("Uložit jako"), path(QStringLiteral("pisen")));
    EXPECT_TRUE(user.files().save());
    EXPECT_EQ(dialogs.lastFolder, path(QStringLiteral("Dokumenty/Sešit1.xls")));
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("pisen.xls"));
    user.type({1, 1}, QStringLiteral("Koč"));
    EXPECT_TRUE(user.files().save());
    EXPECT_FALSE(app.session().active()->file().isModified());
    dialogs.expectFile(QStringLiteral("Uložit jako"), path(QStringLiteral("Polka.XLS")));
    EXPECT_TRUE(user.files().saveAs());
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("Polka.XLS"));
    dialogs.expectFile(QStringLiteral("Uložit jako"), {});
    EXPECT_FALSE(user.files().saveAs());
    dialogs.expectFile(QStringLiteral("Uložit jako"), path(QStringLiteral("není/x.xls")));
    dialogs.expect(jmenoTabulky, QStringLiteral("neexistuje"));
    EXPECT_FALSE(user.files().saveAs());
}

TEST_F(SheetCommandsTest, AWorkbookThatCannotBeSavedStaysOpen) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("pryč")));
    saveAs(QStringLiteral("pryč/pisen.xls"));
    user.type({1, 1}, QStringLiteral("Koč"));
    ASSERT_TRUE(QDir(path(QStringLiteral("pryč"))).removeRecursively());
    dialogs.expect(jmenoTabulky, QStringLiteral("Chcete uložit"), Answer::Yes);
    dialogs.expect(jmenoTabulky, QStringLiteral("neexistuje"));
    EXPECT_FALSE(user.files().close());
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("pisen.xls"));
}

TEST_F(SheetCommandsTest, QuittingAsksForEveryWorkbookAndStopsAtTheFirstStorno) {
    saveAs(QStringLiteral("jedna.xls"));
    user.type({1, 1}, QStringLiteral("1"));
    app.addWorkbook();
    saveAs(QStringLiteral("dva.xls"));
    user.type({1, 1}, QStringLiteral("2"));
    dialogs.expect(jmenoTabulky, QStringLiteral("jedna.xls"), Answer::Yes);
    dialogs.expect(jmenoTabulky, QStringLiteral("dva.xls"), Answer::Cancel);
    EXPECT_FALSE(user.files().quit());
    EXPECT_EQ(app.session().documents().size(), 2U);
    dialogs.expect(jmenoTabulky, QStringLiteral("dva.xls"), Answer::No);
    EXPECT_TRUE(user.files().quit());
    EXPECT_EQ(app.session().documents().size(), 0U);
    user.type({1, 1}, QStringLiteral("x"));
    EXPECT_FALSE(user.files().save());
}

} // namespace zvonika::testing
