#pragma once

#include "spreadsheet/xls/book/SheetLayout.h"
#include "spreadsheet/xls/strings/SharedStrings.h"
#include "spreadsheet/xls/strings/TextPool.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace zvonika::xls {

/// What is where in a BIFF8 workbook stream, whose bytes must outlive it. Nothing here changes after opening.
struct WorkbookModel {
    /// Throws FormatError.
    explicit WorkbookModel(ByteView bytes);

    ByteView stream;
    Globals globals;
    SharedStrings strings;
    std::vector<SheetLayout> layouts; ///< one for each entry of globals.sheets
};

/// Changes to one sheet, laid over what the file holds.
struct SheetEdits {
    std::unordered_map<CellKey, CellContent> cells; ///< text: an id of WorkbookEdits::texts
    std::map<std::uint32_t, std::uint32_t> widths;  ///< by column
    std::optional<CellKey> activeCell;
    std::optional<std::u16string> name;

    bool empty() const { return cells.empty() && widths.empty() && !activeCell && !name; }
};

/// All changes since opening.
struct WorkbookEdits {
    std::vector<SheetEdits> sheets;           ///< one for each entry of Globals::sheets
    std::optional<std::uint32_t> activeSheet; ///< index among Globals::sheets
    TextPool texts;
};

} // namespace zvonika::xls
