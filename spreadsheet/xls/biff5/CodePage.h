#pragma once

#include "spreadsheet/xls/records/Endian.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zvonika::xls {

/// The character set of a file whose texts have one byte a character.
class CodePage {
public:
    /// `number` as the CodePage record has it: 1250 (Central European), 852, 1252 ... `offset`: of that
    /// record, for the FormatError (CodePage) that is thrown for pages of more bytes a character.
    explicit CodePage(std::uint16_t number, std::size_t offset = 0);

    std::u16string decode(ByteView text) const;

private:
    std::u16string_view upperHalf_;
};

/// The code page usual in a country, by the international dialling code that Country records hold.
std::uint16_t codePageOfCountry(std::uint16_t country);

} // namespace zvonika::xls
