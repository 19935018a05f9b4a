// Calls that take long, fail or never come back, and what the user does meanwhile.
#include "platform/Log.h"
#include "tests/spreadsheet/libreoffice/FakeCalc.h"
#include "tests/support/FeltWait.h"
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

} // namespace

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
