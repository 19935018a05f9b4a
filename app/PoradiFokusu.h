#pragma once

#include <QString>

namespace zvonika {

/// Place of a control in the order of focus, by its control name: the order of the work, from choosing a song
/// and its key over the board and the basses to recording, reading and releasing. Controls of one group share
/// a place.
int poradiFokusu(const QString& jmeno);

} // namespace zvonika
