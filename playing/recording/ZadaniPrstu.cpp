#include "playing/recording/ZadaniPrstu.h"

#include "playing/recording/KlikDiskantu.h"
#include "playing/recording/Prstoklad.h"

namespace zvonika {

void ZadaniPrstu::zadej(QChar druh, int n) {
    if (!diskant_.dvojklik(n)) return;
    const QString prst = dialogs_.input(
        QStringLiteral("Označení prstokladu"),
        QStringLiteral("Zadejte číslo prstu, kterým má být mačkán tento knoflík. 1 = palec až 5 = malíček."));
    if (!prst.isEmpty()) prstoklad_.pridej(druh, n, prst);
}

} // namespace zvonika
