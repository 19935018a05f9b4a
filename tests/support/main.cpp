// The entry of test programs that need an application object: for widgets where they have any.
#include "tests/support/OtherProcess.h"

#include <gtest/gtest.h>

#ifdef QT_WIDGETS_LIB
#include "tests/support/BoxWatch.h"

#include <QApplication>
using Application = QApplication;
#else
#include <QCoreApplication>
using Application = QCoreApplication;
#endif

int main(int argc, char* argv[]) {
    ::testing::InitGoogleTest(&argc, argv);
    zvonika::testing::OtherProcess::playIfAsked(argc, argv);
#ifndef Q_OS_WIN // where a program need not have that platform in it
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); // no test could press their buttons
    Application application(argc, argv);
#ifdef QT_WIDGETS_LIB
    const zvonika::testing::BoxWatch watch;
#endif
    return RUN_ALL_TESTS();
}
