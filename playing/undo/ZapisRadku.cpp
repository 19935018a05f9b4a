#include "playing/undo/ZapisRadku.h"

#include "song/SloupceRadku.h"

#include <algorithm>

namespace zvonika {

namespace {

bool jeHmatu(int sloupec) {
    const auto v = [sloupec](int prvni, int posledni) { return sloupec >= prvni && sloupec <= posledni; };
    return v(sloupce::tony.prvni, sloupce::smer) || v(sloupce::basy.prvni, sloupce::zaBasy);
}

bool vyprazdnilaHmat(const WorkStep& krok) {
    return std::any_of(krok.parts.begin(), krok.parts.end(), [](const auto& cast) {
        const auto& bunka = std::get<CellTurned>(cast);
        return jeHmatu(bunka.cell.column) && !isEmpty(bunka.before) && isEmpty(bunka.after);
    });
}

} // namespace

QString popisZapisu(int radek) {
    return QStringLiteral("Zápis hmatu %1").arg(radek);
}

QString popisSmazani(int radek) {
    return QStringLiteral("Smazání hmatu %1").arg(radek);
}

ZapisRadku::ZapisRadku(Pisen& pisen, SeznamyKroku& kroky, int radek)
    : pisen_(pisen), kroky_(kroky), radek_(radek), list_(pisen.excel().activeSheetName()),
      predtim_(pisen.excel().readBlock(adresa(sloupce::hmat, radek))) {
    krok_.emplace(pisen.excel());
}

ZapisRadku::~ZapisRadku() {
    if (!krok_) return;
    try {
        dokonci(popisZapisu(radek_));
    } catch (const std::exception&) {
        // The failure that has led here is being told; what was written stays out of the list.
    }
}

bool ZapisRadku::dokonci(const QString& popis) {
    WorkStep krok = zmeny(popis);
    krok_.reset();
    const bool vyprazdnila = vyprazdnilaHmat(krok);
    kroky_.pridej({std::move(krok), false});
    return vyprazdnila;
}

/// As the sheet shows it now, not as it was written: an application may make something else of a text.
WorkStep ZapisRadku::zmeny(const QString& popis) const {
    WorkStep krok{popis, {}};
    const CellBlock potom = pisen_.excel().readBlock(adresa(sloupce::hmat, radek_));
    for (CellTurned& bunka : rozdily(list_, {radek_, sloupce::hmat.prvni}, predtim_, potom))
        krok.parts.emplace_back(std::move(bunka));
    return krok;
}

} // namespace zvonika
