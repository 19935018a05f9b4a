#pragma once

#include "song/xls/Workbook.h"

#include <QString>

#include <functional>

namespace zvonika {

/// Reads and writes workbooks. Every refusal is AutomationError 1004 with one sentence for the user.
xls::Workbook readWorkbook(const QString& nativePath);
/// Runs the steps of a save; whatever they throw becomes such a refusal.
void refusingToSave(const QString& nativePath, const std::function<void()>& steps);
/// Replaces the file as a whole or leaves it as it was.
void writeWorkbook(const QString& nativePath, const xls::Workbook& book);

} // namespace zvonika
