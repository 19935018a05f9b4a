#include "spreadsheet/xls/strings/StringTableWriter.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace zvonika::xls;
using namespace xlstest;

namespace {

std::vector<Rec> sharedTable(const Bytes& file) {
    const std::vector<Rec> all = recordsOf(file);
    auto at = std::ranges::find(all, 0x00FC, &Rec::id);
    std::vector<Rec> table;
    while (at != all.end() && (table.empty() || at->id == 0x003C))
        table.push_back(*at++);
    return table;
}

TEST(SharedStrings, CountReferencesAndTexts) {
    Workbook book = Workbook::create(u"List");
    for (const char16_t* text : {u"nikde", u"c1"})
        for (int row = 0; row < 3; ++row)
            book.setValue(0, {row, 0}, std::u16string(text));
    const Bytes file = book.save();
    EXPECT_EQ(sharedTable(file).front().u32(0), 3U);
    EXPECT_EQ(sharedTable(file).front().u32(4), 1U) << "a text that was written over is not stored";
    book = Workbook::open(file);
    book.setValue(0, {1, 0}, 1.0);
    EXPECT_EQ(sharedTable(book.save()).front().u32(0), 2U) << "without a new text, too";
}

TEST(SharedStrings, RecordsStayWithinTheLimit) {
    Workbook book = Workbook::create(u"List");
    for (int row = 0; row < 3000; ++row)
        book.setValue(0, {row, 0}, u"𝄞" + std::u16string(static_cast<std::size_t>(row % 40), u'ř'));
    for (int turn = 0; turn < 4; ++turn) {
        for (int row = 0; row < 700; ++row)
            book.setValue(0, {row, turn + 1},
                          std::u16string(static_cast<std::size_t>(row), char16_t(u'a' + turn)));
        const Bytes file = book.save();
        for (const Rec& record : sharedTable(file))
            EXPECT_LE(record.data.size(), 8224U);
        EXPECT_LE(find(recordsOf(file), 0x00FF)->data.size(), 8224U);
        Workbook read = Workbook::open(file);
        for (int row = 0; row < 3000; ++row)
            for (int column = 0; column <= turn + 1; ++column)
                ASSERT_EQ(read.value(0, {row, column}), book.value(0, {row, column})) << row << " " << column;
        book = std::move(read);
    }
}

/// Five characters; each text begins with the letter behind that of the one before.
std::u16string numberedText(int i) {
    std::u16string text = u"A0000";
    text[0] = static_cast<char16_t>(u'A' + i % 26);
    for (std::size_t place = 5; --place > 0; i /= 10)
        text[place] = static_cast<char16_t>(u'0' + i % 10);
    return text;
}

/// What is wrong with the index of a table of numbered texts; "" for nothing.
std::string indexFaults(const Bytes& file) {
    const std::vector<Rec> all = recordsOf(file);
    const auto index = std::ranges::find(all, 0x00FF, &Rec::id);
    if ((index + 1)->id == 0x003C) return "goes on";
    const unsigned perBucket = index->u16(0), texts = find(all, 0x00FC)->u32(4);
    const std::size_t entries = (index->data.size() - 2) / 8;
    if (index->data.size() > 8224) return "too long";
    if (perBucket < 8 || entries != (texts + perBucket - 1) / perBucket) return "entries";
    const Bytes stream = streamOf(file);
    for (std::size_t i = 0; i < entries; ++i) {
        const std::uint32_t at = index->u32(2 + 8 * i), inRecord = index->u32(6 + 8 * i);
        const auto record = std::ranges::find(all, at - inRecord, &Rec::offset);
        if (record == all.end() || (record->id != 0x00FC && record->id != 0x003C)) return "record";
        if (stream.at(at) != 5 || stream.at(at + 3) != 'A' + i * perBucket % 26)
            return "text " + std::to_string(i);
    }
    return "";
}

TEST(SharedStrings, AnIndexThatIsShortOrWrongIsMadeAnew) {
    Workbook book = Workbook::create(u"List");
    for (int row = 0; row < 3000; ++row)
        book.setValue(0, {row, 0}, numberedText(row));
    const std::vector<Rec> good = recordsOf(book.save());
    ASSERT_EQ(indexFaults(book.save()), "");
    const Bytes whole = find(good, 0x00FF)->data;
    const auto firstOf = [&](std::size_t size) {
        return Bytes(whole.begin(), whole.begin() + std::ptrdiff_t(size));
    };
    const struct {
        const char* what;
        std::vector<Bytes> payloads; ///< of ExtSst and of a Continue record
    } table[] = {{"as it is", {whole}},
                 {"short", {firstOf(2 + 8 * 40)}},
                 {"without entries", {firstOf(2)}},
                 {"empty", {{}}},
                 {"without a number", {le(2, {0}) + firstOf(90)}},
                 {"too long", {whole + Bytes(80)}},
                 {"of too many", {le(2, {1}) + Bytes(8200)}},
                 {"going on", {firstOf(2 + 8 * 40), firstOf(80)}}};
    for (const auto& [what, payloads] : table) {
        SCOPED_TRACE(what);
        std::vector<Rec> all = good;
        std::erase_if(all, [](const Rec& record) { return record.id == 0x00D7 || record.id == 0x020B; });
        const auto index = std::ranges::find(all, 0x00FF, &Rec::id);
        index->data = payloads[0];
        if (payloads.size() > 1) all.insert(index + 1, {0x003C, payloads[1]});
        Workbook changed = Workbook::open(moved(all));
        const int end =
            payloads[0].size() > 8000 ? 8400 : 3100; // more than a record has room for, eight by eight
        for (int row = 3000; row < end; ++row)
            changed.setValue(0, {row, 0}, numberedText(row));
        EXPECT_EQ(indexFaults(changed.save()), "");
    }
}

TEST(SharedStrings, ASurrogatePairStaysWhole) {
    // Pairs at every distance from the end of the record.
    for (std::size_t lead = 4096; lead < 4112; ++lead) {
        StringTableWriter writer(8);
        writer.add(std::u16string(lead, u'ř') + u"𝄞𝄞𝄞𝄞𝄞𝄞");
        const Bytes& bytes = writer.bytes();
        const std::size_t first = writer.addedToFirst();
        ASSERT_GE(first, 2U);
        const unsigned last = bytes[first - 2] | bytes[first - 1] << 8;
        ASSERT_LT(first, bytes.size());
        EXPECT_FALSE(last >= 0xD800 && last < 0xDC00) << lead;
    }
}

/// A file whose table is `payloads`: an Sst record and its Continue records.
Bytes fileWithStrings(std::vector<Bytes> payloads, unsigned cells) {
    std::vector<Rec> table;
    for (unsigned i = 0; i < cells; ++i)
        table.push_back({0x00FD, le(2, {i, 0, 15}) + le(4, {i})});
    std::vector<Rec> all = recordsOf(fileWithTable(table));
    const auto sst = std::ranges::find(all, 0x00FC, &Rec::id);
    const std::size_t before = sst->data.size();
    std::size_t after = 0;
    std::vector<Rec> records;
    for (Bytes& payload : payloads) {
        after += payload.size() + (records.empty() ? 0 : 4);
        records.push_back(
            {static_cast<std::uint16_t>(records.empty() ? 0x00FC : 0x003C), std::move(payload)});
    }
    all.insert(all.erase(sst), records.begin(), records.end());
    const auto sheet = std::ranges::find(all, 0x0085, &Rec::id);
    const Bytes position = le(4, {sheet->u32(0) + after - before});
    std::ranges::copy(position, sheet->data.begin());
    return fileAround(bytesOf(all));
}

TEST(SharedStrings, ReadOnThroughContinueRecords) {
    const Bytes file = fileWithStrings(
        {
            le(4, {5, 5}) + Bytes{5, 0, 0, 'a', 'b'}, // changes its width when it goes on
            Bytes{1} + le(2, {0x0159, 'c', 'd'}) + Bytes{3, 0, 1} +
                le(2, {0xD834}), // a pair across the boundary
            Bytes{1} + le(2, {0xDD1E, 'x'}) +
                Bytes{3, 0, 8, 2, 0, 'r', 't', 'f'},                             // rich text: runs come next
            le(2, {0, 1, 1, 2}) + Bytes{2, 0, 4} + le(4, {3}) + Bytes{'p', 'h'}, // phonetic data comes next
            Bytes{9, 9, 9, 2, 0, 0, 'z', 'z'},
        },
        5);
    Workbook book = Workbook::open(file);
    const std::u16string expected[] = {u"abřcd", u"𝄞x", u"rtf", u"ph", u"zz"};
    for (int row = 0; row < 5; ++row)
        EXPECT_EQ(book.value(0, {row, 0}), Value(expected[row]));
    book.setValue(0, {5, 0}, std::u16string(u"rtf")); // the formatted text is not the same text
    const Bytes saved = book.save();
    const Workbook read = Workbook::open(saved);
    for (int row = 0; row < 5; ++row)
        EXPECT_EQ(read.value(0, {row, 0}), Value(expected[row]));
    EXPECT_EQ(read.value(0, {5, 0}), Value(expected[2]));
    EXPECT_EQ(sharedTable(saved).front().u32(4), 6U);
}

TEST(SharedStrings, BytesBehindTheLastTextAreNoText) {
    const Bytes file = fileWithStrings({le(4, {1, 1}) + Bytes{1, 0, 0, 'a', 7, 7, 7}, Bytes{7, 7}}, 1);
    Workbook book = Workbook::open(file);
    book.setValue(0, {1, 0}, std::u16string(u"b"));
    const Workbook read = Workbook::open(book.save());
    EXPECT_EQ(read.value(0, {0, 0}), Value(std::u16string(u"a")));
    EXPECT_EQ(read.value(0, {1, 0}), Value(std::u16string(u"b")));
}

TEST(SharedStrings, TableIsAddedWhereThereIsNone) {
    std::vector<Rec> all = recordsOf(Workbook::create(u"List").save());
    std::size_t removed = 0;
    std::erase_if(all, [&](const Rec& record) {
        const bool gone = record.id == 0x00FC || record.id == 0x00FF;
        if (gone) removed += 4 + record.data.size();
        return gone;
    });
    const auto sheet = std::ranges::find(all, 0x0085, &Rec::id);
    const Bytes position = le(4, {sheet->u32(0) - removed});
    std::ranges::copy(position, sheet->data.begin());
    Workbook book = Workbook::open(fileAround(bytesOf(all)));
    book.setValue(0, {0, 0}, 1.0);
    EXPECT_TRUE(sharedTable(book.save()).empty());
    book.setValue(0, {0, 1}, std::u16string(u"první"));
    const Bytes file = book.save();
    EXPECT_EQ(Workbook::open(file).value(0, {0, 1}), Value(std::u16string(u"první")));
    EXPECT_EQ(sharedTable(file).front().u32(0), 1U);
}

} // namespace
