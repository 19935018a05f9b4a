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

void ZtratyKonverze::nastavKonec(const QString& bunka, const QList<int>& neprevedene) {
    konec_ = bunka;
    neprevedene_ = neprevedene;
}

QString ZtratyKonverze::ztraty() const {
    QStringList ztraty;
    if (bezToniny_.pocet > 0)
        ztraty << popis(
            QStringLiteral("„%1“ ve sloupci W není tónina, bez ní nebylo čím nahradit ").arg(mistoToniny_),
            bezToniny_);
    if (bezProtejsku_.pocet > 0) ztraty << popis(QStringLiteral("v tabulce chybí "), bezProtejsku_);
    if (mimoNastroj_.pocet > 0) ztraty << popis(QStringLiteral("mimo rozsah nástroje "), mimoNastroj_);
    return ztraty.isEmpty() ? QString()
                            : QStringLiteral("Převod: ") + ztraty.join(QStringLiteral(", ")) + u'.';
}

QString ZtratyKonverze::vetaONejnizsich() const {
    if (nejnizsi_.pocet == 0) return {};
    return QStringLiteral(
               "Ztratil se nejnižší tón (%1): sloupec B je tam prázdný a pro každého, kdo kopii čte, "
               "končí písnička před řádkem %2.")
        .arg(popisRadku(nejnizsi_.radky))
        .arg(nejnizsi_.radky.first());
}

QString ZtratyKonverze::vetaOKonci() const {
    if (neprevedene_.isEmpty()) return {};
    return QStringLiteral("Převod skončil u prázdné buňky %1. Nepřevedeno zůstalo: %2.")
        .arg(konec_, popisRadku(neprevedene_));
}

QString ZtratyKonverze::veta() const {
    QStringList vety{chybaTabulky_, vetaONejnizsich(), ztraty(), vetaOKonci()};
    vety.removeAll(QString());
    return vety.join(u' ');
}

} // namespace zvonika
