#include "playing/recording/KlikDiskantu.h"

#include "theory/Tonina.h"

#include <QScopedValueRollback>

#include <utility>

namespace zvonika {

KlikDiskantu::KlikDiskantu(TrebleBoard& diskant, clsNotyZapis& noty, const Tonina& tonina, Dialogs& dialogs,
                           Okno okno)
    : diskant_(diskant), noty_(noty), tonina_(tonina), okno_(std::move(okno)), polohy_(dialogs),
      overeni_(dialogs, polohy_, tonina, *this) {}

void KlikDiskantu::klik(int n) {
    if (overujeSe_) return;
    pusteny_.reset();
    if (!diskant_.oznacen(n)) return oznac(n);
    pusteny_ = Pusteny{n, diskant_.znacky(), {}, noty_.misto(CisloTonu(n))};
    uvolni(n);
    pusteny_->potom = diskant_.znacky();
}

bool KlikDiskantu::dvojklik(int n) {
    if (overujeSe_) return false;
    if (!diskant_.oznacen(n) && !vratPusteny(n)) oznac(n);
    pusteny_.reset();
    return diskant_.oznacen(n);
}

bool KlikDiskantu::vratPusteny(int n) {
    if (!pusteny_ || pusteny_->n != n || pusteny_->potom != diskant_.znacky()) return false;
    diskant_.ukazZnacky(pusteny_->predtim);
    if (pusteny_->nota) noty_.vrat(*pusteny_->nota);
    return true;
}

void KlikDiskantu::notaPridana(CisloTonu ton) {
    if (!overujeSe_ && ton.jeVRozsahu() && !diskant_.oznacen(ton.hodnota())) oznac(ton.hodnota());
}

void KlikDiskantu::notaOdebrana(CisloTonu ton) {
    if (!overujeSe_ && ton.jeVRozsahu() && diskant_.oznacen(ton.hodnota())) uvolni(ton.hodnota());
}

void KlikDiskantu::oznac(int n) {
    diskant_.nastavZnacku(n, true);
    const QScopedValueRollback overeni(overujeSe_, true);
    overeni_.OverNotuVeStupnici(CisloTonu(n));
}

void KlikDiskantu::uvolni(int n) {
    diskant_.nastavZnacku(n, false);
    noty_.odeberTon(CisloTonu(n));
}

void KlikDiskantu::nasledujToninu() {
    diskant_.nastavNazvy(diskant_.nazvyZapnuty(), tonina_.stupnice().text());
    diskant_.prejmenujKlavesy(tonina_.stupnice().text());
}

void KlikDiskantu::popisKlavesu(CisloTonu ton, const ToneName& nazev) {
    diskant_.nastavTonKlavesy(ton.hodnota(), nazev.text());
}

void KlikDiskantu::zakresliNotu(const KreslenaNota& nota) {
    if (noty_.zakresliNotu(nota)) return;
    okno_.oznam(
        QStringLiteral("Osnova pro zápis má jen pět not. Tón %1 je označen na knoflíku, ale na osnovu se "
                       "už nevejde.")
            .arg(nota.nazev.bezCarky()));
}

void KlikDiskantu::vratTlacitko(CisloTonu ton) {
    uvolni(ton.hodnota()); // the button was marked just now, so pressing it again lets it go
}

void KlikDiskantu::otevriVyberStupnice() {
    okno_.otevriVyberStupnice();
}

} // namespace zvonika
