#include "song/embedded/FileLock.h"

#include "song/embedded/ProcessStart.h"
#include "tests/song/embedded/Rig.h"

#include <QSysInfo>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace zvonika::testing {

namespace {

/// Another process that holds the lock of a file until it is killed.
class OtherProcess {
public:
    explicit OtherProcess(const QString& file) {
        int ready[2];
        if (::pipe(ready) != 0) return;
        pid_ = ::fork();
        if (pid_ == 0) holdLock(file, ready[1]);
        char signal = 0;
        held = ::read(ready[0], &signal, 1) == 1;
        ::close(ready[0]);
        ::close(ready[1]);
    }
    ~OtherProcess() { kill(); }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    void kill() {
        if (pid_ <= 0) return;
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
        pid_ = 0;
    }
    pid_t pid() const { return pid_; }
    bool held = false;

private:
    [[noreturn]] static void holdLock(const QString& file, int ready) {
        const FileLock lock = FileLock::acquire(file);
        if (lock.isHeld() && ::write(ready, "1", 1) == 1)
            for (;;)
                ::pause();
        ::_exit(1);
    }

    pid_t pid_ = 0;
};

class FileLockTest : public ::testing::Test, protected World {
protected:
    FileLockTest() { store(song, "x"); }
    /// The lock of this process with one of its lines replaced; returns whether it counts.
    bool countsWith(int line, const QByteArray& text) {
        QByteArray lock;
        {
            const FileLock held = FileLock::acquire(song);
            lock = contents(FileLock::lockName(song));
        }
        QList<QByteArray> lines = lock.split('\n');
        lines[line] = text;
        store(FileLock::lockName(song), lines.join('\n'));
        const bool counts = FileLock::holder(song).has_value();
        QFile::remove(FileLock::lockName(song));
        return counts;
    }
    const QString song = path(QStringLiteral("píseň.xls"));
};

enum Line { program = 2, process = 3, start = 4, boot = 5, machine = 6 };

} // namespace

TEST_F(FileLockTest, IsAHiddenFileForAsLongAsItIsHeld) {
    {
        FileLock lock = FileLock::acquire(song);
        const FileLock moved = std::move(lock);
        EXPECT_TRUE(moved.isHeld());
        EXPECT_TRUE(files().contains(QStringLiteral(".~píseň.xls.zamek")));
    }
    EXPECT_EQ(files(), QStringList{QStringLiteral("píseň.xls")});
}

TEST_F(FileLockTest, TellsWhoHasTheFileOpen) {
    OtherProcess other(song);
    ASSERT_TRUE(other.held);
    const QString refusal = refusalOf([&] { FileLock::acquire(song); });
    EXPECT_TRUE(refusal.startsWith(QStringLiteral("1004 Soubor „píseň.xls“ je už otevřen jinde (uživatel ")))
        << refusal.toStdString();
    EXPECT_TRUE(refusal.contains(QStringLiteral("proces %1").arg(other.pid()))) << refusal.toStdString();
    EXPECT_TRUE(refusal.contains(QSysInfo::machineHostName())) << refusal.toStdString();
}

TEST_F(FileLockTest, OfADeadProcessCountsForNothing) {
    OtherProcess other(song);
    ASSERT_TRUE(other.held);
    other.kill();
    ASSERT_TRUE(QFile::exists(FileLock::lockName(song)));
    const FileLock lock = FileLock::acquire(song);
    EXPECT_TRUE(lock.isHeld());
    EXPECT_TRUE(lock.foundStale());
}

TEST_F(FileLockTest, CountsForAsLongAsItsOwnerRuns) {
    EXPECT_TRUE(countsWith(program, "jiny"));
    EXPECT_FALSE(countsWith(start, "1")) << "the number is in use again";
    EXPECT_FALSE(countsWith(boot, "jiny-start-pocitace"));
    EXPECT_TRUE(countsWith(machine, "jiny-pocitac")) << "nothing is known of its processes";
    EXPECT_FALSE(countsWith(0, "jiny druh zamku"));
    store(FileLock::lockName(song), "Tabulka Zvoniky 1\npoc"); // its owner died while it wrote this
    EXPECT_TRUE(FileLock::acquire(song).isHeld());
}

TEST_F(FileLockTest, TakenOverIsNotGivenBackByTheOneThatHadIt) {
    auto first = std::make_unique<FileLock>(FileLock::acquire(song));
    store(FileLock::lockName(song), contents(FileLock::lockName(song)).replace("\n", " \n"));
    first.reset();
    EXPECT_TRUE(QFile::exists(FileLock::lockName(song)));
}

TEST_F(FileLockTest, IsTheSameThroughALink) {
    const QString link = path(QStringLiteral("odkaz.xls"));
    ASSERT_TRUE(QFile::link(song, link));
    const FileLock lock = FileLock::acquire(song);
    EXPECT_TRUE(refusalOf([&] { FileLock::acquire(link); }).startsWith(QStringLiteral("1004")));
}

TEST_F(FileLockTest, IsDoneWithoutWhereNoFileCanBeMade) {
    const QString impossible[] = {QStringLiteral("/proc/version"), path(QStringLiteral("není/x.xls")),
                                  path(QString(250, u'x'))};
    for (const QString& file : impossible)
        EXPECT_FALSE(FileLock::acquire(file).isHeld()) << file.toStdString();
}

TEST(ProcessStartTest, KnowsTheLivingFromTheDead) {
    EXPECT_EQ(processStart(::getpid()), processStart(::getpid()));
    EXPECT_NE(processStart(::getpid()).value_or(QString()), QString());
    const pid_t child = ::fork();
    if (child == 0) ::_exit(0);
    siginfo_t info;
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT), 0);
    EXPECT_FALSE(processStart(child)) << "ended, though not yet forgotten";
    ::waitpid(child, nullptr, 0);
    EXPECT_FALSE(processStart(child));
    EXPECT_FALSE(processStart(0));
    EXPECT_FALSE(processStart(-1));
}

} // namespace zvonika::testing
