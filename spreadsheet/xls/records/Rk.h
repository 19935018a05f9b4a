#pragma once

#include <cstdint>
#include <optional>

namespace zvonika::xls {

/// The number a 32-bit RK value stands for.
double decodeRk(std::uint32_t rk);

/// The RK value that decodes to exactly these bits, where there is one.
std::optional<std::uint32_t> encodeRk(double number);

} // namespace zvonika::xls
