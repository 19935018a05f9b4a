#include "spreadsheet/embedded/WorkbookFile.h"

#include "platform/Log.h"
#include "platform/RuntimeError.h"
#include "platform/files/FileNames.h"
#include "platform/files/RegularFile.h"
#include "spreadsheet/FileRefusals.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/FileSentences.h"
#include "spreadsheet/journal/ContentHash.h"

#include <QFile>

#include <algorithm>
#include <limits>
#include <new>

namespace zvonika {

namespace {

/// Beyond what the format can hold.
constexpr qint64 largestFile = qint64{512} << 20;

void readUpTo(qint64 size, QFile& file, xls::Bytes& bytes, const QString& path) {
    const auto there = static_cast<qint64>(bytes.size());
    bytes.resize(static_cast<std::size_t>(size));
    if (file.read(reinterpret_cast<char*>(bytes.data()) + there, size - there) != size - there)
        refuse(openRefused(path, std::errc::io_error));
}

xls::Bytes readBytes(const QString& path) {
    QFile file;
    if (const std::error_code reason =
            openRegular(file, path, Links::Follow, std::numeric_limits<qint64>::max()))
        refuse(openRefused(path, std::errc(reason.default_error_condition().value())));
    const qint64 size = file.size();
    xls::Bytes bytes;
    readUpTo(std::min(size, qint64{xls::Workbook::headSize}), file, bytes, path);
    // A film chosen by mistake is called by its name before it fills the memory.
    xls::Workbook::checkHead(bytes, static_cast<std::size_t>(size));
    if (size > largestFile) refuse(openRefused(path, std::errc::file_too_large));
    bytes.reserve(static_cast<std::size_t>(size));
    readUpTo(size, file, bytes, path);
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

void refuseForbiddenName(const QString& nativePath) {
    if (const QString reason = forbiddenName(nativePath); !reason.isEmpty())
        refuseSave(nativePath, cannotSave(nativePath, reason));
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
