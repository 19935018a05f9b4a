#include "song/xls/container/FileKind.h"

#include "song/xls/FormatError.h"
#include "song/xls/container/CompoundFormat.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace zvonika::xls {

namespace {

struct Signature {
    std::string_view bytes;
    Refusal refusal;
    const char* name;
};

constexpr Signature signatures[] = {
    {std::string_view("PK\x03\x04", 4), Refusal::OtherFormat, "a zip package (xlsx, ods)"},
    {std::string_view("PK\x05\x06", 4), Refusal::OtherFormat, "an empty zip package"},
    {"%PDF-", Refusal::OtherFormat, "PDF"},
    {"{\\rtf", Refusal::OtherFormat, "RTF"},
    {"\x1F\x8B", Refusal::OtherFormat, "a gzip file"},
    {"\xFF\xFE", Refusal::OtherFormat, "UTF-16 text"},
    {"\xFE\xFF", Refusal::OtherFormat, "UTF-16 text"},
    {std::string_view("\x09\x00", 2), Refusal::OldFormat, "a BIFF2 sheet"},
    {"\x09\x02", Refusal::OldFormat, "a BIFF3 sheet"},
    {"\x09\x04", Refusal::OldFormat, "a BIFF4 sheet"},
    {"\x09\x08", Refusal::OldFormat, "a BIFF stream without its container"},
};

constexpr std::string_view compoundSignature("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);

[[noreturn]] void refuse(Refusal refusal, const std::string& found) {
    throw FormatError(refusal, "file signature", 0, "an OLE2 container", found);
}

bool isTextByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20 ? byte != 0x7F : byte == '\t' || byte == '\r' || byte == '\n' || byte == '\f';
}

std::string_view withoutLeadIn(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    const auto first = text.find_first_not_of(" \t\r\n");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

void refuseText(std::string_view head) {
    if (!std::ranges::all_of(head, isTextByte)) return;
    const bool markup = withoutLeadIn(head).starts_with('<');
    refuse(Refusal::OtherFormat, markup ? "HTML or XML" : "plain text (CSV)");
}

} // namespace

void requireCompoundFile(ByteView file) {
    if (file.empty()) refuse(Refusal::Empty, "no bytes");
    const std::string_view all(reinterpret_cast<const char*>(file.data()), file.size());
    const std::string_view head = all.substr(0, 4096);
    if (head.starts_with(compoundSignature)) {
        if (file.size() < CompoundFormat::headerSize) refuse(Refusal::Truncated, "a part of its header");
        return;
    }
    if (compoundSignature.starts_with(head)) refuse(Refusal::Truncated, "a part of its signature");
    for (const Signature& signature : signatures)
        if (head.starts_with(signature.bytes)) refuse(signature.refusal, signature.name);
    refuseText(head);
    refuse(Refusal::NotXls, "unknown contents");
}

} // namespace zvonika::xls
