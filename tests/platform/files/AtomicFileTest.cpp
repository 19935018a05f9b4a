#include "platform/files/AtomicFile.h"

#include "tests/platform/files/OtherUser.h"
#include "tests/spreadsheet/embedded/Rig.h"
#include "tests/spreadsheet/embedded/SmallDisk.h"

#include <system_error>
#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

namespace zvonika::testing {

#ifdef Q_OS_WIN

NOT_ON_WINDOWS(AtomicFileTest, CreatesByTheUsersMaskAndReplacesWithAllRights, "rights are no bits of a mode")
NOT_ON_WINDOWS(AtomicFileTest, FollowsLinksAndLeavesThem, "Wine makes no links")
NOT_ON_WINDOWS(AtomicFileTest, AFullDiskLeavesTheOldFile, "a process cannot be limited in what it writes")
NOT_ON_WINDOWS(AtomicFileTest, WhatHangsOnTheFileStays, "what hangs on a file is kept by ReplaceFile itself")
NOT_ON_WINDOWS(AtomicFileTest, TheFoldersAccessListLetsNobodyElseIn,
               "access lists are kept by ReplaceFile itself")
NOT_ON_WINDOWS(AtomicFileTest, LeftoversOfKilledWritersOfThisFileAreClearedAway,
               "a process cannot be killed by its first byte")
NOT_ON_WINDOWS(AtomicFileTest, AWriteProtectedFileIsNotReplaced, "WindowsFilesTest has its own")
NOT_ON_WINDOWS(AtomicFileTest, WhatAGroupWasAllowedDoesNotGoToAnother, "there are no groups of files")

#else

namespace {

class AtomicFileTest : public ::testing::Test, protected World {
protected:
    void write(const QString& name, const QByteArray& bytes) const { writePath(path(name), bytes); }
    static void writePath(const QString& path, const QByteArray& bytes) {
        writeAtomically(path, {reinterpret_cast<const std::uint8_t*>(bytes.data()),
                               static_cast<std::size_t>(bytes.size())});
    }
    int failure(const QString& path) const {
        try {
            writePath(path, QByteArray(100, 'n'));
            return 0;
        } catch (const std::system_error& error) {
            return error.code().value();
        }
    }
    struct stat info(const QString& name) const {
        struct stat result {};
        EXPECT_EQ(::lstat(QFile::encodeName(path(name)), &result), 0);
        return result;
    }
    /// A file of anybody's, in a folder where anybody may write.
    void openToEverybody(const QString& name, mode_t mode) const {
        ASSERT_EQ(::chmod(QFile::encodeName(folder.path()), 0777), 0);
        ASSERT_EQ(::chmod(QFile::encodeName(path(name)), mode), 0);
        if (::geteuid() == 0) {
            ASSERT_EQ(::chown(QFile::encodeName(path(name)), nobody, nobody), 0);
        }
    }
    void link(const QString& target, const QString& name) const {
        ASSERT_EQ(::symlink(QFile::encodeName(target), QFile::encodeName(path(name))), 0);
    }

    const QString song = QStringLiteral("píseň.xls");
};

} // namespace

TEST_F(AtomicFileTest, CreatesByTheUsersMaskAndReplacesWithAllRights) {
    const mode_t mask = ::umask(027);
    write(song, "první");
    ::umask(mask);
    EXPECT_EQ(info(song).st_mode & 07777, 0640U);
    ASSERT_EQ(::chmod(QFile::encodeName(path(song)), 0604), 0);
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(QFile::encodeName(path(song)), 12, 34), 0);
    }
    const auto before = info(song);
    write(song, "druhá");
    EXPECT_EQ(contents(path(song)), "druhá");
    EXPECT_EQ(info(song).st_mode, before.st_mode);
    EXPECT_EQ(info(song).st_uid, before.st_uid);
    EXPECT_EQ(info(song).st_gid, before.st_gid);
    EXPECT_NE(info(song).st_ino, before.st_ino) << "written in place";
    EXPECT_EQ(files(), QStringList{song});
}

