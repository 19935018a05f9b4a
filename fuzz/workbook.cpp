// Input: the bytes of a workbook stream; a sound container is put around them.
#include "fuzz/Checks.h"
#include "spreadsheet/xls/container/CompoundFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using zvonika::xls::CompoundFile;
    const CompoundFile container = CompoundFile::withEmptyStream("Workbook");
    zvonika::fuzz::checkFile(container.withStream(1, {data, size}));
    return 0;
}
