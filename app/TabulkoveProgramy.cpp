#include "app/TabulkoveProgramy.h"

#include <algorithm>
#include <stdexcept>

namespace zvonika {

TabulkoveProgramy::TabulkoveProgramy(std::vector<TabulkovyProgram> programy, Tabulka zvolena)
    : programy_(std::move(programy)), zvolena_(zvolena),
      spoustena_(radek(zvolena).spust ? zvolena : radek(zvolena).nahrada) {
    if (!spoustec()) throw std::logic_error("no launcher of a spreadsheet program");
}

QVector<NabidkaTabulky> TabulkoveProgramy::nabidka() const {
    QVector<NabidkaTabulky> nabidka;
    for (const TabulkovyProgram& program : programy_)
        if (program.nabidka) nabidka << program.nabidka();
    return nabidka;
}

SpreadsheetLauncher TabulkoveProgramy::nahradni() const {
    const Tabulka nahrada = nahradniVolba();
    return nahrada == spoustena_ ? SpreadsheetLauncher() : radek(nahrada).spust;
}

void TabulkoveProgramy::spusteno() const {
    for (const TabulkovyProgram& program : programy_)
        if (program.spusteno) program.spusteno();
}

const TabulkovyProgram& TabulkoveProgramy::radek(Tabulka volba) const {
    const auto nalezeny = std::ranges::find(programy_, volba, &TabulkovyProgram::volba);
    if (nalezeny == programy_.end()) throw std::out_of_range("a spreadsheet program without a row");
    return *nalezeny;
}

} // namespace zvonika
