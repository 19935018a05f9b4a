#include "platform/files/ExclusiveFile.h"
#include "platform/files/Patience.h"
#include "platform/files/WindowsPath.h"

#include <QFile>

namespace zvonika {

namespace {

class Handle {
public:
    explicit Handle(HANDLE file) : file_(file) {}
    ~Handle() {
        if (isOpen()) CloseHandle(file_);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool isOpen() const { return file_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return file_; }

private:
    HANDLE file_;
};

bool deleteWhenClosed(HANDLE file) {
    FILE_DISPOSITION_INFO disposition{TRUE};
    return SetFileInformationByHandle(file, FileDispositionInfo, &disposition, sizeof disposition) != 0;
}

bool holds(HANDLE file, const QByteArray& text) {
    QByteArray bytes(text.size() + 1, '\0');
    DWORD length = 0;
    return ReadFile(file, bytes.data(), DWORD(bytes.size()), &length, nullptr) && length == text.size() &&
           bytes.startsWith(text);
}

bool fill(HANDLE file, const QByteArray& text) {
    DWORD written = 0;
    return WriteFile(file, text.constData(), DWORD(text.size()), &written, nullptr) && written == text.size();
}

/// For nobody else meanwhile: of several, one gets it.
HANDLE openAlone(const QString& path) {
    const WindowsPath name(path);
    HANDLE file = INVALID_HANDLE_VALUE;
    Patience().ask([&]() -> unsigned long {
        file = CreateFileW(name, GENERIC_READ | DELETE, 0, nullptr, OPEN_EXISTING,
                           FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
        return file == INVALID_HANDLE_VALUE ? GetLastError() : ERROR_SUCCESS;
    });
    return file;
}

} // namespace

Exclusive makeExclusively(const QString& path, const QByteArray& text) {
    const Handle file(CreateFileW(WindowsPath(path), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr,
                                  CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr));
    if (!file.isOpen()) return QFile::exists(path) ? Exclusive::OtherFirst : Exclusive::Impossible;
    if (fill(file.get(), text)) return Exclusive::Done;
    deleteWhenClosed(file.get()); // a full disk; others could not tell whose it is
    return Exclusive::Impossible;
}

Exclusive removeExclusively(const QString& path, const QByteArray& text) {
    const Handle file(openAlone(path));
    if (!file.isOpen()) return QFile::exists(path) ? Exclusive::Impossible : Exclusive::OtherFirst;
    if (!holds(file.get(), text)) return Exclusive::OtherFirst;
    return deleteWhenClosed(file.get()) ? Exclusive::Done : Exclusive::Impossible;
}

} // namespace zvonika
