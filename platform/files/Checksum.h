#pragma once

#include <QByteArray>

namespace zvonika {

/// CRC-32 as in ISO 3309 (reflected polynomial EDB88320): 0xCBF43926 for "123456789".
quint32 crc32(const QByteArray& bytes);

} // namespace zvonika
