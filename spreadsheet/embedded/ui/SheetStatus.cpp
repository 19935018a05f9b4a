#include "spreadsheet/embedded/ui/SheetStatus.h"

#include "spreadsheet/embedded/Document.h"

#include <QStringList>

namespace zvonika {

namespace {

QString place(const Document& document) {
    const int row = document.cursor().selection().active.row;
    const int last = document.cells().usedRows(document.cursor().activeSheet());
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

QStringList statusSentences(const Document& document, const QString& label) {
    QStringList parts{document.journal().trouble(), place(document),
                      what(document.cursor().selection(), label)};
    if (document.file().isOldFormat()) parts.append(QStringLiteral("starší formát, uloží se v novém"));
    parts.removeAll(QString());
    return parts;
}

} // namespace zvonika
