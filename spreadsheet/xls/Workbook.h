#pragma once

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/Value.h"
#include "spreadsheet/xls/container/FileImage.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zvonika::xls {

using Bytes = std::vector<std::uint8_t>;

constexpr int maxRows = 65536;  ///< rows of a sheet in BIFF8
constexpr int maxColumns = 256; ///< columns of a sheet in BIFF8

/// Cell position, counted from 0: row 0..65535, column 0..255.
struct CellRef {
    int row = 0;
    int column = 0;
    friend bool operator==(const CellRef&, const CellRef&) = default;
};

/// A rectangle of cells, both corners included.
struct CellSpan {
    CellRef first;
    CellRef last;
    friend bool operator==(const CellSpan&, const CellSpan&) = default;
};

/// An .xls workbook as an editor sees it: everything that was in the file stays in it, records and streams
/// alike; only what is changed here (and what must follow it) is written anew.
///
/// Sheets are counted from 0 in workbook order and are worksheets only; chart and macro sheets stay in the
/// file but are not counted. An index or cell outside the range is a programming error (std::out_of_range).
class Workbook {
public:
    /// A new BIFF8 workbook with one empty worksheet. `sheetName`: 1 to 31 UTF-16 units.
    static Workbook create(const std::u16string& sheetName);

    /// Reads a file's bytes. Throws FormatError.
    static Workbook open(Bytes file);
    /// The first bytes of a file that `checkHead` wants to see; all of a shorter one.
    static constexpr std::size_t headSize = 4096;
    /// Looks at the first bytes of a file of `fileSize` bytes: throws what `open` would throw for a file
    /// that is none of ours at all, so that a large one need not be read.
    static void checkHead(std::span<const std::uint8_t> head, std::size_t fileSize);

    Workbook(Workbook&&) noexcept;
    Workbook& operator=(Workbook&&) noexcept;
    ~Workbook();

    /// The file's bytes. Without a change since `open`, exactly the bytes that were read.
    Bytes save() const;
    /// The same bytes piece by piece: nothing as large as the file is put into memory. Valid until the
    /// workbook changes or goes.
    FileImage image() const;

    int sheetCount() const;
    std::u16string sheetName(int sheet) const;
    /// The user is not meant to see the sheet. A file may hide all of them.
    bool isSheetHidden(int sheet) const;
    /// Throws std::invalid_argument when the name is empty, longer than 31 units, contains one of : \ / ? * [
    /// ], begins or ends with an apostrophe, or is already another sheet's name (compared without regard to
    /// ASCII case).
    void renameSheet(int sheet, const std::u16string& name);

    Value value(int sheet, CellRef cell) const;
    /// Calls `visit` for every cell that holds a value, row by row and from left to right: the fastest way to
    /// read a whole sheet. The workbook must not be changed meanwhile.
    void forEachValue(int sheet, const std::function<void(CellRef, const Value&)>& visit) const;
    /// Replaces the cell's contents; std::monostate empties it (the cell's format stays). A formula there is
    /// replaced. A text may have up to 32,767 UTF-16 units (std::invalid_argument beyond).
    /// A number that is not finite becomes the error #NUM!. Throws std::invalid_argument for a cell that
    /// `arrayAround` tells of. A formula that other cells share goes on to the next of them. Results of
    /// formulas that depend on the cell stay as stored; `save` marks them as not calculated.
    void setValue(int sheet, CellRef cell, const Value& value);
    /// True while the cell shows a formula of the file. Formulas are kept, never calculated or made here.
    bool isFormula(int sheet, CellRef cell) const;
    /// Takes back what was written over the cell since `open`: it holds again what the file held, a formula
    /// with its stored result, shared part and format included. A `save` in between makes no difference.
    void restoreCell(int sheet, CellRef cell);
    /// The cells of the array formula or data table that the cell is a part of: they can only be changed
    /// together, and their contents depend on each other, so `setValue` refuses each of them. None for
    /// all other cells, an array formula of a single cell among them.
    std::optional<CellSpan> arrayAround(int sheet, CellRef cell) const;

    /// One past the last row/column that holds a value; 0 in an empty sheet.
    int usedRows(int sheet) const;
    int usedColumns(int sheet) const;

    /// Column width in units of 1/256 of a character of the default font; the sheet's default where none is
    /// set.
    int columnWidth(int sheet, int column) const;
    /// `width` is brought into 0..65535; 0 hides the column.
    void setColumnWidth(int sheet, int column, int width);

    int activeSheet() const;
    /// Makes the sheet the only selected one; nothing happens while nothing else is changed and the sheet is
    /// `activeSheet` anyway. A workbook without a Window1 record cannot keep it: the call is ignored.
    void setActiveSheet(int sheet);
    /// The cell the cursor stood on when the sheet was last saved.
    CellRef activeCell(int sheet) const;
    void setActiveCell(int sheet, CellRef cell);

    /// True when `save` would give other bytes than were read (always for a created workbook).
    bool isModified() const;
    /// True when the file is of an older version (BIFF5, BIFF7) than the engine writes: tell the user before
    /// the first save with a change, which writes a BIFF8 workbook in its place. `save` without a change
    /// gives the bytes that were read, here too. Converted are: sheets, names of sheets, values, formulas
    /// within a sheet, number formats, fonts, colours, borders, column widths, row heights, page set-up. Lost
    /// are: comments, drawings and charts, chart and macro sheets, defined names and links, the fonts of
    /// parts of a text; formulas that need names, links, another sheet or array constants become their
    /// results. Other streams of the file (author, title ...) stay as they are.
    bool isOldFormat() const;

private:
    struct Impl;
    explicit Workbook(std::unique_ptr<Impl> impl);
    std::unique_ptr<Impl> impl_;
};

} // namespace zvonika::xls
