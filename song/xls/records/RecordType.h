#pragma once

#include <cstdint>
#include <string>

namespace zvonika::xls {

// The record types the engine understands. Everything else passes through as bytes.
#define ZVONIKA_XLS_RECORDS(X)                                                                               \
    X(Formula, 0x0006)                                                                                       \
    X(Eof, 0x000A)                                                                                           \
    X(CalcCount, 0x000C)                                                                                     \
    X(CalcMode, 0x000D)                                                                                      \
    X(Precision, 0x000E)                                                                                     \
    X(RefMode, 0x000F)                                                                                       \
    X(Delta, 0x0010)                                                                                         \
    X(Iteration, 0x0011)                                                                                     \
    X(Protect, 0x0012)                                                                                       \
    X(Password, 0x0013)                                                                                      \
    X(Header, 0x0014)                                                                                        \
    X(Footer, 0x0015)                                                                                        \
    X(WindowProtect, 0x0019)                                                                                 \
    X(Selection, 0x001D)                                                                                     \
    X(Date1904, 0x0022)                                                                                      \
    X(PrintHeaders, 0x002A)                                                                                  \
    X(PrintGridlines, 0x002B)                                                                                \
    X(FilePass, 0x002F)                                                                                      \
    X(Font, 0x0031)                                                                                          \
    X(Continue, 0x003C)                                                                                      \
    X(Window1, 0x003D)                                                                                       \
    X(Backup, 0x0040)                                                                                        \
    X(Pane, 0x0041)                                                                                          \
    X(CodePage, 0x0042)                                                                                      \
    X(DefColWidth, 0x0055)                                                                                   \
    X(WriteAccess, 0x005C)                                                                                   \
    X(Uncalced, 0x005E)                                                                                      \
    X(SaveRecalc, 0x005F)                                                                                    \
    X(ColInfo, 0x007D)                                                                                       \
    X(Guts, 0x0080)                                                                                          \
    X(WsBool, 0x0081)                                                                                        \
    X(GridSet, 0x0082)                                                                                       \
    X(HCenter, 0x0083)                                                                                       \
    X(VCenter, 0x0084)                                                                                       \
    X(BoundSheet, 0x0085)                                                                                    \
    X(Country, 0x008C)                                                                                       \
    X(HideObj, 0x008D)                                                                                       \
    X(StandardWidth, 0x0099)                                                                                 \
    X(Scl, 0x00A0)                                                                                           \
    X(Setup, 0x00A1)                                                                                         \
    X(MulRk, 0x00BD)                                                                                         \
    X(MulBlank, 0x00BE)                                                                                      \
    X(RString, 0x00D6)                                                                                       \
    X(DbCell, 0x00D7)                                                                                        \
    X(BookBool, 0x00DA)                                                                                      \
    X(Xf, 0x00E0)                                                                                            \
    X(Sst, 0x00FC)                                                                                           \
    X(LabelSst, 0x00FD)                                                                                      \
    X(ExtSst, 0x00FF)                                                                                        \
    X(UseSelFs, 0x0160)                                                                                      \
    X(Dsf, 0x0161)                                                                                           \
    X(RefreshAll, 0x01B7)                                                                                    \
    X(Dimensions, 0x0200)                                                                                    \
    X(Blank, 0x0201)                                                                                         \
    X(Number, 0x0203)                                                                                        \
    X(Label, 0x0204)                                                                                         \
    X(BoolErr, 0x0205)                                                                                       \
    X(String, 0x0207)                                                                                        \
    X(Row, 0x0208)                                                                                           \
    X(Index, 0x020B)                                                                                         \
    X(Array, 0x0221)                                                                                         \
    X(DefaultRowHeight, 0x0225)                                                                              \
    X(Table, 0x0236)                                                                                         \
    X(Window2, 0x023E)                                                                                       \
    X(Rk, 0x027E)                                                                                            \
    X(Style, 0x0293)                                                                                         \
    X(ShrFmla, 0x04BC)                                                                                       \
    X(Bof, 0x0809)

enum class RecordType : std::uint16_t {
#define ZVONIKA_XLS_ENUM(name, id) name = id,
    ZVONIKA_XLS_RECORDS(ZVONIKA_XLS_ENUM)
#undef ZVONIKA_XLS_ENUM
};

/// "BoundSheet", or "record 0x1234" for a type the engine does not know.
std::string recordName(std::uint16_t id);

/// True for the records that place one cell or a run of cells in a row.
constexpr bool isCellRecord(RecordType type) {
    switch (type) {
    case RecordType::Formula:
    case RecordType::MulRk:
    case RecordType::MulBlank:
    case RecordType::RString:
    case RecordType::LabelSst:
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

/// True for the records that belong to the cell record before them.
constexpr bool followsCell(RecordType type) {
    return type == RecordType::Continue || type == RecordType::String || type == RecordType::ShrFmla ||
           type == RecordType::Array || type == RecordType::Table;
}

} // namespace zvonika::xls
