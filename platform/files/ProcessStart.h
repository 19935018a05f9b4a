#pragma once

#include <QString>

#include <optional>

namespace zvonika {

/// When a running process of this machine began, in whatever form the system tells it ("" where it does not):
/// a number that is used again belongs to a process with another beginning. Nothing when there is no such
/// process.
std::optional<QString> processStart(qint64 pid);

} // namespace zvonika
