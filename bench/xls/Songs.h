#pragma once

#include "spreadsheet/xls/Workbook.h"

#include <string>

/// Songs for measuring the file engine: the columns that a recorded song has, nine cells a row.
namespace zvonika::bench {

xls::Workbook makeSong(int rows);

/// Changes ten cells spread over the song: syllables new and known, tones, a number, one empty cell.
void changeTenCells(xls::Workbook& song);

xls::Bytes readFile(const std::string& path);
void writeFile(const std::string& path, const xls::FileImage& image);

} // namespace zvonika::bench
