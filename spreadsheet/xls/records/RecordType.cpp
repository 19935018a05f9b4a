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

static_assert(std::ranges::is_sorted(knownRecords, {}, &KnownRecord::id));

} // namespace

bool isSameInBiff5(RecordType type) {
    const KnownRecord* known = find(static_cast<std::uint16_t>(type));
    return known && known->sameInBiff5;
}

std::string recordName(std::uint16_t id) {
    if (const KnownRecord* known = find(id)) return known->name;
    char text[24];
    std::snprintf(text, sizeof text, "record 0x%04X", static_cast<unsigned>(id));
    return text;
}

} // namespace zvonika::xls
