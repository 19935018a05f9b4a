#include "spreadsheet/embedded/SlowFiles.h"

#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"
#include "platform/ShownText.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/embedded/FileSentences.h"
#include "spreadsheet/embedded/Session.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <utility>

namespace zvonika {

void SlowFiles::keepWindow(std::function<void()> waiting, std::function<void()> over) {
    waiting_ = std::move(waiting);
    over_ = std::move(over);
}

/// Each work on a thread of its own: the one before may have been left behind.
void SlowFiles::carryOut(std::function<bool()> waitOn, std::function<void()> work) {
    if (!waiting_) return work();
    const auto over = qScopeGuard([this] { over_(); });
    PatientCalls calls({waiting_, std::move(waitOn), [] {}, std::chrono::milliseconds(0)});
    calls.run(patience_, std::move(work));
}

void SlowFiles::read(const QString& nativePath, std::function<void()> reading) {
    bool givenUp = false;
    try {
        carryOut([&] { return !(givenUp = !wantsToWait(nativePath)); }, std::move(reading));
    } catch (const RuntimeError&) {
        if (givenUp) refuse(openRefused(nativePath, std::errc::timed_out));
        throw;
    }
}

void SlowFiles::write(const std::function<void()>& writing) {
    carryOut([] { return true; }, writing);
}

bool SlowFiles::wantsToWait(const QString& nativePath) {
    const QString question = QStringLiteral("Soubor „%1“ zatím nelze přečíst: disk nebo síť, kde leží, "
                                            "neodpovídá.\n\nMá program čekat dál?")
                                 .arg(shownName(QFileInfo(nativePath).fileName()));
    return dialogs_.message({jmenoTabulky, question, Icon::Exclamation, Buttons::YesNo, Answer::Yes}) ==
           Answer::Yes;
}

} // namespace zvonika
