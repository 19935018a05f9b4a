#include "spreadsheet/xls/records/PatchList.h"

#include <algorithm>
#include <tuple>

namespace zvonika::xls {

void PatchList::add(std::uint32_t offset, std::uint32_t removed, ByteView bytes, InsertOrder order) {
    const auto begin = static_cast<std::uint32_t>(bytes_.size());
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    patches_.push_back({offset, removed, begin, static_cast<std::uint32_t>(bytes.size()), order});
}

void PatchList::replace(std::uint32_t offset, std::uint32_t removed, ByteView bytes) {
    add(offset, removed, bytes, InsertOrder::Cell);
}

void PatchList::insert(std::uint32_t offset, ByteView bytes, InsertOrder order) {
    add(offset, 0, bytes, order);
}

void PatchList::finish() {
    // What is inserted at an offset stands before what replaces the bytes there.
    const auto place = [](const Patch& p) { return std::tuple(p.offset, p.removed > 0, p.order); };
    std::ranges::stable_sort(patches_, {}, place);
    std::int64_t shift = 0;
    for (Patch& patch : patches_)
        patch.shift = shift += static_cast<std::int64_t>(patch.size) - patch.removed;
}

std::uint32_t PatchList::map(std::uint32_t offset) const {
    const auto behind = std::ranges::upper_bound(patches_, offset, {}, &Patch::end);
    const std::int64_t shift = behind == patches_.begin() ? 0 : std::prev(behind)->shift;
    return static_cast<std::uint32_t>(offset + shift);
}

std::vector<std::uint8_t> PatchList::apply(ByteView original) const {
    std::vector<std::uint8_t> out;
    out.reserve(original.size() + bytes_.size());
    std::size_t at = 0;
    const auto copyUpTo = [&](std::size_t end) {
        const ByteView kept = original.subspan(at, end - at);
        out.insert(out.end(), kept.begin(), kept.end());
    };
    for (const Patch& patch : patches_) {
        copyUpTo(patch.offset);
        const ByteView fresh = ByteView(bytes_).subspan(patch.begin, patch.size);
        out.insert(out.end(), fresh.begin(), fresh.end());
        at = patch.end();
    }
    copyUpTo(original.size());
    return out;
}

} // namespace zvonika::xls
