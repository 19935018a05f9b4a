#include "tests/spreadsheet/libreoffice/CalcWorld.h"

#include <QFile>
#include <QProcess>
#include <QTest>
#include <QUrl>

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
    /// As from the desktop: another start on the same profile hands the file to the Calc that runs.
    void userOpens(const QString& path) const {
        QProcess::startDetached(
            world.installation.program + "/soffice.bin",
            {"-env:UserInstallation=" + QUrl::fromLocalFile(world.profiles.filePath("1")).toString(), path});
    }
    static QByteArray contents(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    static QString refusal(const std::function<void()>& call) {
        try {
            return call(), "0";
        } catch (const AutomationError& failure) {
            return QString::number(failure.number()) + ' ' + failure.cause();
        }
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

// Ctrl+Z comes when the program has written, and once more; then x is typed into Z9, which nothing follows.
TEST_F(CalcUser, TakingBackInCalcReachesWhatTheUserDidAndNothingElse) {
    const CellBlock grip{{QString("c,"), QString("e,"), {}, 1.0, true, QString("Tah")}};
    const struct {
        const char* name;
        const char* typedInto;
        std::function<void()> writes;
        const char* row; ///< what A5:G5 holds in the end
    } cases[] = {
        {"a grip", "A5", [&] { calc->writeBlock("B5", grip); }, "|c,|e,||1|True|Tah"},
        {"a grip cell by cell", "A5",
         [&] {
             calc->selectRange("B5");
             calc->setActiveCellValue(QString("c,"));
             calc->setValue("C5", 1.0);
             calc->setValue("D5", QString("e,"));
         },
         "|c,|1|e,|x|x|x"},
        {"an emptied row", "A5", [&] { calc->clearContents("B5:G5"); }, "||||||"},
        {"another name for the sheet", "A5", [&] { calc->renameActiveSheet("Tonavox"); }, "|x|x|x|x|x|x"},
        {"a row more", "A4", [&] { calc->insertRow(2); }, "psa||||||"},
        {"a row less", "A6", [&] { calc->deleteRow(2); }, "psa||||||"},
        {"a grip over what was typed", "C5", [&] { calc->writeBlock("B5", grip); }, "|c,|e,||1|True|Tah"},
    };
    for (const auto& [name, typedInto, writes, row] : cases) {
        calc->clearContents("A1:Z9");
        calc->setValue("B5:G5", QString("x"));
        const bool rows = QString(name).startsWith("a row");
        if (rows) {
            calc->clearContents("B5:G5");
            for (const char* moving : {"A3", "A7"})
                calc->setValue(moving, QString("y"));
        }
        calc->selectRange(typedInto);
        ASSERT_TRUE(VirtualScreen::type(pisen, "psa") && press({"Return"}));
        ASSERT_TRUE(comes([&, cell = QString(typedInto)] { return text(cell) == "psa"; }));
        writes();
        calc->finishWriting();
        calc->selectRange("Z9");
        ASSERT_TRUE(press({"ctrl+z"}) && press({"ctrl+z"}));
        calc->selectRange("Z9");
        ASSERT_TRUE(press({"x", "Return"}));
        ASSERT_TRUE(comes([&] { return text("Z9") == "x"; }));
        QStringList held;
        const auto cells = calc->readBlock("A5:G5").first();
        for (const CellValue& value : cells)
            held << cellText(value);
        EXPECT_EQ(held.join('|'), QString(row)) << name;
        EXPECT_EQ(text("A4") + text("A6"), QString(rows ? "y" : "")) << name;
    }
    EXPECT_EQ(calc->activeSheetName(), "Tonavox");
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

TEST_F(CalcUser, DocumentsWithAPasswordKeepItAndTheirFormat) {
    for (const char* name : {"heslo.ods", "heslo.xls"}) {
        const QString document = world.path(name);
        ASSERT_TRUE(QFile::copy(QStringLiteral(CALC_DATA "/") + name, document));
        const QByteArray before = contents(document);
        userOpens(document);
        ASSERT_TRUE(VirtualScreen::type("Password", "zvonika") &&
                    VirtualScreen::press("Password", {"Return"}));
        ASSERT_TRUE(comes([&] { return refusal([&] { calc->activateWindow(name); }) == "0"; })) << name;
        ASSERT_TRUE(VirtualScreen::press(name, {"x", "Return"})) << name;
        ASSERT_TRUE(comes([&] { return text("A1") == "x"; })) << name;
        world.dialogs.expect(jmenoCalcu, QStringLiteral("„%1“ má neuložené změny").arg(name), Answer::Yes);
        calc->quit();
        const QByteArray after = contents(document);
        EXPECT_NE(after, before) << name;
        EXPECT_EQ(after.left(4), before.left(4)) << name;
        calc = world.launch();
        QFile::remove(world.path("jako.xls"));
        ASSERT_TRUE(QFile::copy(document, world.path("jako.xls")));
        EXPECT_TRUE(
            refusal([&] { calc->openWorkbook(world.path("jako.xls")); }).contains("je chráněn heslem"))
            << name;
    }
}

TEST_F(CalcUser, WhatTheUserSavesInCalcIsNoOtherProgramsDoing) {
    const QByteArray before = contents(world.path(pisen));
    ASSERT_TRUE(press({"x", "Return", "ctrl+s"}));
    ASSERT_TRUE(comes([&] { return contents(world.path(pisen)) != before; }));
    calc->setValue("B1", QString("c"));
    calc->saveActiveWorkbook();
}

TEST_F(CalcUser, AWorkbookOfAnotherProgramThatWasOnlyLookedAtIsWrittenOnlyWithConsent) {
    const QString foreign = world.path("cizí.xls");
    ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/xlwt.xls"), foreign));
    const QByteArray before = contents(foreign);
    calc->openWorkbook(foreign);
    calc->moveCursor(1, 0);
    world.dialogs.expect(jmenoCalcu, "napsal jiný program", Answer::No);
    calc->saveActiveWorkbook();
    calc->saveActiveWorkbook();
    EXPECT_EQ(contents(foreign), before);
    calc->closeActiveWorkbook();
    calc->openWorkbook(foreign);
    world.dialogs.expect(jmenoCalcu, "napsal jiný program", Answer::Yes);
    calc->moveCursor(1, 0);
    calc->saveActiveWorkbook();
    EXPECT_NE(contents(foreign), before);
    calc->saveActiveWorkbook();
}

TEST_F(CalcUser, WhatCalcSaysOfItselfDoesNotReachTheUser) {
    calc->selectRange("B1:B2");
    ASSERT_TRUE(VirtualScreen::type(pisen, "=A1:A2") && press({"ctrl+shift+Return"}));
    ASSERT_TRUE(comes([&] { return !isEmpty(calc->value("B2")); }));
    EXPECT_EQ(
        refusal([&] { calc->writeBlock("B2", {{1.0}}); }),
        "1004 LibreOffice Calc příkaz odmítl. Podívejte se do jeho okna, jestli nečeká na odpověď, a zkuste "
        "to znovu.");
}

} // namespace zvonika::testing
