#include "platform/files/SystemFile.h"

#include <QFile>

#include <filesystem>

namespace zvonika {

namespace {

std::filesystem::path toPath(const QString& native) {
    return native.toStdU16String();
}

} // namespace

std::error_code moveFile(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(toPath(from), toPath(to), error);
    return error;
}

// Its name hides it.
std::error_code makeHiddenFolder(const QString& nativePath) {
    std::error_code error;
    std::filesystem::create_directory(toPath(nativePath), error);
    return error;
}

bool removeFile(const QString& nativePath) {
    return QFile::remove(nativePath) || !QFile::exists(nativePath);
}

} // namespace zvonika
