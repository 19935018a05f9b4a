#pragma once

#include <QStringView>

#include <array>

namespace zvonika {

/// How the twelve tones, counted from e, are written in one key. A name ending in * is not in the key's
/// scale.
struct PojmenovaniStupnice {
    QStringView stupnice; ///< the normalised key that it answers to
    std::array<QStringView, 12> nazvy;
    QStringView nejvyssiTon = {}; ///< name of tone 49 with octave and comma where it differs from the rule
};

/// The sharp names, used where no key applies.
inline constexpr PojmenovaniStupnice chromatickePojmenovani{
    {}, {u"e", u"f", u"fis", u"g", u"gis", u"a", u"ais", u"h", u"c", u"cis", u"d", u"dis"}};

/// In the order in which a key is looked for. No normalised key contains a blank, so "Fis dur" is never found
/// and that key gets the sharp names: songs have been written so, and the names are kept.
// clang-format off
inline constexpr std::array<PojmenovaniStupnice, 15> pojmenovaniStupnic{{
    {u"Cdur",    {u"e",  u"f",  u"fis*", u"g",  u"gis*", u"a",  u"ais*", u"h",   u"c",  u"cis*", u"d",  u"dis*"}},
    {u"Gdur",    {u"e",  u"f*", u"fis",  u"g",  u"gis*", u"a",  u"ais*", u"h",   u"c",  u"cis*", u"d",  u"dis*"}},
    {u"ddur",    {u"e",  u"f*", u"fis",  u"g",  u"gis*", u"a",  u"ais*", u"h",   u"c*", u"cis",  u"d",  u"dis*"}},
    {u"Adur",    {u"e",  u"f*", u"fis",  u"g*", u"gis",  u"a",  u"ais*", u"h",   u"c*", u"cis",  u"d",  u"dis*"}},
    {u"Edur",    {u"e",  u"f*", u"fis",  u"g*", u"gis",  u"a",  u"ais*", u"h",   u"c*", u"cis",  u"d*", u"dis"}},
    {u"Hdur",    {u"e",  u"f*", u"fis",  u"g*", u"gis",  u"a*", u"ais",  u"h",   u"c*", u"cis",  u"d*", u"dis"}},
    {u"Fis dur", {u"e*", u"f",  u"fis",  u"g*", u"gis",  u"a*", u"ais",  u"h",   u"c*", u"cis",  u"d*", u"dis"}},
    {u"Cisdur",  {u"e*", u"f",  u"fis",  u"g*", u"gis",  u"a*", u"ais",  u"h*",  u"c",  u"cis",  u"d*", u"dis"}},
    {u"Fdur",    {u"e",  u"f",  u"ges*", u"g",  u"as*",  u"a",  u"b",    u"h*",  u"c",  u"des*", u"d",  u"es*"}, u"e,"},
    {u"Bdur",    {u"e*", u"f",  u"ges*", u"g",  u"as*",  u"a",  u"b",    u"h*",  u"c",  u"des*", u"d",  u"es"}},
    {u"Esdur",   {u"e*", u"f",  u"ges*", u"g",  u"as",   u"a*", u"b",    u"h*",  u"c",  u"des*", u"d",  u"es"}},
    {u"Asdur",   {u"e*", u"f",  u"ges*", u"g",  u"as",   u"a*", u"b",    u"h*",  u"c",  u"des",  u"d*", u"es"}},
    {u"desdur",  {u"e*", u"f",  u"ges",  u"g*", u"as",   u"a*", u"b",    u"h*",  u"c",  u"des",  u"d*", u"es"}},
    {u"Gesdur",  {u"e*", u"f",  u"ges",  u"g*", u"as",   u"a*", u"b",    u"ces", u"c*", u"des",  u"d*", u"es"}},
    {u"Cesdur",  {u"fes", u"f*", u"ges", u"g*", u"as",   u"a*", u"b",    u"ces", u"c*", u"des",  u"d*", u"es"}},
}};
// clang-format on

} // namespace zvonika
