#include "platform/HomeDrive.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

TEST(HomeDrive, TurnsPathsIntoNativeOnes) {
    const HomeDrive drive(QStringLiteral("/home/eva"), QStringLiteral("/usr/share/zvonika"));
    const std::pair<QString, QString> cases[] = {
        {pracovniAdresar, QStringLiteral("/home/eva/Dokumenty/Heligonka/Zvonika")},
        {QStringLiteral("c:/Dokumenty\\Kočka.xls"), QStringLiteral("/home/eva/Dokumenty/Kočka.xls")},
        {QStringLiteral("C:"), QStringLiteral("/home/eva")},
        {QStringLiteral("C:\\"), QStringLiteral("/home/eva")},
        {QStringLiteral("D:\\Dokumenty"), QString()},
        {QStringLiteral("/srv/písně/a\\b.xls"), QStringLiteral("/srv/písně/a\\b.xls")},
        {QString(), QString()},
    };
    for (const auto& [path, native] : cases)
        EXPECT_EQ(drive.nativePath(path).toStdString(), native.toStdString()) << path.toStdString();
    EXPECT_EQ(drive.programFolder(), QStringLiteral("/usr/share/zvonika"));
}

class HomeDriveOnDisk : public ::testing::Test {
protected:
    QTemporaryDir folder;
    HomeDrive drive{folder.path(), QString()};
};

TEST_F(HomeDriveOnDisk, CreatesOneFolderAtATime) {
    EXPECT_FALSE(drive.createFolder(QStringLiteral("C:\\Dokumenty\\Heligonka")));
    EXPECT_TRUE(drive.createFolder(QStringLiteral("C:\\Dokumenty")));
    EXPECT_TRUE(drive.createFolder(QStringLiteral("C:\\Dokumenty\\Heligonka")));
    EXPECT_FALSE(drive.createFolder(QStringLiteral("C:\\Dokumenty"))) << "it is there";
    EXPECT_FALSE(drive.createFolder(QStringLiteral("D:\\Dokumenty"))) << "no such drive";
    EXPECT_TRUE(QDir(folder.filePath(QStringLiteral("Dokumenty/Heligonka"))).exists());
}

TEST_F(HomeDriveOnDisk, TellsFilesFromFoldersAndDeletesFiles) {
    QFile file(folder.filePath(QStringLiteral("a.xls")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_TRUE(drive.fileExists(QStringLiteral("C:\\a.xls")));
    EXPECT_FALSE(drive.folderExists(QStringLiteral("C:\\a.xls")));
    EXPECT_TRUE(drive.folderExists(QStringLiteral("C:\\")));
    EXPECT_FALSE(drive.fileExists(QStringLiteral("C:\\")));
    EXPECT_FALSE(drive.fileExists(QStringLiteral("D:\\a.xls")));
    EXPECT_FALSE(drive.folderExists(QStringLiteral("D:\\")));
    EXPECT_TRUE(drive.deleteFile(QStringLiteral("C:\\a.xls")));
    EXPECT_FALSE(file.exists());
    EXPECT_FALSE(drive.deleteFile(QStringLiteral("C:\\a.xls")));
}

} // namespace
} // namespace zvonika
