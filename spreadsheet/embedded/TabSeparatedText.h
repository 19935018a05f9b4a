#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace zvonika {

/// Cells as spreadsheets put them on the clipboard: a tab between cells, a line end after each row; a cell
/// with a tab, a line end or a leading quotation mark stands in quotation marks, those inside it doubled.
QString tabSeparated(const QVector<QStringList>& rows);

/// The reverse; accepts any line end, with or without one after the last row. Rows may differ in length.
QVector<QStringList> fromTabSeparated(const QString& text);

} // namespace zvonika
