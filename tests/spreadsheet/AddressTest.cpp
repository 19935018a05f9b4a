#include "spreadsheet/Address.h"

#include "tests/spreadsheet/embedded/Rig.h"

namespace zvonika {

TEST(Address, IsReadInEveryForm) {
    const std::pair<const char*, CellRange> addresses[] = {{"B7", single({7, 2})},
                                                           {"$B$1", single({1, 2})},
                                                           {"b$12", single({12, 2})},
                                                           {"IV65536", single({65536, 256})},
                                                           {"AA1", single({1, 27})},
                                                           {"B1:B500", {{1, 2}, {500, 2}}},
                                                           {"$A$3:$W$18", {{3, 1}, {18, 23}}},
                                                           {"W18:A3", {{3, 1}, {18, 23}}},
                                                           {"C9:B10", {{9, 2}, {10, 3}}},
                                                           {"B:D", {{1, 2}, {65536, 4}}},
                                                           {"$B:$B", {{1, 2}, {65536, 2}}},
                                                           {"3:7", {{3, 1}, {7, 256}}},
                                                           {"$5:5", {{5, 1}, {5, 256}}}};
    for (const auto& [text, range] : addresses)
        EXPECT_EQ(parseAddress(QString::fromLatin1(text)), range) << text;
}

TEST(Address, ThatIsNoneGivesNothing) {
    for (const char* text : {"",         "B",    "7",      "$",        "B$",         "$$B1",         "B$$1",
                             "B0",       "B01",  "B65537", "IW1",      "ZZZZZZZZZ1", "B99999999999", "B1:",
                             ":B1",      "B1:C", "B:7",    "B1:C2:D3", "B1 ",        " B1",          "B1,C2",
                             "List1!B1", "B-1",  "B1.5",   "1B",       "Ř1"})
        EXPECT_FALSE(parseAddress(QString::fromUtf8(text))) << text;
}

TEST(Address, IsWrittenAbsolute) {
    EXPECT_EQ(absoluteAddress(CellPosition{1, 2}), QStringLiteral("$B$1"));
    EXPECT_EQ(absoluteAddress(single({65536, 256})), QStringLiteral("$IV$65536"));
    EXPECT_EQ(absoluteAddress(CellRange{{1, 26}, {2, 27}}), QStringLiteral("$Z$1:$AA$2"));
    for (int column = 1; column <= lastColumn; ++column)
        EXPECT_EQ(parseAddress(columnLetters(column) + QLatin1Char('1')), single({1, column})) << column;
}

} // namespace zvonika
