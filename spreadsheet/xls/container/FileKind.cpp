#include "spreadsheet/xls/container/FileKind.h"

#include "spreadsheet/xls/FormatError.h"
#include "spreadsheet/xls/container/CompoundFormat.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace zvonika::xls {

using namespace CompoundFormat;

namespace {

/// What tells a format: bytes at the beginning, or words (in lower case) near it.
struct Mark {
    std::string_view bytes;
    Refusal refusal;
    const char* name;
};

constexpr Mark signatures[] = {
    {"%PDF-", Refusal::OtherFormat, "PDF"},
    {"{\\rtf", Refusal::OtherFormat, "RTF"},
    {"\x1F\x8B", Refusal::OtherFormat, "a gzip file"},
    {std::string_view("\x09\x00\x04\x00", 4), Refusal::OldFormat, "a BIFF2 sheet"},
    {std::string_view("\x09\x02\x06\x00", 4), Refusal::OldFormat, "a BIFF3 sheet"},
    {std::string_view("\x09\x04\x06\x00", 4), Refusal::OldFormat, "a BIFF4 sheet"},
    {"\x09\x08", Refusal::OldFormat, "a BIFF stream without its container"},
};

constexpr Mark packages[] = {
    {"application/vnd.oasis.opendocument", Refusal::OpenDocument, "an OpenDocument package"},
    {"[content_types].xml", Refusal::Xlsx, "an Office Open XML package"},
    {"_rels/.rels", Refusal::Xlsx, "an Office Open XML package"},
    {"xl/", Refusal::Xlsx, "an Office Open XML package"},
};

constexpr Mark markups[] = {
    {"urn:schemas-microsoft-com:office:spreadsheet", Refusal::Xml2003, "XML Spreadsheet 2003"},
    {"excel.sheet", Refusal::Xml2003, "XML Spreadsheet 2003"},
    {"urn:oasis:names:tc:opendocument", Refusal::OpenDocument, "OpenDocument as one XML file"},
    {"<html", Refusal::Html, "HTML"},
    {"<!doctype html", Refusal::Html, "HTML"},
    {"<head", Refusal::Html, "HTML"},
    {"<body", Refusal::Html, "HTML"},
    {"<meta", Refusal::Html, "HTML"},
    {"<table", Refusal::Html, "HTML"},
};

constexpr std::string_view compoundSignature("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);

[[noreturn]] void refuse(Refusal refusal, const std::string& found) {
    throw FormatError(refusal, "file signature", 0, "an OLE2 container", found);
}

void refuseWhatContains(std::string_view text, const auto& marks) {
    for (const Mark& mark : marks)
        if (text.find(mark.bytes) != std::string_view::npos) refuse(mark.refusal, mark.name);
}

bool isTextByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20 ? byte != 0x7F : byte == '\t' || byte == '\r' || byte == '\n' || byte == '\f';
}

/// UTF-16 as one byte a unit, what is not ASCII as '?'; `high`: where the higher byte of a unit stands.
std::string narrowed(std::string_view head, std::size_t high) {
    std::string text;
    for (std::size_t i = 2; i + 1 < head.size(); i += 2)
        text += head[i + high] == 0 ? head[i + 1 - high] : '?';
    return text;
}

/// The head as 8-bit text without its byte order mark.
std::string asText(std::string_view head) {
    if (head.starts_with("\xFF\xFE")) return narrowed(head, 1);
    if (head.starts_with("\xFE\xFF")) return narrowed(head, 0);
    return std::string(head.substr(head.starts_with("\xEF\xBB\xBF") ? 3 : 0));
}

std::string lowered(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 'a' - 'A');
    return text;
}

void refuseText(std::string_view head) {
    const std::string text = lowered(asText(head));
    if (text.empty() || !std::ranges::all_of(text, isTextByte)) return;
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    const std::string_view rest = std::string_view(text).substr(std::min(first, text.size()));
    if (rest.starts_with("mime-version:")) refuse(Refusal::Html, "a web page as a MIME message");
    if (!rest.starts_with('<')) refuse(Refusal::PlainText, "plain text (CSV)");
    refuseWhatContains(rest, markups);
    refuse(Refusal::OtherFormat, "XML");
}

void refusePackage(std::string_view head) {
    if (!head.starts_with("PK\x03\x04") && !head.starts_with("PK\x05\x06")) return;
    refuseWhatContains(lowered(std::string(head)), packages);
    refuse(Refusal::OtherFormat, "a zip archive");
}

[[noreturn]] void refuseHeader(std::size_t place, const char* expected, unsigned found) {
    throw FormatError(Refusal::Damaged, "container header", place, expected, std::to_string(found));
}

void requireHeader(ByteView head) {
    const unsigned shift = load16(&head[Header::sectorShift]);
    if (shift != 9 && shift != 12) refuseHeader(Header::sectorShift, "sector shift 9 or 12", shift);
    const unsigned mini = load16(&head[Header::miniSectorShift]);
    if ((1U << (mini & 15)) != miniSectorSize)
        refuseHeader(Header::miniSectorShift, "mini sector shift 6", mini);
    const std::uint32_t cutoff = load32(&head[Header::miniStreamCutoff]);
    if (cutoff != 4096) refuseHeader(Header::miniStreamCutoff, "mini stream cutoff 4096", cutoff);
}

} // namespace

void requireCompoundFile(ByteView file, std::size_t fileSize) {
    if (fileSize == 0) refuse(Refusal::Empty, "no bytes");
    const std::string_view all(reinterpret_cast<const char*>(file.data()), file.size());
    const std::string_view head = all.substr(0, 4096);
    if (head.starts_with(compoundSignature)) {
        if (file.size() < headerSize) refuse(Refusal::Truncated, "a part of its header");
        return requireHeader(file);
    }
    if (compoundSignature.starts_with(head)) refuse(Refusal::Truncated, "a part of its signature");
    refusePackage(head);
    for (const Mark& signature : signatures)
        if (head.starts_with(signature.bytes)) refuse(signature.refusal, signature.name);
    refuseText(head);
    refuse(Refusal::NotXls, "unknown contents");
}

} // namespace zvonika::xls
