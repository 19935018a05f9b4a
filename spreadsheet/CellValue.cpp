#include "spreadsheet/CellValue.h"

#include <QLocale>

namespace zvonika {

namespace {

struct Texts {
    QString operator()(std::monostate) const { return {}; }
    QString operator()(double number) const {
        return QString::number(number, 'g', QLocale::FloatingPointShortest);
    }
    QString operator()(bool truth) const { return truth ? QStringLiteral("True") : QStringLiteral("False"); }
    QString operator()(const CellError& error) const { return error.text; }
    QString operator()(const QString& text) const { return text; }
};

} // namespace

bool isEmpty(const CellValue& value) {
    if (const auto* text = std::get_if<QString>(&value)) return text->isEmpty();
    return std::holds_alternative<std::monostate>(value);
}

bool isSame(const CellValue& a, const CellValue& b) {
    return a == b || (isEmpty(a) && isEmpty(b));
}

QString cellText(const CellValue& value) {
    return std::visit(Texts(), value);
}

} // namespace zvonika
