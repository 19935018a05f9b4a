#pragma once

#include "song/xls/container/CompoundFile.h"

namespace zvonika::xls {

/// The stream of a container that holds the workbook.
struct BookStream {
    std::uint32_t entry = 0;
    CompoundFile::Bytes bytes;
};

/// Finds it, whatever the case of its name. A file for two generations of programs holds the same workbook
/// twice: the later version counts, whichever name it has. Throws FormatError; a container of another kind of
/// document is OtherFormat.
BookStream findBookStream(const CompoundFile& container);

} // namespace zvonika::xls
