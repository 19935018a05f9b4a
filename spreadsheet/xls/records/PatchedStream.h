#pragma once

#include "spreadsheet/xls/records/ByteSource.h"
#include "spreadsheet/xls/records/PatchList.h"

#include <cstdint>
#include <vector>

namespace zvonika::xls {

/// A stream with changes in it. What depends on where things come to stand is set last.
class PatchedStream final : public ByteSource {
public:
    /// `original` must outlive it; `patches` are finished.
    PatchedStream(ByteView original, PatchList patches);

    std::size_t size() const override { return patches_.size(original_); }
    void read(std::size_t at, std::span<std::uint8_t> out) const override;
    /// Where the byte at `offset` of the original stands, behind anything inserted there.
    std::uint32_t map(std::uint32_t offset) const { return patches_.map(offset); }
    /// The contents of the record at `at`, without what was set.
    std::vector<std::uint8_t> payloadAt(std::uint32_t at) const;

    /// Sets a number in the changed stream, once each.
    void set16(std::size_t at, std::uint32_t value);
    void set32(std::size_t at, std::uint32_t value);
    /// To be called after the last number was set and before `read` shows it.
    void finish();

private:
    struct Setting {
        std::uint32_t at;
        std::uint16_t value;
    };

    ByteView original_;
    PatchList patches_;
    std::vector<Setting> settings_;
};

} // namespace zvonika::xls
