#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace zvonika::xls {

/// Why a file cannot be opened, as a user would tell the cases apart.
enum class Refusal {
    Empty,        ///< no bytes at all
    NotXls,       ///< neither an .xls file nor a format that is recognised
    Xlsx,         ///< a workbook of the newer kind under an .xls name: .xlsx, .xlsm, .xlsb
    OpenDocument, ///< .ods, packed or as one XML file
    Html,         ///< a web page, also one packed as a MIME message
    Xml2003,      ///< "XML Spreadsheet 2003"
    PlainText,    ///< CSV, tab-separated or any other text
    OtherFormat,  ///< another known format: PDF, RTF, a text document, a presentation, an archive ...
    Encrypted,    ///< by a password, or by the one that programs use where only the sheets are locked
    OldFormat,    ///< a BIFF version that the engine does not read
    CodePage,     ///< of version 5.0/95, with texts in a character set that the engine does not read
    Truncated,    ///< the file ends before what its own tables say is in it
    Damaged,      ///< contradictory or impossible structure
};

/// Thrown by every reader of the engine. `what()` names place, offset, expected and found, for a log or a bug
/// report; for the user, `refusal()` is enough.
class FormatError : public std::runtime_error {
public:
    FormatError(Refusal refusal, std::string place, std::size_t offset, std::string expected,
                std::string found);

    Refusal refusal() const noexcept { return refusal_; }
    /// Record or container structure concerned, e.g. "BOUNDSHEET" or "FAT sector".
    const std::string& place() const noexcept { return place_; }
    /// Byte offset within the stream or, for container structures, within the file.
    std::size_t offset() const noexcept { return offset_; }
    const std::string& expected() const noexcept { return expected_; }
    const std::string& found() const noexcept { return found_; }

private:
    Refusal refusal_;
    std::string place_;
    std::size_t offset_;
    std::string expected_;
    std::string found_;
};

} // namespace zvonika::xls
