#include "board/ui/Skupina.h"

#include "board/ui/Hmatnik.h"
#include "board/ui/StiskaciPrvek.h"

namespace zvonika {

QString jmenoPrvku(const char* pole, int index) {
    return QLatin1String(pole) + u'(' + QString::number(index) + u')';
}

void popis(StiskaciPrvek* prvek, const char* pole, const QString& druh, const QString& nazev) {
    prvek->setObjectName(jmenoPrvku(pole, prvek->cislo()));
    QString jmeno = druh + u' ' + QString::number(prvek->cislo());
    if (!nazev.isEmpty()) jmeno += QStringLiteral(", ") + nazev;
    prvek->setAccessibleName(jmeno);
    prvek->setToolTip(nazev);
}

void pripojKlik(StiskaciPrvek* prvek, const std::function<void(int)>& klik) {
    if (!klik) return;
    QObject::connect(prvek, &QAbstractButton::clicked, prvek, [klik, n = prvek->cislo()] { klik(n); });
}

void nastavZastavkuTab(QWidget* prvek) {
    if (auto* stiskaci = qobject_cast<StiskaciPrvek*>(prvek)) stiskaci->nastavZastavku();
}

} // namespace zvonika
