#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

#include <windows.h>

namespace zvonika {

/// A file's full name as the system's own calls take it, however long it is. For Windows.
class WindowsPath {
public:
    explicit WindowsPath(const QString& nativePath) : text_(system(nativePath)) {}
    operator const wchar_t*() const { return reinterpret_cast<const wchar_t*>(text_.utf16()); }

private:
    static QString system(const QString& nativePath) {
        constexpr qsizetype shortest = 240; // longer ones have to be marked; folders have less than files
        const QString path = QDir::toNativeSeparators(QFileInfo(nativePath).absoluteFilePath());
        if (path.size() < shortest || path.startsWith(QStringLiteral("\\\\?\\"))) return path;
        return path.startsWith(QStringLiteral("\\\\")) ? QStringLiteral("\\\\?\\UNC") + path.mid(1)
                                                       : QStringLiteral("\\\\?\\") + path;
    }

    QString text_;
};

} // namespace zvonika
