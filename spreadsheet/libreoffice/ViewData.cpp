#include "spreadsheet/libreoffice/ViewData.h"

#include <QList>

namespace zvonika {

namespace {

constexpr int sheetFields = 3; ///< fields before those of the sheets

std::optional<CellPosition> cursorOfSheet(QStringView field) {
    const QChar separator = field.contains(QLatin1Char('+')) ? QLatin1Char('+') : QLatin1Char('/');
    const auto parts = field.split(separator);
    if (parts.size() < 2) return {};
    bool columnRead = false, rowRead = false;
    const CellPosition cell{parts[1].toInt(&rowRead) + 1, parts[0].toInt(&columnRead) + 1};
    if (!columnRead || !rowRead) return {};
    return cell;
}

} // namespace

std::optional<SheetCursor> cursorInViewData(QStringView data) {
    const auto fields = data.split(QLatin1Char(';'));
    if (fields.size() <= sheetFields) return {};
    bool read = false;
    const int sheet = fields[1].toInt(&read);
    if (!read || sheet < 0 || sheetFields + sheet >= fields.size()) return {};
    const auto cell = cursorOfSheet(fields[sheetFields + sheet]);
    if (!cell) return {};
    return SheetCursor{sheet + 1, *cell};
}

} // namespace zvonika
