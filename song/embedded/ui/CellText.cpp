#include "song/embedded/ui/CellText.h"

#include <QRegularExpression>

namespace zvonika {

namespace {

constexpr QLatin1Char apostrophe('\'');

// A syllable such as "1." or "e1" must stay a text; only what reads as a number to its end is one.
bool readsAsNumber(const QString& text)
{
    static const QRegularExpression number(QStringLiteral("^[+-]?\\d+([.,]\\d+)?([eE][+-]\\d+)?$"));
    return number.match(text).hasMatch();
}

} // namespace

QString shownText(const CellValue& value)
{
    QString text = cellText(value);
    if (std::holds_alternative<double>(value)) text.replace(QLatin1Char('.'), QLatin1Char(','));
    return text;
}

CellValue typedValue(const QString& typed)
{
    if (typed.isEmpty()) return std::monostate();
    if (typed.startsWith(apostrophe)) return typed.mid(1);
    if (!readsAsNumber(typed)) return typed;
    bool ok = false;
    const double number = QString(typed).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
    return ok ? CellValue(number) : CellValue(typed);
}

QString editedText(const CellValue& value)
{
    const QString text = shownText(value);
    const bool ambiguous = std::holds_alternative<QString>(value) && typedValue(text) != value && !text.isEmpty();
    return ambiguous ? apostrophe + text : text;
}

} // namespace zvonika
