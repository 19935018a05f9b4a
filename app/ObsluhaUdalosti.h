#pragma once

#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"
#include "platform/Shell.h"

#include <functional>
#include <utility>

namespace zvonika {

/// Runs the main window's event procedures and reports what they do not trap themselves.
class ObsluhaUdalosti {
public:
    /// `predHlasenim` hears of a failure before its box is shown.
    ObsluhaUdalosti(
        Dialogs& dialogs, Shell& shell,
        std::function<void(const RuntimeError&)> predHlasenim = [](const RuntimeError&) {})
        : dialogs_(dialogs), shell_(shell), predHlasenim_(std::move(predHlasenim)) {}

    /// Runs a procedure; a failure ends it in one box "Neočekávaná chyba !" whose last line is the cause.
    /// While a procedure runs (a box may be up) no other is started. False when the procedure failed or was
    /// not started.
    bool proved(const std::function<void()>& procedura);

    /// Runs a procedure that has no error trap: a failure is reported once and ends the process.
    void provedBezZachyceni(const std::function<void()>& procedura);

    bool bezi() const { return bezi_; }

private:
    void ohlas(const RuntimeError& chyba);

    Dialogs& dialogs_;
    Shell& shell_;
    std::function<void(const RuntimeError&)> predHlasenim_;
    bool bezi_ = false;
};

} // namespace zvonika
