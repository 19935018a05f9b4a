#include "song/xls/book/BookStream.h"

#include "song/xls/FormatError.h"
#include "song/xls/book/Version.h"
#include "song/xls/records/Record.h"

namespace zvonika::xls {

namespace {

[[noreturn]] void refuse(const CompoundFile& container) {
    const auto has = [&](const char* name) { return container.findStream(name).has_value(); };
    const Refusal refusal = has("EncryptedPackage")                             ? Refusal::Encrypted
                            : has("WordDocument") || has("PowerPoint Document") ? Refusal::OtherFormat
                                                                                : Refusal::NotXls;
    throw FormatError(refusal, "directory", 0, "a stream named Workbook or Book", "none");
}

/// How much a stream looks like the workbook.
int rank(ByteView stream) {
    return beginsBiff8(stream) ? 2 : isRecordAt(stream, 0, RecordType::Bof) ? 1 : 0;
}

} // namespace

BookStream findBookStream(const CompoundFile& container) {
    const auto workbook = container.findStream("Workbook");
    const auto book = container.findStream("Book");
    if (!workbook && !book) refuse(container);
    const std::uint32_t first = workbook ? *workbook : *book;
    BookStream found{first, container.readStream(first)};
    if (!workbook || !book || rank(found.bytes) == 2) return found;
    BookStream other{*book, container.readStream(*book)};
    return rank(other.bytes) > rank(found.bytes) ? other : found;
}

} // namespace zvonika::xls
