#include "spreadsheet/xls/records/Rk.h"

#include <bit>
#include <cmath>

namespace zvonika::xls {

namespace {

constexpr std::uint32_t hundredths = 1;
constexpr std::uint32_t integer = 2;

bool decodesTo(std::uint32_t rk, double number) {
    return std::bit_cast<std::uint64_t>(decodeRk(rk)) == std::bit_cast<std::uint64_t>(number);
}

std::uint32_t highBits(double number) {
    return static_cast<std::uint32_t>(std::bit_cast<std::uint64_t>(number) >> 32) & ~3U;
}

std::optional<std::uint32_t> asInteger(double number, double scaled, std::uint32_t flags) {
    constexpr double limit = 536870912.0; // 2^29: thirty bits with a sign
    if (!(scaled >= -limit && scaled < limit)) return std::nullopt;
    const auto whole = static_cast<std::int32_t>(std::lround(scaled));
    const std::uint32_t rk = (static_cast<std::uint32_t>(whole) << 2) | integer | flags;
    if (whole >= 536870912 || !decodesTo(rk, number)) return std::nullopt;
    return rk;
}

std::optional<std::uint32_t> asDouble(double number, double scaled, std::uint32_t flags) {
    const std::uint32_t rk = highBits(scaled) | flags;
    return decodesTo(rk, number) ? std::optional(rk) : std::nullopt;
}

} // namespace

double decodeRk(std::uint32_t rk) {
    const double number = rk & integer ? static_cast<double>(static_cast<std::int32_t>(rk) >> 2)
                                       : std::bit_cast<double>(static_cast<std::uint64_t>(rk & ~3U) << 32);
    return rk & hundredths ? number / 100 : number;
}

std::optional<std::uint32_t> encodeRk(double number) {
    if (!std::isfinite(number)) return std::nullopt;
    if (const auto rk = asInteger(number, number, 0)) return rk;
    if (const auto rk = asDouble(number, number, 0)) return rk;
    if (const auto rk = asInteger(number, number * 100, hundredths)) return rk;
    return asDouble(number, number * 100, hundredths);
}

} // namespace zvonika::xls
