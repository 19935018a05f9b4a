#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace zvonika::xls {

/// Error value of a cell, by its code in the file format ([MS-XLS] BErr): 0x07 = #DIV/0!, 0x2A = #N/A ...
struct ErrorValue {
    std::uint8_t code = 0x2A;
    friend bool operator==(const ErrorValue&, const ErrorValue&) = default;
};

/// What a cell holds: nothing, a number, a truth value, an error value or a text (UTF-16).
/// A formula shows the result stored with it.
using Value = std::variant<std::monostate, double, bool, ErrorValue, std::u16string>;

} // namespace zvonika::xls
