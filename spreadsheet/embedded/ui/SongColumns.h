#pragma once

namespace zvonika {

/// What a column of a song means to a player. Columns count from 1.
struct SongColumn {
    const char* label;   ///< one word for the header, or ""
    const char* meaning; ///< a sentence for the tool tip and screen readers, or ""
    int width;           ///< px, where the file sets none
};

const SongColumn& songColumn(int column);

} // namespace zvonika
