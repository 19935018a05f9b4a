#include "playing/recording/CekajiciPrsty.h"

#include "board/TrebleBoard.h"
#include "playing/recording/Prstoklad.h"

namespace zvonika {

namespace {

QString neoznacene(const QStringList& zaznamy, const TrebleBoard& diskant) {
    QStringList cisla;
    for (const QString& zaznam : zaznamy) {
        const int n = cisloKnofliku(zaznam);
        const bool jeKnoflik = n >= 1 && n <= diskant.nastroj().pocetKnofliku();
        if (jeKnoflik && !diskant.oznacen(n)) cisla << QString::number(n);
    }
    cisla.removeDuplicates();
    return cisla.isEmpty() ? QString()
                           : QStringLiteral(" Neoznačeno: %1.").arg(cisla.join(QStringLiteral(", ")));
}

} // namespace

QString slovyPrst(const QString& zaznam) {
    const auto strednik = zaznam.indexOf(u';');
    const int n = cisloKnofliku(zaznam);
    if (strednik < 0 || n == 0) return zaznam;
    const QString prst = zaznam.mid(strednik + 1).chopped(zaznam.endsWith(u'\\') ? 1 : 0);
    const QString druh = zaznam.startsWith(u's') ? QStringLiteral("pomocný ") : QString();
    return QStringLiteral("%1%2 = %3").arg(druh).arg(n).arg(prst);
}

QString cekajiciPrsty(const Prstoklad& prstoklad, const TrebleBoard& diskant) {
    const QStringList zaznamy = prstoklad.zaznamy(diskant.oznacene());
    if (zaznamy.isEmpty()) return {};
    QStringList prsty;
    for (const QString& zaznam : zaznamy)
        prsty << slovyPrst(zaznam);
    return QStringLiteral("Prstoklad čeká: ") + prsty.join(QStringLiteral(", ")) + u'.' +
           neoznacene(zaznamy, diskant);
}

} // namespace zvonika
