#include "conversion/ZtratyKonverze.h"

#include <QStringList>

namespace zvonika {

namespace {

constexpr qsizetype nejviceUseku = 6;

QString tonu(int pocet) {
    const char* slovo = pocet == 1 ? "tón" : pocet <= 4 ? "tóny" : "tónů";
    return QStringLiteral("%1 %2").arg(pocet).arg(QString::fromUtf8(slovo));
}

/// Consecutive rows as one stretch: "3", "5–9".
QStringList useky(const QList<int>& radky) {
    QStringList useky;
    for (qsizetype prvni = 0, za = 0; prvni < radky.size(); prvni = za) {
        for (za = prvni + 1; za < radky.size() && radky[za] == radky[za - 1] + 1;)
            ++za;
        const QString zacatek = QString::number(radky[prvni]);
        useky << (za == prvni + 1 ? zacatek : zacatek + u'–' + QString::number(radky[za - 1]));
    }
    return useky;
}

} // namespace

QString popisRadku(const QList<int>& radky) {
    if (radky.size() == 1) return QStringLiteral("řádek %1").arg(radky.first());
    const QStringList vsechny = useky(radky);
    const QString zacatek =
        QStringLiteral("řádky ") + vsechny.mid(0, nejviceUseku).join(QStringLiteral(", "));
    if (vsechny.size() <= nejviceUseku) return zacatek;
    return zacatek + QStringLiteral(" a další, celkem %1 řádků").arg(radky.size());
}

void ZtratyKonverze::Tony::pridej(int radek) {
    ++pocet;
    if (radky.isEmpty() || radky.last() != radek) radky.append(radek);
}

QString ZtratyKonverze::popis(const QString& co, const Tony& tony) {
    return co + tonu(tony.pocet) + QStringLiteral(" (") + popisRadku(tony.radky) + u')';
}

QString ZtratyKonverze::veta() const {
    QStringList ztraty;
    if (bezProtejsku_.pocet > 0) ztraty << popis(QStringLiteral("v tabulce chybí "), bezProtejsku_);
    if (mimoNastroj_.pocet > 0) ztraty << popis(QStringLiteral("mimo rozsah nástroje "), mimoNastroj_);
    QStringList vety;
    if (!chybaTabulky_.isEmpty()) vety << chybaTabulky_;
    if (!ztraty.isEmpty()) vety << QStringLiteral("Převod: ") + ztraty.join(QStringLiteral(", ")) + u'.';
    return vety.join(u' ');
}

} // namespace zvonika
