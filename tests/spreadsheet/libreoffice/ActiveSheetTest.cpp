// What the program asks of the active sheet and the workbooks, and how much of it reaches Calc.
#include "platform/HomeDrive.h"
#include "spreadsheet/libreoffice/Cells.h"
#include "spreadsheet/libreoffice/UnsavedWorkbooks.h"
#include "tests/spreadsheet/libreoffice/FakeCalc.h"
#include "tests/support/MemorySettings.h"
#include "tests/support/ScriptedDialogs.h"

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

TEST_F(ActiveSheet, ATextThatCalcMayChangeIsReadBack) {
    calc.everywhere = QString("Calcův");
    for (const CellValue& value : {CellValue(QString("a\rb")), CellValue(2.5)}) {
        EXPECT_EQ(cells.value("B1"), calc.everywhere);
        cells.setValue("B1", value);
        EXPECT_EQ(cells.value("B1"), calc.everywhere);
    }
}

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
        FakeCalcWorld world;
        ReadAhead seen;
        ScriptedDialogs dialogs;
        MemorySettings settings;
        HomeDrive drive(folder.path(), {});
        const WorkbookPlaces places(drive, settings);
        OpenFiles files({});
        Workbooks workbooks(world.calls, seen, dialogs, places, files);
        world.calc->open_ = {one.workbook};
        if (one.refused)
            world.calc->first = [](const QString& call) {
                if (call == "save") throw RuntimeError(1004, "Nejde to.");
            };
        dialogs.expect(jmeno, "má neuložené změny", Answer::Yes);
        if (one.refused) dialogs.expect(jmeno, "Nejde to.");
        dialogs.expectFile("Uložit jako", one.chosen);
        QVector<int> settled;
        UnsavedWorkbooks(world.calls, workbooks, dialogs, places, [&](int id) { settled << id; }).offer();
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
        FakeCalcWorld world;
        ReadAhead seen;
        ScriptedDialogs dialogs;
        MemorySettings settings;
        HomeDrive drive(folder.path(), {});
        const WorkbookPlaces places(drive, settings);
        OpenFiles files({});
        Workbooks workbooks(world.calls, seen, dialogs, places, files);
        world.calc->open_ = {workbook};
        world.calc->others = {"Dopis"};
        world.calc->first = [](const QString& call) {
            if (call == "save") throw RuntimeError(1004, "Nejde to.");
        };
        dialogs.expect(jmeno, "má neuložené změny", Answer::Yes).expect(jmeno, "Nejde to.");
        dialogs.expect(jmeno, question, Answer::Yes).expect(jmeno, question, Answer::No);
        dialogs.expect(jmeno, "„Dopis“ má v LibreOffice neuložené změny", Answer::No);
        UnsavedWorkbooks(world.calls, workbooks, dialogs, places).offer();
        EXPECT_EQ(world.calc->asked, QStringList{"activate 1"});
    }
}

} // namespace zvonika::testing
