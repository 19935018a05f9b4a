#include "spreadsheet/xls/records/RecordWalk.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/records/Record.h"

namespace zvonika::xls {

namespace {

constexpr std::size_t windowSize = 64 << 10;

} // namespace

RecordWalk::RecordWalk(const ByteSource& stream, std::size_t at) : stream_(stream), at_(at) {
    need();
}

void RecordWalk::next() {
    at_ += recordHeaderSize + payloadSize();
    need();
}

void RecordWalk::need() {
    if (at_ >= windowAt_ && at_ + headSize <= windowAt_ + window_.size()) return;
    if (at_ + recordHeaderSize > stream_.size())
        throw FormatError(Refusal::Damaged, "record header", at_, "a record", "the end of the stream");
    const std::size_t size = std::min(windowSize, stream_.size() - at_);
    window_.assign(std::max(size, headSize), 0);
    windowAt_ = at_;
    stream_.read(at_, std::span(window_).first(size));
}

} // namespace zvonika::xls
