#include "spreadsheet/embedded/WorkbookFile.h"

#include "platform/Log.h"
#include "platform/RuntimeError.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/FileSentences.h"
#include "spreadsheet/journal/ContentHash.h"

#include <QFile>
#include <QFileInfo>

#include <new>

namespace zvonika {

namespace {

/// Beyond what the format can hold; keeps a wrongly chosen film from filling the memory.
constexpr qint64 largestFile = qint64{512} << 20;

void refuseUnlessFile(const QString& path) {
    const QFileInfo info(path);
    if (path.contains(QChar(u'\0')) || !info.exists())
        refuse(openRefused(path, std::errc::no_such_file_or_directory));
    if (info.isDir()) refuse(openRefused(path, std::errc::is_a_directory));
    if (!info.isFile()) refuse(openRefused(path, std::errc::no_such_device));
    if (info.size() > largestFile) refuse(openRefused(path, std::errc::file_too_large));
}

xls::Bytes readBytes(const QString& path) {
    refuseUnlessFile(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) refuse(openRefused(path, std::errc::permission_denied));
    xls::Bytes bytes(static_cast<std::size_t>(file.size()));
    const qint64 read = file.read(reinterpret_cast<char*>(bytes.data()), static_cast<qint64>(bytes.size()));
    if (read != static_cast<qint64>(bytes.size())) refuse(openRefused(path, std::errc::io_error));
    return bytes;
}

/// For the user one sentence is enough; whoever looks into the file needs to know where.
void logRefusal(const QString& path, const std::exception& refusal) {
    qCWarning(openingLog).noquote() << path + QStringLiteral(":") << refusal.what();
}

[[noreturn]] void refuseSave(const QString& path, const QString& sentence) {
    qCInfo(savingLog).noquote() << path << "neuložen:" << sentence;
    refuse(sentence);
}

} // namespace

WorkbookFile readWorkbook(const QString& nativePath) {
    try {
        xls::Bytes bytes = readBytes(nativePath);
        QByteArray hash = contentHash(bytes);
        return {xls::Workbook::open(std::move(bytes)), std::move(hash)};
    } catch (const xls::FormatError& refusal) {
        logRefusal(nativePath, refusal);
        refuse(openRefused(nativePath, refusal.refusal()));
    } catch (const RuntimeError& refusal) {
        qCInfo(openingLog).noquote() << nativePath << "neotevřen:" << refusal.cause();
        throw;
    } catch (const std::bad_alloc&) {
        refuse(openRefused(nativePath, std::errc::not_enough_memory));
    } catch (const std::exception& failure) { // places that are not there
        logRefusal(nativePath, failure);
        refuse(openRefused(nativePath, xls::Refusal::Damaged));
    }
}

void refusingToSave(const QString& nativePath, const std::function<void()>& steps) {
    try {
        steps();
    } catch (const RuntimeError&) {
        throw;
    } catch (const std::system_error& failure) {
        refuseSave(nativePath, saveRefused(nativePath, failure.code()));
    } catch (const std::bad_alloc&) {
        refuseSave(nativePath, saveRefused(nativePath, std::make_error_code(std::errc::not_enough_memory)));
    } catch (const std::exception&) {
        refuseSave(nativePath, saveRefused(nativePath));
    }
}

} // namespace zvonika
