#pragma once

#include <QString>

namespace zvonika {

/// Questions of a save, and what is told when the user says no to them. Czech, for boxes of every
/// spreadsheet.

/// Another program has changed the file since it was opened.
QString overwriteQuestion(const QString& nativePath);
QString notOverwritten(const QString& nativePath);
/// The file is of an older format (before BIFF8); what a save does to it.
QString conversionQuestion(const QString& workbook);
QString notConverted(const QString& nativePath);
/// Another open workbook has the name that is wanted.
QString twinQuestion(const QString& workbook, bool modified);

} // namespace zvonika
