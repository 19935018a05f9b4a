#include "spreadsheet/journal/ContentHash.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace zvonika {

namespace {

constexpr auto algorithm = QCryptographicHash::Blake2b_256;

} // namespace

QByteArray contentHash(std::span<const std::uint8_t> bytes) {
    QCryptographicHash hash(algorithm);
    hash.addData(QByteArrayView(bytes));
    return hash.result();
}

QByteArray contentHashOfFile(const QString& nativePath) {
    QFile file(nativePath);
    if (!QFileInfo(nativePath).isFile() || !file.open(QIODevice::ReadOnly)) return {};
    QCryptographicHash hash(algorithm);
    return hash.addData(&file) ? hash.result() : QByteArray();
}

} // namespace zvonika
