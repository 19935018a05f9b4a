// Input: the bytes of a file.
#include "fuzz/Checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const zvonika::xls::Bytes file(data, data + size);
    zvonika::fuzz::checkContainer(file);
    zvonika::fuzz::checkFile(file);
    return 0;
}
