#include "platform/HomeDrive.h"

#include "platform/RuntimeError.h"
#include "platform/files/FileLock.h"
#include "tests/platform/files/OtherUser.h"
#include "tests/support/OtherProcess.h"
#include "tests/support/PrintQt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <span>

namespace zvonika {
namespace {

TEST(HomeDrive, TurnsPathsIntoNativeOnes) {
    struct Case {
        QString path, native;
    };
    const Case inFolder[] = {
        {pracovniAdresar, QStringLiteral("/home/eva/Dokumenty/Heligonka/Zvonika")},
        {QStringLiteral("c:/Dokumenty\\Kočka.xls"), QStringLiteral("/home/eva/Dokumenty/Kočka.xls")},
        {QStringLiteral("C:"), QStringLiteral("/home/eva")},
        {QStringLiteral("C:\\"), QStringLiteral("/home/eva")},
        {QStringLiteral("D:\\Dokumenty"), QString()},
        {QStringLiteral("/srv/písně/a\\b.xls"), QStringLiteral("/srv/písně/a\\b.xls")},
        {QString(), QString()},
    };
    const Case amongDrives[] = {
        {pracovniAdresar, QStringLiteral("D:/zkouška/Dokumenty/Heligonka/Zvonika")},
        {QStringLiteral("C:\\zkouška\\a.xls"), QStringLiteral("D:/zkouška/zkouška/a.xls")},
        {QStringLiteral("d:\\Zkouška\\a.xls"), QStringLiteral("d:\\Zkouška\\a.xls")},
        {QStringLiteral("D:/zkouška"), QStringLiteral("D:/zkouška")},
        {QStringLiteral("D:/zkouška jiná/a.xls"), QString()},
        {QStringLiteral("D:/zkouška/../a.xls"), QString()},
    };
    const Case system[] = {{QStringLiteral("C:\\a.xls"), QStringLiteral("C:\\a.xls")},
                           {QStringLiteral("D:\\a.xls"), QStringLiteral("D:\\a.xls")}};
    const std::pair<QString, std::span<const Case>> roots[] = {
        {QStringLiteral("/home/eva"), inFolder}, {QStringLiteral("D:\\zkouška"), amongDrives}, {{}, system}};
    for (const auto& [root, cases] : roots) {
        const HomeDrive drive(root, QStringLiteral("/usr/share/zvonika"));
        for (const auto& [path, native] : cases)
            EXPECT_EQ(drive.nativePath(path).toStdString(), native.toStdString()) << path.toStdString();
        EXPECT_EQ(drive.programFolder(), QStringLiteral("/usr/share/zvonika"));
    }
}

TEST(HomeDrive, CreatesOneFolderAtATimeAndTellsFilesFromFolders) {
    const QTemporaryDir folder;
    HomeDrive drive(folder.path(), {});
    const std::pair<const char*, bool> created[] = {{"C:\\Dokumenty\\Heligonka", false},
                                                    {"C:\\Dokumenty", true},
                                                    {"C:\\Dokumenty\\Heligonka", true},
                                                    {"C:\\Dokumenty", false}, // it is there
                                                    {"D:\\Dokumenty", false}};
    for (const auto& [path, made] : created)
        EXPECT_EQ(drive.createFolder(path), made) << path;
    ASSERT_TRUE(QFile(folder.filePath("a.xls")).open(QIODevice::WriteOnly));
    const struct {
        const char* path;
        bool file, folder;
    } there[] = {{"C:\\a.xls", true, false},
                 {"C:\\", false, true},
                 {"C:\\Dokumenty\\Heligonka", false, true},
                 {"D:\\a.xls", false, false},
                 {"D:\\", false, false}};
    for (const auto& t : there) {
        EXPECT_EQ(drive.fileExists(t.path), t.file) << t.path;
        EXPECT_EQ(drive.folderExists(t.path), t.folder) << t.path;
    }
    EXPECT_TRUE(drive.deleteFile("C:\\a.xls"));
    EXPECT_FALSE(QFile::exists(folder.filePath("a.xls")));
    EXPECT_FALSE(drive.deleteFile("C:\\a.xls"));
}

// For as long as the process lives.
bool setsAside(const QString& file) {
    static const auto aside = HomeDrive(QFileInfo(file).path(), {}).setAside(file);
    return aside != nullptr;
}
bool locks(const QString& file) {
    static const FileLock lock = FileLock::acquire(file);
    return lock.isHeld();
}
[[maybe_unused]] const bool known =
    testing::OtherProcess::know(setsAside) && testing::OtherProcess::know(locks);

/// A folder as drive C: with one song in it.
class SongOnDrive : public ::testing::Test {
protected:
    SongOnDrive() {
        testing::setMode(folder.path(), 0777);
        put("Polka.xls", "hmaty");
    }
    void put(const QString& name, const QByteArray& contents) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    QString contents(const QString& name) const {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    QStringList names() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    const QTemporaryDir folder;
    HomeDrive drive{folder.path(), {}};
    const QString song = "C:\\Polka.xls";
};

TEST_F(SongOnDrive, AFileSetAsideComesBackUnlessItIsGivenUp) {
    const auto before = names();
    drive.setAside(song);
    EXPECT_EQ(names(), before) << "back with the object";
    for (const bool taken : {false, true}) {
        auto aside = drive.setAside(song);
        EXPECT_FALSE(drive.fileExists(song));
        if (taken) put("Polka.xls", "cizí");
        EXPECT_EQ(aside->bringBack(), taken ? "Polka (původní).xls" : "");
    }
    EXPECT_EQ(contents("Polka.xls"), "cizí");
    EXPECT_EQ(contents("Polka (původní).xls"), "hmaty");
    drive.setAside(song)->giveUp();
    EXPECT_EQ(names(), QStringList{"Polka (původní).xls"}) << "nothing is left of it";

    const QString longest = QString(251, u'x') + ".xls";
    put(longest, "dlouhá");
    EXPECT_EQ(drive.setAside("C:\\" + longest)->bringBack(), "");
    EXPECT_EQ(contents(longest), "dlouhá");
}

TEST_F(SongOnDrive, WhatAKilledProgramHasSetAsideIsPutBackAtTheNextStart) {
    for (const bool taken : {false, true}) {
        testing::OtherProcess other(setsAside, folder.filePath("Polka.xls"));
        ASSERT_TRUE(other.held);
        EXPECT_EQ(drive.bringBackSetAside("C:\\"), QStringList()) << "its owner will do it";
        EXPECT_FALSE(drive.fileExists(song));
        if (taken) put("Polka.xls", "nová");
        other.kill();
        EXPECT_EQ(drive.bringBackSetAside("C:\\"), QStringList(taken ? "Polka (původní).xls" : "Polka.xls"));
        EXPECT_EQ(contents(taken ? "Polka (původní).xls" : "Polka.xls"), "hmaty");
        EXPECT_EQ(names().filter("odlozeno"), QStringList());
    }
    EXPECT_EQ(contents("Polka.xls"), "nová");
}

TEST_F(SongOnDrive, AFileOfSomebodyElseOrOfAClosedFolderStaysAndTheCauseIsTold) {
    const auto cause = [this] {
        try {
            drive.setAside(song);
        } catch (const RuntimeError& refusal) {
            EXPECT_EQ(refusal.number(), error::permissionDenied);
            return refusal.cause();
        }
        return QString();
    };
    testing::OtherProcess other(locks, folder.filePath("Polka.xls"));
    ASSERT_TRUE(other.held);
    EXPECT_TRUE(cause().startsWith("Soubor „Polka.xls“ je už otevřen jinde (")) << cause().toStdString();
    other.kill();
    EXPECT_EQ(cause(), "") << "the lock of a dead process counts for nothing";
    SKIPPED_ON_WINDOWS("rights are no bits of a mode, and the user who tests has them all");
    using namespace testing;
    const struct {
        mode_t folder, file;
        const char *setAside, *readOnly;
    } modes[] = {{0777, 0666, "", ""},
                 {0555, 0666, "Soubor „Polka.xls“ nelze vymazat ani nahradit: v jeho složce nemáte oprávnění",
                  "Do složky, ve které je soubor „Polka.xls“, nemáte právo zapisovat."},
                 {0777, 0444, "", "Soubor „Polka.xls“ je jen pro čtení."}};
    for (const auto& mode : modes) {
        setMode(folder.filePath("Polka.xls"), mode.file);
        setMode(folder.path(), mode.folder);
        EXPECT_EQ(testing::asOrdinaryUser([&] {
                      const QString told = cause();
                      if (!told.contains(mode.setAside) || told.isEmpty() != (*mode.setAside == 0)) return 1;
                      return drive.readOnlyBecause(song) == mode.readOnly ? 0 : 2;
                  }),
                  0)
            << mode.folder << ' ' << mode.file;
        setMode(folder.path(), 0777);
        EXPECT_EQ(contents("Polka.xls"), "hmaty");
    }
}

} // namespace
} // namespace zvonika
