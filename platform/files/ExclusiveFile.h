#pragma once

#include <QByteArray>
#include <QString>

namespace zvonika {

enum class Exclusive {
    Done,
    OtherFirst, ///< another process has been quicker; look again
    Impossible, ///< not in this folder
};

/// Makes a small file that those may read whom the user's mask lets. It is there with its whole text as a
/// rule; in file systems that cannot do that, empty for a moment. `OtherFirst` when there is one already.
Exclusive makeExclusively(const QString& path, const QByteArray& text);

/// Deletes the file if it is still the one with this text. Of several that try to, one gets `Done`, and none
/// of them deletes what has come in its place.
Exclusive removeExclusively(const QString& path, const QByteArray& text);

} // namespace zvonika
