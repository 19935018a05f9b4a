#pragma once

#include "spreadsheet/libreoffice/CalcCalls.h"
#include "spreadsheet/libreoffice/KeptCells.h"
#include "spreadsheet/libreoffice/ReadAhead.h"

#include <QTimer>

#include <exception>

namespace zvonika {

/// Writes cells of the active sheet behind the program's back: one call to Calc for all that it writes in one
/// go. Whatever else Calc is asked for finds them written, and so does the next turn of the event loop.
class WriteBehind {
public:
    WriteBehind(CalcCalls& calls, ReadAhead& seen);
    ~WriteBehind();
    WriteBehind(const WriteBehind&) = delete;
    WriteBehind& operator=(const WriteBehind&) = delete;

    /// Keeps a text that Calc takes letter by letter, or an empty cell, until it is delivered. False on a
    /// sheet where a block may do other things than its cells one by one: write the cell at once.
    bool keep(CellPosition cell, const CellValue& value);
    /// All that is kept is in Calc afterwards. Raises what that has met, also when it was the event loop's
    /// turn; what was kept then is lost, as it is with a write that fails.
    void deliver();

private:
    bool holdSheet();
    void deliverLater();

    CalcCalls& calls_;
    ReadAhead& seen_;
    KeptCells kept_;
    unsigned acts_ = 0; ///< of the user, when the first of them was kept
    std::exception_ptr failure_;
    QTimer soon_;
};

} // namespace zvonika
