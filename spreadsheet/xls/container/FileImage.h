#pragma once

#include "spreadsheet/xls/records/ByteSource.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace zvonika::xls {

/// A file as it will be written, put together piece by piece so that it never stands in memory as a whole:
/// blocks of a file that is there, blocks made anew, and a stream's new contents. What it is made of must
/// outlive it unchanged.
class FileImage {
public:
    using Bytes = std::vector<std::uint8_t>;
    /// Gets the file's bytes in order, in pieces that are valid during the call.
    using Sink = std::function<void(ByteView)>;
    using Blocks = std::map<std::size_t, Bytes>; ///< by number

    /// The file as it is.
    explicit FileImage(ByteView file) : source_(file), size_(file.size()) {}
    /// A file of so many blocks of 2^shift bytes. `changed` take the place of the source's blocks;
    /// `chain`: blocks that hold `contents`, in this order, the rest of the last one zeros.
    FileImage(ByteView source, unsigned shift, std::size_t blocks, Blocks changed,
              const std::vector<std::uint32_t>& chain, std::shared_ptr<const ByteSource> contents);

    std::size_t size() const { return size_; }
    /// Gives the whole file, each time it is called.
    void writeTo(const Sink& sink) const;
    Bytes bytes() const;

private:
    /// Blocks behind each other that hold contents behind each other.
    struct Run {
        std::size_t block;
        std::size_t at; ///< within the contents
        std::size_t blocks;
    };
    class Output;

    void putContents(Output& out, const Run& run) const;
    void putKept(Output& out, std::size_t begin, std::size_t end) const;

    ByteView source_;
    std::size_t size_;
    unsigned shift_ = 0;
    Blocks changed_;
    std::vector<Run> runs_; ///< by block
    std::shared_ptr<const ByteSource> contents_;
};

} // namespace zvonika::xls
