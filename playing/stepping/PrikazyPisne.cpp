#include "playing/stepping/PrikazyPisne.h"

#include <array>

namespace zvonika {

namespace {

constexpr std::array prikazyZpet{"cmdPredchozi", "cmdPredTlak", "cmdPredTah", "cmdJakDalZpet"};

// The backward commands stand between these two lists.
constexpr std::array prikazyPredZpet{"cmdTah",      "cmdTlak",    "cmdTahNoty", "cmdTlakNoty", "cmdReadTah",
                                     "cmdReadTlak", "cmdEndEdit", "cmdPrvni",   "cmdDalsi"};
constexpr std::array prikazyPoZpet{"cmdPosledni",   "cmdDalsiTlak",   "cmdDalsiTah",   "cmdJakDal",
                                   "cmdJakDalZpet", "cmdTimer",       "Slider1",       "lblTempo",
                                   "mnuKonecPisne", "mnuPrevzitHmat", "mnuVlozitHmat", "mnuSmazatHmat"};
constexpr std::array krokyPisne{"mnuZpet", "mnuZnovu"};
constexpr std::array tlacitkaZvuku{"cmdZvuk(0)", "cmdZvuk(1)", "cmdZvuk(2)"};
constexpr std::array prikazyZahajeni{"cmdEdit", "mnuOtevrit", "mnuNovaPisen", "cmdNovaSkladba"};

template <std::size_t n>
void prepni(CommandStates& prikazy, const std::array<const char*, n>& jmena, bool povolit) {
    for (const char* jmeno : jmena)
        prikazy.povol(QString::fromLatin1(jmeno), povolit);
}

} // namespace

void ZakazZpet(CommandStates& prikazy) {
    prepni(prikazy, prikazyZpet, false);
}

void PovolZpet(CommandStates& prikazy) {
    prepni(prikazy, prikazyZpet, true);
}

void PovolPrikazyPisne(CommandStates& prikazy) {
    prepni(prikazy, prikazyPredZpet, true);
    PovolZpet(prikazy);
    prepni(prikazy, prikazyPoZpet, true);
}

void ZakazPrikazyPisne(CommandStates& prikazy) {
    prepni(prikazy, prikazyPredZpet, false);
    ZakazZpet(prikazy);
    prepni(prikazy, prikazyPoZpet, false);
    prepni(prikazy, krokyPisne, false);
    prepni(prikazy, tlacitkaZvuku, false);
}

void povolZahajeniPisne(CommandStates& prikazy, bool povolit) {
    prepni(prikazy, prikazyZahajeni, povolit);
}

} // namespace zvonika
