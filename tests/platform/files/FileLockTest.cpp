#include "platform/files/FileLock.h"

#include "platform/files/LockSentences.h"
#include "tests/platform/files/OtherUser.h"
#include "tests/spreadsheet/embedded/Rig.h"
#include "tests/support/Neighbours.h"
#include "tests/support/OtherProcess.h"

#include <QDateTime>
#include <QSysInfo>

#include <algorithm>
#include <latch>
#include <map>
#include <thread>
#include <vector>

namespace zvonika::testing {

namespace {

/// For as long as the process lives.
bool acquires(const QString& file) {
    try {
        static const FileLock lock = FileLock::acquire(file);
        return lock.isHeld();
    } catch (const RuntimeError&) {
        return false;
    }
}
[[maybe_unused]] const bool known = OtherProcess::know(acquires);

class FileLockTest : public ::testing::Test, protected World {
protected:
    FileLockTest() { store(song, "x"); }
    /// The lock of this process with some of its lines replaced; returns whether it counts.
    bool countsWith(const std::map<int, QByteArray>& changes) {
        QByteArray lock;
        {
            const FileLock held = FileLock::acquire(song);
            lock = contents(FileLock::lockName(song));
        }
        QList<QByteArray> lines = lock.split('\n');
        for (const auto& [line, text] : changes)
            lines[line] = text;
        store(FileLock::lockName(song), lines.join('\n'));
        const bool counts = FileLock::holder(song).has_value();
        QFile::remove(FileLock::lockName(song));
        return counts;
    }
    /// How many of so many that acquire the lock at the same moment hold it.
    int winnersOf(int many) {
        std::vector<FileLock> locks(static_cast<std::size_t>(many));
        std::latch start(many);
        {
            std::vector<std::jthread> threads;
            for (FileLock& lock : locks)
                threads.emplace_back([&] {
                    start.arrive_and_wait();
                    refusalOf([&] { lock = FileLock::acquire(song); });
                });
        }
        return int(std::ranges::count_if(locks, &FileLock::isHeld));
    }
    const QString song = path(QStringLiteral("píseň.xls"));
};

enum Line { host = 1, program = 2, process = 3, start = 4, boot = 5, machine = 6 };

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
    OtherProcess other(acquires, song);
    ASSERT_TRUE(other.held);
    const QString refusal = refusalOf([&] { FileLock::acquire(song); });
    EXPECT_TRUE(refusal.startsWith(QStringLiteral("1004 Soubor „píseň.xls“ je už otevřen jinde (uživatel ")))
        << refusal.toStdString();
    EXPECT_TRUE(refusal.contains(QStringLiteral("proces %1").arg(other.pid()))) << refusal.toStdString();
    EXPECT_TRUE(refusal.contains(QSysInfo::machineHostName())) << refusal.toStdString();
}

TEST_F(FileLockTest, OfADeadProcessCountsForNothing) {
    OtherProcess other(acquires, song);
    ASSERT_TRUE(other.held);
    other.kill();
    ASSERT_TRUE(QFile::exists(FileLock::lockName(song)));
    const FileLock lock = FileLock::acquire(song);
    EXPECT_TRUE(lock.isHeld());
    EXPECT_TRUE(lock.foundStale());
}

TEST_F(FileLockTest, OfAnOfficeCountsUnlessTheComputerHasStartedSince) {
    const QByteArray here = QSysInfo::machineHostName().toUtf8();
    const struct {
        QByteArray lock;
        bool old;
        const char* told; ///< nullptr: it does not count
    } locks[] = {
        {",jana," + here + ",22.11.2026 03:10,file:///home/jana/office;", false, "uživatel jana, počítač "},
        {",jana," + here + ",22.11.2026 03:10,file:///home/jana/office;", true, nullptr},
        {"Jana \\,N.,,doma,1.1.2000 00:00,;", true, "uživatel Jana ,N., počítač doma, program LibreOffice)"},
        {"nic", false, "program LibreOffice)"},
    };
    const QString name = path(QStringLiteral(".~lock.píseň.xls#"));
    for (const auto& [lock, old, told] : locks) {
        store(name, lock);
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        if (old)
            file.setFileTime(QDateTime(QDate(2000, 1, 1), QTime(0, 0)), QFileDevice::FileModificationTime);
        EXPECT_EQ(FileLock::holder(song).has_value(), told != nullptr) << lock.constData();
        const QString refusal = refusalOf([&] { FileLock::acquire(song); });
        EXPECT_TRUE(told ? refusal.contains(QString::fromUtf8(told)) : refusal == QStringLiteral("0"))
            << refusal.toStdString();
    }
}

TEST_F(FileLockTest, CountsForAsLongAsItsOwnerRuns) {
    EXPECT_TRUE(countsWith({{program, "jiny"}}));
    EXPECT_FALSE(countsWith({{start, "1"}})) << "the number is in use again";
    EXPECT_FALSE(countsWith({{boot, "jiny-start-pocitace"}}));
    EXPECT_TRUE(countsWith({{machine, "jiny-pocitac"}})) << "nothing is known of its processes";
    EXPECT_TRUE(countsWith({{host, "ucebna-07"}, {boot, "jiny-start"}})) << "a copy of this installation";
    EXPECT_FALSE(countsWith({{0, "jiny druh zamku"}}));
    store(FileLock::lockName(song), "Tabulka Zvoniky 1\npoc"); // its owner died while it wrote this
    EXPECT_TRUE(FileLock::acquire(song).isHeld());
}

TEST_F(FileLockTest, OfManyThatTryAtOnceOneGetsIt) {
    QByteArray dead;
    {
        OtherProcess other(acquires, song);
        ASSERT_TRUE(other.held);
        dead = contents(FileLock::lockName(song));
    }
    for (int round = 0; round < 30; ++round) {
        QFile::remove(FileLock::lockName(song));
        if (round % 2 == 1) store(FileLock::lockName(song), dead);
        EXPECT_EQ(winnersOf(6), 1) << (round % 2 == 1 ? "a dead process had it" : "free");
    }
}

TEST_F(FileLockTest, ThatCannotBeReadIsOfSomebody) {
    const QString lock = FileLock::lockName(song);
    store(lock, {});
    EXPECT_TRUE(FileLock::holder(song)) << "empty: being written";
    EXPECT_TRUE(refusalOf([&] { FileLock::acquire(song); }).startsWith(QStringLiteral("1004")));
    SKIPPED_ON_WINDOWS("everything can be read by the user who tests");
    store(lock, "x");
    ASSERT_TRUE(QFile::setPermissions(lock, {}));
    const QString user = QFileInfo(lock).owner();
    const QString refusal =
        QStringLiteral("1004 Soubor „píseň.xls“ je už otevřen jinde (uživatel %1; podle skrytého souboru "
                       "„.~píseň.xls.zamek“, který přečíst nejde).")
            .arg(user);
    setMode(folder.path(), 0777);
    const auto refused = [&] { return refusalOf([&] { FileLock::acquire(song); }) == refusal; };
    EXPECT_EQ(asOrdinaryUser([&] { return refused() ? 7 : 1; }), 7);
    EXPECT_EQ(contents(lock), "x");
}

TEST_F(FileLockTest, RubbishUnderItsNameIsOfSomebodyAndTheQuestionNamesIt) {
    const QString lock = FileLock::lockName(song);
    for (const Neighbour& neighbour : neighbours) {
        SCOPED_TRACE(neighbour.what);
        ASSERT_TRUE(neighbour.put(lock));
        const auto holder = FileLock::holder(song);
        ASSERT_TRUE(holder);
        EXPECT_TRUE(openAnyway(song, *holder).contains(QStringLiteral("„.~píseň.xls.zamek“")));
        EXPECT_TRUE(refusalOf([&] { FileLock::acquire(song); }).contains(QStringLiteral(".zamek")));
        const bool folder = QFileInfo(lock).isDir() && !QFileInfo(lock).isSymLink();
        EXPECT_EQ(FileLock::takeOver(song).isHeld(), !folder);
        EXPECT_EQ(QDir(lock).exists() && QDir().rmdir(lock), folder) << "given back where it could be taken";
    }
    store(lock, QByteArray(5000, 'x'));
    EXPECT_TRUE(FileLock::holder(song)) << "too long for a lock";
}

TEST_F(FileLockTest, WhatItTellsIsShownAndNotObeyed) {
    LockHolder holder;
    holder.user = QStringLiteral("jana\nSoubor je volný.");
    holder.host = QString(500, u'h') + QChar(0x202E);
    holder.program = QStringLiteral("%2\t%1");
    holder.process = 7;
    const QString told = whoHolds(holder);
    EXPECT_TRUE(told.startsWith(QStringLiteral("uživatel jana↵Soubor je volný., počítač hhh")))
        << told.toStdString();
    EXPECT_TRUE(told.endsWith(QStringLiteral("hhh[U+202E], program %2→%1, proces 7"))) << told.toStdString();
    EXPECT_LT(told.size(), 200);
}

TEST_F(FileLockTest, KeepsToTheUsersMaskAndTellsNoIdentifiers) {
    for (const mode_t mask : {mode_t(077), mode_t(022)}) {
        const UserMask lent(mask);
        const FileLock lock = FileLock::acquire(song);
        const QString file = FileLock::lockName(song);
        EXPECT_EQ(QFile::permissions(file).testFlag(QFile::ReadOther), mask == 022 || !UserMask::counts);
        EXPECT_EQ(contents(file).split('\n').value(machine).size(), 32);
        for (const QByteArray& identifier : {QSysInfo::machineUniqueId(), QSysInfo::bootUniqueId()})
            EXPECT_TRUE(identifier.isEmpty() || !contents(file).contains(identifier));
    }
}

TEST_F(FileLockTest, TakenOverFromALivingOneDoesNotCountAsStale) {
    OtherProcess other(acquires, song);
    ASSERT_TRUE(other.held);
    const FileLock lock = FileLock::takeOver(song);
    EXPECT_TRUE(lock.isHeld());
    EXPECT_FALSE(lock.foundStale()) << "what it is writing would be cleared away";
}

TEST_F(FileLockTest, TakenOverIsNotGivenBackByTheOneThatHadIt) {
    auto first = std::make_unique<FileLock>(FileLock::acquire(song));
    store(FileLock::lockName(song), contents(FileLock::lockName(song)).replace("\n", " \n"));
    first.reset();
    EXPECT_TRUE(QFile::exists(FileLock::lockName(song)));
}

TEST_F(FileLockTest, IsDoneWithoutWhereNoFileCanBeMade) {
    QStringList impossible{path(QStringLiteral("není/x.xls"))};
    if (QFile::exists(QStringLiteral("/proc/version"))) impossible << QStringLiteral("/proc/version");
    for (const QString& file : impossible)
        EXPECT_FALSE(FileLock::acquire(file).isHeld()) << file.toStdString();
}

TEST_F(FileLockTest, HoldsForNamesThatLeaveNoRoomForMore) {
    // 251 and 255 bytes; in the last one a character of two units and four bytes stands where the name is
    // cut.
    const QString names[] = {QString(122, u'ř') + QStringLiteral("aaa.xls"),
                             QString(122, u'ř') + QStringLiteral("aab.xls"),
                             QString(115, u'ř') + QStringLiteral("🎵🎵🎵🎵🎵x.xls")};
    QStringList locks;
    for (const QString& name : names) {
        const QString longSong = path(name);
        const FileLock lock = FileLock::acquire(longSong);
        EXPECT_TRUE(lock.isHeld());
        EXPECT_TRUE(FileLock::holder(longSong));
        EXPECT_THROW(FileLock::acquire(longSong), RuntimeError);
        locks += FileLock::lockName(longSong);
        EXPECT_FALSE(locks.back().contains(QChar::ReplacementCharacter));
    }
    EXPECT_EQ(locks.removeDuplicates(), 0)
        << "songs that differ at the end of their names do not share a lock";
}

} // namespace zvonika::testing
