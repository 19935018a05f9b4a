#include "song/xls/records/RecordType.h"

#include <algorithm>
#include <cstdio>

namespace zvonika::xls {

namespace {

struct NamedRecord {
    std::uint16_t id;
    const char* name;
};

constexpr NamedRecord namedRecords[] = {
#define ZVONIKA_XLS_ENTRY(name, id) {id, #name},
    ZVONIKA_XLS_RECORDS(ZVONIKA_XLS_ENTRY)
#undef ZVONIKA_XLS_ENTRY
};

} // namespace

std::string recordName(std::uint16_t id) {
    const auto* known = std::ranges::find(namedRecords, id, &NamedRecord::id);
    if (known != std::end(namedRecords)) return known->name;
    char text[24];
    std::snprintf(text, sizeof text, "record 0x%04X", static_cast<unsigned>(id));
    return text;
}

} // namespace zvonika::xls
