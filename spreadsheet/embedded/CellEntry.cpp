#include "spreadsheet/embedded/CellEntry.h"

#include <QRegularExpression>

#include <optional>

namespace zvonika {

namespace {

constexpr qsizetype exactDigits = 15;

QString withComma(QString number) {
    return number.replace(QLatin1Char('.'), QLatin1Char(',')).replace(QLatin1Char('e'), QLatin1Char('E'));
}

qsizetype digitCount(const QString& mantissa) {
    static const QRegularExpression other(QStringLiteral("[^0-9]|^[+-]?0+"));
    return QString(mantissa).remove(other).size();
}

/// An exponent needs its sign, so that a text such as "3e2" stays a text.
std::optional<double> typedNumber(const QString& text) {
    static const QRegularExpression form(QStringLiteral("^([+-]?[0-9]+(?:[.,][0-9]+)?)([eE][+-][0-9]+)?$"));
    const auto match = form.match(text.trimmed());
    if (!match.hasMatch() || digitCount(match.captured(1)) > exactDigits) return {};
    bool valid = false;
    const double number = match.captured(0).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&valid);
    if (!valid) return {};
    return number;
}

} // namespace

CellValue typedValue(const QString& text) {
    if (text.isEmpty()) return {};
    if (text.startsWith(QLatin1Char('\''))) return text.mid(1);
    if (const auto number = typedNumber(text)) return *number;
    return text;
}

QString displayText(const CellValue& value) {
    if (std::holds_alternative<double>(value)) return withComma(cellText(value));
    if (const auto* truth = std::get_if<bool>(&value))
        return *truth ? QStringLiteral("PRAVDA") : QStringLiteral("NEPRAVDA");
    return cellText(value);
}

QString editText(const CellValue& value) {
    const auto* text = std::get_if<QString>(&value);
    if (!text || typedValue(*text) == value) return displayText(value);
    return QLatin1Char('\'') + *text;
}

} // namespace zvonika
