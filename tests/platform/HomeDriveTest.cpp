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

} // namespace
} // namespace zvonika
