#include "tests/spreadsheet/libreoffice/VirtualScreen.h"

#include <QTest>

#include <csignal>
#include <sys/prctl.h>

namespace zvonika::testing {

namespace {

constexpr int patience = 15000; // ms

QString output(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(patience);
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString windowOf(const QString& title) {
    const QStringList search = {"search", "--onlyvisible", "--name", title};
    return output("xdotool", search).section('\n', 0, 0);
}

bool act(const QString& title, const QStringList& input) {
    QString window;
    if (!QTest::qWaitFor([&] { return !(window = windowOf(title)).isEmpty(); }, patience)) return false;
    QProcess xdotool;
    xdotool.start("xdotool", QStringList{"windowfocus", "--sync", window} + input);
    return xdotool.waitForFinished(patience) && xdotool.exitCode() == 0;
}

} // namespace

bool VirtualScreen::start() {
    server_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    server_.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1366x768x24", "-noreset", "-nolisten", "tcp"});
    if (!server_.waitForReadyRead(patience)) return false;
    qputenv("DISPLAY", ':' + server_.readLine().trimmed());
    qunsetenv("WAYLAND_DISPLAY");
    return true;
}

VirtualScreen::~VirtualScreen() {
    server_.terminate();
    server_.waitForFinished(patience);
}

bool VirtualScreen::press(const QString& title, const QStringList& keys) {
    return act(title, QStringList{"key", "--clearmodifiers"} + keys);
}

bool VirtualScreen::type(const QString& title, const QString& text) {
    return act(title, {"type", text});
}

bool VirtualScreen::hasWindow(const QString& title) {
    return !windowOf(title).isEmpty();
}

} // namespace zvonika::testing
