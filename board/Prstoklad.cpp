#include "board/Prstoklad.h"

#include "board/TrebleBoard.h"
#include "song/SongSheet.h"

#include <utility>

namespace zvonika {

namespace {

/// The record names a button that is not there, or is no record at all.
struct NeplatnyZaznam {};
/// The kind of an entry is neither "l" nor "s".
struct NeznamyDruh {};

} // namespace

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

void ZobrazeniPrstokladu::ZobrazPrstoklad() {
    QString zaznam;
    try {
        auto& excel = pisen_.excel();
        excel.activateWindow(pisen_.aktualniPisen);
        zaznam = cellText(excel.value(QStringLiteral("V%1").arg(excel.activeRow())));
    } catch (const AutomationError&) {
        ohlasNeplatnyZaznam();
        return;
    }
    zobraz(zaznam);
}

void ZobrazeniPrstokladu::zobraz(const QString& zaznam) {
    try {
        for (qsizetype zacatek = 0; zacatek < zaznam.size();) {
            const auto konec = zaznam.indexOf(u'\\', zacatek);
            if (konec < 0) throw NeplatnyZaznam();
            vyznacPolozku(zaznam.mid(zacatek, konec - zacatek));
            zacatek = konec + 1;
        }
    } catch (const NeznamyDruh&) {
        dialogs_.message({QStringLiteral("Chyba !"),
                          QStringLiteral("Neočekávaná hodnota ve značení prstokladu."), Icon::Critical});
    } catch (const NeplatnyZaznam&) {
        ohlasNeplatnyZaznam();
    }
}

void ZobrazeniPrstokladu::vyznacPolozku(const QString& polozka) {
    const auto strednik = polozka.indexOf(u';');
    if (strednik < 1) throw NeplatnyZaznam();
    const QChar druh = polozka.front();
    if (druh != u'l' && druh != u's') throw NeznamyDruh();

    bool jeCislo = false;
    const int n = polozka.mid(1, strednik - 1).toInt(&jeCislo);
    if (!jeCislo || n < 1 || n > pocetKnofliku || (druh == u's' && !maPomocny(n))) throw NeplatnyZaznam();

    const QString prst = polozka.mid(strednik + 1) + QStringLiteral("\r\n");
    if (druh == u'l')
        diskant_.nastavPopis(n, prst + diskant_.popis(n));
    else
        diskant_.nastavPopisPomocneho(n, prst + diskant_.popisPomocneho(n));
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
