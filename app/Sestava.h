#pragma once

#include <QRect>
#include <QString>

#include <functional>
#include <memory>

class QApplication;

namespace zvonika {

class Program;
class WakeUpClock;

/// Where a run of the program finds and leaves things; empty: what the user has.
struct Umisteni {
    QString domov;                 ///< native folder that is drive C:; empty: the home folder
    QString nastaveni;             ///< native folder of settings and recovery journals
    WakeUpClock* hodiny = nullptr; ///< the clock of automatic stepping, outliving the run; none: the system's
};

/// The composition root: chooses the adapters of every port, builds the program over them and puts its
/// windows side by side.
class Sestava {
public:
    Sestava(QApplication& aplikace, const Umisteni& umisteni = {});
    ~Sestava();

    Program& program();

private:
    struct Casti;
    std::unique_ptr<Casti> casti_;
};

} // namespace zvonika
