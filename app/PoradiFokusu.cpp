#include "app/PoradiFokusu.h"

#include <algorithm>
#include <iterator>

namespace zvonika {

namespace {

/// Groups of controls in the order of the work.
// clang-format off
const char* const skupiny[] = {
    "cmdNovaSkladba", "cmdEdit", "cmdEndEdit", "Combo1", "cmdStupnice", "lbl", "cmdKlavesa", "ImgBas",
    "osnovaZapisu", "picNota", "picKrizek", "picBecko", "picOdrazka", "cmdTahNoty", "cmdTlakNoty",
    "cmdTah", "cmdTlak", "cmdPrvni", "cmdPredchozi", "cmdDalsi", "cmdPosledni", "cmdPredTah",
    "cmdPredTlak", "cmdDalsiTah", "cmdDalsiTlak", "cmdReadTah", "cmdReadTlak", "cmdJakDalZpet",
    "cmdJakDal", "pas", "cmdTimer", "Slider1", "cmdZvuk", "cmdUvolDiskant", "cmdUvolBasy", "cmdUvolNoty",
    "cmdUvolniPultony", "cmdUvolOdrazky", "cmdUvolKnofl", "cmbInterval", "cmdInterval", "cmdSpodInterval",
    "cmdIntervalOdNejnizsiho", "cmdOPrg",
};
// clang-format on

} // namespace

int poradiFokusu(const QString& jmeno) {
    QString skupina = jmeno.section(QLatin1Char('('), 0, 0);
    if (skupina == QLatin1String("lblSynchro")) skupina = QStringLiteral("lbl"); // one board
    const auto misto = std::find(std::begin(skupiny), std::end(skupiny), skupina);
    return static_cast<int>(misto - std::begin(skupiny)); // unknown ones come last
}

} // namespace zvonika
