#include "spreadsheet/xls/container/FileImage.h"

#include <cstring>
#include <utility>

namespace zvonika::xls {

/// Gathers pieces of any size into larger ones: a sink may cost a system call each time.
class FileImage::Output {
public:
    Output(const Sink& sink, std::size_t size)
        : sink_(sink), size_(std::min(size, capacity)),
          buffer_(std::make_unique_for_overwrite<std::uint8_t[]>(size_)) {}

    /// `fill` is called with the bytes' place within `size` and with room for them.
    template <typename Fill>
    void put(std::size_t size, const Fill& fill) {
        for (std::size_t done = 0; done < size;) {
            const std::size_t count = std::min(size - done, size_ - used_);
            fill(done, std::span(&buffer_[used_], count));
            used_ += count;
            done += count;
            if (used_ == size_) flush();
        }
    }

    void flush() {
        if (used_ > 0) sink_(ByteView(buffer_.get(), used_));
        used_ = 0;
    }

private:
    static constexpr std::size_t capacity = 128 << 10;

    const Sink& sink_;
    std::size_t size_;
    std::unique_ptr<std::uint8_t[]> buffer_;
    std::size_t used_ = 0;
};

namespace {

/// Copies what there is from `at` on; the rest are zeros.
void copyOrZero(ByteView from, std::size_t at, std::span<std::uint8_t> out) {
    const std::size_t there = at < from.size() ? std::min(out.size(), from.size() - at) : 0;
    if (there > 0) std::memcpy(out.data(), &from[at], there);
    std::ranges::fill(out.subspan(there), std::uint8_t{0});
}

} // namespace

FileImage::FileImage(ByteView source, unsigned shift, std::size_t blocks, Blocks changed,
                     const std::vector<std::uint32_t>& chain, std::shared_ptr<const ByteSource> contents)
    : source_(source), size_(blocks << shift), shift_(shift), changed_(std::move(changed)),
      contents_(std::move(contents)) {
    for (std::size_t i = 0; i < chain.size(); ++i)
        if (i > 0 && chain[i] == chain[i - 1] + 1)
            ++runs_.back().blocks;
        else
            runs_.push_back({chain[i], i << shift, 1});
    std::ranges::sort(runs_, {}, &Run::block);
}

void FileImage::writeTo(const Sink& sink) const {
    Output out(sink, size_);
    const std::size_t blocks = size_ >> shift_;
    auto run = runs_.begin();
    auto changed = changed_.begin();
    for (std::size_t block = 0; block < blocks;) {
        const std::size_t nextRun = run == runs_.end() ? blocks : run->block;
        const std::size_t nextChanged = changed == changed_.end() ? blocks : changed->first;
        if (block == nextChanged) {
            out.put(changed->second.size(), [&](std::size_t at, std::span<std::uint8_t> room) {
                copyOrZero(changed->second, at, room);
            });
            ++changed;
            ++block;
        } else if (block == nextRun) {
            putContents(out, *run);
            block += run++->blocks;
        } else {
            const std::size_t next = std::min(nextRun, nextChanged);
            putKept(out, block, next);
            block = next;
        }
    }
    out.flush();
}

void FileImage::putContents(Output& out, const Run& run) const {
    const std::size_t size = contents_->size();
    out.put(run.blocks << shift_, [&](std::size_t done, std::span<std::uint8_t> room) {
        const std::size_t at = run.at + done;
        const std::size_t there = at < size ? std::min(room.size(), size - at) : 0;
        if (there > 0) contents_->read(at, room.first(there));
        std::ranges::fill(room.subspan(there), std::uint8_t{0});
    });
}

void FileImage::putKept(Output& out, std::size_t begin, std::size_t end) const {
    out.put((end - begin) << shift_, [&](std::size_t done, std::span<std::uint8_t> room) {
        copyOrZero(source_, (begin << shift_) + done, room);
    });
}

FileImage::Bytes FileImage::bytes() const {
    Bytes bytes;
    bytes.reserve(size_);
    writeTo([&](ByteView piece) { bytes.insert(bytes.end(), piece.begin(), piece.end()); });
    return bytes;
}

} // namespace zvonika::xls
