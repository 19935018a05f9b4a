#pragma once

#include <cstdint>
#include <functional>
#include <span>

namespace zvonika {

/// The contents of a file that need not stand in memory as a whole: gives its pieces in order to what it is
/// called with, all of them each time. A piece is valid during the call.
using BytePieces = std::function<void(const std::function<void(std::span<const std::uint8_t>)>&)>;

} // namespace zvonika
