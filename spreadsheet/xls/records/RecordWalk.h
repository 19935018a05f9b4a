#pragma once

#include "spreadsheet/xls/records/ByteSource.h"
#include "spreadsheet/xls/records/RecordType.h"

#include <vector>

namespace zvonika::xls {

/// Goes forwards through the records of a stream of which only a piece is in memory.
class RecordWalk {
public:
    /// Begins at the record whose header stands at `at`. Throws FormatError (Damaged) when there is none.
    RecordWalk(const ByteSource& stream, std::size_t at);

    std::size_t offset() const { return at_; }
    RecordType type() const { return static_cast<RecordType>(load16(head())); }
    std::size_t payloadSize() const { return load16(head() + 2); }
    /// The first four bytes of the contents; zeros stand for those that a shorter record lacks at the end of
    /// the stream.
    std::uint32_t first32() const { return load32(head() + 4); }
    void next();

private:
    static constexpr std::size_t headSize = 8;

    void need();
    const std::uint8_t* head() const { return &window_[at_ - windowAt_]; }

    const ByteSource& stream_;
    std::size_t at_;
    std::size_t windowAt_ = 0;
    std::vector<std::uint8_t> window_;
};

} // namespace zvonika::xls
