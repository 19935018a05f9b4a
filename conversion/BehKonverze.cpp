#include "conversion/BehKonverze.h"

#include "spreadsheet/Address.h"
#include "theory/NazvyTonu.h"
#include "theory/Toniny.h"

#include <algorithm>

namespace zvonika {

namespace {

bool jeSmer(const CellValue& hodnota) {
    const QString text = cellText(hodnota);
    return text == u"Tah" || text == u"Tlak";
}

/// As the lookup of a tone takes it: "C Dur" is one too.
bool jeTonina(QString text) {
    text.replace(QStringLiteral("Dur"), QStringLiteral("dur"), Qt::CaseInsensitive);
    return std::any_of(toniny.begin(), toniny.end(),
                       [&](const DurovaTonina& tonina) { return tonina.nazev == text; });
}

bool jeTonNastroje(const QString& ton) {
    return cisloTonu(ToneName(ton)).jeVRozsahu();
}

} // namespace

KonecBehu BehKonverze::odZacatku() {
    for (;;) {
        adresa_ = excel().activeAddress();
        if (!isEmpty(excel().activeCellValue())) {
            if (const auto konec = overStupnici()) return *konec;
            if (const auto konec = prevedBunku()) return *konec;
        } else if (!lzePreskocit()) {
            return KonecBehu::Dokoncen;
        }
        if (const auto konec = posunVpravo()) return *konec;
    }
}

KonecBehu BehKonverze::odAktivniBunky() {
    adresa_ = excel().activeAddress();
    if (const auto konec = prevedBunku()) return *konec;
    if (const auto konec = posunVpravo()) return *konec;
    return odZacatku();
}

/// Behind the tones of a small grip the row goes on with its direction; an empty first cell is the song's
/// end.
bool BehKonverze::lzePreskocit() const {
    const auto misto = parseAddress(adresa_);
    if (!misto || misto->first.column <= sloupce::tony.prvni || misto->first.column >= sloupce::smer)
        return false;
    return jeSmer(excel().value(adresa(sloupce::smer, misto->first.row)));
}

std::optional<KonecBehu> BehKonverze::overStupnici() {
    const int radek = excel().activeRow();
    const QString nova = cellText(excel().value(adresa(sloupce::tonina, radek)));
    if (nova == o_.stav.lblStupnice) return std::nullopt;
    const QString odpoved = o_.konverze.ZmenaLadeni(o_.stav.lblStupnice, nova, QString::number(radek));
    if (odpoved == odpovediZmeny::storno) return KonecBehu::Storno;
    o_.stav.lblStupnice = nova;
    o_.stav.oznamZmenu();
    if (odpoved == odpovediZmeny::zmenit) return KonecBehu::ZmenaStupnice;
    return std::nullopt;
}

std::optional<KonecBehu> BehKonverze::prevedBunku() {
    if (o_.stav.lblStupnice.isEmpty()) {
        o_.dialogs.message(
            {QStringLiteral("Neúplné údaje."),
             QStringLiteral("Není uvedeno ladění zdrojového řádku. Konverze bude předčasně ukončena."),
             Icon::Critical});
        return KonecBehu::BezLadeni;
    }
    const CellValue puvodni = excel().value(adresa_);
    const auto novy = o_.konverze.Konvertuj(o_.stav.lblStupnice, cilova_, cellText(puvodni));
    excel().activateWindow(o_.pisen.aktualniPisen);
    // Not to the active cell: a click into the spreadsheet may have moved it meanwhile.
    excel().setValue(adresa_, novy ? CellValue(*novy) : CellValue());
    zaznamenejZtratu(puvodni, novy.value_or(QString()));
    return std::nullopt;
}

void BehKonverze::zaznamenejZtratu(const CellValue& puvodni, const QString& novy) {
    o_.ztraty.nastavChybuTabulky(o_.konverze.chybaTabulky());
    if (isEmpty(puvodni)) return;
    if (novy.isEmpty())
        zaznamenejPrazdnou();
    else if (!jeTonNastroje(novy))
        o_.ztraty.pridejMimoNastroj(excel().activeRow());
}

void BehKonverze::zaznamenejPrazdnou() {
    const int radek = excel().activeRow();
    const QString& zdrojova = o_.stav.lblStupnice;
    const auto misto = parseAddress(adresa_);
    if (misto && misto->first.column == sloupce::tony.prvni) o_.ztraty.pridejNejnizsi(radek);
    if (jeTonina(zdrojova))
        o_.ztraty.pridejBezProtejsku(radek);
    else
        o_.ztraty.pridejBezToniny(radek, zdrojova);
}

/// On the direction the row is done: it gets its new key and the next one follows.
std::optional<KonecBehu> BehKonverze::posunVpravo() {
    const auto misto = parseAddress(adresa_);
    if (!misto) throw AutomationError(error::applicationDefined);
    excel().selectRange(absoluteAddress(CellPosition{misto->first.row, misto->first.column + 1}));
    if (!jeSmer(excel().activeCellValue())) return std::nullopt;
    const int radek = excel().activeRow();
    excel().setValue(adresa(sloupce::tonina, radek), cilova_);
    excel().selectRange(adresa(sloupce::tony.prvni, radek + 1));
    if (o_.poRadku(radek)) return std::nullopt;
    return KonecBehu::Zastaven;
}

} // namespace zvonika
