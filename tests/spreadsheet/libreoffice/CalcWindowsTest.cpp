// Where Calc's windows stand on the screen, also beside windows that are kept above all others.
#include "tests/spreadsheet/libreoffice/CalcWorld.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

namespace zvonika::testing {

namespace {

class CalcWindows : public ::testing::Test {
protected:
    CalcWindows() {
        world.window = {900, 30, 400, 700}; // no room for a further one beside it
        calc = world.launch();
    }
    void makeSong(const char* name) const {
        calc->addWorkbook();
        calc->saveActiveWorkbookAs({world.path(name)});
    }
    static bool comes(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 30000); }
    static QString output(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(15000)) << program.toStdString();
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }
    static QString windowOf(const QString& title) {
        return output("xdotool", {"search", "--onlyvisible", "--name", title}).section('\n', 0, 0);
    }
    static QString placeOf(const QString& title) {
        return output("xdotool", {"getwindowgeometry", windowOf(title)}).section('\n', 1);
    }
    static void setProperty(const QStringList& window, const char* name, const char* type,
                            const QString& value) {
        output("xprop", window + QStringList{"-f", name, type, "-set", name, value});
    }
    static void setClients(const QStringList& windows) {
        setProperty({"-root"}, "_NET_CLIENT_LIST", "32x", windows.join(','));
    }
    QString openFormatCells() const {
        EXPECT_TRUE(VirtualScreen::press("pisen.xls", {"ctrl+1"}));
        EXPECT_TRUE(comes([] { return VirtualScreen::hasWindow("Format Cells"); }));
        return windowOf("Format Cells");
    }

    CalcWorld world;
    std::unique_ptr<LibreOfficeApplication> calc;
};

} // namespace

TEST_F(CalcWindows, TheNextSheetStandsWhereTheLastOneStood) {
    makeSong("první.xls");
    const QString place = placeOf("první.xls");
    makeSong("druhá.xls");
    EXPECT_TRUE(comes([&] { return placeOf("druhá.xls") == place; })) << placeOf("druhá.xls").toStdString();
    for (const char* open : {"druhá.xls", "první.xls"}) {
        ASSERT_TRUE(VirtualScreen::press(open, {"ctrl+w"}));
        ASSERT_TRUE(comes([&] { return !VirtualScreen::hasWindow(open); }));
    }
    ASSERT_TRUE(comes([] { return VirtualScreen::hasWindow("LibreOffice"); })) << "Calc without a workbook";
    makeSong("třetí.xls");
    EXPECT_TRUE(comes([&] { return placeOf("třetí.xls") == place; })) << placeOf("třetí.xls").toStdString();
    EXPECT_EQ(windowOf("^LibreOffice$"), "");
}

TEST_F(CalcWindows, BoxesAreRaisedAboveWhatIsKeptOnTop) {
    if (QStandardPaths::findExecutable("openbox").isEmpty()) GTEST_SKIP() << "no window manager";
    QProcess manager;
    manager.start("openbox", QStringList{});
    makeSong("pisen.xls");
    ASSERT_TRUE(comes([] { return output("xprop", {"-root", "_NET_CLIENT_LIST"}).contains("0x"); }));
    const QString box = openFormatCells();
    EXPECT_TRUE(comes([&] { return output("xprop", {"-id", box, "_NET_WM_STATE"}).contains("ABOVE"); }));
    EXPECT_FALSE(output("xprop", {"-id", windowOf("pisen.xls"), "_NET_WM_STATE"}).contains("ABOVE"));
    manager.kill();
    manager.waitForFinished();
}

// Calc's own window stands for one of the program that is kept on top; nobody heeds what is asked.
TEST_F(CalcWindows, WhereABoxCannotBeRaisedTheTopIsGivenUpUntilItHasGone) {
    makeSong("pisen.xls");
    const QString own = windowOf("pisen.xls"), box = openFormatCells();
    setProperty({"-id", own}, "_NET_WM_PID", "32c", QString::number(QCoreApplication::applicationPid()));
    setProperty({"-id", own}, "_NET_WM_STATE", "32a", "_NET_WM_STATE_ABOVE");
    QProcess asked;
    asked.start("xev", {"-root", "-event", "substructure"});
    QString heard;
    const auto hears = [&](const QString& what) {
        return (heard += asked.readAllStandardOutput()).contains(what);
    };
    int x = 0;
    ASSERT_TRUE(comes([&] {
        output("xdotool", {"windowmove", own, QString::number(++x), "0"});
        return hears("ConfigureNotify");
    }));
    const auto isAskedAbout = [&] {
        return hears("synthetic YES, window 0x" + QString::number(own.toLongLong(), 16) + ",");
    };
    setClients({own, box});
    EXPECT_TRUE(comes(isAskedAbout)) << "the top is given up";
    heard.clear();
    setClients({own});
    EXPECT_TRUE(comes(isAskedAbout)) << "and taken back";
    output("xprop", {"-root", "-remove", "_NET_CLIENT_LIST"});
    asked.kill();
    asked.waitForFinished();
}

} // namespace zvonika::testing
