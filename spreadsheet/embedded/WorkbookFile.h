#pragma once

#include "spreadsheet/xls/Workbook.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace zvonika {

/// A workbook as it was read.
struct WorkbookFile {
    xls::Workbook book;
    QByteArray hash; ///< `contentHash` of the file
};

/// Reads a workbook. Every refusal, here and below, is AutomationError 1004 with one sentence for the user.
WorkbookFile readWorkbook(const QString& nativePath);
using WorkbookReader = std::function<WorkbookFile(const QString& nativePath)>;
/// Runs the steps of a save; whatever they throw becomes such a refusal.
void refusingToSave(const QString& nativePath, const std::function<void()>& steps);

} // namespace zvonika
