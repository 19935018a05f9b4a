#include "playing/recording/PoZapisu.h"

#include "playing/stepping/PasPisne.h"
#include "playing/stepping/PrikazyPisne.h"
#include "playing/stepping/ZobrazeniHmatu.h"

namespace zvonika {

void PoZapisu::naDalsiRadek() {
    okoli_.pisen.excel().moveCursor(1, 0);
    const int radek = list_.aktualniRadek();
    okoli_.panel.lblTon = QString::number(radek);
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
    okoli_.panel.barvaKroku = tlak ? BarvaKroku::TlakPoZapisu : BarvaKroku::Tah;
}

void PoZapisu::oznamZapis(int radek, SmerMechu smer) {
    okoli_.panel.zapsano = QStringLiteral("Hmat %1 je zapsán na %2.")
                               .arg(radek)
                               .arg(smer == SmerMechu::Tlak ? QStringLiteral("tlak") : QStringLiteral("tah"));
}

void PoZapisu::upozorni(const QString& veta) {
    okoli_.panel.upozorneni = QStringList{veta, okoli_.panel.upozorneni}.join(u' ').trimmed();
}

void PoZapisu::obnovOkno() {
    list_.VyberBunkuB();
    PovolZpet(okoli_.prikazy); // the cursor has left the first row
    const VyrezPisne vyrez = pas_.ctiPoZmene();
    zobrazeni_.ZobrazTexty(vyrez);
    pas_.obnov(vyrez);
}

} // namespace zvonika
