#include "platform/files/Patience.h"
#include "platform/files/SystemFile.h"
#include "platform/files/WindowsErrors.h"
#include "platform/files/WindowsPath.h"

namespace zvonika {

namespace {

unsigned long failureOf(BOOL done) {
    return done ? ERROR_SUCCESS : GetLastError();
}

} // namespace

std::error_code moveFile(const QString& from, const QString& to) {
    const WindowsPath source(from), target(to);
    return windowsError(
        Patience().ask([&] { return failureOf(MoveFileExW(source, target, MOVEFILE_WRITE_THROUGH)); }));
}

std::error_code makeHiddenFolder(const QString& nativePath) {
    const WindowsPath path(nativePath);
    if (!CreateDirectoryW(path, nullptr)) return windowsError(GetLastError());
    SetFileAttributesW(path, FILE_ATTRIBUTE_HIDDEN);
    return {};
}

bool removeFile(const QString& nativePath) {
    const WindowsPath path(nativePath);
    const auto error = Patience().ask([&] { return failureOf(DeleteFileW(path)); });
    return error == ERROR_SUCCESS || error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

} // namespace zvonika
