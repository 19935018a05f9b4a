#pragma once

#include "tests/support/PrintQt.h"
#include "theory/CisloTonu.h"
#include "theory/Key.h"
#include "theory/PolohaNoty.h"
#include "theory/ToneName.h"

#include <ostream>

// How the values of the music theory read in a failure message.
namespace zvonika {

inline std::ostream& operator<<(std::ostream& out, const ToneName& nazev) {
    return out << '"' << nazev.text().toStdString() << '"';
}
inline std::ostream& operator<<(std::ostream& out, const Key& stupnice) {
    return out << '"' << stupnice.text().toStdString() << '"';
}
inline std::ostream& operator<<(std::ostream& out, CisloTonu cislo) {
    return out << cislo.hodnota();
}
inline std::ostream& operator<<(std::ostream& out, const PolohaNoty& poloha) {
    return out << "{sign " << static_cast<int>(poloha.znamenko) << ", " << poloha.jednotky << '}';
}

} // namespace zvonika
