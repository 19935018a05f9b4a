#pragma once

#include <QString>

#include <optional>

namespace zvonika {

class Dialogs;

// What every spreadsheet of the program asks its user about a save. `title`: of its boxes.

/// Whether to save a workbook's changes before they are lost.
bool wantsToSave(Dialogs& dialogs, const QString& title, const QString& workbook);
/// Asks before an existing file is replaced; No is proposed.
bool mayReplace(Dialogs& dialogs, const QString& title, const QString& fileName);
/// Asks before a save in its place writes over what another program has put into a file since it was opened;
/// No is proposed. The last question before a save: others can write while a box is up.
bool mayOverwrite(Dialogs& dialogs, const QString& title, const QString& nativePath);
/// 1004: the user does not want the file replaced.
[[noreturn]] void refuseNotReplaced(const QString& fileName);
/// Asks for the name of a file to save under; ends in ".xls". Nothing when it was given up.
std::optional<QString> askSaveName(Dialogs& dialogs, const QString& suggested);

/// With ".xls" at its end, in whatever case it may stand there already.
QString withXlsEnding(const QString& name);

} // namespace zvonika
