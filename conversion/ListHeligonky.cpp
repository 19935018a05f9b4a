#include "conversion/ListHeligonky.h"

#include <QStringList>

namespace zvonika {

namespace {

struct LadeniHeligonky {
    QStringList stupnice;
    QString nazev;
};

/// In the order in which they are tried. The last one is never reached, as its only key stands above; sheets
/// have been named so, and the order is kept.
const QList<LadeniHeligonky>& ladeniHeligonek() {
    static const QList<LadeniHeligonky> tabulka = {
        {{"G dur", "C dur", "F dur"}, QStringLiteral("G dur-C dur-F dur")},
        {{"B dur", "Es dur", "As dur"}, QStringLiteral("B-Es-As")},
        {{"A dur", "D dur"}, QStringLiteral("A dur-D dur-G dur")},
        {{"B dur"}, QStringLiteral("F dur-B dur-Es dur")},
    };
    return tabulka;
}

} // namespace

QString nazevListuHeligonky(const QString& cilova) {
    for (const LadeniHeligonky& ladeni : ladeniHeligonek())
        if (ladeni.stupnice.contains(cilova)) return ladeni.nazev;
    return QStringLiteral("Změnit tento název listu");
}

} // namespace zvonika
