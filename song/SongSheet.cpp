#include "song/SongSheet.h"

namespace zvonika {

int SongSheet::zacniZapis() {
    pisen_.excel().activateWindow(pisen_.aktualniPisen);
    return VyberBunkuB();
}

void SongSheet::zapis(int radek, const Grip& hmat, std::initializer_list<CastHmatu> casti) {
    for (const CastHmatu cast : casti)
        zapisCast(radek, hmat, cast);
}

void SongSheet::zapisCast(int radek, const Grip& hmat, CastHmatu cast) {
    switch (cast) {
    case CastHmatu::Tony:
        return zapisTexty({sloupce::tony.prvni, sloupce::smer}, radek, hmat.tony);
    case CastHmatu::Smer:
        return pisen_.excel().setValue(adresa(sloupce::smer, radek), hmat.smer);
    case CastHmatu::Basy:
        return zapisTexty({sloupce::basy.prvni, sloupce::zaBasy}, radek, hmat.basy);
    case CastHmatu::Prstoklad:
        return pisen_.excel().setValue(adresa(sloupce::prstoklad, radek), hmat.prstoklad);
    case CastHmatu::Tonina:
        return pisen_.excel().setValue(adresa(sloupce::tonina, radek), hmat.tonina);
    }
}

void SongSheet::prepisTony(int radek, const QStringList& tony) {
    if (tony.isEmpty()) return;
    const int posledni = sloupce::tony.prvni + static_cast<int>(tony.size()) - 1;
    zapisTexty({sloupce::tony.prvni, posledni}, radek, tony);
}

void SongSheet::zapisTexty(const Sloupce& sloupce, int radek, const QStringList& texty) {
    QVector<CellValue> bunky(sloupce.pocet());
    for (qsizetype i = 0; i < texty.size(); ++i)
        bunky[i] = texty.at(i);
    pisen_.excel().writeBlock(adresa(sloupce, radek), {bunky});
}

int SongSheet::VyberBunkuB() {
    const int radek = aktualniRadek();
    vyberRadek(radek);
    return radek;
}

void SongSheet::vyberRadek(int radek) {
    pisen_.excel().selectRange(adresa(sloupce::tony.prvni, radek));
}

} // namespace zvonika
