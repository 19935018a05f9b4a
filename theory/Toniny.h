#pragma once

#include "theory/Key.h"

#include <QStringView>

#include <array>

namespace zvonika {

/// One of the major keys that the program knows.
struct DurovaTonina {
    QStringView nazev;
    int predznamenani; ///< number of sharps; of flats where negative

    Key key() const { return Key(nazev.toString()); }
};

/// The keys in the order in which they are offered.
inline constexpr std::array<DurovaTonina, 15> toniny{{
    {u"C dur", 0},
    {u"G dur", 1},
    {u"D dur", 2},
    {u"A dur", 3},
    {u"E dur", 4},
    {u"H dur", 5},
    {u"Fis dur", 6},
    {u"Cis dur", 7},
    {u"F dur", -1},
    {u"B dur", -2},
    {u"Es dur", -3},
    {u"As dur", -4},
    {u"Des dur", -5},
    {u"Ges dur", -6},
    {u"Ces dur", -7},
}};

/// Without blanks and with every "D" small: "D dur" becomes "ddur".
QString normalizujStupnici(QString stupnice);

/// The key of that name, or nullptr. Blanks and the size of D do not matter: "C Dur" and "ddur" are found.
const DurovaTonina* najdiToninu(const Key& stupnice);

} // namespace zvonika
