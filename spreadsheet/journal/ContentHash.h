#pragma once

#include "platform/files/BytePieces.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <span>

namespace zvonika {

/// By which the contents of a file are known again: BLAKE2b with 32 bytes (RFC 7693).
QByteArray contentHash(std::span<const std::uint8_t> bytes);
QByteArray contentHash(const BytePieces& contents);
/// "" when the file cannot be read, or is no regular one.
QByteArray contentHashOfFile(const QString& nativePath);

} // namespace zvonika
