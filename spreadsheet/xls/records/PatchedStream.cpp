#include "spreadsheet/xls/records/PatchedStream.h"

#include "spreadsheet/xls/records/Record.h"

#include <utility>

namespace zvonika::xls {

PatchedStream::PatchedStream(ByteView original, PatchList patches)
    : original_(original), patches_(std::move(patches)) {}

void PatchedStream::read(std::size_t at, std::span<std::uint8_t> out) const {
    patches_.read(original_, at, out);
    // One that begins a byte before reaches in.
    auto setting = std::ranges::lower_bound(settings_, at - (at > 0), {}, &Setting::at);
    for (; setting != settings_.end() && setting->at < at + out.size(); ++setting)
        for (unsigned i = 0; i < 2; ++i)
            if (setting->at + i >= at && setting->at + i < at + out.size())
                out[setting->at + i - at] = static_cast<std::uint8_t>(setting->value >> (8 * i));
}

std::vector<std::uint8_t> PatchedStream::payloadAt(std::uint32_t at) const {
    std::uint8_t header[recordHeaderSize];
    patches_.read(original_, at, header);
    std::vector<std::uint8_t> payload(load16(header + 2));
    patches_.read(original_, at + recordHeaderSize, payload);
    return payload;
}

void PatchedStream::set16(std::size_t at, std::uint32_t value) {
    settings_.push_back({static_cast<std::uint32_t>(at), static_cast<std::uint16_t>(value)});
}

void PatchedStream::set32(std::size_t at, std::uint32_t value) {
    set16(at, value & 0xFFFF);
    set16(at + 2, value >> 16);
}

void PatchedStream::finish() {
    std::ranges::sort(settings_, {}, &Setting::at);
}

} // namespace zvonika::xls
