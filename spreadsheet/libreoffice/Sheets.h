#pragma once

#include "spreadsheet/libreoffice/CalcCalls.h"

namespace zvonika {

/// The sheets of Calc's active workbook, as the port has them.
class Sheets {
public:
    explicit Sheets(CalcCalls& calls) : calls_(calls) {}

    QString activeName();
    void renameActive(const QString& name);
    int activeIndex(); ///< from 1
    int count();
    void select(int index);
    void select(const QString& name);
    void selectNext(); ///< 91 on the last sheet

private:
    CalcCalls& calls_;
};

} // namespace zvonika
