#pragma once

#include "spreadsheet/xls/records/Endian.h"

#include <vector>

namespace zvonika::xls {

/// A BIFF5 (BIFF7) workbook stream as a BIFF8 one, so that the rest of the engine knows one version only.
///
/// Kept: worksheets in their order with names and visibility, cells, formulas within a sheet, fonts, number
/// formats, cell formats, styles, palette, column widths and row heights, view, page set-up, page breaks,
/// protection, calculation settings. Left out: chart, macro and module sheets, drawings and comments, defined
/// names, links; formulas that speak of other sheets or of names become their results; texts lose formats of
/// their parts.
///
/// Throws FormatError; OldFormat for code pages of more than one byte a character.
std::vector<std::uint8_t> translateBiff5(ByteView stream);

} // namespace zvonika::xls
