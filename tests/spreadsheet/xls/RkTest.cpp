#include "spreadsheet/xls/records/Rk.h"

#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace zvonika::xls;

namespace {

TEST(Rk, DecodesAllFourKinds) {
    struct {
        std::uint32_t rk;
        double number;
    } const table[] = {
        {0x00000000, 0.0},       {0x3FF00000, 1.0},        {0x3FF00001, 0.01}, {0x00000006, 1.0},
        {0x004B5646, 1234321.0}, {0x004B5647, 12343.21},   {0xFFFFFFFE, -1.0}, {0x80000002, -536870912.0},
        {0x7FFFFFFE, 536870911}, {0xC05EDCCC, -123.44995}, {0x80000000, -0.0},
    };
    for (const auto& [rk, number] : table)
        EXPECT_NEAR(decodeRk(rk), number, 1e-5) << std::hex << rk;
}

TEST(Rk, EncodesOnlyWhatComesBackWithTheSameBits) {
    for (const double number : {0.0, -0.0, 1.0, -1.0, 0.01, 12.34, 0.1, 536870911.0, 536870912.0,
                                -536870912.0, 5368709.11, std::ldexp(1.0, 300), -123.45}) {
        const auto rk = encodeRk(number);
        ASSERT_TRUE(rk) << number;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(decodeRk(*rk)), std::bit_cast<std::uint64_t>(number))
            << number;
    }
    for (const double number :
         {0.123, 1.0 / 3, 536870913.0, -536870913.0, 1e300, std::nan(""),
          std::numeric_limits<double>::denorm_min(), std::numeric_limits<double>::infinity()})
        EXPECT_FALSE(encodeRk(number)) << number;
}

} // namespace
