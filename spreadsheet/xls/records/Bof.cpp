#include "spreadsheet/xls/records/Bof.h"

namespace zvonika::xls {

void appendBof(std::vector<std::uint8_t>& out, std::uint16_t substream) {
    constexpr std::uint16_t biff8 = 0x0600;
    constexpr std::uint16_t build = 0x0DBB;
    constexpr std::uint16_t year = 0x07CC;
    std::vector<std::uint8_t> payload;
    for (const int value : {int{biff8}, int{substream}, int{build}, int{year}, 0x0041, 0, 6, 0})
        append16(payload, static_cast<std::uint32_t>(value));
    appendRecord(out, RecordType::Bof, payload);
}

} // namespace zvonika::xls
