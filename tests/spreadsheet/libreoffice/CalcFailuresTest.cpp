#include "spreadsheet/Address.h"
#include "tests/spreadsheet/libreoffice/CalcWorld.h"

#include <QFile>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <sys/mount.h>

namespace zvonika::testing {

namespace {

const QString pisen = QStringLiteral("Kočka.xls");

class CalcFailures : public ::testing::Test {
protected:
    std::unique_ptr<LibreOfficeApplication> withSong() {
        auto application = world.launch();
        application->addWorkbook();
        application->saveActiveWorkbookAs({world.path(pisen)});
        return application;
    }

    CalcWorld world;
};

/// Number and sentence of a refusal, "0" when there is none.
QString refusal(const std::function<void()>& call) {
    try {
        call();
        return "0";
    } catch (const AutomationError& failure) {
        return QString::number(failure.number()) + ' ' + failure.cause();
    }
}

int number(const std::function<void()>& call) {
    return refusal(call).section(' ', 0, 0).toInt();
}

QByteArray contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// A program folder of LibreOffice in which the office itself is a shell script.
void makeOffice(const QString& folder, const QByteArray& script) {
    const QDir real(installedOffice().program);
    for (const QString& name : real.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
        if (name != "soffice.bin") QFile::link(real.filePath(name), folder + '/' + name);
    QFile file(folder + "/soffice.bin");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script + "\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

TEST_F(CalcFailures, AKilledCalcIsGoneAndLeavesNothingBehind) {
    auto calc = withSong();
    EXPECT_EQ(locksIn(world.folder.path()).size(), 1);
    kill(world.office(), SIGKILL);
    ASSERT_TRUE(allGone(world.profiles.path()));
    EXPECT_EQ(number([&] { calc->setValue("B1", QString("c")); }), 91);
    EXPECT_EQ(number([&] { calc->activateWindow(pisen); }), 91);
    EXPECT_EQ(number([&] { calc->quit(); }), 91);
    EXPECT_EQ(number([&] { calc->quit(); }), 0);
    EXPECT_TRUE(locksIn(world.folder.path()).isEmpty());
}

TEST_F(CalcFailures, ACalcThatHangsIsWaitedFor) {
    world.patience.cell = std::chrono::milliseconds(400);
    auto calc = withSong();
    world.dialogs.expect(jmenoCalcu, "neodpovídá", Answer::Yes);
    world.dialogs.meanwhile = [&] { kill(world.office(), SIGCONT); };
    world.signs = 0;
    kill(world.office(), SIGSTOP);
    calc->setValue("B1", QString("c"));
    EXPECT_GE(world.signs, 3);
    EXPECT_EQ(cellText(calc->value("B1")), "c");
}

TEST_F(CalcFailures, ACalcThatHangsIsEndedWhenTheUserWantsIt) {
    world.patience.cell = std::chrono::milliseconds(200);
    auto calc = withSong();
    kill(world.office(), SIGSTOP);
    world.dialogs.expect(jmenoCalcu, "neodpovídá", Answer::No);
    EXPECT_EQ(number([&] { calc->setValue("B1", QString("c")); }), 91);
    EXPECT_TRUE(allGone(world.profiles.path()));
    EXPECT_EQ(number([&] { calc->activateWindow(pisen); }), 91);
    EXPECT_EQ(number([&] { calc->quit(); }), 91);
    EXPECT_TRUE(locksIn(world.folder.path()).isEmpty());
}

TEST_F(CalcFailures, AFullDiskRefusesAndKeepsTheOldFile) {
    const QString disk = world.path("disk");
    ASSERT_TRUE(QDir().mkdir(disk));
    if (mount("tmpfs", disk.toUtf8().constData(), "tmpfs", 0, "size=100k") != 0)
        GTEST_SKIP() << "a small disk can be made by root only";
    {
        auto calc = world.launch();
        calc->addWorkbook();
        calc->saveActiveWorkbookAs({disk + '/' + pisen});
        const QByteArray before = contents(disk + '/' + pisen);
        calc->writeBlock("A1", CellBlock(900, QVector<CellValue>(20, 1.5)));
        const QString told = refusal([&] { calc->saveActiveWorkbook(); });
        EXPECT_TRUE(told.startsWith("1004") && told.contains("na disku není dost místa"))
            << told.toStdString();
        EXPECT_EQ(contents(disk + '/' + pisen), before);
        calc->clearContents("A2:T900");
        calc->saveActiveWorkbook();
        EXPECT_NE(contents(disk + '/' + pisen), before);
    }
    umount(disk.toUtf8().constData());
}

TEST_F(CalcFailures, WhatTheFormatCannotHoldIsNotDroppedInSilence) {
    auto calc = withSong();
    ASSERT_TRUE(VirtualScreen::press(pisen, {"ctrl+Down", "x", "Return"}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return calc->activeRow() > lastRow; }));
    EXPECT_TRUE(refusal([&] { calc->saveActiveWorkbook(); }).contains("končí řádkem 65536"));
}

TEST_F(CalcFailures, AStandingDialogRefusesTheCloseButNotTheEnd) {
    auto calc = withSong();
    ASSERT_TRUE(VirtualScreen::press(pisen, {"ctrl+1"}));
    ASSERT_TRUE(QTest::qWaitFor([] { return VirtualScreen::hasWindow("Format Cells"); }, 30000));
    calc->setValue("B1", QString("c"));
    EXPECT_EQ(cellText(calc->value("B1")), "c");
    EXPECT_TRUE(refusal([&] { calc->closeActiveWorkbook(); }).contains("čeká na odpověď"));
    calc->saveActiveWorkbook();
    calc->quit();
    EXPECT_TRUE(allGone(world.profiles.path()));
}

// A program that ends without any of its closing steps: this one, run for that.
TEST_F(CalcFailures, NothingOutlivesAProgramThatIsKilled) {
    for (const char* way : {"vanish", "wait"}) {
        QFile::remove(world.path(pisen));
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(),
                      {way, world.folder.path(), world.profiles.path()});
        ASSERT_TRUE(program.waitForReadyRead(30000)) << way;
        EXPECT_EQ(program.readLine().trimmed(), "Kočka.xls");
        const QString pipes = QStringLiteral("OSL_PIPE_*zvonika-%1-*").arg(program.processId());
        program.kill();
        program.waitForFinished();
        EXPECT_TRUE(allGone(world.profiles.path())) << way;
        EXPECT_TRUE(locksIn(world.folder.path()).isEmpty()) << way;
        EXPECT_TRUE(QDir("/tmp").entryList({pipes}, QDir::System).isEmpty()) << way;
        const QStringList kept = {"user", "vystup.txt", "zvonika.lock"};
        EXPECT_EQ(QDir(world.profiles.path() + "/1")
                      .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
                  kept)
            << way;
    }
}

TEST_F(CalcFailures, AnOfficeThatDoesNotStartIsReportedWithItsReason) {
    world.patience.start = std::chrono::milliseconds(300);
    world.dialogs.expect(jmenoCalcu, "neodpovídá", Answer::No);
    for (const auto& [script, reason] :
         {std::pair("exec sleep 100", "neodpovídala"), std::pair("exit 1", "hned ukončil")}) {
        QTemporaryDir program;
        makeOffice(program.path(), script);
        world.installation.program = program.path();
        const QString told = refusal([&] { world.launch(); });
        EXPECT_TRUE(told.startsWith("429") && told.contains(reason)) << told.toStdString();
        EXPECT_TRUE(allGone(world.profiles.path()));
    }
}

} // namespace zvonika::testing
