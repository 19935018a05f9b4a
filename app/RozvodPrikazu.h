#pragma once

#include <QHash>
#include <QString>

#include <functional>

namespace zvonika {

class CommandStates;

/// What each command leads to, by its control name.
using ObsluhyPrikazu = QHash<QString, std::function<void()>>;

/// Leads the commands of the main window, however they were given, to what carries them out.
class RozvodPrikazu {
public:
    /// Throws std::logic_error when a command of the tables of `app/Prikazy.h` has no handler or a handler no
    /// command, naming them.
    RozvodPrikazu(const CommandStates& stavy, ObsluhyPrikazu obsluhy);

    /// Carries out a command; one that is disabled or unknown does nothing.
    void proved(const QString& prikaz) const;

private:
    const CommandStates& stavy_;
    ObsluhyPrikazu obsluhy_;
};

} // namespace zvonika
