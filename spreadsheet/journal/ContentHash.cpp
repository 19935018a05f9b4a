#include "spreadsheet/journal/ContentHash.h"

#include "platform/files/RegularFile.h"

#include <QCryptographicHash>
#include <QFile>

namespace zvonika {

namespace {

constexpr qint64 largestFile = qint64{1} << 30; ///< more than any workbook has
constexpr auto algorithm = QCryptographicHash::Blake2b_256;

} // namespace

QByteArray contentHash(std::span<const std::uint8_t> bytes) {
    QCryptographicHash hash(algorithm);
    hash.addData(QByteArrayView(bytes));
    return hash.result();
}

QByteArray contentHash(const BytePieces& contents) {
    QCryptographicHash hash(algorithm);
    contents([&](std::span<const std::uint8_t> piece) { hash.addData(QByteArrayView(piece)); });
    return hash.result();
}

QByteArray contentHashOfFile(const QString& nativePath) {
    QFile file;
    if (openRegular(file, nativePath, Links::Follow, largestFile)) return {};
    QCryptographicHash hash(algorithm);
    const bool whole = hash.addData(&file) && file.error() == QFileDevice::NoError;
    return whole ? hash.result() : QByteArray();
}

} // namespace zvonika
