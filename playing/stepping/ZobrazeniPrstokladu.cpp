#include "playing/stepping/ZobrazeniPrstokladu.h"

#include "board/TrebleBoard.h"

namespace zvonika {

namespace {

/// The record names a button that is not there, or is no record at all.
struct NeplatnyZaznam {};
/// The kind of an entry is neither "l" nor "s".
struct NeznamyDruh {};

struct Polozka {
    QChar druh; ///< 'l' or 's'
    int knoflik = 0;
    QString prst;
};

Polozka prectiPolozku(const QString& text, const Nastroj& nastroj) {
    const auto strednik = text.indexOf(u';');
    if (strednik < 1) throw NeplatnyZaznam();
    const QChar druh = text.front();
    if (druh != u'l' && druh != u's') throw NeznamyDruh();

    bool jeCislo = false;
    const int n = text.mid(1, strednik - 1).toInt(&jeCislo);
    if (!jeCislo || n < 1 || n > nastroj.pocetKnofliku()) throw NeplatnyZaznam();
    if (druh == u's' && !nastroj.knoflik(n).pomocny) throw NeplatnyZaznam();
    return {druh, n, text.mid(strednik + 1)};
}

/// Hands over entry after entry, so that what stands before a faulty one counts.
template <typename Co>
void ctiPolozky(const QString& zaznam, const Nastroj& nastroj, const Co& co) {
    for (qsizetype zacatek = 0; zacatek < zaznam.size();) {
        const auto konec = zaznam.indexOf(u'\\', zacatek);
        if (konec < 0) throw NeplatnyZaznam();
        co(prectiPolozku(zaznam.mid(zacatek, konec - zacatek), nastroj));
        zacatek = konec + 1;
    }
}

void vyznac(TrebleBoard& diskant, const Polozka& polozka) {
    const QString prst = polozka.prst + QStringLiteral("\r\n");
    const int n = polozka.knoflik;
    if (polozka.druh == u'l')
        diskant.nastavPopis(n, prst + diskant.popis(n));
    else
        diskant.nastavPopisPomocneho(n, prst + diskant.popisPomocneho(n));
}

} // namespace

void ZobrazeniPrstokladu::ZobrazPrstoklad(const QString& zaznam) {
    try {
        ctiPolozky(zaznam, diskant_.nastroj(), [this](const Polozka& polozka) { vyznac(diskant_, polozka); });
    } catch (const NeznamyDruh&) {
        dialogs_.message({QStringLiteral("Chyba !"),
                          QStringLiteral("Neočekávaná hodnota ve značení prstokladu."), Icon::Critical});
    } catch (const NeplatnyZaznam&) {
        ohlasNeplatnyZaznam();
    }
}

bool ZobrazeniPrstokladu::jePlatny(const QString& zaznam, const Nastroj& nastroj) {
    try {
        ctiPolozky(zaznam, nastroj, [](const Polozka&) {});
        return true;
    } catch (const NeznamyDruh&) {
        return false;
    } catch (const NeplatnyZaznam&) {
        return false;
    }
}

void ZobrazeniPrstokladu::ohlasNeplatnyZaznam() {
    dialogs_.message(
        {QStringLiteral("Chyba č. 340."),
         QStringLiteral(
             "Požadavek na vyznačení prstokladu nemohl být proveden, neboť záznam ve sloupci V "
             "neobsahuje platnou hodnotu. Knoflík, na který odkazuje tento záznam, neexistuje. Pro "
             "odstranění této chyby smažte prosím v Excelu na aktuálním řádku ve sloupci V celý obsah "
             "buňky. Data o aktuálním hmatu zůstanou zachována. Prstoklad pak včetně potvrzení hmatu "
             "můžete zapsat znovu."),
         Icon::Critical});
}

} // namespace zvonika
