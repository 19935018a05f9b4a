#include "app/Spusteni.h"

#include "platform/Contact.h"
#include "platform/HodnotyNastaveni.h"
#include "platform/RuntimeError.h"

namespace zvonika {

Spusteni::Spusteni(const SettingsStore& nastaveni, Dialogs& dialogs, KrokySpusteni kroky)
    : nastaveni_(nastaveni), dialogs_(dialogs), kroky_(std::move(kroky)) {}

void Spusteni::ctiBajt(const QString& sekce) {
    bajt_ = naBajt(nastaveni_.getOr(sekce, QStringLiteral("Index"), {}));
}

std::vector<Spusteni::Prikaz> Spusteni::posloupnost() {
    std::vector<Prikaz> prikazy = {
        kroky_.nastavVzdyNahore,
        kroky_.spustExcel,
        [this] { ctiBajt(QStringLiteral("Znaceni")); },
        [this] { kroky_.obratCislovani(bajt_ == 1); },
        [this] { ctiBajt(QStringLiteral("PopisKnof")); },
        [this] { kroky_.zapniNazvy(bajt_ != 0); },
        [this] { ctiBajt(QStringLiteral("Cislovani")); },
        [this] { kroky_.zapniCislovani(bajt_ != 0); },
        kroky_.rozlozBasy,
        kroky_.uvolniDiskant,
    };
    for (int rada = 1; rada <= 5; ++rada)
        prikazy.push_back([this, rada] {
            const QString hodnota =
                nastaveni_.getOr(QStringLiteral("Zabrany"), QString::number(rada), QStringLiteral("0"));
            kroky_.zakryjRadu(rada, naPravdu(hodnota));
        });
    return prikazy;
}

bool Spusteni::Form_Load() {
    for (const Prikaz& prikaz : posloupnost()) {
        try {
            prikaz();
        } catch (const RuntimeError& chyba) {
            if (chyba.number() == error::typeMismatch) continue;
            ohlas(chyba.number(), chyba.cause());
            return false;
        }
    }
    return true;
}

void Spusteni::ohlas(int cislo, const QString& pricina) {
    QString text = QStringLiteral("V programu došlo k chybě číslo %1. Možná budete moci dále pokračovat. "
                                  "V případě problémů kontaktujte %2")
                       .arg(cislo)
                       .arg(kontakt);
    if (!pricina.isEmpty()) text += QLatin1Char('\n') + pricina;
    dialogs_.message({QStringLiteral("Neočekávaná chyba programu."), text, Icon::Exclamation});
}

} // namespace zvonika
