#include "platform/files/ExclusiveFile.h"

#include <QFile>
#include <QUuid>

namespace zvonika {

namespace {

bool holds(const QString& path, const QByteArray& text) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll() == text;
}

} // namespace

Exclusive makeExclusively(const QString& path, const QByteArray& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return QFile::exists(path) ? Exclusive::OtherFirst : Exclusive::Impossible;
    if (file.write(text) == text.size()) return Exclusive::Done;
    file.remove(); // a full disk; others could not tell whose it is
    return Exclusive::Impossible;
}

// Only one can give the file another name; what it finds it to be then is what it deletes.
Exclusive removeExclusively(const QString& path, const QByteArray& text) {
    const QString aside = path + QUuid::createUuid().toString(QUuid::Id128);
    if (!QFile::rename(path, aside)) return holds(path, text) ? Exclusive::Impossible : Exclusive::OtherFirst;
    if (holds(aside, text) && QFile::remove(aside)) return Exclusive::Done;
    QFile::rename(aside, path);
    return Exclusive::OtherFirst;
}

} // namespace zvonika
