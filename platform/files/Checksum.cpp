#include "platform/files/Checksum.h"

#include <array>

namespace zvonika {

namespace {

constexpr std::array<quint32, 256> makeTable() {
    std::array<quint32, 256> table{};
    for (quint32 byte = 0; byte < 256; ++byte) {
        quint32 rest = byte;
        for (int bit = 0; bit < 8; ++bit)
            rest = (rest >> 1) ^ ((rest & 1U) != 0 ? 0xEDB88320U : 0U);
        table[byte] = rest;
    }
    return table;
}

constexpr auto table = makeTable();

} // namespace

quint32 crc32(const QByteArray& bytes) {
    quint32 rest = 0xFFFFFFFFU;
    for (const char byte : bytes)
        rest = table[(rest ^ quint8(byte)) & 0xFFU] ^ (rest >> 8);
    return rest ^ 0xFFFFFFFFU;
}

} // namespace zvonika
