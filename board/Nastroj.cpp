#include "board/TrebleLayout.h"

#include <algorithm>
#include <array>

namespace zvonika {

namespace {

constexpr int roztec = 600; // between neighbours of a row, rows and number labels alike
constexpr int levyOkrajRad = 4200;
constexpr int pocetRad = 5;
constexpr int topRadyC = 9360; // lowest button of row C and of the outer rows
constexpr int topRadAB = 9720;

constexpr int vyskaPultonu = 200;
constexpr int vyskaPrirozene = 255;
constexpr int roztecKlaves = 240; // naturals share a border of 15 twips
constexpr int levyOkrajKlaves = 9720;
constexpr int topPrvniKlavesy = 9840;

constexpr int cislicVeSloupci = 16;
constexpr int basuVRade = 20;

// Accidentals among the twelve tones counted from button 1, which is e.
constexpr std::array<bool, 12> pultony{false, false, true,  false, true,  false,
                                       true,  false, false, true,  false, true};

// Naturals below each of these twelve tones.
constexpr std::array<int, 12> prirozenychPod{0, 1, 2, 2, 3, 3, 4, 4, 5, 6, 6, 7};

// Turning over moves the topmost button of a row down by this and each following one by 1200 less. Counted
// from row 1.
constexpr std::array<int, pocetRad> posunNejvyssiho{9000, 9600, 9000, 8400, 9000};
constexpr int posunKazdehoDalsiho = -2 * roztec;
constexpr int prvnichSestnact = 16;
constexpr int topSedmnacteho = 120; // row A has one button more, which is given its place

int topNejvyssiho(int rada) {
    constexpr std::array<int, pocetRad> topy{360, 120, 360, 720, 360};
    return topy.at(static_cast<std::size_t>(rada - 1));
}

int otocenyTop(int rada, int top) {
    const int shora = (top - topNejvyssiho(rada)) / roztec;
    if (shora == prvnichSestnact) return topSedmnacteho;
    return top + posunNejvyssiho.at(static_cast<std::size_t>(rada - 1)) + shora * posunKazdehoDalsiho;
}

Poloha vRade(int rada, int top, bool otoceno) {
    return {levyOkrajRady(rada), otoceno ? otocenyTop(rada, top) : top};
}

int prirozenychPodKlavesou(int knoflik) {
    return (knoflik - 1) / 12 * 7 + prirozenychPod.at(static_cast<std::size_t>((knoflik - 1) % 12));
}

} // namespace

bool jePulton(int knoflik) {
    return pultony.at(static_cast<std::size_t>((knoflik - 1) % 12));
}

bool maPomocny(int knoflik) {
    return knoflik > 1 && knoflik % 3 != 0;
}

int rada(int knoflik) {
    constexpr std::array<int, 3> rady{3, 2, 4}; // C, A, B
    return rady.at(static_cast<std::size_t>(knoflik % 3));
}

int radaPomocneho(int knoflik) {
    if (!maPomocny(knoflik)) return 0;
    return knoflik % 3 == 1 ? 5 : 1;
}

Poloha polohaKnofliku(int knoflik, bool otoceno) {
    const int nejnizsi = rada(knoflik) == 3 ? topRadyC : topRadAB;
    return vRade(rada(knoflik), nejnizsi - (knoflik - 1) / 3 * roztec, otoceno);
}

Poloha polohaPomocneho(int knoflik, bool otoceno) {
    const int prvni = knoflik % 3 == 1 ? 4 : 2;
    return vRade(radaPomocneho(knoflik), topRadyC - (knoflik - prvni) / 3 * roztec, otoceno);
}

int levyOkrajRady(int rada) {
    return levyOkrajRad + (pocetRad - rada) * roztec;
}

Poloha polohaCisla(int index, bool obracene) {
    const int left = index < cislicVeSloupci ? 7200 : 3840;
    if (obracene && index <= 12) return {left, 7440 - index * roztec};
    if (obracene && index <= 24) return {left, 6840 - (index - 13) * roztec};
    return {left, 9480 - index % cislicVeSloupci * roztec};
}

int textCisla(int index) {
    const int poradi = index % cislicVeSloupci;
    return std::min(poradi + 1, cislicVeSloupci - poradi);
}

Poloha polohaKlavesy(int knoflik) {
    const int top = topPrvniKlavesy - prirozenychPodKlavesou(knoflik) * roztecKlaves;
    if (!jePulton(knoflik)) return {levyOkrajKlaves, top};
    // An accidental straddles the border of its two naturals; the upper one is the next not below it.
    constexpr int hranice = (roztecKlaves + vyskaPrirozene) / 2;
    return {levyOkrajKlaves, top + hranice - vyskaPultonu / 2};
}

int sirkaKlavesy(int knoflik) {
    return jePulton(knoflik) ? 975 : 1575;
}

int vyskaKlavesy(int knoflik) {
    return jePulton(knoflik) ? vyskaPultonu : vyskaPrirozene;
}

Poloha polohaTonuKlavesy(int knoflik) {
    return {jePulton(knoflik) ? 9240 : 11400, polohaKlavesy(knoflik).top};
}

Poloha polohaBasu(int bas) {
    const int poradi = (bas - 1) % basuVRade;
    return {120 + radaBasu(bas) * roztec, 1260 + radaBasu(bas) * 150 + (basuVRade - 1 - poradi) * 300};
}

int radaBasu(int bas) {
    return (bas - 1) / basuVRade;
}

} // namespace zvonika
