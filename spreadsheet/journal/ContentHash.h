#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <span>

namespace zvonika {

/// By which the contents of a file are known again: BLAKE2b with 32 bytes (RFC 7693).
QByteArray contentHash(std::span<const std::uint8_t> bytes);
/// "" when the file cannot be read.
QByteArray contentHashOfFile(const QString& nativePath);

} // namespace zvonika
