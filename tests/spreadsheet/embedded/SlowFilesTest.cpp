// Folders that let the program wait.
#include "spreadsheet/embedded/SlowFiles.h"

#include "platform/Log.h"
#include "tests/spreadsheet/embedded/Rig.h"
#include "tests/support/Raised.h"

#include <QThread>

#include <atomic>
#include <gtest/gtest.h>

namespace zvonika::testing {

TEST(SlowFiles, WhoDoesNotWantToWaitLeavesTheReadingBehind) {
    ScriptedDialogs dialogs;
    SlowFiles files(dialogs, std::chrono::milliseconds(1));
    int signs = 0, over = 0;
    files.keepWindow([&] { ++signs; }, [&] { ++over; });
    const auto release = std::make_shared<std::atomic<bool>>(false);
    const QString question = "Soubor „Kočka.xls“ zatím nelze přečíst";
    dialogs.expect(jmenoTabulky, question, Answer::Yes).expect(jmenoTabulky, question, Answer::No);
    try {
        files.read("/sit/Kočka.xls", [release] {
            while (!*release)
                QThread::yieldCurrentThread();
        });
        FAIL() << "nobody waits for it";
    } catch (const RuntimeError& refusal) {
        EXPECT_EQ(refusal.number(), 1004);
        EXPECT_TRUE(refusal.cause().contains("neodpovídá")) << qPrintable(refusal.cause());
    }
    EXPECT_GT(signs, 0);
    EXPECT_EQ(over, 1);
    EXPECT_EQ(raised([&] { files.read("x", [] { throw RuntimeError(1004); }); }), 1004) << "the next one";
    EXPECT_EQ(raised([&] { files.write([] { throw RuntimeError(9); }); }), 9);
    *release = true;
}

TEST(SlowFiles, SongsAreReadAndWrittenBesideTheWindow) {
    static QSet<QThread*> threads;
    static QStringList lines;
    World world;
    const auto application = world.launch();
    application->keepWindow([] {}, [] {});
    application->addWorkbook();
    QLoggingCategory::setFilterRules("zvonika.*=true");
    const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& line) {
        threads.insert(QThread::currentThread());
        lines << line;
    });
    application->saveActiveWorkbookAs({"C:\\Kočka"});
    application->closeActiveWorkbook();
    QFile::rename(world.path("Kočka.xls"), world.path("jinde"));
    EXPECT_EQ(raised([&] { application->openWorkbook("C:\\Kočka.xls"); }), 1004);
    qInstallMessageHandler(before);
    QLoggingCategory::setFilterRules({});
    EXPECT_EQ(lines.size(), 2) << qPrintable(lines.join(' '));
    EXPECT_FALSE(threads.contains(QThread::currentThread()));
}

} // namespace zvonika::testing
