#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace zvonika::xls {

/// Why a file cannot be opened, as a user would tell the cases apart.
enum class Refusal {
    Empty,       ///< no bytes at all
    NotXls,      ///< neither an .xls file nor a format that is recognised
    OtherFormat, ///< a known other format under an .xls name: xlsx, ods, HTML, XML, CSV, RTF, PDF ...
    Encrypted,   ///< protected by a password
    OldFormat,   ///< a BIFF version older than the engine reads
    Truncated,   ///< the file ends before its contents do
    Damaged,     ///< contradictory or impossible structure
};

/// Thrown by every reader of the engine. `what()` names place, expected and found, for a log or a bug report.
class FormatError : public std::runtime_error {
public:
    FormatError(Refusal refusal, std::string place, std::size_t offset, std::string expected,
                std::string found);

    Refusal refusal() const noexcept { return refusal_; }
    /// Record or container structure concerned, e.g. "BOUNDSHEET" or "FAT sector".
    const std::string& place() const noexcept { return place_; }
    /// Byte offset within the stream or, for container structures, within the file.
    std::size_t offset() const noexcept { return offset_; }

private:
    Refusal refusal_;
    std::string place_;
    std::size_t offset_;
};

} // namespace zvonika::xls
