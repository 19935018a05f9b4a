#include "song/SongSheet.h"

#include "spreadsheet/Address.h"

#include <algorithm>

namespace zvonika {

namespace {

// Places of the columns in a block that begins in column A.
constexpr int sloupecA = 0;
constexpr int sloupecB = 1;
constexpr int sloupecI = 8;
constexpr int sloupecM = 12;
constexpr int sloupecV = 21;
constexpr int sloupecW = 22;

QStringList textyDoPrvniPrazdne(const QVector<CellValue>& bunky, int prvni, int nejvys) {
    QStringList texty;
    for (int i = prvni; i < prvni + nejvys && !isEmpty(bunky.at(i)); ++i)
        texty.append(cellText(bunky.at(i)));
    return texty;
}

bool dalsiZaMezerou(const QVector<CellValue>& bunky, int prvni, int nejvys, const QStringList& precteno) {
    return std::any_of(bunky.cbegin() + prvni + precteno.size(), bunky.cbegin() + prvni + nejvys,
                       [](const CellValue& bunka) { return !isEmpty(bunka); });
}

Grip gripZBunek(const QVector<CellValue>& bunky) {
    Grip grip{cellText(bunky.at(sloupecA)), textyDoPrvniPrazdne(bunky, sloupecB, maxTonu),
              cellText(bunky.at(sloupecI)), textyDoPrvniPrazdne(bunky, sloupecM, maxBasu),
              cellText(bunky.at(sloupecV)), cellText(bunky.at(sloupecW))};
    grip.tonyZaMezerou = dalsiZaMezerou(bunky, sloupecB, maxTonu, grip.tony);
    grip.basyZaMezerou = dalsiZaMezerou(bunky, sloupecM, maxBasu, grip.basy);
    return grip;
}

} // namespace

SpreadsheetApplication& Pisen::excel() const {
    if (!aplikaceExcel)
        throw AutomationError(error::objectNotSet, QStringLiteral("Tabulková aplikace není spuštěna."));
    return *aplikaceExcel;
}

bool Pisen::AktivujPisen() const {
    try {
        excel().activateWindow(aktualniPisen);
        return true;
    } catch (const AutomationError&) {
        return false;
    }
}

QVector<Grip> SongSheet::gripy(int prvni, int pocet) const {
    QVector<Grip> gripy(pocet);
    const int posledni = std::min(prvni + pocet - 1, lastRow);
    if (posledni < prvni) return gripy;
    const CellBlock blok = pisen_.excel().readBlock(QStringLiteral("A%1:W%2").arg(prvni).arg(posledni));
    std::transform(blok.cbegin(), blok.cend(), gripy.begin(), gripZBunek);
    return gripy;
}

int SongSheet::aktualniRadek() const {
    return pisen_.excel().activeRow();
}

void SongSheet::VyberBunkuB() const {
    vyberRadek(aktualniRadek());
}

void SongSheet::vyberRadek(int radek) const {
    pisen_.excel().selectRange(QStringLiteral("B%1").arg(radek));
}

} // namespace zvonika
