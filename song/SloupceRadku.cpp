#include "song/SloupceRadku.h"

#include "spreadsheet/Address.h"

namespace zvonika {

QString adresa(int sloupec, int radek) {
    return columnLetters(sloupec) + QString::number(radek);
}

QString adresa(const Sloupce& sloupce, int radek) {
    return adresa(sloupce, radek, radek);
}

QString adresa(const Sloupce& sloupce, int prvniRadek, int posledniRadek) {
    return adresa(sloupce.prvni, prvniRadek) + u':' + adresa(sloupce.posledni, posledniRadek);
}

QString adresaSloupce(int sloupec, int posledniRadek) {
    return adresa(Sloupce{sloupec, sloupec}, 1, posledniRadek);
}

} // namespace zvonika
