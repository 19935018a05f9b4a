#pragma once

#include "song/xls/Value.h"
#include "song/xls/book/SheetLayout.h"
#include "song/xls/strings/SharedStrings.h"

namespace zvonika::xls {

/// What the file holds in a cell; of a formula its stored result.
Value readCell(ByteView stream, const SharedStrings& strings, const CellSlot& slot);

/// Whether the record holds no value, only a format.
inline bool isBlankRecord(ByteView stream, std::uint32_t offset) {
    const auto type = static_cast<RecordType>(load16(stream.data() + offset));
    return type == RecordType::Blank || type == RecordType::MulBlank;
}

} // namespace zvonika::xls
