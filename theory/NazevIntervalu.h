#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <cstdint>

namespace zvonika {

/// The intervals that have a name, by the number of scale steps less one: 1 step is a second, 7 are an
/// octave.
inline constexpr std::array<QStringView, 14> jmenaIntervalu{
    u"sekunda", u"tercie", u"kvarta",   u"kvinta",    u"sexta",      u"septima",     u"oktáva",
    u"nóna",    u"decima", u"undecima", u"duodecima", u"tercdecima", u"kvartdecima", u"kvintdecima",
};

/// "vrchní tercie" for 2 steps, "spodní oktáva" for -7; "nepojmenovaný" for 0 and beyond 14 steps.
QString NazevIntervalu(std::int16_t kroky);

} // namespace zvonika
