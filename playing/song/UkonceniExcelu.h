#pragma once

#include "platform/Dialogs.h"
#include "song/SongSheet.h"

#include <functional>
#include <set>
#include <utility>

namespace zvonika {

/// The shutdown: saves the current song, quits the spreadsheet application and gives its default folder back.
/// One error trap covers it; after a message it resumes at quitting, so what fails there is reported as well.
/// A step that fails in the same way at every attempt is reported once. The shutdown always comes to its end
/// and leaves `aplikaceExcel` released.
class UkonceniExcelu {
public:
    UkonceniExcelu(Pisen& pisen, Dialogs& dialogs) : pisen_(pisen), dialogs_(dialogs) {}

    /// Does nothing when there is no application.
    void UkonciExcel();

private:
    enum class Krok { Ulozeni, Ukonceni, VraceniCesty };

    bool pokus(Krok krok, const std::function<void()>& provedeni);
    void ulozPisen();
    bool ukonciAVratCestu();
    void ohlas(int cislo) const;

    Pisen& pisen_;
    Dialogs& dialogs_;
    std::set<std::pair<Krok, int>> ohlasene_;
};

} // namespace zvonika
