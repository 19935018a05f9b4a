#include "spreadsheet/xls/records/RecordType.h"

#include <algorithm>
#include <cstdio>

namespace zvonika::xls {

namespace {

struct KnownRecord {
    std::uint16_t id;
    const char* name;
    bool sameInBiff5;
};

constexpr KnownRecord knownRecords[] = {
#define ZVONIKA_XLS_ENTRY(name, id, sameInBiff5) {id, #name, sameInBiff5},
    ZVONIKA_XLS_RECORDS(ZVONIKA_XLS_ENTRY)
#undef ZVONIKA_XLS_ENTRY
};

const KnownRecord* find(std::uint16_t id) {
    const auto* known = std::ranges::lower_bound(knownRecords, id, {}, &KnownRecord::id);
    return known != std::end(knownRecords) && known->id == id ? known : nullptr;
}

constexpr std::uint16_t beforeCells[] = {
    0x000C, 0x000D, 0x000F, 0x0010, 0x0011, 0x0012, 0x0013, 0x0014, 0x0015, 0x0019, 0x001A,
    0x001B, 0x0026, 0x0027, 0x0028, 0x0029, 0x002A, 0x002B, 0x004D, 0x0055, 0x005E, 0x005F,
    0x0063, 0x007D, 0x0080, 0x0081, 0x0082, 0x0083, 0x0084, 0x0090, 0x009B, 0x009D, 0x009E,
    0x00A1, 0x00AE, 0x00AF, 0x00DD, 0x00E9, 0x0200, 0x020B, 0x0225, 0x0418, 0x089C};

static_assert(std::ranges::is_sorted(beforeCells));
static_assert(std::ranges::is_sorted(knownRecords, {}, &KnownRecord::id));

} // namespace

bool isSameInBiff5(RecordType type) {
    const KnownRecord* known = find(static_cast<std::uint16_t>(type));
    return known && known->sameInBiff5;
}

bool standsBeforeCells(RecordType type) {
    return std::ranges::binary_search(beforeCells, static_cast<std::uint16_t>(type));
}

std::string recordName(std::uint16_t id) {
    if (const KnownRecord* known = find(id)) return known->name;
    char text[24];
    std::snprintf(text, sizeof text, "record 0x%04X", static_cast<unsigned>(id));
    return text;
}

} // namespace zvonika::xls
