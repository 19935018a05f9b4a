#include "conversion/KonverzeBasu.h"

#include "platform/Contact.h"

namespace zvonika {

namespace {

constexpr int pokusu = 5;

QString oblastTabulky(const QString& smer) {
    if (smer == u"Tlak") return QStringLiteral("F1:F17");
    return smer == u"Tah" ? QStringLiteral("G1:G17") : QString();
}

Message chyba(const QString& text) {
    return {QStringLiteral("Neočekávaná chyba."), text, Icon::Critical};
}

Message chybiSmer() {
    return chyba(
        QStringLiteral("Chybí záznam o směru tahu měchu. Konverze basů do jiného ladění bude předčasně "
                       "ukončena."));
}

/// Speaks of four attempts though there are five, on purpose.
Message nenalezen(const QString& bas) {
    return chyba(QStringLiteral("Ani napočtvrté se nepodařilo překonvertovat basový tón ") + bas +
                 QStringLiteral(". Konverze nebude dokončena. Odešlete prosím zdrojový i výsledný soubor "
                                "(písničku) k autorovi programu ") +
                 adresaAutora +
                 QStringLiteral(", aby mohla být zjištěna příčina chyby a zaslána Vám opravená verze."));
}

} // namespace

bool KonverzeBasu::AktivujZdroj() {
    try {
        pisen_.excel().activateWindow(pisen_.cilovyListNazev);
    } catch (const AutomationError&) {
    }
    return true;
}

bool KonverzeBasu::KonvertujBasy(const QString& smer, const QString& list) {
    SpreadsheetApplication& excel = pisen_.excel();
    excel.selectRange(adresa(sloupce::basy.prvni, excel.activeRow()));
    const QString oblast = oblastTabulky(smer);
    if (oblast.isEmpty()) {
        AktivujZdroj();
        dialogs_.message(chybiSmer());
        return false;
    }
    for (int i = 0; i < maxBasu; ++i)
        if (!konvertujBas(oblast, list)) return false;
    return true;
}

bool KonverzeBasu::konvertujBas(const QString& oblast, const QString& list) {
    SpreadsheetApplication& excel = pisen_.excel();
    const QString bas = cellText(excel.activeCellValue());
    AktivujZdroj();
    excel.selectRange(oblast);
    if (!najdiBas(bas)) {
        dialogs_.message(nenalezen(bas));
        return false;
    }
    const CellValue novy = protejsek(list);
    excel.activateWindow(pisen_.aktualniPisen);
    excel.setActiveCellValue(novy);
    excel.moveCursor(0, 1);
    return true;
}

/// A find may be part of another name; the search then goes on from there.
bool KonverzeBasu::najdiBas(const QString& bas) {
    SpreadsheetApplication& excel = pisen_.excel();
    for (int pokus = 0; pokus < pokusu; ++pokus) {
        try {
            excel.findAndActivate({.what = bas});
        } catch (const AutomationError& selhani) {
            if (selhani.number() != error::objectNotSet) throw;
            return false; // not even part of a name
        }
        if (cellText(excel.activeCellValue()) == bas) return true;
    }
    return false;
}

CellValue KonverzeBasu::protejsek(const QString& list) {
    SpreadsheetApplication& excel = pisen_.excel();
    const QString adresa = excel.activeAddress();
    const QString tabulka = excel.activeSheetName();
    excel.selectSheet(list);
    const CellValue hodnota = excel.value(adresa);
    excel.selectSheet(tabulka);
    return hodnota;
}

} // namespace zvonika
