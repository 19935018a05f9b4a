#pragma once

#include "spreadsheet/xls/book/CellFormats.h"
#include "spreadsheet/xls/records/Endian.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zvonika::xls {

/// Offset 0 holds the first Bof record, so no other record can stand there.
constexpr std::uint32_t absent = 0;

/// One BoundSheet record.
struct SheetEntry {
    std::uint32_t record = 0;   ///< offset of the record
    std::uint32_t position = 0; ///< offset of the sheet's Bof record
    std::uint8_t type = 0;
    bool hidden = false; ///< from the user, in either of the two ways that there are
    std::u16string name;

    bool isWorksheet() const { return type == 0; }
    /// A chart sheet stores the numbers of its series in cell records, too.
    bool hasCells() const { return type != 2; }
    /// Visual Basic modules have an entry, but no substream.
    bool hasSubstream() const { return type != 6; }
};

/// What is where in the workbook globals substream. Offsets are of records; `absent` where there is none.
struct Globals {
    std::vector<SheetEntry> sheets;
    std::uint32_t window1 = absent;
    std::uint32_t sst = absent;
    std::uint32_t extSst = absent;
    std::uint32_t eof = absent;
    CellFormats formats;
    std::uint32_t formatsEnd = absent; ///< end of the last Xf record
};

/// Reads the globals at the beginning of a workbook stream. Throws FormatError.
Globals readGlobals(ByteView stream);

} // namespace zvonika::xls
