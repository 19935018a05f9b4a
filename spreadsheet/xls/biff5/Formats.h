#pragma once

#include "spreadsheet/xls/biff5/CodePage.h"
#include "spreadsheet/xls/records/Record.h"

#include <vector>

namespace zvonika::xls {

/// Payloads of a BIFF5 workbook's formatting records as BIFF8 has them. All throw FormatError (Damaged) for
/// records that are too short.
std::vector<std::uint8_t> fontPayload(const Record& font, const CodePage& codePage);
std::vector<std::uint8_t> numberFormatPayload(const Record& format, const CodePage& codePage);
std::vector<std::uint8_t> stylePayload(const Record& style, const CodePage& codePage);
/// Fonts, number format, alignment, borders, pattern and colours of cells.
std::vector<std::uint8_t> cellFormatPayload(const Record& xf);

/// A text with an 8-bit length at `at` of the payload.
std::u16string shortTextAt(const Record& record, std::size_t at, const CodePage& codePage);
/// A text with a 16-bit length.
std::u16string longTextAt(const Record& record, std::size_t at, const CodePage& codePage);

} // namespace zvonika::xls
