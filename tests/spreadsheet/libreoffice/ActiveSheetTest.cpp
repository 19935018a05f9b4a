// What the program asks of the active sheet and the workbooks, and how much of it reaches Calc.
#include "platform/HomeDrive.h"
#include "spreadsheet/libreoffice/Cells.h"
#include "spreadsheet/libreoffice/UnsavedWorkbooks.h"
#include "tests/spreadsheet/libreoffice/FakeCalc.h"
#include "tests/support/MemorySettings.h"
#include "tests/support/Raised.h"
#include "tests/support/ScriptedDialogs.h"

#include <QCoreApplication>
#include <QTemporaryDir>

namespace zvonika::testing {

namespace {

class ActiveSheet : public ::testing::Test {
protected:
    FakeCalcWorld world;
    FakeCalc& calc = *world.calc;
    ReadAhead seen{std::chrono::hours(1)};
    PacedCursor cursor{world.calls, seen};
    Cells cells{world.calls, cursor, seen};
};

const QString jmeno = QStringLiteral("LibreOffice Calc");

} // namespace

TEST_F(ActiveSheet, TheCursorInCalcFollowsAtItsOwnPaceAndIsThereForOtherCalls) {
    cursor.select(single({1, 2}));
    for (int i = 0; i < 100; ++i)
        cells.moveCursor(1, 0);
    EXPECT_LT(calc.asked.size(), 100);
    EXPECT_EQ(cursor.position(), (CellPosition{101, 2}));
    cells.clear("A1");
    EXPECT_EQ(calc.asked.last(), "clear $A$1");
    EXPECT_EQ(calc.cursor_, (CellPosition{101, 2}));
}

TEST_F(ActiveSheet, AnActOfTheUserVoidsWhatIsKnown) {
    calc.everywhere = QString("c");
    cursor.select(single({1, 2}));
    EXPECT_EQ(cells.activeValue(), CellValue(QString("c")));
    cells.setActiveValue(QString("d"));
    EXPECT_EQ(cells.activeValue(), CellValue(QString("d"))) << "known without asking";
    cursor.select(single({2, 2}));
    world.notices->entryTaken();
    EXPECT_EQ(cursor.position(), (CellPosition{2, 2})) << "a text taken over leaves the cursor alone";
    world.notices->cursorMoved();
    calc.cursor_ = {7, 7};
    calc.everywhere = 1.0;
    EXPECT_EQ(cursor.position(), (CellPosition{7, 7}));
    EXPECT_EQ(cells.value("B1"), CellValue(1.0));
    calc.everywhere = 2.0;
    cells.clear("A1");
    EXPECT_EQ(calc.cursor_, (CellPosition{7, 7})) << "where the user has put it";
    EXPECT_EQ(cells.value("B1"), CellValue(2.0)) << "another cell may depend on what was cleared";
}

TEST_F(ActiveSheet, TextsGoInBlocksBeforeAnythingElseIsAsked) {
    const auto converted = [&] {
        calc.asked.clear();
        for (int row = 1; row <= 3; ++row) {
            for (const char* column : {"B", "C", "D"})
                cells.setValue(QString::fromLatin1(column) + QString::number(row), QString("c,"));
            cells.setValue(QStringLiteral("W%1").arg(row), QString("G dur"));
        }
        cells.setValue("C3", CellValue());
    };
    const QString blocks = "writeHeld $B$1:$D$3 $W$1:$W$3";
    const struct {
        const char* name;
        std::function<void()> then;
        QStringList asked;
    } cases[] = {
        {"nothing", [] {}, {}},
        {"a box, a stop", [&] { cells.finishWriting(); }, {blocks}},
        {"the event loop", [] { QCoreApplication::processEvents(); }, {blocks}},
        {"a reading", [&] { cells.read("A1:B2"); }, {blocks}},
        {"another call", [&] { cells.clear("A1:A2"); }, {blocks, "clear $A$1:$A$2"}},
        {"the cursor",
         [&] {
             cursor.select(single({9, 2}));
         },
         {blocks, "select $B$9"}},
        {"an act of the user",
         [&] {
             world.notices->cursorMoved();
             cells.setValue("E1", QString("d,"));
         },
         {blocks}},
    };
    for (const auto& [name, then, asked] : cases) {
        converted();
        then();
        EXPECT_EQ(calc.asked, asked) << name;
        cells.finishWriting();
    }
    calc.takesBlocks = false;
    seen.forget();
    cells.setValue("B1", QString("c,"));
    EXPECT_EQ(calc.asked.last(), "write $B$1") << "a sheet with formulas, comments or protection";
}

TEST_F(ActiveSheet, AWriteThatFailsIsToldOnceByTheNextCall) {
    calc.first = [](const QString& call) {
        if (call.startsWith("writeHeld")) throw RuntimeError(91);
    };
    cells.setValue("B1", QString("c,"));
    QCoreApplication::processEvents(); // no one to tell
    EXPECT_EQ(raised([&] { cells.read("A1"); }), 91);
    EXPECT_EQ(raised([&] { cells.read("A1"); }), 0);
    EXPECT_TRUE(calc.asked.isEmpty());
}

TEST(KeptCells, AreGatheredIntoRectanglesOfTheirOwn) {
    KeptCells kept;
    for (const CellPosition cell :
         {CellPosition{1, 2}, {1, 3}, {2, 2}, {2, 3}, {3, 2}, {1, 9}, {5, 2}, {6, 2}})
        kept.add(cell, 1.0);
    kept.add({1, 2}, 2.0);
    const QVector<PlacedBlock> expected{
        {{1, 2}, {{2.0, 1.0}, {1.0, 1.0}}}, {{1, 9}, {{1.0}}}, {{3, 2}, {{1.0}}}, {{5, 2}, {{1.0}, {1.0}}}};
    EXPECT_EQ(kept.blocks(), expected);
}

TEST_F(ActiveSheet, ATextThatCalcMayChangeIsReadBack) {
    calc.everywhere = QString("Calcův");
    for (const CellValue& value : {CellValue(QString("a\rb")), CellValue(2.5)}) {
        EXPECT_EQ(cells.value("B1"), calc.everywhere);
        cells.setValue("B1", value);
        EXPECT_EQ(cells.value("B1"), calc.everywhere);
    }
}

/// Calc with its workbooks, at the end.
struct UnsavedWorld : FakeCalcWorld {
    explicit UnsavedWorld(const QString& folder) : drive(folder, {}) {}
    void offer(const std::function<void(int)>& settled = [](int) {}) {
        UnsavedWorkbooks(calls, workbooks, dialogs, places, settled).offer();
    }

