#include "spreadsheet/xls/records/PatchList.h"

#include <algorithm>
#include <cstring>
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

std::size_t PatchList::size(ByteView original) const {
    const std::int64_t shift = patches_.empty() ? 0 : patches_.back().shift;
    return static_cast<std::size_t>(static_cast<std::int64_t>(original.size()) + shift);
}

void PatchList::read(ByteView original, std::size_t at, std::span<std::uint8_t> out) const {
    const auto take = [&](ByteView bytes, std::size_t place) {
        if (out.empty() || at < place || at - place >= bytes.size()) return;
        const ByteView part = bytes.subspan(at - place, std::min(out.size(), bytes.size() - (at - place)));
        std::memcpy(out.data(), part.data(), part.size()); // std::ranges::copy goes byte by byte here
        out = out.subspan(part.size());
        at += part.size();
    };
    auto patch = std::ranges::upper_bound(patches_, at, {}, &Patch::place);
    if (patch != patches_.begin()) --patch;
    if (patch == patches_.begin())
        take(original.first(patches_.empty() ? original.size() : patches_.front().offset), 0);
    for (; patch != patches_.end() && !out.empty(); ++patch) {
        take(freshOf(*patch), patch->place());
        const auto next = std::next(patch);
        const std::size_t keptEnd = next == patches_.end() ? original.size() : next->offset;
        take(original.subspan(patch->end(), keptEnd - patch->end()), patch->place() + patch->size);
    }
}

} // namespace zvonika::xls
