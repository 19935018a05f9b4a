#include "playing/recording/RadkyHmatu.h"

#include "playing/stepping/Listy.h"
#include "playing/undo/ZapisRadku.h"

#include <utility>

namespace zvonika {

namespace {

constexpr int radkuHledani = 500; ///< in which the beginning of the song is looked for

/// "ve 2 listech"; nothing of a single one.
QString vListech(int pocet) {
    if (pocet < 2) return {};
    const bool ve = pocet < 5 || (pocet > 11 && pocet < 15) || pocet > 19;
    return (ve ? QStringLiteral(" ve %1 listech") : QStringLiteral(" v %1 listech")).arg(pocet);
}

std::vector<CellTurned> obsahRadku(SpreadsheetApplication& excel, const QString& list, int radek) {
    const CellRange cely{{radek, 1}, {radek, lastColumn}};
    const CellBlock bunky = excel.readBlock(absoluteAddress(cely));
    return rozdily(list, cely.first, bunky, {QVector<CellValue>(lastColumn)});
}

} // namespace

void RadkyHmatu::mnuVlozitHmat() {
    const int radek = list_.zacniZapis();
    const int listu = zmenListy(true, radek, QStringLiteral("Vložení hmatu %1").arg(radek));
    if (listu > 0)
        oznam(QStringLiteral("Na řádek %1 je vložen prázdný hmat%2. Ctrl+Z ho zase odebere.")
                  .arg(radek)
                  .arg(vListech(listu)));
    else
        oznam(QStringLiteral("Na tomto listu žádný hmat není, není před co vkládat."));
}

void RadkyHmatu::mnuSmazatHmat() {
    const int radek = list_.zacniZapis();
    const int listu = zmenListy(false, radek, popisSmazani(radek));
    if (listu > 0)
        oznam(QStringLiteral("Hmat %1 smazán%2. Ctrl+Z ho vrátí.").arg(radek).arg(vListech(listu)));
    else
        oznam(QStringLiteral("Na tomto listu žádný hmat není, není co smazat."));
}

/// In how many sheets it was done.
int RadkyHmatu::zmenListy(bool vlozit, int radek, const QString& popis) {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    const QString aktivni = excel.activeSheetName();
    WorkStep krok{popis, {}};
    try {
        const QStringList listy = listyPisne(aktivni);
        const JedenKrok jeden(excel);
        for (const QString& list : listy)
            krok.parts.emplace_back(posun(vlozit, list, radek));
        excel.finishWriting();
    } catch (...) {
        vezmiZpet(krok);
        excel.selectSheet(aktivni);
        throw;
    }
    excel.selectSheet(aktivni);
    list_.vyberRadek(radek);
    const int listu = static_cast<int>(krok.parts.size());
    kroky_.pridej({std::move(krok), false});
    navigace_.sledujKurzor();
    return listu;
}

QStringList RadkyHmatu::listyPisne(const QString& aktivni) {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    const int zacatek = prvniRadek();
    if (zacatek == 0) return {};
    QStringList listy;
    for (const QString& list : nazvyListu(excel)) {
        if (list != aktivni) excel.selectSheet(list);
        const int prvni = list == aktivni ? zacatek : prvniRadek();
        if (prvni == 1 || prvni == zacatek) listy.append(list);
    }
    return listy;
}

/// The first row of the active sheet with a tone in column B; 0 where there is none.
int RadkyHmatu::prvniRadek() {
    const CellBlock sloupec =
        okoli_.pisen.excel().readBlock(adresaSloupce(sloupce::tony.prvni, radkuHledani));
    for (int i = 0; i < sloupec.size(); ++i)
        if (!isEmpty(sloupec.at(i).constFirst())) return i + 1;
    return 0;
}

RowMoved RadkyHmatu::posun(bool vlozit, const QString& list, int radek) {
    SpreadsheetApplication& excel = okoli_.pisen.excel();
    excel.selectSheet(list);
    RowMoved posun{list, radek, vlozit, {}};
    if (vlozit) {
        posun.without = obsahRadku(excel, list, radek);
        excel.insertRow(radek);
    } else {
        posun.contents = obsahRadku(excel, list, radek);
        excel.deleteRow(radek);
        posun.without = obsahRadku(excel, list, radek);
    }
    return posun;
}

/// The failure that has led here is what the player is told.
void RadkyHmatu::vezmiZpet(const WorkStep& krok) {
    try {
        const JedenKrok jeden(okoli_.pisen.excel());
        ProvedeniKroku(okoli_.pisen.excel(), krok, SmerKroku::Zpet).proved();
    } catch (const std::exception&) {
        kroky_.pridej({krok, false}); // what can be taken back later
    }
}

void RadkyHmatu::oznam(const QString& veta) {
    okoli_.panel.upozorneni = (veta + u' ' + okoli_.panel.upozorneni).trimmed();
    okoli_.panel.oznamZmenu();
}

} // namespace zvonika
