#include "playing/recording/RadekZapisu.h"

namespace zvonika {

RadekZapisu::RadekZapisu(const Pisen& pisen) : pisen_(pisen) {
    pisen_.excel().activateWindow(pisen_.aktualniPisen);
    radek_ = pisen_.excel().activeRow();
    vyberBunkuB();
}

void RadekZapisu::zapisTony(const QStringList& tony) {
    zapis(bunka(u'B') + u':' + bunka(u'I'), tony, maxTonu + 1);
}

void RadekZapisu::prepisTony(const QStringList& tony) {
    if (tony.isEmpty()) return;
    const QChar posledni(static_cast<char16_t>(u'A' + tony.size()));
    zapis(bunka(u'B') + u':' + bunka(posledni), tony, tony.size());
}

QStringList RadekZapisu::tony() const {
    QStringList tony;
    const CellBlock blok = pisen_.excel().readBlock(bunka(u'B') + u':' + bunka(u'H'));
    for (const CellValue& hodnota : blok.constFirst()) {
        if (isEmpty(hodnota)) break;
        tony.append(cellText(hodnota));
    }
    return tony;
}

void RadekZapisu::zapisSmer(SmerMechu smer) {
    pisen_.excel().setValue(bunka(u'I'), textSmeru(smer));
}

void RadekZapisu::zapisBasy(const QStringList& basy) {
    zapis(bunka(u'M') + u':' + bunka(u'T'), basy, maxBasu + 1);
}

void RadekZapisu::zapisPrstoklad(const QString& prstoklad) {
    pisen_.excel().setValue(bunka(u'V'), prstoklad);
}

void RadekZapisu::zapisToninu(const QString& cmdStupnice) {
    // The button's idle caption is "Vyberte tóninu": a row recorded without a key says so.
    const bool vybrana = cmdStupnice != QStringLiteral("Vyberte stupnici");
    pisen_.excel().setValue(bunka(u'W'), vybrana ? CellValue(cmdStupnice) : CellValue());
}

void RadekZapisu::vyberBunkuB() const {
    pisen_.excel().selectRange(bunka(u'B'));
}

void RadekZapisu::zapis(const QString& oblast, const QStringList& texty, qsizetype bunek) {
    QVector<CellValue> bunky(bunek);
    for (qsizetype i = 0; i < texty.size(); ++i)
        bunky[i] = texty.at(i);
    pisen_.excel().writeBlock(oblast, {bunky});
}

} // namespace zvonika
