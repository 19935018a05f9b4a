#pragma once

#include <cstdint>
#include <string>

namespace zvonika::xls {

// The record types the engine understands: name, number, and whether BIFF5 has the same contents in it.
// Everything else passes through as bytes.
#define ZVONIKA_XLS_RECORDS(X)                                                                               \
    X(Formula, 0x0006, false)                                                                                \
    X(Eof, 0x000A, false)                                                                                    \
    X(CalcCount, 0x000C, true)                                                                               \
    X(CalcMode, 0x000D, true)                                                                                \
    X(Precision, 0x000E, true)                                                                               \
    X(RefMode, 0x000F, true)                                                                                 \
    X(Delta, 0x0010, true)                                                                                   \
    X(Iteration, 0x0011, true)                                                                               \
    X(Protect, 0x0012, true)                                                                                 \
    X(Password, 0x0013, true)                                                                                \
    X(Header, 0x0014, false)                                                                                 \
    X(Footer, 0x0015, false)                                                                                 \
    X(WindowProtect, 0x0019, true)                                                                           \
    X(VerticalPageBreaks, 0x001A, false)                                                                     \
    X(HorizontalPageBreaks, 0x001B, false)                                                                   \
    X(Selection, 0x001D, true)                                                                               \
    X(Date1904, 0x0022, true)                                                                                \
    X(LeftMargin, 0x0026, true)                                                                              \
    X(RightMargin, 0x0027, true)                                                                             \
    X(TopMargin, 0x0028, true)                                                                               \
    X(BottomMargin, 0x0029, true)                                                                            \
    X(PrintHeaders, 0x002A, true)                                                                            \
    X(PrintGridlines, 0x002B, true)                                                                          \
    X(FilePass, 0x002F, false)                                                                               \
    X(Font, 0x0031, false)                                                                                   \
    X(Continue, 0x003C, false)                                                                               \
    X(Window1, 0x003D, false)                                                                                \
    X(Backup, 0x0040, true)                                                                                  \
    X(Pane, 0x0041, true)                                                                                    \
    X(CodePage, 0x0042, false)                                                                               \
    X(DefColWidth, 0x0055, true)                                                                             \
    X(WriteAccess, 0x005C, false)                                                                            \
    X(Uncalced, 0x005E, false)                                                                               \
    X(SaveRecalc, 0x005F, true)                                                                              \
    X(ObjectProtect, 0x0063, true)                                                                           \
    X(ColInfo, 0x007D, true)                                                                                 \
    X(Guts, 0x0080, true)                                                                                    \
    X(WsBool, 0x0081, true)                                                                                  \
    X(GridSet, 0x0082, true)                                                                                 \
    X(HCenter, 0x0083, true)                                                                                 \
    X(VCenter, 0x0084, true)                                                                                 \
    X(BoundSheet, 0x0085, false)                                                                             \
    X(Country, 0x008C, true)                                                                                 \
    X(HideObj, 0x008D, true)                                                                                 \
    X(Palette, 0x0092, true)                                                                                 \
    X(StandardWidth, 0x0099, true)                                                                           \
    X(Scl, 0x00A0, true)                                                                                     \
    X(Setup, 0x00A1, true)                                                                                   \
    X(MulRk, 0x00BD, true)                                                                                   \
    X(MulBlank, 0x00BE, true)                                                                                \
    X(RString, 0x00D6, false)                                                                                \
    X(DbCell, 0x00D7, false)                                                                                 \
    X(BookBool, 0x00DA, true)                                                                                \
    X(ScenProtect, 0x00DD, true)                                                                             \
    X(Xf, 0x00E0, false)                                                                                     \
    X(Sst, 0x00FC, false)                                                                                    \
    X(LabelSst, 0x00FD, false)                                                                               \
    X(ExtSst, 0x00FF, false)                                                                                 \
    X(UseSelFs, 0x0160, true)                                                                                \
    X(Dsf, 0x0161, false)                                                                                    \
    X(RefreshAll, 0x01B7, false)                                                                             \
    X(Dimensions, 0x0200, false)                                                                             \
    X(Blank, 0x0201, true)                                                                                   \
    X(Number, 0x0203, true)                                                                                  \
    X(Label, 0x0204, false)                                                                                  \
    X(BoolErr, 0x0205, true)                                                                                 \
    X(Formula3, 0x0206, false)                                                                               \
    X(String, 0x0207, false)                                                                                 \
    X(Row, 0x0208, true)                                                                                     \
    X(Index, 0x020B, false)                                                                                  \
    X(Array, 0x0221, false)                                                                                  \
    X(DefaultRowHeight, 0x0225, true)                                                                        \
    X(Table, 0x0236, false)                                                                                  \
    X(Window2, 0x023E, false)                                                                                \
    X(Rk, 0x027E, true)                                                                                      \
    X(Style, 0x0293, false)                                                                                  \
    X(Formula4, 0x0406, false)                                                                               \
    X(Format, 0x041E, false)                                                                                 \
    X(ShrFmla, 0x04BC, false)                                                                                \
    X(Bof, 0x0809, false)

enum class RecordType : std::uint16_t {
#define ZVONIKA_XLS_ENUM(name, id, sameInBiff5) name = (id),
    ZVONIKA_XLS_RECORDS(ZVONIKA_XLS_ENUM)
#undef ZVONIKA_XLS_ENUM
};

/// "BoundSheet", or "record 0x1234" for a type the engine does not know.
std::string recordName(std::uint16_t id);

/// True for the records whose contents are the same in BIFF5.
bool isSameInBiff5(RecordType type);

/// True for the records of a sheet that stand before its rows and cells: calculation, page set-up,
/// protection, columns, filters, size.
bool standsBeforeCells(RecordType type);

/// True for the records that place one cell or a run of cells in a row.
constexpr bool isCellRecord(RecordType type) {
    if (type == RecordType::LabelSst) return true; // most of all that a song has
    switch (type) {
    case RecordType::Formula:
    case RecordType::Formula3:
    case RecordType::Formula4:
    case RecordType::MulRk:
    case RecordType::MulBlank:
    case RecordType::RString:
    case RecordType::Blank:
    case RecordType::Number:
    case RecordType::Label:
    case RecordType::BoolErr:
    case RecordType::Rk:
        return true;
    default:
        return false;
    }
}

/// Some writers keep the numbers that formulas had in versions 3 and 4, for records of the present form.
constexpr bool isFormulaRecord(RecordType type) {
    return type == RecordType::Formula || type == RecordType::Formula3 || type == RecordType::Formula4;
}

/// True for a record that holds no value, only a format.
constexpr bool isBlankRecord(RecordType type) {
    return type == RecordType::Blank || type == RecordType::MulBlank;
}

/// True for the records that belong to the cell record before them.
constexpr bool followsCell(RecordType type) {
    return type == RecordType::Continue || type == RecordType::String || type == RecordType::ShrFmla ||
           type == RecordType::Array || type == RecordType::Table;
}

} // namespace zvonika::xls
