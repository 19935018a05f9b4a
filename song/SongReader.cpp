#include "song/SongReader.h"

#include "spreadsheet/Address.h"

#include <algorithm>
#include <iterator>

namespace zvonika {

namespace {

constexpr int radkuNaraz = 512; ///< hardly any song is longer

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
    QStringList texty(const Sloupce& sloupce) const {
        QStringList texty;
        for (int i = sloupce.prvni; i <= sloupce.posledni; ++i)
            if (!isEmpty(bunka(i))) texty.append(text(i));
        return texty;
    }
    bool jePrazdna(int sloupec) const { return isEmpty(bunka(sloupec)); }
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
    Grip grip{bunky.text(sloupce::slabika),   bunky.texty(sloupce::tony),
              bunky.text(sloupce::smer),      bunky.textyDoPrvniPrazdne(sloupce::basy),
              bunky.text(sloupce::prstoklad), bunky.text(sloupce::tonina)};
    grip.bezPrvnihoTonu = !grip.tony.isEmpty() && bunky.jePrazdna(sloupce::tony.prvni);
    grip.basyZaMezerou = bunky.maDalsi(sloupce::basy, grip.basy);
    return grip;
}

} // namespace

QVector<Grip> SongReader::gripy(int prvni, int pocet) const {
    QVector<Grip> gripy(pocet);
    const int posledni = std::min(prvni + pocet - 1, lastRow);
    if (posledni < prvni) return gripy;
    const CellBlock blok = pisen_.excel().readBlock(adresa(sloupce::hmat, prvni, posledni));
    std::transform(blok.cbegin(), blok.cend(), gripy.begin(), gripZBunek);
    return gripy;
}

QVector<Grip> SongReader::vsechnyHmaty() const {
    QVector<Grip> pisen;
    bool konec = false;
    for (int prvni = 1; !konec && prvni <= lastRow; prvni += radkuNaraz) {
        const QVector<Grip> hmaty = gripy(prvni, radkuNaraz);
        const auto za = std::find_if(hmaty.cbegin(), hmaty.cend(), [](const Grip& hmat) {
            return hmat.tony.isEmpty() || hmat.bezPrvnihoTonu;
        });
        std::copy(hmaty.cbegin(), za, std::back_inserter(pisen));
        konec = za != hmaty.cend();
    }
    return pisen;
}

QList<int> SongReader::radkySHmaty(int prvni) const {
    QList<int> radky;
    qsizetype predtim = -1;
    while (predtim != radky.size() && prvni <= lastRow) {
        predtim = radky.size();
        for (const Grip& hmat : gripy(prvni, radkuNaraz)) {
            if (!hmat.prazdny() || smerMechu(hmat.smer) != SmerMechu::Neuveden) radky.append(prvni);
            ++prvni;
        }
    }
    return radky;
}

QStringList SongReader::tonyDoMezery(int radek) const {
    const CellBlock blok = pisen_.excel().readBlock(adresa(sloupce::hmat, radek));
    return Bunky(blok.constFirst()).textyDoPrvniPrazdne(sloupce::tony);
}

VyrezPisne SongReader::kolemKurzoru() const {
    const int radek = aktualniRadek();
    return kolem(radek, radek, radek);
}

VyrezPisne SongReader::kolem(int radek, int prvni, int posledni) const {
    const int od = std::max(1, std::min(prvni, radek - sousedu));
    const int po = std::max(posledni, radek + sousedu);
    return {radek, od, gripy(od, po - od + 1)};
}

SmerMechu SongReader::smer(int radek) const {
    return smerMechu(cellText(pisen_.excel().value(adresa(sloupce::smer, radek))));
}

int SongReader::aktualniRadek() const {
    return pisen_.excel().activeRow();
}

} // namespace zvonika
