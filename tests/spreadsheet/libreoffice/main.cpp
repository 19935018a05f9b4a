// A real Calc on a screen of its own. Exit code 77, which counts as skipped, where LibreOffice is not
// installed. With "wait" or "vanish", a folder and a folder for profiles it is a program with a song open,
// for the test of what outlives it: it waits to be killed, or ends without any closing step.
#include "tests/spreadsheet/libreoffice/CalcWorld.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

using namespace zvonika::testing;

int openSong(const QString& way, const QString& folder, const QString& profiles) {
    zvonika::HomeDrive drive(folder, {});
    ScriptedDialogs dialogs;
    MemorySettings settings;
    zvonika::LibreOfficeApplication calc({drive, dialogs, settings, installedOffice(), profiles, {}, {}, {}});
    calc.setVisible(true);
    calc.addWorkbook();
    calc.saveActiveWorkbookAs({folder + "/Kočka.xls"});
    calc.setValue("B1", QString("c"));
    std::printf("%s\n", calc.activeWorkbookName().toUtf8().constData());
    std::fflush(stdout);
    if (way == "vanish") std::_Exit(1);
    pause();
    return 0;
}

int runTests() {
    if (!installedOffice().usable()) {
        std::printf("SKIPPED: %s\n", installedOffice().missing.toUtf8().constData());
        return 77;
    }
    VirtualScreen screen;
    if (screen.start()) return RUN_ALL_TESTS();
    std::printf("SKIPPED: there is no Xvfb\n");
    return 77;
}

} // namespace

int main(int argc, char* argv[]) {
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication application(argc, argv);
    const QStringList given = QCoreApplication::arguments();
    return given.size() == 4 ? openSong(given[1], given[2], given[3]) : runTests();
}
