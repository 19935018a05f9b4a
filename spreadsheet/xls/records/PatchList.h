#pragma once

#include "spreadsheet/xls/records/Endian.h"

#include <cstdint>
#include <vector>

namespace zvonika::xls {

/// Order of insertions that meet at one offset.
enum class InsertOrder : std::uint8_t { CellTail, Block, Row, Cell };

/// Changes to a stream of bytes, collected in any order. Replaced ranges must not
/// overlap.
class PatchList {
public:
    /// Puts `bytes` in the place of `removed` bytes at `offset`; either may be empty.
    void replace(std::uint32_t offset, std::uint32_t removed, ByteView bytes);
    /// Puts `bytes` before the byte at `offset`. Insertions at one offset follow `order`, then the calls'
    /// order.
    void insert(std::uint32_t offset, ByteView bytes, InsertOrder order = InsertOrder::Cell);

    bool empty() const { return patches_.empty(); }
    /// Sorts; to be called after the last change and before `map`, `size` and `read`.
    void finish();
    /// Where the byte at `offset` of the original comes to stand, behind anything inserted there.
    std::uint32_t map(std::uint32_t offset) const;
    /// Bytes of the changed stream.
    std::size_t size(ByteView original) const;
    /// Fills `out` with the bytes of the changed stream from `at` on.
    void read(ByteView original, std::size_t at, std::span<std::uint8_t> out) const;

private:
    struct Patch {
        std::uint32_t offset;
        std::uint32_t removed;
        std::uint32_t begin; ///< of the new bytes in bytes_
        std::uint32_t size;
        InsertOrder order;
        std::int64_t shift = 0; ///< of everything behind this patch
        std::uint32_t end() const { return offset + removed; }
        /// Where its bytes stand in the changed stream.
        std::size_t place() const { return static_cast<std::size_t>(end() + shift) - size; }
    };

    void add(std::uint32_t offset, std::uint32_t removed, ByteView bytes, InsertOrder order);
    ByteView freshOf(const Patch& patch) const { return ByteView(bytes_).subspan(patch.begin, patch.size); }

    std::vector<Patch> patches_;
    std::vector<std::uint8_t> bytes_; ///< all new bytes, so that a patch costs no allocation of its own
};

} // namespace zvonika::xls
