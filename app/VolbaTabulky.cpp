#include "app/VolbaTabulky.h"

namespace zvonika {

namespace {
const QString sekce = QStringLiteral("Tabulka");
const QString klic = QStringLiteral("Index");
} // namespace

Tabulka VolbaTabulky::zvolena() const {
    const QString text = nastaveni_.getOr(sekce, klic, {}).trimmed();
    for (const Tabulka tabulka : {Tabulka::LibreOffice, Tabulka::Excel})
        if (text == QString::number(static_cast<int>(tabulka))) return tabulka;
    return Tabulka::Vestavena;
}

void VolbaTabulky::zvol(Tabulka tabulka) {
    nastaveni_.save(sekce, klic, QString::number(static_cast<int>(tabulka)));
}

NabidkaTabulky nabidkaVestavene() {
    return {Tabulka::Vestavena,
            QStringLiteral("Vestavěná tabulka Zvoniky"),
            QStringLiteral("Nepotřebuje žádný další program. Má vlastní okno vedle hlavního."),
            {}};
}

} // namespace zvonika