TEST_F(AtomicFileTest, FollowsLinksAndLeavesThem) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("jinde")));
    write(QStringLiteral("jinde/cíl.xls"), "stará");
    link(QStringLiteral("jinde/cíl.xls"), QStringLiteral("a.xls"));
    link(path(QStringLiteral("a.xls")), QStringLiteral("b.xls"));
    link(QStringLiteral("jinde/nový.xls"), QStringLiteral("c.xls"));
    write(QStringLiteral("b.xls"), "nová");
    write(QStringLiteral("c.xls"), "vzniklá");
    for (const char* name : {"a.xls", "b.xls", "c.xls"})
        EXPECT_TRUE(S_ISLNK(info(QString::fromLatin1(name)).st_mode)) << name;
    EXPECT_EQ(contents(path(QStringLiteral("jinde/cíl.xls"))), "nová");
    EXPECT_EQ(contents(path(QStringLiteral("jinde/nový.xls"))), "vzniklá");
}

TEST_F(AtomicFileTest, AFullDiskLeavesTheOldFile) {
    write(song, "stará");
    {
        const SmallDisk disk(64);
        EXPECT_EQ(failure(path(song)), EFBIG);
        EXPECT_EQ(failure(path(QStringLiteral("nová.xls"))), EFBIG);
    }
    EXPECT_EQ(contents(path(song)), "stará");
    EXPECT_EQ(files(), QStringList{song});
}

TEST_F(AtomicFileTest, WhatHangsOnTheFileStays) {
    write(song, "stará");
    const QByteArray file = QFile::encodeName(path(song));
    if (::setxattr(file, "user.zvonika", "poznámka", 9, 0) < 0)
        GTEST_SKIP() << "the file system has no attributes";
    write(song, "nová");
    char value[16] = {};
    EXPECT_EQ(::getxattr(file, "user.zvonika", value, sizeof value), 9);
    EXPECT_STREQ(value, "poznámka");
}

TEST_F(AtomicFileTest, TheFoldersAccessListLetsNobodyElseIn) {
    write(song, "stará");
    const QByteArray file = QFile::encodeName(path(song));
    ASSERT_EQ(::chmod(file, 0640), 0);
    // Version 2, then tag, rights and number of each entry, as the kernel wants them: user 1234 may write.
    const auto list = QByteArray::fromHex("02000000"
                                          "01000700ffffffff"
                                          "02000600d2040000"
                                          "04000700ffffffff"
                                          "10000700ffffffff"
                                          "20000500ffffffff");
    if (::setxattr(QFile::encodeName(folder.path()), "system.posix_acl_default", list.constData(),
                   std::size_t(list.size()), 0) < 0)
        GTEST_SKIP() << "the file system has no access lists";
    write(song, "nová");
    EXPECT_LT(::getxattr(file, "system.posix_acl_access", nullptr, 0), 0);
    EXPECT_EQ(info(song).st_mode & 07777, 0640U);
}

TEST_F(AtomicFileTest, LeftoversOfKilledWritersOfThisFileAreClearedAway) {
    write(song, "stará");
    write(QStringLiteral("jiná.xls"), "x");
    const pid_t child = ::fork();
    if (child == 0) { // is killed by its first byte
        std::signal(SIGXFSZ, SIG_DFL);
        const rlimit none{0, 0};
        ::setrlimit(RLIMIT_FSIZE, &none);
        write(song, "nová");
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    ASSERT_EQ(files().size(), 3);
    removeLeftovers(path(QStringLiteral("jiná.xls")));
    EXPECT_EQ(files().size(), 3);
    removeLeftovers(path(song));
    EXPECT_EQ(files(), (QStringList{QStringLiteral("jiná.xls"), song}));
}

TEST_F(AtomicFileTest, AWriteProtectedFileIsNotReplaced) {
    write(song, "stará");
    openToEverybody(song, 0444);
    EXPECT_EQ(asOrdinaryUser([&] { return failure(path(song)); }), EACCES);
    EXPECT_EQ(contents(path(song)), "stará");
}

TEST_F(AtomicFileTest, WhatAGroupWasAllowedDoesNotGoToAnother) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file to a group that its owner is not in";
    // Before, and when the new file is of another group.
    const std::pair<mode_t, mode_t> cases[] = {{0660, 0600}, {0664, 0644}, {0640, 0600}, {0606, 0666}};
    for (const auto& [before, after] : cases) {
        QFile::remove(path(song));
        write(song, "stará");
        openToEverybody(song, before);
        ASSERT_EQ(::chown(QFile::encodeName(path(song)), nobody, 34), 0);
        EXPECT_EQ(asOrdinaryUser([&] { return failure(path(song)); }), 0);
        EXPECT_EQ(info(song).st_gid, nobody);
        EXPECT_EQ(info(song).st_mode & 07777, after) << std::oct << before;
    }
}

#endif

} // namespace zvonika::testing
