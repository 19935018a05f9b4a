#include "tests/board/ui/Sestava.h"

#include "theory/NazvyTonu.h"

#include <cmath>

namespace zvonika {

namespace {

QString nazevKnofliku(int n) {
    const QString nazev = nazevTonu(CisloTonu(n)).text();
    return nazev.endsWith(u',') ? nazev.chopped(1) : nazev;
}

QString nazevBasu(int n) {
    static const char* const koreny[] = {"Heses", "Fes", "Ces", "Ges", "Des", "As", "Es",
                                         "B",     "F",   "C",   "G",   "D",   "A",  "E",
                                         "H",     "Fis", "Cis", "Gis", "Dis", "Ais"};
    static const char* const druhy[] = {"/", "", "-dur", "-moll", "-sept", "-zm"};
    return QLatin1String(koreny[(n - 1) % 20]) + QLatin1String(druhy[(n - 1) / 20]);
}

} // namespace

Sestava::Sestava(double meritko) {
    scena.resize(static_cast<int>(std::lround(12300 * meritko / 15)),
                 static_cast<int>(std::lround(10500 * meritko / 15)));
    QFont pismo = scena.font();
    pismo.setPixelSize(static_cast<int>(std::lround(13 * meritko)));
    scena.setFont(pismo);
    const Umisti umisti = [meritko](QWidget* prvek, const QRect& twips) {
        const auto px = [meritko](int v) { return static_cast<int>(std::lround(v * meritko / 15)); };
        const QPoint od(px(twips.x()), px(twips.y()));
        const QPoint po(px(twips.x() + twips.width()), px(twips.y() + twips.height()));
        prvek->setGeometry(QRect(od, QSize(po.x() - od.x(), po.y() - od.y())));
    };
    ObsluhaDiskantu obsluha;
    obsluha.klik = [this](int n) { kliky.push_back(n); };
    obsluha.dvojklik = [this](int n, bool pomocny) { dvojkliky.push_back({n, pomocny}); };
    obsluha.nazev = nazevKnofliku;
    vytvorBasy(&scena, basy, {[this](int n) { klikyBasu.push_back(n), basy.klik(n); }, nazevBasu}, umisti);
    vytvorDiskant(&scena, diskant, obsluha, umisti);
    vytvorKlaviaturu(&scena, diskant, obsluha, umisti);
}

} // namespace zvonika
