#include "spreadsheet/libreoffice/Sheets.h"

#include "platform/ShownText.h"
#include "spreadsheet/Refusals.h"

#include <algorithm>

namespace zvonika {

namespace {

constexpr qsizetype longestName = 31;

bool isSheetName(const QString& name) {
    static const QString forbidden = QStringLiteral(":\\/?*[]");
    return !name.isEmpty() && name.size() <= longestName &&
           std::none_of(name.begin(), name.end(), [](QChar c) { return forbidden.contains(c); });
}

} // namespace

QString Sheets::activeName() {
    return calls_.ask([](CalcEngine& calc) { return calc.sheetNames().at(calc.activeSheet() - 1); });
}

void Sheets::renameActive(const QString& name) {
    if (!isSheetName(name))
        refuse(QStringLiteral(
                   "Jméno listu „%1“ nelze použít: má mít 1 až 31 znaků, žádný z nich : \\ / ? * [ ], "
                   "a v sešitu smí být jen jednou.")
                   .arg(shownName(name)));
    calls_.ask([name](CalcEngine& calc) { calc.renameSheet(name); });
}

int Sheets::activeIndex() {
    return calls_.ask([](CalcEngine& calc) { return calc.activeSheet(); });
}

int Sheets::count() {
    return static_cast<int>(calls_.ask([](CalcEngine& calc) { return calc.sheetNames(); }).size());
}

void Sheets::select(int index) {
    const bool selected = calls_.ask([index](CalcEngine& calc) {
        if (index < 1 || index > calc.sheetNames().size()) return false;
        if (index != calc.activeSheet()) calc.selectSheet(index);
        return true;
    });
    if (!selected) refuseUnknownSheet(index);
}

void Sheets::select(const QString& name) {
    const QStringList names = calls_.ask([](CalcEngine& calc) { return calc.sheetNames(); });
    for (qsizetype i = 0; i < names.size(); ++i)
        if (names[i].compare(name, Qt::CaseInsensitive) == 0) return select(static_cast<int>(i) + 1);
    refuseUnknownSheet(name);
}

void Sheets::selectNext() {
    const int next = activeIndex() + 1;
    if (next > count()) refuseNextSheet();
    select(next);
}

} // namespace zvonika
