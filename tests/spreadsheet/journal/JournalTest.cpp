#include "spreadsheet/journal/Journal.h"

#include "spreadsheet/journal/ContentHash.h"
#include "spreadsheet/journal/JournalFormat.h"
#include "spreadsheet/journal/WorkbookJournal.h"
#include "tests/platform/files/OtherUser.h"
#include "tests/spreadsheet/embedded/Rig.h"
#include "tests/spreadsheet/embedded/SmallDisk.h"
#include "tests/support/Neighbours.h"

namespace zvonika::testing {

namespace {

class JournalTest : public ::testing::Test, protected World {
protected:
    JournalTest() { store(song, "obsah"); }

    JournalBase base() const { return {song, QStringLiteral("píseň.xls"), contentHashOfFile(song)}; }
    static std::vector<JournalChange> written(int row) {
        return {CellWritten{1, {row, 2}, QStringLiteral("c%1").arg(row)}};
    }
    QStringList kept(const QString& subfolder = {}) const {
        return QDir(state.filePath(QStringLiteral("zaznamy/")) + subfolder)
            .entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    /// A process that dies leaves its journal.
    void crash(int rows, const JournalBase& of) {
        Journal journal(journals, of);
        for (int row = 1; row <= rows; ++row)
            journal.record(written(row));
    }
    /// So does one at this minute, with one change.
    void left(const JournalBase& of, int minute) const {
        const QDateTime when(QDate(2020, 1, 1), QTime(12, minute));
        journals.begin(of.path, journalformat::signature() + journalformat::encoded(0, of) +
                                    journalformat::encoded(1, JournalGroup{when, written(minute)}));
    }

    const QString song = path(QStringLiteral("píseň.xls"));
};

} // namespace

TEST_F(JournalTest, IsFoundByItsSongOnceItsOwnerIsGone) {
    {
        Journal journal(journals, base());
        journal.record(written(1));
        EXPECT_TRUE(journals.pending(song).empty()) << "still in use";
        EXPECT_EQ(contents(state.filePath(QStringLiteral("zaznamy/")) + kept().value(0)).left(4), "ZVJ1");
    }
    if (linkTo(song, path(QStringLiteral("odkaz.xls")))) {
        EXPECT_EQ(journals.pending(path(QStringLiteral("odkaz.xls"))).size(), 1U);
    }
    EXPECT_EQ(journals.pending(path(QStringLiteral("./píseň.xls"))).size(), 1U);
    EXPECT_TRUE(journals.pending(path(QStringLiteral("jiná.xls"))).empty());
    EXPECT_TRUE(journals.pending({}).empty());
}

TEST_F(JournalTest, SeveralOfOneSongComeOldestFirst) {
    for (const int minute : {2, 1, 3})
        left(base(), minute);
    const auto pending = journals.pending(song);
    ASSERT_EQ(pending.size(), 3U);
    for (int minute = 1; minute <= 3; ++minute)
        EXPECT_EQ(pending[std::size_t(minute - 1)].contents.groups[0].changes, written(minute));
}

TEST_F(JournalTest, TakenOverGoesOnBehindItsLastWholeEntry) {
    crash(2, base());
    const QString file = state.filePath(QStringLiteral("zaznamy/")) + kept().value(0);
    store(file, contents(file).chopped(3));
    {
        Journal next(journals, base());
        next.takeOver(std::move(journals.pending(song).at(0)));
        next.record(written(7));
    }
    crash(1, base());
    Journal both(journals, base());
    auto pending = journals.pending(song);
    ASSERT_EQ(pending.size(), 2U);
    EXPECT_EQ(pending[0].contents.groups.size(), 2U);
    EXPECT_EQ(pending[0].contents.groups[1].changes, written(7));
    for (auto& journal : pending)
        both.takeOver(std::move(journal));
    EXPECT_EQ(kept().size(), 1);
}

TEST_F(JournalTest, OneThatIsNotGivenIsToldAndOneThatIsGoneOrInUseIsNot) {
    const std::pair<QString, int> cases[] = {{state.path(), EISDIR}, {path(QStringLiteral("není")), 0}};
    for (const auto& [file, number] : cases) {
        std::error_code failure;
        EXPECT_FALSE(JournalFile::open(file, &failure));
        EXPECT_EQ(failure.value(), number) << file.toStdString();
    }
}

TEST_F(JournalTest, SongsAreListedOnceTheLastOneFirst) {
    const JournalBase gone{path(QStringLiteral("pryč.xls")), QStringLiteral("pryč.xls"), "otisk"};
    left(base(), 1);
    left(gone, 2);
    left({{}, QStringLiteral("Sešit1"), {}}, 3);
    left(base(), 4);
    const auto songs = journals.songs();
    ASSERT_EQ(songs.size(), 2U);
    EXPECT_EQ(songs[0].path, song);
    EXPECT_EQ(songs[0].changes, 2);
    EXPECT_TRUE(songs[0].there);
    EXPECT_EQ(songs[1].name, QStringLiteral("pryč.xls"));
    EXPECT_FALSE(songs[1].there);
    EXPECT_EQ(journals.pending(song).size(), 2U) << "looking takes nothing away";
}

TEST_F(JournalTest, ASongThatHasMovedIsKnownByItsContentsAlone) {
    const QString moved = path(QStringLiteral("jinde.xls"));
    const QString former = path(QStringLiteral("dřív.xls")),
                  namesake = path(QStringLiteral("předtím/jinde.xls"));
    const struct {
        const char* contents;
        bool copied;
        QStringList others; ///< songs of the same contents that are gone too
        std::size_t found;
    } cases[] = {
        {"obsah", false, {}, 1},
        {"obsah", true, {}, 0},
        {"jiný", false, {}, 0},
        {"obsah", false, {former}, 0},
        {"obsah", false, {former, namesake}, 1},
    };
    for (const auto& [contents, copied, others, found] : cases) {
        crash(1, base());
        for (const QString& other : others)
            left({other, QFileInfo(other).fileName(), base().hash}, 1);
        store(moved, contents);
        if (!copied) QFile::remove(song);
        auto pending = journals.pending(moved);
        EXPECT_EQ(pending.size(), found) << contents << copied << others.size();
        pending.clear();
        store(song, "obsah");
        for (const QString& file : kept())
            QFile::remove(state.filePath(QStringLiteral("zaznamy/")) + file);
    }
}

TEST_F(JournalTest, AGroupIsWrittenWhenItEndsOrIsSaved) {
    using Groups = std::vector<std::vector<JournalChange>>;
    const std::vector<JournalChange> both{written(1).front(), written(2).front()};
    const struct {
        const char* name;
        std::function<void(WorkbookJournal&)> then;
        Groups groups;
    } cases[] = {
        {"it goes on", [](auto&) {}, {}},
        {"its end", [](auto& journal) { journal.endGroup(); }, {both}},
        {"another one", [](auto& journal) { journal.beginGroup(); }, {both}},
        {"a save begins", [this](auto& journal) { journal.saving(song, "jiný"); }, {both}},
        {"a save",
         [this](auto& journal) {
             journal.saved(base());
             journal.endGroup();
         },
         {}},
        {"a change after a save",
         [this](auto& journal) {
             journal.saved(base());
             journal.note(written(3));
         },
         {written(3)}},
    };
    for (const auto& [name, then, groups] : cases) {
        {
            WorkbookJournal journal(journals, base());
            journal.beginGroup();
            journal.note(written(1));
            journal.note(written(2));
            then(journal);
        }
        Groups found;
        for (auto& pending : journals.pending(song)) {
            for (const auto& group : pending.contents.groups)
                found.push_back(group.changes);
            pending.file.remove();
        }
        EXPECT_EQ(found, groups) << name;
    }
}

TEST_F(JournalTest, WhatIsSavedIsNotOffered) {
    {
        Journal journal(journals, base());
        journal.record(written(1));
        journal.saving(song, contentHash(std::span<const std::uint8_t>()));
        store(song, {}); // saved, and killed before the journal was deleted
    }
    EXPECT_TRUE(journals.pending(song).empty());
    EXPECT_EQ(kept(), QStringList());
}

TEST_F(JournalTest, OnlyTheUsersOwnRegularFilesAreJournals) {
    crash(1, base());
    const QString folder = state.filePath(QStringLiteral("zaznamy"));
    const auto ofOthers = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    EXPECT_TRUE(!UserMask::counts || !(QFile::permissions(folder) & ofOthers));
    const QString file = folder + QLatin1Char('/') + kept().value(0);
    const QByteArray whole = contents(file);
    for (const Neighbour& neighbour : neighbours) {
        SCOPED_TRACE(neighbour.what);
        QFile::remove(file);
        ASSERT_TRUE(neighbour.put(file));
        EXPECT_FALSE(JournalFile::open(file));
        EXPECT_TRUE(journals.pending(song).empty());
        crash(1, base());
        EXPECT_EQ(journals.pending(song).size(), 1U) << "beside it one can be kept";
        for (auto& journal : journals.pending(song))
            journal.file.remove();
        QDir().rmdir(file);
    }
    QFile::remove(file);
    store(file, whole);
    EXPECT_EQ(journals.pending(song).size(), 1U);
    if (!giveAway(file)) return;
    EXPECT_TRUE(journals.pending(song).empty()) << "planted by another user";
}

TEST_F(JournalTest, TurnedDownOnesAreKeptAsideButNotForEver) {
    for (int i = 0; i < JournalFolder::keptAside + 3; ++i) {
        crash(1, base());
        journals.setAsideAll(song);
    }
    EXPECT_EQ(kept(), QStringList());
    EXPECT_EQ(kept(QStringLiteral("odmitnute")).size(), JournalFolder::keptAside);
}

TEST_F(JournalTest, OnAFullDiskChangesWaitUntilThereIsRoom) {
    SKIPPED_ON_WINDOWS("a process cannot be limited in what it writes");
    {
        Journal journal(journals, base());
        {
            const SmallDisk disk(64);
            journal.record(written(1));
            EXPECT_EQ(journal.trouble(), std::errc::file_too_large);
            journal.record(written(2));
        }
        journal.record(written(3));
        EXPECT_FALSE(journal.trouble());
        {
            const SmallDisk disk(
                quint64(QFileInfo(state.filePath(QStringLiteral("zaznamy/")) + kept().value(0)).size()) + 5);
            journal.record(written(4)); // some of its bytes still fit
            EXPECT_EQ(journal.trouble(), std::errc::file_too_large);
        }
        journal.record(written(5));
    }
    const auto pending = journals.pending(song);
    ASSERT_EQ(pending.size(), 1U);
    ASSERT_EQ(pending[0].contents.groups.size(), 5U);
    for (int row = 1; row <= 5; ++row)
        EXPECT_EQ(pending[0].contents.groups[std::size_t(row - 1)].changes, written(row));
}

} // namespace zvonika::testing
