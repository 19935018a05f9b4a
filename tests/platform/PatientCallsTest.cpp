// What the window does while a call takes long.
#include "platform/RuntimeError.h"
#include "tests/support/FeltWait.h"
#include "tests/support/Raised.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QVector>

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace zvonika::testing {

using std::chrono::seconds;

TEST(PatientCalls, NothingIsEnteredTwiceAndFailuresComeThrough) {
    FeltWait wait;
    PatientCalls calls(wait.customs);
    int nested = 0, ticks = 0;
    QTimer stepping;
    QObject::connect(&stepping, &QTimer::timeout, [&] { ++ticks; });
    stepping.start(1);
    // Comes while the slow call is waited for, as a command from the window would.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [&] { nested = raised([&] { calls.run(seconds(10), [] {}); }); },
        Qt::QueuedConnection);
    const auto slow = [&] {
        wait.last();
        throw RuntimeError(9);
    };
    EXPECT_EQ(raised([&] { calls.run(seconds(10), slow); }), 9);
    EXPECT_EQ(nested, 1004);
    EXPECT_EQ(ticks, 0) << "timers are held back";
    EXPECT_EQ(raised([&] { calls.run(seconds(10), [] {}); }), 0);
}

/// Notes the events that reach it.
class Pressed : public QObject {
public:
    bool event(QEvent* event) override {
        reached << event->type();
        return true;
    }
    QVector<int> reached;
};

TEST(PatientCalls, WhatIsEnteredDuringAWaitIsDroppedAndNoButtonStaysDown) {
    const QEvent::Type press = QEvent::MouseButtonPress, release = QEvent::MouseButtonRelease;
    const struct {
        const char* name;
        QVector<QEvent::Type> entered;
        QVector<int> reached;
    } cases[] = {
        {"clicks", {press, release, QEvent::MouseButtonDblClick, release}, {}},
        {"pressed before", {release, press, release}, {release}},
        {"keys", {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease, QEvent::Shortcut}, {}},
        {"other", {QEvent::Wheel, QEvent::InputMethod, QEvent::Close, QEvent::User}, {QEvent::User}},
    };
    for (const auto& [name, entered, reached] : cases) {
        FeltWait wait;
        PatientCalls calls(wait.customs);
        Pressed button;
        calls.run(seconds(10), [&, &entered = entered] {
            for (const QEvent::Type type : entered)
                QCoreApplication::postEvent(&button, new QEvent(type));
            wait.last();
        });
        QCoreApplication::postEvent(&button, new QEvent(press));
        QCoreApplication::processEvents();
        EXPECT_EQ(button.reached, reached + QVector<int>{press}) << name;
    }
}

TEST(PatientCalls, AWaitThatEndsItsOwnObjectRaises91) {
    const auto ended = std::make_shared<std::atomic<bool>>(false);
    auto calls = std::make_unique<PatientCalls>(WaitingCustoms{[] {}, [] { return true; }, [] {}});
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [&] {
            calls.reset();
            *ended = true;
        },
        Qt::QueuedConnection);
    // It lasts longer than the object that waits for it.
    const auto call = [ended] {
        while (!*ended)
            std::this_thread::yield();
    };
    EXPECT_EQ(raised([&] { calls->run(seconds(10), call); }), 91);
    EXPECT_EQ(calls, nullptr);
}

TEST(PatientCalls, WhatACallHoldsGoesOnItsThreadBeforeTheCallerGoesOn) {
    PatientCalls calls({[] {}, [] { return true; }, [] {}});
    std::thread::id ended;
    std::shared_ptr<int> held(new int, [&](int* last) {
        ended = std::this_thread::get_id();
        delete last;
    });
    std::thread::id worker;
    calls.run(seconds(10), [&worker, held = std::move(held)] { worker = std::this_thread::get_id(); });
    EXPECT_EQ(ended, worker);
    EXPECT_NE(ended, std::this_thread::get_id());
}

} // namespace zvonika::testing