    ReadAhead seen;
    ScriptedDialogs dialogs;
    MemorySettings settings;
    HomeDrive drive;
    WorkbookPlaces places{drive, settings};
    OpenFiles files{{}};
    Workbooks workbooks{calls, seen, dialogs, places, files};
};

TEST(UnsavedWorkbooks, ARefusedSaveIsToldAndOfferedElsewhere) {
    QTemporaryDir folder;
    const QString own = folder.filePath("Kočka.xls"), elsewhere = folder.filePath("Jinam");
    const struct {
        const char* name;
        OpenWorkbook workbook;
        bool refused;
        std::optional<QString> chosen;
        QStringList asked;
    } cases[] = {
        {"refused",
         {1, "Kočka.xls", own, true},
         true,
         elsewhere,
         {"activate 1", "activate 1", "saveAs " + elsewhere + ".xls"}},
        {"refused, given up", {1, "Kočka.xls", own, true}, true, {}, {"activate 1"}},
        {"never saved",
         {2, "Untitled 1", "", true},
         false,
         elsewhere,
         {"activate 2", "saveAs " + elsewhere + ".xls"}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        UnsavedWorld world(folder.path());
        world.calc->open_ = {one.workbook};
        if (one.refused)
            world.calc->first = [](const QString& call) {
                if (call == "save") throw RuntimeError(1004, "Nejde to.");
            };
        world.dialogs.expect(jmeno, "má neuložené změny", Answer::Yes);
        if (one.refused) world.dialogs.expect(jmeno, "Nejde to.");
        world.dialogs.expectFile("Uložit jako", one.chosen);
        QVector<int> settled;
        world.offer([&](int id) { settled << id; });
        EXPECT_EQ(world.calc->asked, one.asked);
        EXPECT_EQ(settled, one.chosen ? QVector<int>{one.workbook.id} : QVector<int>());
    }
}

TEST(UnsavedWorkbooks, WhatWouldLoseItsFormatOrPasswordIsLeftToItsOwner) {
    QTemporaryDir folder;
    const QString own = folder.filePath("tajné.ods"), question = "Uložte ho prosím v jeho okně";
    for (const OpenWorkbook& workbook :
         {OpenWorkbook{1, "tajné.ods", own, true, WorkbookFormat::Other, false},
          OpenWorkbook{1, "tajné.xls", own, true, WorkbookFormat::Xls, true}}) {
        UnsavedWorld world(folder.path());
        world.calc->open_ = {workbook};
        world.calc->others = {"Dopis"};
        world.calc->first = [](const QString& call) {
            if (call == "save") throw RuntimeError(1004, "Nejde to.");
        };
        world.dialogs.expect(jmeno, "má neuložené změny", Answer::Yes).expect(jmeno, "Nejde to.");
        world.dialogs.expect(jmeno, question, Answer::Yes).expect(jmeno, question, Answer::No);
        world.dialogs.expect(jmeno, "„Dopis“ má v LibreOffice neuložené změny", Answer::No);
        world.offer();
        EXPECT_EQ(world.calc->asked, QStringList{"activate 1"});
    }
}

} // namespace zvonika::testing
