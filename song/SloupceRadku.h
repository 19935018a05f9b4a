#pragma once

#include <QString>

namespace zvonika {

/// Neighbouring columns, both ends included.
struct Sloupce {
    int prvni;
    int posledni;

    constexpr int pocet() const { return posledni - prvni + 1; }
};

/// The columns of a song row, one grip a row; A counts as 1. J to L and U belong to nobody and stay as they
/// are.
namespace sloupce {
constexpr int slabika = 1;         ///< A
constexpr Sloupce tony{2, 8};      ///< B to H, treble tones; the cursor stands in B
constexpr int smer = 9;            ///< I, direction of the bellows
constexpr Sloupce basy{13, 19};    ///< M to S
constexpr int zaBasy = 20;         ///< T, emptied together with the basses
constexpr int prstoklad = 22;      ///< V
constexpr int tonina = 23;         ///< W, key in which the row is written; that of row 1 is the song's
constexpr Sloupce hmat{1, tonina}; ///< A to W, everything that a grip consists of
} // namespace sloupce

constexpr int maxTonu = sloupce::tony.pocet();
constexpr int maxBasu = sloupce::basy.pocet();

QString adresa(int sloupec, int radek);                                    ///< "B7"
QString adresa(const Sloupce& sloupce, int radek);                         ///< "B7:H7"
QString adresa(const Sloupce& sloupce, int prvniRadek, int posledniRadek); ///< "A3:W18"
/// One column of rows 1 to `posledni`: "B1:B500".
QString adresaSloupce(int sloupec, int posledniRadek);

} // namespace zvonika
