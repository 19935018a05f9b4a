#pragma once

#include "song/SongReader.h"

#include <initializer_list>

namespace zvonika {

/// Parts of a grip row as they are written, each in one call to the application.
enum class CastHmatu {
    Tony,      ///< cells left over become empty, and so does the direction
    Smer,      ///< the text as it stands in the grip
    Basy,      ///< cells left over become empty, and so does the one behind them
    Prstoklad, ///< empty or not
    Tonina     ///< empty or not
};

/// The song's rows, read and written through the application's active sheet, and the cursor that goes over
/// them. Every call may throw AutomationError; what was written before stays then.
class SongSheet : public SongReader {
public:
    explicit SongSheet(Pisen& pisen) : SongReader(pisen), pisen_(pisen) {}

    /// Brings the song's window to the front, selects column B of its current row and tells which that is.
    int zacniZapis();
    /// Writes these parts of the grip, in this order. Tones and basses are seven at most.
    void zapis(int radek, const Grip& hmat, std::initializer_list<CastHmatu> casti);
    /// Writes tones from the first one's cell on and leaves the cells behind them as they are.
    void prepisTony(int radek, const QStringList& tony);

    /// Selects column B of the active cell's row and tells which that is.
    int VyberBunkuB();
    void vyberRadek(int radek); ///< column B of that row

private:
    void zapisCast(int radek, const Grip& hmat, CastHmatu cast);
    void zapisTexty(const Sloupce& sloupce, int radek, const QStringList& texty);

    Pisen& pisen_;
};

} // namespace zvonika
