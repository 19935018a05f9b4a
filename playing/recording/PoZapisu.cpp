#include "playing/recording/PoZapisu.h"

#include "playing/stepping/PrikazyPisne.h"

namespace zvonika {

void PoZapisu::naDalsiRadek() {
    pisen_.excel().moveCursor(1, 0);
    const int radek = list_.aktualniRadek();
    panel_.lblTon = QString::number(radek);
    ukazNovyRadek(radek);
}

void PoZapisu::ukazNovyRadek(int radek) {
    const auto smer = list_.smer(radek);
    if (smer == SmerMechu::Neuveden) return;
    const bool tlak = smer == SmerMechu::Tlak;
    if (tlak)
        zobrazeni_.cmdReadTlak();
    else
        zobrazeni_.cmdReadTah();
    panel_.barvaKroku = tlak ? BarvaKroku::TlakPoZapisu : BarvaKroku::Tah;
}

void PoZapisu::obnovOkno() {
    list_.VyberBunkuB();
    zobrazeni_.obnovRadek();
    zobrazeni_.obnovPas();
    PovolZpet(prikazy_); // the cursor has left the first row
    panel_.oznamZmenu();
}

} // namespace zvonika
