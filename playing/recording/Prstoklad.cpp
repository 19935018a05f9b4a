#include "playing/recording/Prstoklad.h"

#include <utility>

namespace zvonika {

QString Prstoklad::odeber() {
    prevzato_ = 0;
    return std::exchange(prstoklad_, {});
}

void Prstoklad::nastav(const QString& prstoklad) {
    prstoklad_ = prstoklad;
    prevzato_ = 0;
}

void Prstoklad::prevezmi(const QString& prstoklad) {
    nastav(prstoklad);
    prevzato_ = prstoklad.size();
}

void Prstoklad::nahradPrevzaty(const QString& knoflik) {
    const QStringList zaznamy = prstoklad_.left(prevzato_).split(u'\\');
    QStringList zbyle;
    for (const QString& zaznam : zaznamy)
        if (!zaznam.startsWith(knoflik)) zbyle.append(zaznam);
    const QString prevzate = zbyle.join(u'\\');
    prstoklad_.replace(0, prevzato_, prevzate);
    prevzato_ = prevzate.size();
}

void Prstoklad::pridej(QChar druh, int n) {
    const QString prst = dialogs_.input(
        QStringLiteral("Označení prstokladu"),
        QStringLiteral("Zadejte číslo prstu, kterým má být mačkán tento knoflík. 1 = palec až 5 = malíček."));
    if (prst.isEmpty()) return;
    const QString knoflik = druh + QString::number(n) + u';';
    nahradPrevzaty(knoflik);
    prstoklad_ += knoflik + prst + u'\\';
}

} // namespace zvonika
