#pragma once

#include "spreadsheet/libreoffice/CalcCalls.h"
#include "spreadsheet/libreoffice/ReadAhead.h"

#include <QElapsedTimer>
#include <QTimer>

namespace zvonika {

/// The cursor of the active sheet. What Calc shows of it follows a fast program at the pace of a film: each
/// movement may scroll the window, which would take most of the time of a run over a song. Calls about other
/// matters find it where it belongs.
class PacedCursor {
public:
    PacedCursor(CalcCalls& calls, ReadAhead& seen);
    ~PacedCursor();
    PacedCursor(const PacedCursor&) = delete;
    PacedCursor& operator=(const PacedCursor&) = delete;

    void select(const CellRange& range); ///< its first cell becomes the active cell
    CellPosition position();

private:
    /// A selection that Calc has not been given yet; void when the user has acted since.
    struct Owed {
        CellRange range;
        unsigned moves;
    };
    bool followsSoon(unsigned moves) const;
    void show();
    void showLater();
    void settle();

    CalcCalls& calls_;
    ReadAhead& seen_;
    std::optional<Owed> owed_;
    QElapsedTimer sinceShown_; ///< invalid: what follows is another matter than moving
    unsigned shownAfter_ = 0;  ///< how many moves of the user
    QTimer untilShown_;
};

} // namespace zvonika
