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
    struct {
        double number;
        bool fits;
    } const table[] = {
        {0.0, true},
        {-0.0, true},
        {1.0, true},
        {-1.0, true},
        {0.01, true},
        {12.34, true},
        {0.1, true},
        {0.123, false},
        {1.0 / 3, false},
        {536870911.0, true},
        {536870912.0, true},
        {536870913.0, false},
        {-536870912.0, true},
        {-536870913.0, false},
        {5368709.11, true},
        {1e300, false},
        {std::ldexp(1.0, 300), true},
        {-123.45, true},
        {std::numeric_limits<double>::denorm_min(), false},
        {std::numeric_limits<double>::infinity(), false},
        {std::nan(""), false},
    };
    for (const auto& [number, fits] : table) {
        const auto rk = encodeRk(number);
        EXPECT_EQ(rk.has_value(), fits) << number;
        if (rk) {
            EXPECT_EQ(std::bit_cast<std::uint64_t>(decodeRk(*rk)), std::bit_cast<std::uint64_t>(number))
                << number;
        }
    }
}

} // namespace
