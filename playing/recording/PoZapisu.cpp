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

void PoZapisu::oznamZapis(int radek, SmerMechu smer, bool smazan) {
    const QString veta =
        smazan ? QStringLiteral("Hmat %1 smazán: nic nebylo označeno, zapsán je jen %2. Ctrl+Z ho vrátí.")
               : QStringLiteral("Hmat %1 je zapsán na %2.");
    okoli_.panel.zapsano =
        veta.arg(radek).arg(smer == SmerMechu::Tlak ? QStringLiteral("tlak") : QStringLiteral("tah"));
}

void PoZapisu::vyprazdneno(int radek, bool smazan) {
    const VyrezPisne vyrez = pas_.ctiPoZmene();
    zobrazeni_.ZobrazHmatPotichu(vyrez);
    pas_.obnov(vyrez);
    const QString veta = smazan ? QStringLiteral("Hmat %1 smazán, nic nebylo označeno. Ctrl+Z ho vrátí.")
                                : QStringLiteral("Není co zapsat, hmat %1 zůstává prázdný.");
    upozorni(veta.arg(radek));
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
