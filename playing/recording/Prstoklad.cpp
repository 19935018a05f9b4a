#include "playing/recording/Prstoklad.h"

#include <utility>

namespace zvonika {

QString Prstoklad::odeber() {
    return std::exchange(prstoklad_, {});
}

void Prstoklad::pridej(QChar druh, int n) {
    const QString prst = dialogs_.input(
        QStringLiteral("Označení prstokladu"),
        QStringLiteral("Zadejte číslo prstu, kterým má být mačkán tento knoflík. 1 = palec až 5 = malíček."));
    if (prst.isEmpty()) return;
    prstoklad_ += druh + QString::number(n) + u';' + prst + u'\\';
}

} // namespace zvonika
