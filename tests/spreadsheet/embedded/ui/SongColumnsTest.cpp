#include "spreadsheet/embedded/ui/SongColumns.h"

#include <gtest/gtest.h>

namespace zvonika {
namespace {

TEST(SongColumns, TellAPlayerWhatTheyAre) {
    const std::pair<int, const char*> labels[] = {
        {1, "slabika"}, {2, "tón"}, {8, "tón"},        {9, "měch"},    {10, ""}, {13, "bas"}, {19, "bas"},
        {20, ""},       {21, ""},   {22, "prstoklad"}, {23, "tónina"}, {24, ""}, {256, ""}};
    for (const auto& [column, label] : labels)
        EXPECT_STREQ(songColumn(column).label, label) << column;
    EXPECT_GT(songColumn(1).width, 2 * songColumn(2).width) << "room for syllables";
}

} // namespace
} // namespace zvonika
