#pragma once

#include <QString>
#include <QVector>

#include <variant>

namespace zvonika {

/// Error value in a cell, as the spreadsheet shows it ("#N/A").
struct CellError {
    QString text;
    friend bool operator==(const CellError&, const CellError&) = default;
};

/// What a cell holds: nothing, a number, a truth value, an error or a text.
using CellValue = std::variant<std::monostate, double, bool, CellError, QString>;

/// Rows of cells, each row of the same length; what a block read gives and a block write takes.
using CellBlock = QVector<QVector<CellValue>>;

bool isEmpty(const CellValue& value); ///< nothing, or the empty text
/// Equal; nothing and the empty text are one.
bool isSame(const CellValue& a, const CellValue& b);
/// The value as the program reads it: numbers in their shortest form with a decimal point, truth as
/// "True"/"False", an empty cell as "".
QString cellText(const CellValue& value);

} // namespace zvonika
