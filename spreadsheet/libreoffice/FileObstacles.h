#pragma once

#include <QString>

#include <functional>

namespace zvonika {

// What stands in the way of opening and saving a file, looked at before Calc is asked, which would go about
// it in ways of its own (it creates missing folders), and after it has refused without a reason. Each raises
// AutomationError 1004 with one Czech sentence.

/// There is no such file.
void refuseMissing(const QString& nativePath);
/// The folder is missing, or a folder stands under the name.
void refuseToSave(const QString& nativePath);
/// Runs `save`; its refusal gets the reason that the disk shows.
void explainingSave(const QString& nativePath, const std::function<void()>& save);

} // namespace zvonika
