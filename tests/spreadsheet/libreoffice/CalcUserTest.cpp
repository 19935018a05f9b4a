#include "tests/spreadsheet/libreoffice/CalcWorld.h"

#include <QFile>
#include <QProcess>
#include <QTest>

namespace zvonika::testing {

namespace {

const QString pisen = QStringLiteral("Kočka.xls");

class Heard : public SpreadsheetListener {
public:
    void cursorMoved() override { ++moved; }
    void cellsEdited() override { ++edited; }
    int moved = 0, edited = 0;
};

/// The user at Calc's own window.
class CalcUser : public ::testing::Test {
protected:
    CalcUser() : calc(world.launch()) {
        calc->addWorkbook();
        calc->saveActiveWorkbookAs({world.path(pisen)});
        calc->setListener(&heard);
    }
    static bool press(const QStringList& keys) { return VirtualScreen::press(pisen, keys); }
    static bool comes(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 30000); }
    QString text(const QString& address) const { return cellText(calc->value(address)); }

    CalcWorld world;
    Heard heard;
    std::unique_ptr<LibreOfficeApplication> calc;
};

} // namespace

TEST_F(CalcUser, WhatIsTypedReachesTheProgramAndTheCursorFollows) {
    calc->selectRange("A3");
    ASSERT_TRUE(VirtualScreen::type(pisen, "koc-") && press({"Return", "p", "e", "s", "Return"}));
    EXPECT_TRUE(
        comes([&] { return calc->activeAddress() == "$A$5" && heard.edited > 0 && heard.moved > 0; }));
    EXPECT_EQ(text("A3"), "koc-");
    EXPECT_EQ(text("A4"), "pes");
    const int before = heard.moved;
    ASSERT_TRUE(press({"shift+Right", "shift+Down"}));
    EXPECT_TRUE(comes([&] { return heard.moved > before; }));
    EXPECT_EQ(calc->activeAddress(), "$A$5");
}

TEST_F(CalcUser, TheProgramsOwnActsAreNotReported) {
    calc->setListener(nullptr);
    QTest::qWait(0);
    calc->setListener(&heard);
    for (int row = 1; row < 20; ++row) {
        calc->selectRange(QStringLiteral("B%1:D%1").arg(row));
        calc->setActiveCellValue(QString("c"));
        calc->moveCursor(1, 0);
    }
    calc->renameActiveSheet("Tonavox XII");
    ASSERT_TRUE(press({"Delete"})); // what follows it would have come after anything from before
    EXPECT_TRUE(comes([&] { return heard.edited > 0; }));
    EXPECT_EQ(heard.moved, 0);
    EXPECT_LE(heard.edited, 2); // one act may be told in two pieces
}

TEST_F(CalcUser, AnotherSheetReachesTheProgram) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/xlwt.xls"), world.path("dva.xls")));
    calc->openWorkbook(world.path("dva.xls"));
    calc->selectSheet(1);
    ASSERT_TRUE(VirtualScreen::press("dva.xls", {"ctrl+Next"}));
    EXPECT_TRUE(comes([&] { return heard.moved > 0; }));
    EXPECT_EQ(calc->activeSheetIndex(), 2);
}

// Calc tells of each act and waits for the answer while the program's own calls are under way.
TEST_F(CalcUser, FastTypingAndABusyProgramDoNotBlockEachOther) {
    QStringList keys;
    for (int i = 0; i < 25; ++i)
        keys << "a"
             << "Return"
             << "Right"
             << "Delete"
             << "Left";
    QProcess typing;
    ASSERT_TRUE(press({"Home"}));
    typing.start("xdotool", QStringList{"key", "--delay", "5"} + keys);
    int calls = 0;
    while (typing.state() != QProcess::NotRunning) {
        calc->writeBlock("M1:O2", {{1.0, QString("c"), true}, {{}, 2.5, QString("fis,")}});
        EXPECT_EQ(cellText(calc->value("N1")), "c");
        calc->readBlock("A1:W16");
        QCoreApplication::processEvents();
        ++calls;
    }
    EXPECT_GT(calls, 1);
    EXPECT_TRUE(comes([&] { return text("A25") == "a"; }));
}

TEST_F(CalcUser, TextThatIsStillBeingTypedIsSaved) {
    calc->selectRange("A1");
    ASSERT_TRUE(VirtualScreen::type(pisen, "le-"));
    calc->saveActiveWorkbook();
    EXPECT_EQ(text("A1"), "le-");
    calc->closeActiveWorkbook();
    calc->openWorkbook(world.path(pisen));
    EXPECT_EQ(text("A1"), "le-");
}

TEST_F(CalcUser, ASyllableIsToldOfWhenAStepTakesItOver) {
    calc->selectRange("A2");
    ASSERT_TRUE(VirtualScreen::type(pisen, "le-"));
    ASSERT_TRUE(calc->userIsTyping()); // all of it
    EXPECT_EQ(text("A2"), QString());
    calc->selectRange("B2");
    calc->moveCursor(1, 0);
    EXPECT_EQ(calc->activeAddress(), "$B$3");
    EXPECT_EQ(text("A2"), "le-");
    EXPECT_TRUE(comes([&] { return heard.edited == 1; }));
}

TEST_F(CalcUser, AWorkbookClosedInCalcIsGoneWhenTheUserHasAnswered) {
    calc->setValue("B1", QString("c"));
    calc->finishWriting();
    ASSERT_TRUE(press({"ctrl+w"}));
    ASSERT_TRUE(comes([] { return VirtualScreen::hasWindow("Save Document"); }));
    EXPECT_EQ(calc->activeWorkbookName(), pisen);
    ASSERT_TRUE(VirtualScreen::press("Save Document", {"alt+n"}));
    EXPECT_TRUE(comes([&] { return calc->activeWorkbookName().isEmpty(); }));
    calc->openWorkbook(world.path(pisen));
    EXPECT_EQ(text("B1"), QString());
}

} // namespace zvonika::testing
