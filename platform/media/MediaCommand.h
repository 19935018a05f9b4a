#pragma once

#include <QString>

namespace zvonika {

class Drive;

/// A command string as the system's own interface takes it: the file it names with its native name, and in
/// quotation marks where there is a blank in it. "open C:\a b.mid type sequencer" → open "C:\a b.mid" type
/// sequencer.
QString systemCommand(const QString& command, const Drive& drive);

} // namespace zvonika
