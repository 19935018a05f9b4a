#include "aids/WebSandbox.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Only here: machines that run tests as root or in a container have no sandbox to offer.
    if (zvonika::webSandbox() != zvonika::WebSandbox::Usable) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
