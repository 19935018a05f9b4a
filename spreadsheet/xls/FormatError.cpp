#include "spreadsheet/xls/FormatError.h"

#include <utility>

namespace zvonika::xls {

namespace {

std::string describe(const std::string& place, std::size_t offset, const std::string& expected,
                     const std::string& found) {
    return place + " at offset " + std::to_string(offset) + ": expected " + expected + ", found " + found;
}

} // namespace

FormatError::FormatError(Refusal refusal, std::string place, std::size_t offset, std::string expected,
                         std::string found)
    : std::runtime_error(describe(place, offset, expected, found)), refusal_(refusal),
      place_(std::move(place)), offset_(offset), expected_(std::move(expected)), found_(std::move(found)) {}

} // namespace zvonika::xls
