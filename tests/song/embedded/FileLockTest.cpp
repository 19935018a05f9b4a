#include "song/embedded/FileLock.h"

#include "tests/song/embedded/Rig.h"

#include <QLockFile>

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
    const QString song = path(QStringLiteral("píseň.xls"));
};

} // namespace

TEST_F(FileLockTest, IsAHiddenFileForAsLongAsItIsHeld) {
    {
        const FileLock lock = FileLock::acquire(song);
        EXPECT_TRUE(lock.isHeld());
        EXPECT_TRUE(files().contains(QStringLiteral(".~píseň.xls.zamek")));
    }
    EXPECT_EQ(files(), QStringList{QStringLiteral("píseň.xls")});
}

TEST_F(FileLockTest, TellsWhoHasTheFileOpen) {
    OtherProcess other(song);
    ASSERT_TRUE(other.held);
    const QString refusal = refusalOf([&] { FileLock::acquire(song); });
    EXPECT_TRUE(refusal.startsWith(QStringLiteral("1004 Soubor „píseň.xls“ je už otevřen jinde (")))
        << refusal.toStdString();
    EXPECT_TRUE(refusal.contains(QStringLiteral("proces %1").arg(other.pid()))) << refusal.toStdString();
    EXPECT_TRUE(refusal.contains(QSysInfo::machineHostName())) << refusal.toStdString();
}

TEST_F(FileLockTest, OfADeadProcessCountsForNothing) {
    OtherProcess other(song);
    ASSERT_TRUE(other.held);
    other.kill();
    ASSERT_TRUE(QFile::exists(FileLock::lockName(song)));
    EXPECT_TRUE(FileLock::acquire(song).isHeld());
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

} // namespace zvonika::testing
