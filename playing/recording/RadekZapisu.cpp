#include "playing/recording/RadekZapisu.h"

namespace zvonika {

RadekZapisu::RadekZapisu(const Pisen& pisen) : pisen_(pisen) {
    pisen_.excel().activateWindow(pisen_.aktualniPisen);
    radek_ = pisen_.excel().activeRow();
    vyberBunkuB();
}

void RadekZapisu::zapisTony(const QStringList& tony) {
    zapis(adresa(Sloupce{sloupce::tony.prvni, sloupce::smer}, radek_), tony, maxTonu + 1);
}

void RadekZapisu::prepisTony(const QStringList& tony) {
    if (tony.isEmpty()) return;
    const int posledni = sloupce::tony.prvni + static_cast<int>(tony.size()) - 1;
    zapis(adresa(Sloupce{sloupce::tony.prvni, posledni}, radek_), tony, tony.size());
}

QStringList RadekZapisu::tony() const {
    QStringList tony;
    const CellBlock blok = pisen_.excel().readBlock(adresa(sloupce::tony, radek_));
    for (const CellValue& hodnota : blok.constFirst()) {
        if (isEmpty(hodnota)) break;
        tony.append(cellText(hodnota));
    }
    return tony;
}

void RadekZapisu::zapisSmer(SmerMechu smer) {
    pisen_.excel().setValue(adresa(sloupce::smer, radek_), textSmeru(smer));
}

void RadekZapisu::zapisBasy(const QStringList& basy) {
    zapis(adresa(Sloupce{sloupce::basy.prvni, sloupce::zaBasy}, radek_), basy, maxBasu + 1);
}

void RadekZapisu::zapisPrstoklad(const QString& prstoklad) {
    pisen_.excel().setValue(adresa(sloupce::prstoklad, radek_), prstoklad);
}

void RadekZapisu::zapisToninu(const QString& cmdStupnice) {
    // The button's idle caption is "Vyberte tóninu": a row recorded without a key says so.
    const bool vybrana = cmdStupnice != QStringLiteral("Vyberte stupnici");
    pisen_.excel().setValue(adresa(sloupce::tonina, radek_), vybrana ? CellValue(cmdStupnice) : CellValue());
}

void RadekZapisu::vyberBunkuB() const {
    pisen_.excel().selectRange(adresa(sloupce::tony.prvni, radek_));
}

void RadekZapisu::zapis(const QString& oblast, const QStringList& texty, qsizetype bunek) {
    QVector<CellValue> bunky(bunek);
    for (qsizetype i = 0; i < texty.size(); ++i)
        bunky[i] = texty.at(i);
    pisen_.excel().writeBlock(oblast, {bunky});
}

} // namespace zvonika
