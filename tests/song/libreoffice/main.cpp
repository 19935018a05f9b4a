// A real Calc on a screen of its own. Exit code 77, which counts as skipped, where LibreOffice is not
// installed.
#include "tests/song/libreoffice/CalcWorld.h"

#include <QCoreApplication>

#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
    ::testing::InitGoogleTest(&argc, argv);
    using namespace zvonika::testing;
    QCoreApplication application(argc, argv);
    if (!installedOffice().usable()) {
        std::printf("SKIPPED: %s\n", installedOffice().missing.toUtf8().constData());
        return 77;
    }
    VirtualScreen screen;
    if (!screen.start()) {
        std::printf("SKIPPED: there is no Xvfb\n");
        return 77;
    }
    return RUN_ALL_TESTS();
}
