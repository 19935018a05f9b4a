#pragma once

namespace zvonika {

class Automat;
class Form1;
class Konverzace;
class OknoNapovedy;
class UdalostiOkna;
struct Modely;
struct Prostredi;

/// The parts of the running program, which `Program` owns, for what joins them.
struct CastiProgramu {
    const Prostredi& prostredi;
    Modely& modely;
    UdalostiOkna& udalosti;
    Konverzace& konverzace;
    Automat& automat;
    Form1& okno;
    OknoNapovedy& napoveda;
};

} // namespace zvonika
