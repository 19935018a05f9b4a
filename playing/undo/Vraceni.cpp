#include "playing/undo/Vraceni.h"

#include "platform/ShownText.h"

namespace zvonika {

namespace {

constexpr qsizetype jmenovanychBunek = 5;

QString vyctiBunky(const QStringList& bunky) {
    const QString vycet = bunky.mid(0, jmenovanychBunek).join(QStringLiteral(", "));
    const qsizetype dalsich = bunky.size() - jmenovanychBunek;
    return dalsich > 0 ? QStringLiteral("%1 a další (%2)").arg(vycet).arg(dalsich) : vycet;
}

Message dotaz(SmerKroku smer, const QString& popis, const QStringList& bunky) {
    const bool zpet = smer == SmerKroku::Zpet;
    return {zpet ? QStringLiteral("Zpět") : QStringLiteral("Znovu"),
            QStringLiteral("Od kroku „%1“ se v tabulce změnily buňky %2. Co v nich stojí teď, by se "
                           "ztratilo.\n\nChcete krok přesto %3? Odpovíte-li Ne, zůstane všechno, jak je.")
                .arg(popis, shownName(vyctiBunky(bunky)),
                     zpet ? QStringLiteral("vrátit zpět") : QStringLiteral("provést znovu")),
            Icon::Exclamation, Buttons::YesNo, Answer::No};
}

/// A label as it stands behind a colon.
QString vPrubehuVety(const QString& popis) {
    return popis.left(1).toLower() + popis.mid(1);
}

QString bezListu(SmerKroku smer, const QString& popis) {
    const QString veta = smer == SmerKroku::Zpet ? QStringLiteral("Krok „%1“ už vrátit nejde")
                                                 : QStringLiteral("Krok „%1“ už znovu provést nejde");
    return veta.arg(popis) + QStringLiteral(": list, na kterém byl udělán, v písničce není.");
}

/// Nothing where a sheet of the step is no more.
std::optional<QStringList> zmeneneBunky(ProvedeniKroku& provedeni) {
    try {
        return provedeni.zmeneneBunky();
    } catch (const AutomationError& chyba) {
        if (chyba.number() != error::subscriptOutOfRange) throw;
        provedeni.vratList();
        return std::nullopt;
    }
}

} // namespace

void Vraceni::proved(SmerKroku smer) {
    list_.zacniZapis(); // what is just being typed becomes a step of its own
    SeznamKroku* seznam = kroky_.otevrene();
    const KrokSeznamu* dalsi = seznam ? seznam->dalsi(smer) : nullptr;
    if (!dalsi) return;
    proved(smer, *seznam, KrokSeznamu(*dalsi));
    obnovPopisy();
}

void Vraceni::proved(SmerKroku smer, SeznamKroku& seznam, const KrokSeznamu& krok) {
    ProvedeniKroku provedeni(okoli_.pisen.excel(), krok.krok, smer);
    const auto zmenene = zmeneneBunky(provedeni);
    if (!zmenene) {
        seznam.zahod(smer);
        oznam(bezListu(smer, krok.krok.label));
        return;
    }
    if (!zmenene->isEmpty() &&
        okoli_.dialogs.message(dotaz(smer, krok.krok.label, *zmenene)) != Answer::Yes) {
        provedeni.vratList();
        return;
    }
    zapis(smer, seznam, provedeni);
    prejdi(krok, provedeni);
    oznam((smer == SmerKroku::Zpet ? QStringLiteral("Vráceno: %1.") : QStringLiteral("Znovu: %1."))
              .arg(vPrubehuVety(krok.krok.label)));
}

void Vraceni::zapis(SmerKroku smer, SeznamKroku& seznam, ProvedeniKroku& provedeni) {
    try {
        const JedenKrok krok(okoli_.pisen.excel());
        provedeni.proved();
    } catch (...) {
        seznam.proveden(smer, provedeni.provedeno());
        obnovPopisy();
        navigace_.sledujKurzor(); // part of it is there
        throw;
    }
    seznam.proveden(smer, provedeni.provedeno());
}

/// The player's own step is selected where he has made it.
void Vraceni::prejdi(const KrokSeznamu& krok, const ProvedeniKroku& provedeni) {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    if (excel.activeSheetName() != provedeni.list()) excel.selectSheet(provedeni.list());
    const CellRange misto = provedeni.misto();
    if (krok.hrace)
        excel.selectRange(absoluteAddress(misto));
    else
        list_.vyberRadek(misto.first.row);
    navigace_.sledujKurzor();
}

void Vraceni::oznam(const QString& veta) {
    okoli_.panel.zapsano.clear();
    okoli_.panel.upozorneni = (veta + u' ' + okoli_.panel.upozorneni).trimmed();
    okoli_.panel.oznamZmenu();
}

void Vraceni::obnovPopisy() {
    SongPanel& panel = okoli_.panel;
    const QString zpet = undoLabel();
    const QString znovu = redoLabel();
    okoli_.prikazy.povol(QStringLiteral("mnuZpet"), !zpet.isEmpty());
    okoli_.prikazy.povol(QStringLiteral("mnuZnovu"), !znovu.isEmpty());
    const QString sesit = okoli_.pisen.aktualniPisen;
    if (panel.krokZpet == zpet && panel.krokZnovu == znovu && ohlaseny_ == sesit) return;
    ohlaseny_ = sesit;
    panel.krokZpet = zpet;
    panel.krokZnovu = znovu;
    panel.oznamZmenu();
    if (okoli_.pisen.aplikaceExcel) okoli_.pisen.aplikaceExcel->stepsChanged();
}

bool Vraceni::keeps(const QString& workbook) const {
    return okoli_.pisen.otevrena() && workbook == okoli_.pisen.aktualniPisen;
}

void Vraceni::done(WorkStep step) {
    kroky_.pridej({std::move(step), true});
    obnovPopisy();
}

void Vraceni::undo() {
    udalost_([this] { mnuZpet(); });
}

void Vraceni::redo() {
    udalost_([this] { mnuZnovu(); });
}

} // namespace zvonika
