#include "spreadsheet/embedded/ui/SheetStatus.h"

#include "spreadsheet/embedded/Document.h"

#include <QStringList>

namespace zvonika {

namespace {

QString place(const Document& document) {
    const int row = document.selection().active.row;
    const int last = document.usedRows(document.activeSheet());
    if (row > last) return QStringLiteral("Volný řádek %1, hmatů %2").arg(row).arg(last);
    return QStringLiteral("Hmat %1 z %2").arg(row).arg(last);
}

QString what(const Selection& selection, const QString& label) {
    const CellRange& range = selection.range;
    if (range != single(selection.active))
        return QStringLiteral("výběr %1%2:%3%4")
            .arg(columnLetters(range.first.column))
            .arg(range.first.row)
            .arg(columnLetters(range.last.column))
            .arg(range.last.row);
    return label.isEmpty() ? QString()
                           : QStringLiteral("%1: %2").arg(columnLetters(selection.active.column), label);
}

} // namespace

QString statusText(const Document& document, const QString& label) {
    QStringList parts{place(document), what(document.selection(), label)};
    if (document.isOldFormat()) parts.append(QStringLiteral("starší formát, uloží se v novém"));
    parts.append(document.journalTrouble());
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  ·  "));
}

} // namespace zvonika
