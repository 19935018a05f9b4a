#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace zvonika::xls {

/// Texts written by the user, each kept once. An id is an index, from 0 in order of first use.
class TextPool {
public:
    std::uint32_t intern(const std::u16string& text) {
        if (const auto known = ids_.find(text); known != ids_.end()) return known->second;
        const auto id = static_cast<std::uint32_t>(texts_.size());
        ids_.emplace(texts_.emplace_back(text), id);
        return id;
    }

    const std::u16string& text(std::uint32_t id) const { return texts_[id]; }
    std::uint32_t size() const { return static_cast<std::uint32_t>(texts_.size()); }

    /// Id of a text, or -1.
    std::int64_t find(std::u16string_view text) const {
        const auto known = ids_.find(text);
        return known == ids_.end() ? -1 : static_cast<std::int64_t>(known->second);
    }

private:
    std::deque<std::u16string> texts_; ///< a deque, because ids_ refers to its elements
    std::unordered_map<std::u16string_view, std::uint32_t> ids_;
};

} // namespace zvonika::xls
