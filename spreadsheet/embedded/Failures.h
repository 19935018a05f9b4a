#pragma once

#include <QString>

#include <exception>
#include <functional>

namespace zvonika {

class Dialogs;

/// A sentence for the user: the cause of a RuntimeError, and one for memory that has run out or anything else
/// that went wrong.
QString failureSentence(const std::exception& failure);

/// Runs what the user has asked for. A failure of whatever kind is told in a box, so that nothing is thrown
/// into the event loop; false then.
bool runForUser(Dialogs& dialogs, const std::function<void()>& action);

} // namespace zvonika
