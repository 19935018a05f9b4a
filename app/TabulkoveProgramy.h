#pragma once

#include "app/VolbaTabulky.h"
#include "spreadsheet/SpreadsheetApplication.h"

#include <functional>
#include <vector>

namespace zvonika {

/// One spreadsheet program that songs can be kept open in, as the program can start it.
struct TabulkovyProgram {
    Tabulka volba = Tabulka::Vestavena;
    /// How the user is told of it, looked up at each call; none: he cannot choose it.
    std::function<NabidkaTabulky()> nabidka = {};
    /// Starts it; none: it cannot be started, and `nahrada` is in its place without a question.
    SpreadsheetLauncher spust = {};
    /// The start is over, whether it has succeeded or not; none: there is nothing to do.
    std::function<void()> spusteno = {};
    /// What works in its place, which has a launcher; itself: nothing does.
    Tabulka nahrada = Tabulka::Vestavena;
    /// Where it has no launcher: one sentence for the user who has chosen it.
    QString veta = {};
};

/// The spreadsheet programs that there are and the one that was chosen.
class TabulkoveProgramy {
public:
    /// Throws std::out_of_range when the chosen program or what stands in for it has no row, and
    /// std::logic_error when neither of them can be started.
    TabulkoveProgramy(std::vector<TabulkovyProgram> programy, Tabulka zvolena);

    /// What the user can choose from, in the order of the rows.
    QVector<NabidkaTabulky> nabidka() const;
    /// The one that `spoustec` starts, and what is used when it has failed; itself: nothing is.
    Tabulka spoustena() const { return spoustena_; }
    Tabulka nahradniVolba() const { return radek(spoustena_).nahrada; }
    /// Starts the chosen program or, where it has no launcher, what stands in for it.
    const SpreadsheetLauncher& spoustec() const { return radek(spoustena_).spust; }
    /// Why another program than the chosen one is started: one sentence; "" when it is the chosen one.
    QString veta() const { return radek(zvolena_).spust ? QString() : radek(zvolena_).veta; }
    /// Starts what can be used when `spoustec` has failed; none: nothing can.
    SpreadsheetLauncher nahradni() const;
    void spusteno() const;

private:
    const TabulkovyProgram& radek(Tabulka volba) const;

    std::vector<TabulkovyProgram> programy_;
    Tabulka zvolena_;
    Tabulka spoustena_;
};

} // namespace zvonika
