#include "spreadsheet/journal/JournalFormat.h"

#include "spreadsheet/journal/JournalContents.h"

#include <gtest/gtest.h>
#include <limits>

namespace zvonika::testing {

namespace {

const QDateTime when = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123);

const JournalBase base{QStringLiteral("/písně/Kočka.xls"), QStringLiteral("Kočka.xls"), QByteArray(32, 'h')};

std::vector<JournalGroup> everyKind() {
    const QString odd = QStringLiteral("ř\n\t😀") + QChar(0xD800) + QChar(u'\0');
    return {{when,
             {CellWritten{1, {1, 2}, QStringLiteral("fis1,")}, CellWritten{2, {65536, 256}, odd},
              CellWritten{1, {3, 9}, 0.1}, CellWritten{1, {4, 9}, true}, CellWritten{1, {5, 9}, CellValue()},
              CellWritten{1, {6, 9}, CellError{QStringLiteral("#N/A")}, true}}},
            {when.addMSecs(7),
             {RowInserted{1, 5}, RowDeleted{1, 65536}, SheetRenamed{1, QStringLiteral("Tonavox XII")},
              ColumnResized{1, 256, std::numeric_limits<double>::denorm_min()}}},
            {when.addDays(1), {}}};
}

/// A journal of these groups, with a save after the first.
QByteArray journalOf(const std::vector<JournalGroup>& groups) {
    quint32 number = 0;
    QByteArray file = journalformat::signature() + journalformat::encoded(number, base);
    for (const auto& group : groups) {
        file += journalformat::encoded(++number, group);
        if (number == 1)
            file += journalformat::encoded(++number, JournalSave{base.path, QByteArray(32, 's')});
    }
    return file;
}

} // namespace

TEST(JournalFormatTest, EveryKindOfChangeComesBack) {
    const QByteArray file = journalOf(everyKind());
    const auto contents = readJournal(file);
    ASSERT_TRUE(contents);
    EXPECT_EQ(contents->base, base);
    EXPECT_EQ(contents->groups, everyKind());
    ASSERT_EQ(contents->saves.size(), 1U);
    EXPECT_EQ(contents->saves[0].groupsBefore, 1U);
    EXPECT_EQ(contents->entries, 5U);
    EXPECT_EQ(contents->validSize, file.size());
    EXPECT_EQ(contents->changeCount(), 10);
}

// The bytes of a file of version 1, which journals of an earlier run may hold.
TEST(JournalFormatTest, StaysAsItIsWritten) {
    const QByteArray group = journalformat::encoded(1, everyKind()[1]);
    EXPECT_EQ(group.toHex(), QByteArray("00000049db2380c8"
                                        "00000001020000018bcfe5688200000004"
                                        "03000100000005"
                                        "04000100010000"
                                        "050001000000160054006f006e00610076006f00780020005800490049"
                                        "06000101000000000000000001"));
}

TEST(JournalFormatTest, ATornEndLosesNothingButTheTornEntry) {
    const QByteArray file = journalOf(everyKind());
    const auto whole = everyKind();
    std::size_t last = 0;
    for (qsizetype size = 0; size < file.size(); ++size) {
        const auto contents = readJournal(file.left(size));
        const auto groups = contents ? contents->groups : std::vector<JournalGroup>();
        ASSERT_GE(groups.size(), last) << size;
        ASSERT_TRUE(std::equal(groups.begin(), groups.end(), whole.begin())) << size;
        last = groups.size();
        if (contents) { // goes on where the last whole entry ends
            const QByteArray more = file.left(contents->validSize) +
                                    journalformat::encoded(contents->entries, JournalGroup{when, {}});
            ASSERT_EQ(readJournal(more)->groups.size(), groups.size() + 1) << size;
        }
    }
    EXPECT_EQ(last, 2U);
}

TEST(JournalFormatTest, NoDamagedByteInventsAChange) {
    const QByteArray file = journalOf(everyKind());
    const auto whole = everyKind();
    for (qsizetype at = 0; at < file.size(); ++at) {
        QByteArray damaged = file;
        damaged[at] = char(damaged[at] ^ 0x41);
        const auto contents = readJournal(damaged);
        if (!contents) continue;
        ASSERT_LT(contents->groups.size(), whole.size()) << at;
        ASSERT_TRUE(std::equal(contents->groups.begin(), contents->groups.end(), whole.begin())) << at;
    }
}

TEST(JournalFormatTest, AnEntryBehindAGapIsNotRead) {
    const QByteArray first = journalformat::signature() + journalformat::encoded(0, base);
    const JournalGroup group = everyKind()[0];
    EXPECT_EQ(readJournal(first + journalformat::encoded(1, group))->groups.size(), 1U);
    EXPECT_EQ(readJournal(first + journalformat::encoded(2, group))->groups.size(), 0U);
    EXPECT_FALSE(readJournal(journalformat::signature() + journalformat::encoded(0, group)));
}

TEST(JournalContentsTest, WhatASaveHasPutIntoAFileIsNoLongerPending) {
    const auto groups = everyKind();
    const QString own = QStringLiteral("vlastní"), other = QStringLiteral("jiný");
    // Where a save was about to write the new contents, after how many changes, and whether it did; how many
    // are pending then, and whether they stand on the new contents.
    const std::tuple<QString, std::size_t, bool, std::size_t, bool> cases[] = {{own, 2, true, 1, true},
                                                                               {own, 3, true, 0, true},
                                                                               {own, 2, false, 3, false},
                                                                               {other, 3, true, 0, false},
                                                                               {other, 2, true, 3, false}};
    for (const auto& [savedTo, savedAfter, there, pending, rebased] : cases) {
        SCOPED_TRACE(savedTo.toStdString() + std::to_string(savedAfter));
        JournalContents contents;
        contents.base = {own, own, "stará"};
        contents.groups = groups;
        contents.saves = {{{savedTo, "nová"}, savedAfter}};
        contents.dropSaved([&, target = savedTo, done = there](const QString& path) {
            return done && path == target ? QByteArray("nová") : QByteArray("stará");
        });
        EXPECT_EQ(contents.groups.size(), pending);
        EXPECT_EQ(contents.base.hash, rebased ? "nová" : "stará");
    }
}

} // namespace zvonika::testing
