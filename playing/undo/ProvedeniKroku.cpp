#include "playing/undo/ProvedeniKroku.h"

#include <algorithm>

namespace zvonika {

namespace {

constexpr int nejvetsiOkoli = 4096; ///< cells that are read at once around those of a step

/// What a step leaves in its cells, or finds there: with more than one turn of a cell the outermost.
struct Obraty {
    HodnotyBunek ma;      ///< what is said to be there
    HodnotyBunek dostane; ///< what comes there
};

Obraty obraty(std::vector<CellTurned> bunky, SmerKroku smer) {
    Obraty obraty;
    if (smer == SmerKroku::Zpet) std::reverse(bunky.begin(), bunky.end());
    for (const CellTurned& bunka : bunky) {
        const bool zpet = smer == SmerKroku::Zpet;
        obraty.ma.emplace(bunka.cell, zpet ? bunka.after : bunka.before);
        obraty.dostane.insert_or_assign(bunka.cell, zpet ? bunka.before : bunka.after);
    }
    return obraty;
}

/// The whole row as it is to be when it is taken out, or another one put in its place.
Obraty obratyRadku(const RowMoved& radek, const std::vector<CellTurned>& obsah) {
    Obraty obraty;
    for (int sloupec = 1; sloupec <= lastColumn; ++sloupec)
        obraty.ma[{radek.row, sloupec}] = CellValue();
    for (const CellTurned& bunka : obsah)
        obraty.ma[{radek.row, bunka.cell.column}] = bunka.before;
    obraty.dostane = obraty.ma;
    return obraty;
}

HodnotyBunek obsah(const RowMoved& radek) {
    HodnotyBunek bunky;
    for (const CellTurned& bunka : radek.contents)
        bunky[{radek.row, bunka.cell.column}] = bunka.before;
    return bunky;
}

void uloz(HodnotyBunek& bunky, const CellRange& misto, const CellBlock& blok) {
    for (auto& [bunka, hodnota] : bunky)
        if (misto.contains(bunka))
            hodnota = blok.at(bunka.row - misto.first.row).at(bunka.column - misto.first.column);
}

} // namespace

ProvedeniKroku::ProvedeniKroku(SpreadsheetApplication& excel, const WorkStep& krok, SmerKroku smer)
    : excel_(excel), smer_(smer), puvodniList_(excel.activeSheetName()), aktivniList_(puvodniList_) {
    rozdel(krok);
    if (smer == SmerKroku::Zpet) std::reverse(useky_.begin(), useky_.end());
}

void ProvedeniKroku::rozdel(const WorkStep& krok) {
    for (const auto& cast : krok.parts) {
        if (const auto* radek = std::get_if<RowMoved>(&cast)) {
            useky_.push_back({radek->sheet, {}, *radek, 1});
            continue;
        }
        const auto& bunka = std::get<CellTurned>(cast);
        if (useky_.empty() || useky_.back().radek || useky_.back().list != bunka.sheet)
            useky_.push_back({bunka.sheet, {}, {}, 0});
        useky_.back().bunky.push_back(bunka);
        ++useky_.back().casti;
    }
}

void ProvedeniKroku::vyber(const QString& list) {
    if (list == aktivniList_) return;
    excel_.selectSheet(list);
    aktivniList_ = list;
}

QStringList ProvedeniKroku::zmeneneBunky() {
    QStringList zmenene;
    for (Usek& usek : useky_)
        pridejZmenene(usek, zmenene);
    return zmenene;
}

void ProvedeniKroku::pridejZmenene(Usek& usek, QStringList& zmenene) {
    vyber(usek.list);
    const bool vklada = usek.radek && vlozi(*usek.radek);
    if (vklada && !usek.radek->without) return;
    const Obraty cekane = usek.radek
                              ? obratyRadku(*usek.radek, vklada ? *usek.radek->without : usek.radek->contents)
                              : obraty(usek.bunky, smer_);
    usek.ted = cti(cekane.ma);
    for (const auto& [bunka, hodnota] : usek.ted) {
        if (stejne(hodnota, cekane.ma.at(bunka)) || stejne(hodnota, cekane.dostane.at(bunka))) continue;
        zmenene.append(usek.list + u'!' + columnLetters(bunka.column) + QString::number(bunka.row));
    }
}

/// One call where the cells lie close together, otherwise one for each rectangle of them.
HodnotyBunek ProvedeniKroku::cti(const HodnotyBunek& bunky) const {
    HodnotyBunek prectene = bunky;
    const CellRange okoli = okoliBunek(bunky);
    if (qint64{okoli.rows()} * okoli.columns() <= nejvetsiOkoli) {
        uloz(prectene, okoli, excel_.readBlock(absoluteAddress(okoli)));
        return prectene;
    }
    for (const BlokBunek& blok : bloky(bunky))
        uloz(prectene, blok.misto, excel_.readBlock(absoluteAddress(blok.misto)));
    return prectene;
}

void ProvedeniKroku::proved() {
    for (Usek& usek : useky_) {
        vyber(usek.list);
        proved(usek);
        excel_.finishWriting(); // what fails belongs to this part, not to the next one
        provedeno_ += usek.casti;
    }
}

void ProvedeniKroku::proved(Usek& usek) {
    if (usek.radek) return posunRadky(*usek.radek);
    HodnotyBunek zmeny = obraty(usek.bunky, smer_).dostane;
    if (usek.ted.empty()) usek.ted = cti(zmeny);
    std::erase_if(zmeny, [&](const auto& zmena) { return stejne(zmena.second, usek.ted.at(zmena.first)); });
    zapis(zmeny);
}

void ProvedeniKroku::zapis(const HodnotyBunek& bunky) {
    for (const BlokBunek& blok : bloky(bunky))
        excel_.putBack(absoluteAddress(blok.misto), blok.hodnoty);
}

void ProvedeniKroku::posunRadky(const RowMoved& radek) {
    if (!vlozi(radek)) return excel_.deleteRow(radek.row);
    excel_.insertRow(radek.row);
    try {
        zapis(obsah(radek));
        excel_.finishWriting();
    } catch (...) {
        excel_.deleteRow(radek.row); // an empty row is no half of the step
        throw;
    }
}

QString ProvedeniKroku::list() const {
    const auto jePuvodni = [this](const Usek& usek) { return usek.list == puvodniList_; };
    return std::any_of(useky_.begin(), useky_.end(), jePuvodni) ? puvodniList_ : useky_.back().list;
}

CellRange ProvedeniKroku::misto() const {
    HodnotyBunek bunky;
    for (const Usek& usek : useky_) {
        if (usek.list != list()) continue;
        if (usek.radek) return {{usek.radek->row, 1}, {usek.radek->row, lastColumn}};
        bunky.merge(obraty(usek.bunky, smer_).ma);
    }
    return okoliBunek(bunky);
}

} // namespace zvonika
