#pragma once

#include <QStringView>

#include <array>

namespace zvonika {

/// One step of the octave with the names that a sharp and a flat make of it.
struct Stupen {
    QStringView prirozeny;
    QStringView skrizkem;
    QStringView sbeckem;
    int pultony; ///< semitones of the natural above the c of its octave
};

/// c to h. The names of the three columns are all the spellings there are.
inline constexpr std::array<Stupen, 7> stupne{{
    {u"c", u"cis", u"ces", 0},
    {u"d", u"dis", u"des", 2},
    {u"e", u"eis", u"es", 4},
    {u"f", u"fis", u"fes", 5},
    {u"g", u"gis", u"ges", 7},
    {u"a", u"ais", u"as", 9},
    {u"h", u"his", u"b", 11},
}};

inline constexpr int pultonuVOktave = 12;
/// The number that c of the small octave would have.
inline constexpr int cisloMalehoC = -3;

} // namespace zvonika
