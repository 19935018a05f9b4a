#include "app/PoradiFokusu.h"

#include <QStringList>

namespace zvonika {

int poradiFokusu(const QString& jmeno) {
    static const QStringList skupiny = {
        "cmdNovaSkladba",   "cmdEdit",         "cmdEndEdit",
        "Combo1",           "cmdStupnice",     "lbl",
        "cmdKlavesa",       "ImgBas",          "osnovaZapisu",
        "picNota",          "picKrizek",       "picBecko",
        "picOdrazka",       "cmdTahNoty",      "cmdTlakNoty",
        "cmdTah",           "cmdTlak",         "cmdPrvni",
        "cmdPredchozi",     "cmdDalsi",        "cmdPosledni",
        "cmdPredTah",       "cmdPredTlak",     "cmdDalsiTah",
        "cmdDalsiTlak",     "cmdReadTah",      "cmdReadTlak",
        "cmdJakDalZpet",    "cmdJakDal",       "pas",
        "cmdTimer",         "Slider1",         "cmdZvuk",
        "cmdUvolDiskant",   "cmdUvolBasy",     "cmdUvolNoty",
        "cmdUvolniPultony", "cmdUvolOdrazky",  "cmdUvolKnofl",
        "cmdInterval",      "cmdSpodInterval", "cmdIntervalOdNejnizsiho",
        "cmdOPrg",
    };
    QString skupina = jmeno.section(QLatin1Char('('), 0, 0);
    if (skupina == QLatin1String("lblSynchro")) skupina = QStringLiteral("lbl"); // one board
    const qsizetype misto = skupiny.indexOf(skupina);
    return static_cast<int>(misto < 0 ? skupiny.size() : misto);
}

} // namespace zvonika
