#pragma once

#include "spreadsheet/xls/biff5/CodePage.h"
#include "spreadsheet/xls/strings/TextPool.h"

#include <vector>

namespace zvonika::xls {

/// A BIFF5 worksheet's substream as BIFF8 has it.
struct TranslatedSheet {
    std::vector<std::uint8_t> bytes;
    std::uint32_t end = 0;         ///< of the old substream: offset of its Eof record
    std::uint32_t sharedTexts = 0; ///< cells that refer to the string table
};

/// Translates the worksheet whose Bof record stands at `offset`. Kept: cells with their formats, formulas
/// where their tokens allow it (else their results), rows, columns, view, page set-up, protection. Texts go
/// to `texts`. Throws FormatError.
TranslatedSheet translateSheet(ByteView stream, std::uint32_t offset, const CodePage& codePage,
                               TextPool& texts);

} // namespace zvonika::xls
