#pragma once

#include "platform/Dialogs.h"
#include "song/SongSheet.h"

#include <functional>
#include <set>

namespace zvonika {

/// The shutdown: saves the current song, quits the spreadsheet application and gives its default folder back.
/// One error trap covers it; after a message it resumes at quitting, so what fails there is reported as well,
/// each error number once. It always comes to its end and leaves `aplikaceExcel` released.
class UkonceniExcelu {
public:
    UkonceniExcelu(Pisen& pisen, Dialogs& dialogs) : pisen_(pisen), dialogs_(dialogs) {}

    /// Does nothing when there is no application.
    void UkonciExcel();

private:
    bool pokus(const std::function<void()>& kroky);
    void ulozPisen() const;
    void ukonciAVratCestu() const;
    void ohlas(int cislo);

    Pisen& pisen_;
    Dialogs& dialogs_;
    std::set<int> ohlasene_;
};

} // namespace zvonika
