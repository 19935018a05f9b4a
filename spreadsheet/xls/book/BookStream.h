#pragma once

#include "spreadsheet/xls/container/CompoundFile.h"

namespace zvonika::xls {

/// The stream of a container that holds the workbook. Its bytes may stand in the container, which must
/// outlive it.
class BookStream {
public:
    BookStream(const CompoundFile& container, std::uint32_t entry);
    BookStream(BookStream&&) noexcept = default;
    BookStream& operator=(BookStream&&) noexcept = default;

    std::uint32_t entry() const { return entry_; }
    ByteView bytes() const { return bytes_; }
    /// Puts other bytes in the place of those read.
    void replace(CompoundFile::Bytes bytes);

private:
    std::uint32_t entry_;
    CompoundFile::Bytes owned_; ///< empty when the container has the bytes in one piece
    ByteView bytes_;
};

/// Finds it, whatever the case of its name. A file for two generations of programs holds the same workbook
/// twice: the later version counts, whichever name it has. Throws FormatError; a container of another kind of
/// document is OtherFormat.
BookStream findBookStream(const CompoundFile& container);

} // namespace zvonika::xls
