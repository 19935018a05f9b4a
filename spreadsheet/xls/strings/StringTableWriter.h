#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zvonika::xls {

/// Lays texts out as a string table does: on through Continue records, never splitting a lead-in or a
/// surrogate pair.
class StringTableWriter {
public:
    static constexpr std::uint32_t countsSize = 8; ///< references and texts, at the beginning of the table

    struct Place {
        std::uint32_t offset;   ///< of the text in bytes()
        std::uint32_t inRecord; ///< of the text behind the start of its record's header
    };

    /// `used`: bytes of payload already in the record that is written on.
    explicit StringTableWriter(std::uint32_t used) : used_(used) {}

    Place add(const std::u16string& text);
    const std::vector<std::uint8_t>& bytes() const { return bytes_; }
    /// Bytes added to the record that was written on, before the first new Continue record.
    std::uint32_t addedToFirst() const;
    /// A whole table of what was written: Sst record and its Continue records. For a writer that began behind
    /// the counts (`used` = countsSize). `references`: how many cells refer to the `texts` texts.
    std::vector<std::uint8_t> wholeTable(std::uint32_t references, std::uint32_t texts) const;

private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    std::uint32_t room() const;
    void beginContinue();
    void put(std::uint32_t unit, bool wide);

    std::vector<std::uint8_t> bytes_;
    std::uint32_t used_;
    std::size_t header_ = none; ///< of the Continue record being written, in bytes_
    std::size_t firstHeader_ = none;
};

} // namespace zvonika::xls
