#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zvonika::xls {

/// The workbook stream of a new workbook with one empty worksheet.
std::vector<std::uint8_t> blankWorkbookStream(const std::u16string& sheetName);

} // namespace zvonika::xls
