#include "spreadsheet/xls/book/BookStream.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/book/Version.h"
#include "spreadsheet/xls/records/Record.h"

#include <utility>

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

BookStream::BookStream(const CompoundFile& container, std::uint32_t entry) : entry_(entry) {
    if (const auto view = container.viewStream(entry))
        bytes_ = *view;
    else
        replace(container.readStream(entry));
}

void BookStream::replace(CompoundFile::Bytes bytes) {
    owned_ = std::move(bytes);
    bytes_ = owned_;
}

BookStream findBookStream(const CompoundFile& container) {
    const auto workbook = container.findStream("Workbook");
    const auto book = container.findStream("Book");
    if (!workbook && !book) refuse(container);
    BookStream found(container, workbook ? *workbook : *book);
    if (!workbook || !book || rank(found.bytes()) == 2) return found;
    BookStream other(container, *book);
    return rank(other.bytes()) > rank(found.bytes()) ? std::move(other) : std::move(found);
}

} // namespace zvonika::xls
