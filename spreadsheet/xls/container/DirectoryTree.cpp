#include "spreadsheet/xls/container/DirectoryTree.h"

#include "spreadsheet/xls/container/CompoundFormat.h"
#include "spreadsheet/xls/records/Endian.h"

#include <algorithm>
#include <bit>

namespace zvonika::xls {

using namespace CompoundFormat;

namespace {

constexpr std::uint32_t rootEntry = 0;
constexpr std::uint8_t red = 0;
constexpr std::uint8_t black = 1;

} // namespace

/// Names are compared by length first, then in upper case.
std::u16string DirectoryTree::sortName(std::uint32_t entry) const {
    const std::uint8_t* bytes = bytes_(entry);
    std::u16string name;
    const std::size_t units = std::min<std::size_t>(load16(bytes + Entry::nameSize) / 2, 32);
    for (std::size_t i = 0; i < units; ++i) {
        const auto unit = static_cast<char16_t>(load16(bytes + 2 * i));
        name += unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32) : unit;
    }
    return name;
}

/// Makes a balanced tree of a run of members; only its deepest, incomplete level is red.
std::uint32_t DirectoryTree::link(std::size_t begin, std::size_t end, unsigned depth) {
    if (begin == end) return noEntry;
    const std::size_t middle = begin + (end - begin) / 2;
    std::uint8_t* bytes = bytes_(members_[middle]);
    bytes[Entry::colour] = depth == redDepth_ ? red : black;
    store32(bytes + Entry::left, link(begin, middle, depth + 1));
    store32(bytes + Entry::right, link(middle + 1, end, depth + 1));
    return members_[middle];
}

void DirectoryTree::rename(std::uint32_t entry, const std::string& name) {
    std::uint8_t* bytes = bytes_(entry);
    std::fill_n(bytes, Entry::nameSize, std::uint8_t{0});
    for (std::size_t i = 0; i < name.size(); ++i)
        bytes[2 * i] = static_cast<std::uint8_t>(name[i]);
    store16(bytes + Entry::nameSize, static_cast<std::uint32_t>(2 * (name.size() + 1)));
    const auto shorterFirst = [this](std::uint32_t a, std::uint32_t b) {
        const std::u16string x = sortName(a), y = sortName(b);
        return x.size() != y.size() ? x.size() < y.size() : x < y;
    };
    std::ranges::sort(members_, shorterFirst);
    const bool complete = std::has_single_bit(members_.size() + 1);
    redDepth_ = complete ? ~0U : static_cast<unsigned>(std::bit_width(members_.size())) - 1;
    store32(bytes_(rootEntry) + Entry::child, link(0, members_.size(), 0));
}

} // namespace zvonika::xls
