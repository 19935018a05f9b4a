#pragma once

#include "spreadsheet/xls/records/Endian.h"

#include <algorithm>
#include <cstring>

namespace zvonika::xls {

/// Bytes that are put together where they are asked for, so that they need not stand in memory as a whole.
class ByteSource {
public:
    virtual ~ByteSource() = default;
    virtual std::size_t size() const = 0;
    /// Fills `out` with the bytes from `at` on, in any order of calls. at + out.size() <= size().
    virtual void read(std::size_t at, std::span<std::uint8_t> out) const = 0;
};

/// Bytes that stand in memory and outlive it.
class ByteViewSource final : public ByteSource {
public:
    explicit ByteViewSource(ByteView bytes) : bytes_(bytes) {}
    std::size_t size() const override { return bytes_.size(); }
    void read(std::size_t at, std::span<std::uint8_t> out) const override {
        if (!out.empty()) std::memcpy(out.data(), &bytes_[at], out.size());
    }

private:
    ByteView bytes_;
};

} // namespace zvonika::xls
