#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace zvonika::xls {

/// The streams and storages directly under a container's root, as the search tree that their entries form.
/// Works on the entries' bytes.
class DirectoryTree {
public:
    /// Bytes of an entry by its number.
    using EntryBytes = std::function<std::uint8_t*(std::uint32_t)>;

    /// `members`: the entries of the tree, in any order.
    DirectoryTree(std::vector<std::uint32_t> members, EntryBytes bytes)
        : members_(std::move(members)), bytes_(std::move(bytes)) {}

    /// Gives an entry another ASCII name of at most 31 characters and puts the tree in order again.
    void rename(std::uint32_t entry, const std::string& name);

private:
    std::u16string sortName(std::uint32_t entry) const;
    std::uint32_t link(std::size_t begin, std::size_t end, unsigned depth);

    std::vector<std::uint32_t> members_;
    EntryBytes bytes_;
    unsigned redDepth_ = 0;
};

} // namespace zvonika::xls
