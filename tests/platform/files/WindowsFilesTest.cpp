// Files on Windows itself, or what stands in for it.
#include "platform/files/AtomicFile.h"
#include "platform/files/SameFile.h"
#include "platform/files/WindowsPath.h"
#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/journal/JournalFile.h"
#include "tests/spreadsheet/embedded/Rig.h"

#include <chrono>
#include <system_error>
#include <thread>

namespace zvonika::testing {

namespace {

/// Somebody who has a file open and lets others do with it what `share` says.
class Onlooker {
public:
    explicit Onlooker(const QString& file, DWORD share = FILE_SHARE_READ)
        : file_(CreateFileW(WindowsPath(file), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr)) {}
    ~Onlooker() { leave(); }
    Onlooker(const Onlooker&) = delete;
    Onlooker& operator=(const Onlooker&) = delete;

    void leave() {
        if (file_ != INVALID_HANDLE_VALUE) CloseHandle(std::exchange(file_, INVALID_HANDLE_VALUE));
    }

private:
    HANDLE file_;
};

class WindowsFilesTest : public ::testing::Test, protected World {
protected:
    WindowsFilesTest() { store(song, "stará"); }

    std::error_code writing(const QByteArray& bytes) const {
        try {
            writeAtomically(song, {reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                   static_cast<std::size_t>(bytes.size())});
        } catch (const std::system_error& error) {
            return error.code();
        }
        return {};
    }
    static bool isHidden(const QString& file) {
        return (GetFileAttributesW(WindowsPath(file)) & FILE_ATTRIBUTE_HIDDEN) != 0;
    }

    const QString song = path(QStringLiteral("Píseň o dlouhém jménu.xls"));
};

} // namespace

TEST_F(WindowsFilesTest, AReplacedFileIsWholeShownAndAlone) {
    EXPECT_FALSE(writing("nová"));
    EXPECT_EQ(contents(song), "nová");
    EXPECT_FALSE(isHidden(song));
    EXPECT_EQ(files().size(), 1);
    ASSERT_TRUE(QFile::remove(song));
    EXPECT_FALSE(writing("první"));
    EXPECT_EQ(contents(song), "první");
    EXPECT_FALSE(isHidden(song));
    SetFileAttributesW(WindowsPath(song), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(writing("nová"), std::errc::permission_denied);
    EXPECT_EQ(contents(song), "první");
    EXPECT_EQ(files().size(), 1);
    SetFileAttributesW(WindowsPath(song), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFilesTest, WhoHasALookAtItIsWaitedForAndNotForEver) {
    Onlooker onlooker(song);
    EXPECT_EQ(writing("nová"), std::errc::text_file_busy);
    EXPECT_EQ(contents(song), "stará");
    const std::jthread leaving([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        onlooker.leave();
    });
    EXPECT_FALSE(writing("nová"));
    EXPECT_EQ(contents(song), "nová");
    EXPECT_EQ(files().size(), 1);
}

TEST_F(WindowsFilesTest, OneFileHasOneNameHoweverItIsWritten) {
    wchar_t brief[MAX_PATH] = {};
    ASSERT_GT(GetShortPathNameW(WindowsPath(song), brief, MAX_PATH), 0U);
    QString drive = song;
    drive[0] = drive[0].isUpper() ? drive[0].toLower() : drive[0].toUpper();
    const QString names[] = {song.toUpper(),
                             song.toLower(),
                             QDir::toNativeSeparators(song),
                             drive,
                             QString::fromWCharArray(brief),
                             folder.path() + QStringLiteral("/./") + QFileInfo(song).fileName()};
    for (const QString& name : names) {
        EXPECT_EQ(trueName(name).toStdString(), trueName(song).toStdString()) << name.toStdString();
        EXPECT_EQ(FileLock::lockName(name), FileLock::lockName(song));
    }
    EXPECT_EQ(sameFileKey(path(QStringLiteral("NENÍ.xls"))), sameFileKey(path(QStringLiteral("není.XLS"))));
    EXPECT_NE(sameFileKey(path(QStringLiteral("a.xls"))), sameFileKey(path(QStringLiteral("b.xls"))));
    EXPECT_TRUE(trueName(song).endsWith(QStringLiteral("/Píseň o dlouhém jménu.xls")));
}

TEST_F(WindowsFilesTest, ALockThatCannotBeDeletedDoesNotLockItsOwnerOut) {
    const QString name = FileLock::lockName(song);
    {
        auto lock = std::make_unique<FileLock>(FileLock::acquire(song));
        EXPECT_TRUE(isHidden(name));
        const Onlooker onlooker(name, FILE_SHARE_READ | FILE_SHARE_WRITE);
        lock.reset();
        ASSERT_TRUE(QFile::exists(name));
        EXPECT_FALSE(FileLock::holder(song));
    }
    {
        const FileLock again = FileLock::acquire(song);
        EXPECT_TRUE(again.isHeld());
        EXPECT_TRUE(FileLock::holder(song));
    }
    EXPECT_FALSE(QFile::exists(name));
}

TEST_F(WindowsFilesTest, AJournalIsItsOwnersFromBeginningToEnd) {
    const QString place = path(QStringLiteral("a.journal")), aside = path(QStringLiteral("b.journal"));
    auto journal = JournalFile::create(place, "začátek");
    EXPECT_TRUE(isHidden(place));
    EXPECT_EQ(contents(place), "začátek") << "others may look";
    EXPECT_FALSE(JournalFile::open(place));
    EXPECT_THROW(JournalFile::create(place, {}), std::system_error);
    Onlooker onlooker(place, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    journal.appendAt(9, " a konec");
    EXPECT_TRUE(journal.moveTo(aside));
    EXPECT_FALSE(QFile::exists(place));
    auto found = JournalFile::open(aside);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->readAll(), "začátek a konec");
    onlooker.leave();
    found->remove();
    found.reset();
    EXPECT_FALSE(JournalFile::open(aside));
}

TEST_F(WindowsFilesTest, ANameThatThereIsNotIsRefusedByTheSaveAndNothingIsMade) {
    Document document(QStringLiteral("Sešit1"));
    const std::pair<const char*, const char*> names[] = {
        {"Kočka: leze.xls", "v jeho jménu je znak „:“, který tam být nesmí"},
        {"Kdo?.xls", "v jeho jménu je znak „?“, který tam být nesmí"},
        {"nul.xls", "jméno „nul“ patří ve Windows zařízení a soubor ho mít nesmí"},
        {"Ach.", "jeho jméno nesmí končit tečkou ani mezerou"}};
    for (const auto& [name, why] : names)
        EXPECT_EQ(refusalOf([&] { document.saveAs(path(QString::fromUtf8(name))); }),
                  QStringLiteral("1004 Soubor „%1“ nelze uložit: %2.")
                      .arg(QString::fromUtf8(name), QString::fromUtf8(why)));
    EXPECT_EQ(files().size(), 1);
}

} // namespace zvonika::testing
