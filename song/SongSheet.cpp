#include "song/SongSheet.h"

#include "spreadsheet/Address.h"

#include <algorithm>

namespace zvonika {

namespace {

/// A row of the sheet as a block read of `sloupce::hmat` brings it.
class Bunky {
public:
    explicit Bunky(const QVector<CellValue>& radek) : radek_(radek) {}

    QString text(int sloupec) const { return cellText(bunka(sloupec)); }
    QStringList textyDoPrvniPrazdne(const Sloupce& sloupce) const {
        QStringList texty;
        for (int i = sloupce.prvni; i <= sloupce.posledni && !isEmpty(bunka(i)); ++i)
            texty.append(text(i));
        return texty;
    }
    bool maDalsi(const Sloupce& sloupce, const QStringList& precteno) const {
        int i = sloupce.prvni + static_cast<int>(precteno.size());
        while (i <= sloupce.posledni && isEmpty(bunka(i)))
            ++i;
        return i <= sloupce.posledni;
    }

private:
    const CellValue& bunka(int sloupec) const { return radek_.at(sloupec - sloupce::hmat.prvni); }

    const QVector<CellValue>& radek_;
};

Grip gripZBunek(const QVector<CellValue>& radek) {
    const Bunky bunky(radek);
    Grip grip{bunky.text(sloupce::slabika),   bunky.textyDoPrvniPrazdne(sloupce::tony),
              bunky.text(sloupce::smer),      bunky.textyDoPrvniPrazdne(sloupce::basy),
              bunky.text(sloupce::prstoklad), bunky.text(sloupce::tonina)};
    grip.tonyZaMezerou = bunky.maDalsi(sloupce::tony, grip.tony);
    grip.basyZaMezerou = bunky.maDalsi(sloupce::basy, grip.basy);
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
    const CellBlock blok = pisen_.excel().readBlock(adresa(sloupce::hmat, prvni, posledni));
    std::transform(blok.cbegin(), blok.cend(), gripy.begin(), gripZBunek);
    return gripy;
}

SmerMechu SongSheet::smer(int radek) const {
    return smerMechu(cellText(pisen_.excel().value(adresa(sloupce::smer, radek))));
}

int SongSheet::aktualniRadek() const {
    return pisen_.excel().activeRow();
}

void SongSheet::VyberBunkuB() const {
    vyberRadek(aktualniRadek());
}

void SongSheet::vyberRadek(int radek) const {
    pisen_.excel().selectRange(adresa(sloupce::tony.prvni, radek));
}

} // namespace zvonika
