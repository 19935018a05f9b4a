// Calls that take long, fail or never come back, and what the user does meanwhile.
#include "platform/Log.h"
#include "tests/spreadsheet/libreoffice/FakeCalc.h"
#include "tests/support/Raised.h"

#include <QCoreApplication>
#include <QTimer>

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

namespace zvonika::testing {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

class Heard : public SpreadsheetListener {
public:
    void cursorMoved() override { acts += 'm'; }
    void cellsEdited() override {
        acts += 'e';
        if (onEdit) onEdit();
    }
    std::string acts;
    std::function<void()> onEdit;
};

/// A wait during which the window is kept alive for two pictures.
struct FeltWait {
    std::atomic<int> signs = 0;
    WaitingCustoms customs{[this] { ++signs; }, [] { return true; }, [] {}};

    void last() const {
        while (signs < 2)
            std::this_thread::yield();
    }
};

} // namespace

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

TEST(CalcCalls, ACallThatCannotBeBrokenOffIsLeftBehind) {
    const auto release = std::make_shared<std::atomic<bool>>(false);
    int asked = 0, broken = 0;
    FakeCalcWorld world({{}, [&] { return ++asked < 2; }, [&] { ++broken; }},
                        {seconds(1), seconds(1), milliseconds(50)});
    const auto stuck = [release](CalcEngine&) {
        while (!*release)
            std::this_thread::yield();
    };
    EXPECT_EQ(raised([&] { world.calls.ask(stuck); }), 91);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(broken, 1);
    EXPECT_EQ(raised([&] { world.calls.ask([](CalcEngine& calc) { calc.add(); }); }), 91);
    EXPECT_NO_THROW(world.calls.detach());
    EXPECT_FALSE(world.calls.alive());
    *release = true;
}

TEST(CalcCalls, WhatTheUserDoesDuringACallIsToldAfterItEvenIfItFails) {
    for (const int failure : {0, 1004}) {
        FeltWait wait;
        FakeCalcWorld world(wait.customs);
        Heard heard;
        world.notices->setListener(&heard);
        EXPECT_EQ(raised([&] {
                      world.calls.ask([&](CalcEngine&) {
                          world.notices->cursorMoved();
                          wait.last();
                          if (failure) throw RuntimeError(failure);
                      });
                  }),
                  failure);
        EXPECT_EQ(heard.acts, "") << failure;
        QCoreApplication::processEvents();
        EXPECT_EQ(heard.acts, "m") << failure;
    }
}

TEST(CalcCalls, TheLogNamesTheCallAndNoContents) {
    static QString log;
    log.clear();
    const auto before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& line) { log += line + '\n'; });
    FakeCalcWorld world;
    const auto write = [&] {
        world.calls.ask([text = QString("tajná")](CalcEngine& calc) { calc.write({1, 2}, {{text}}); });
    };
    write();
    EXPECT_EQ(log, "") << "off by default";
    QLoggingCategory::setFilterRules("zvonika.volani=true");
    write();
    QLoggingCategory::setFilterRules({});
    qInstallMessageHandler(before);
    EXPECT_TRUE(log.contains("TheLogNamesTheCall")) << log.toStdString();
    EXPECT_FALSE(log.contains("tajná"));
}

TEST(UserNotices, BringManyActsAsOneAndNoneAfterTheEnd) {
    FakeCalcWorld world;
    Heard heard;
    world.notices->setListener(&heard);
    std::thread([&] {
        for (int i = 0; i < 50; ++i)
            world.notices->cursorMoved();
    }).join();
    QCoreApplication::processEvents();
    EXPECT_EQ(heard.acts, "m");
    EXPECT_EQ(world.notices->acts(), 50U);
    world.notices->deliverAgain();
    QCoreApplication::processEvents();
    EXPECT_EQ(heard.acts, "m");
    heard.onEdit = [&] { world.notices->stop(); };
    world.notices->cellsEdited();
    world.notices->cursorMoved();
    QCoreApplication::processEvents();
    EXPECT_EQ(heard.acts, "me") << "the listener itself may end it";
    world.notices->cursorMoved();
    QCoreApplication::processEvents();
    EXPECT_EQ(heard.acts, "me");
}

} // namespace zvonika::testing
