#include "spreadsheet/embedded/XlsValue.h"

#include <array>

namespace zvonika {

namespace {

struct ErrorName {
    std::uint8_t code;
    const char16_t* text;
};

constexpr std::array<ErrorName, 7> errorNames{{{0x00, u"#NULL!"},
                                               {0x07, u"#DIV/0!"},
                                               {0x0F, u"#VALUE!"},
                                               {0x17, u"#REF!"},
                                               {0x1D, u"#NAME?"},
                                               {0x24, u"#NUM!"},
                                               {0x2A, u"#N/A"}}};

struct FromXls {
    CellValue operator()(std::monostate) const { return {}; }
    CellValue operator()(double number) const { return number; }
    CellValue operator()(bool truth) const { return truth; }
    CellValue operator()(const std::u16string& text) const { return QString::fromStdU16String(text); }
    CellValue operator()(xls::ErrorValue error) const {
        for (const auto& name : errorNames)
            if (name.code == error.code) return CellError{QString::fromUtf16(name.text)};
        return CellError{QStringLiteral("#N/A")};
    }
};

struct ToXls {
    xls::Value operator()(std::monostate) const { return {}; }
    xls::Value operator()(double number) const { return number; }
    xls::Value operator()(bool truth) const { return truth; }
    xls::Value operator()(const QString& text) const {
        if (text.isEmpty()) return {};
        return text.toStdU16String();
    }
    xls::Value operator()(const CellError& error) const {
        for (const auto& name : errorNames)
            if (error.text == QString::fromUtf16(name.text)) return xls::ErrorValue{name.code};
        return xls::ErrorValue{};
    }
};

} // namespace

CellValue fromXls(const xls::Value& value) {
    return std::visit(FromXls(), value);
}

xls::Value toXls(const CellValue& value) {
    return std::visit(ToXls(), value);
}

} // namespace zvonika
