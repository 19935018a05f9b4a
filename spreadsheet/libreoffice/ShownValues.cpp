#include "spreadsheet/libreoffice/ShownValues.h"

#include <QStringList>

#include <algorithm>

namespace zvonika {

bool isZeroOrOne(double number) {
    return number == 0.0 || number == 1.0;
}

bool showsTruth(const QString& shown, const QString& formula) {
    const bool word =
        !shown.isEmpty() && std::none_of(shown.begin(), shown.end(), [](QChar c) { return c.isDigit(); });
    return word || formula == QLatin1String("=TRUE()") || formula == QLatin1String("=FALSE()");
}

QString errorShown(const QString& shown) {
    static const QStringList known = {"#NULL!", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#N/A"};
    return known.contains(shown) ? shown : known.last();
}

} // namespace zvonika
