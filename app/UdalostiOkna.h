#pragma once

#include "app/ObsluhaUdalosti.h"

#include <functional>
#include <utility>

namespace zvonika {

struct Modely;

/// The event procedures of the main window over its models: each starts with no notice to the user and ends
/// with the status line that fits what it has left.
class UdalostiOkna {
public:
    UdalostiOkna(Modely& modely, Dialogs& dialogs, Shell& shell)
        : modely_(modely),
          obsluha_(dialogs, shell, [this](const RuntimeError& chyba) { ukazPricinu(chyba); }) {}

    /// Runs a command's procedure, see `ObsluhaUdalosti::proved`.
    bool proved(const std::function<void()>& procedura);
    /// Runs what only follows the user's doings elsewhere: the warning of the last command stays.
    bool nasleduj(const std::function<void()>& procedura);
    /// Runs one without an error trap, see `ObsluhaUdalosti::provedBezZachyceni`.
    void provedBezZachyceni(const std::function<void()>& procedura) {
        obsluha_.provedBezZachyceni(procedura);
    }
    /// True while a procedure runs.
    bool bezi() const { return obsluha_.bezi(); }
    /// Says in the status line what the models have come to, and has the panel shown.
    void ukazStav();
    /// What brings the models up to date before they are shown.
    void nastavObnovu(std::function<void()> obnova) { obnova_ = std::move(obnova); }

private:
    void ukazPricinu(const RuntimeError& chyba);

    Modely& modely_;
    ObsluhaUdalosti obsluha_;
    std::function<void()> obnova_ = [] {};
};

} // namespace zvonika
