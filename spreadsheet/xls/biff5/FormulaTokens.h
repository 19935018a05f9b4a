#pragma once

#include "spreadsheet/xls/biff5/CodePage.h"

#include <optional>
#include <vector>

namespace zvonika::xls {

/// The tokens of a BIFF5 formula as BIFF8 has them: cell references are wider, texts are Unicode, jumps
/// follow. None for formulas with tokens that need more than their own bytes to be told (names, other sheets,
/// array constants) or that make no sense.
std::optional<std::vector<std::uint8_t>> convertTokens(ByteView tokens, const CodePage& codePage);

} // namespace zvonika::xls
