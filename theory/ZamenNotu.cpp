#include "theory/ZamenNotu.h"

#include <QStringView>

#include <algorithm>
#include <array>
#include <optional>

namespace zvonika {

namespace {

struct Zamena {
    QStringView kmen;
    QStringView novyKmen;
    int posunOktavy = 0;
};

constexpr std::array<Zamena, 16> zameny{{
    {u"cis", u"des"},
    {u"dis", u"es"},
    {u"fes", u"e"},
    {u"eis", u"f"},
    {u"fis", u"ges"},
    {u"gis", u"as"},
    {u"ais", u"b"},
    {u"des", u"cis"},
    {u"es", u"dis"},
    {u"e", u"fes"},
    {u"f", u"eis"},
    {u"ges", u"fis"},
    {u"as", u"gis"},
    {u"b", u"ais"},
    {u"ces", u"h", -1},
    {u"his", u"c", 1},
}};

bool zacinaCislici(QStringView konec) {
    return !konec.isEmpty() && konec.front() >= u'0' && konec.front() <= u'9';
}

/// Nothing where the octave below the small one would be needed.
std::optional<QString> posunKonec(const QString& konec, int posun) {
    if (posun == 0) return konec;
    const int oktava = zacinaCislici(konec) ? konec.front().digitValue() : 0;
    if (oktava + posun < 0) return std::nullopt;
    return oktava + posun == 0 ? QStringLiteral(",") : QString::number(oktava + posun) + u',';
}

} // namespace

ToneName ZamenNotu(const ToneName& nazev) {
    QString konec = nazev.text().right(2);
    if (konec == u"b,") konec = QStringLiteral(",");
    const QString kmen =
        nazev.text().chopped(std::min<qsizetype>(zacinaCislici(konec) ? 2 : 1, nazev.text().size()));

    const auto zamena = std::find_if(zameny.begin(), zameny.end(),
                                     [&](const Zamena& kandidat) { return kandidat.kmen == kmen; });
    if (zamena == zameny.end()) return ToneName::nejde();
    const auto novyKonec = posunKonec(konec, zamena->posunOktavy);
    return novyKonec ? ToneName(zamena->novyKmen.toString() + *novyKonec) : ToneName::nejde();
}

} // namespace zvonika
