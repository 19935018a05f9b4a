#include "board/Nastroj.h"

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

constexpr int pocetTonu = 49;
constexpr int cislicVeSloupci = 16;
constexpr int radBasu = 6;
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

Nastroj::Misto misto(int rada, int top) {
    const int left = levyOkrajRad + (pocetRad - rada) * roztec;
    return {rada, {left, top}, {left, otocenyTop(rada, top)}};
}

bool jePulton(int n) {
    return pultony.at(static_cast<std::size_t>((n - 1) % 12));
}

Nastroj::Misto hlavni(int n) {
    constexpr std::array<int, 3> rady{3, 2, 4}; // C, A, B
    const int rada = rady.at(static_cast<std::size_t>(n % 3));
    return misto(rada, (rada == 3 ? topRadyC : topRadAB) - (n - 1) / 3 * roztec);
}

std::optional<Nastroj::Misto> pomocny(int n) {
    if (n == 1 || n % 3 == 0) return std::nullopt;
    const bool vlevo = n % 3 == 1;
    return misto(vlevo ? 5 : 1, topRadyC - (n - (vlevo ? 4 : 2)) / 3 * roztec);
}

int prirozenychPodKlavesou(int n) {
    return (n - 1) / 12 * 7 + prirozenychPod.at(static_cast<std::size_t>((n - 1) % 12));
}

Nastroj::Klavesa klavesa(int n) {
    const int top = topPrvniKlavesy - prirozenychPodKlavesou(n) * roztecKlaves;
    if (!jePulton(n)) return {{levyOkrajKlaves, top}, 1575, vyskaPrirozene, {11400, top}};
    // An accidental straddles the border of its two naturals; the upper one is the next not below it.
    const int topPultonu = top + (roztecKlaves + vyskaPrirozene) / 2 - vyskaPultonu / 2;
    return {{levyOkrajKlaves, topPultonu}, 975, vyskaPultonu, {9240, topPultonu}};
}

// The labels 0..12 and 13..24 take descending places.
int obracenyTop(int index, int top) {
    if (index <= 12) return 7440 - index * roztec;
    return index <= 24 ? 6840 - (index - 13) * roztec : top;
}

// "1" to "8" upward and "8" down to "1"
Nastroj::Cislo cislo(int index) {
    const int left = index < cislicVeSloupci ? 7200 : 3840;
    const int poradi = index % cislicVeSloupci;
    const int top = 9480 - poradi * roztec;
    return {{left, top}, {left, obracenyTop(index, top)}, std::min(poradi + 1, cislicVeSloupci - poradi)};
}

ObrazBasu obrazBasu(int n) {
    if (n == 30) return ObrazBasu::C;
    return n == 26 || n == 34 ? ObrazBasu::Mriz : ObrazBasu::Bezny;
}

// Vertical runs, the lowest number at the bottom.
Nastroj::Bas bas(int n) {
    const int rada = (n - 1) / basuVRade;
    const int shora = basuVRade - 1 - (n - 1) % basuVRade;
    return {rada, {120 + rada * roztec, 1260 + rada * 150 + shora * 300}, obrazBasu(n)};
}

} // namespace

Nastroj nastrojZvonika() {
    Nastroj nastroj;
    nastroj.pocetRad = pocetRad;
    nastroj.basuVRade = basuVRade;
    nastroj.sirkaKnofliku = 600;
    nastroj.vyskaKnofliku = 570;
    nastroj.klikaciPlocha = 615;
    nastroj.zastavkaDiskantu = 9; // c1
    nastroj.zastavkaBasu = 30;    // C
    nastroj.vyjimecnaKlavesa = 28;
    for (int n = 1; n <= pocetTonu; ++n) {
        nastroj.knofliky.push_back({jePulton(n), hlavni(n), pomocny(n)});
        nastroj.klavesy.push_back(klavesa(n));
    }
    for (int index = 0; index < 2 * cislicVeSloupci; ++index)
        nastroj.cisla.push_back(cislo(index));
    for (int n = 1; n <= radBasu * basuVRade; ++n)
        nastroj.basy.push_back(bas(n));
    return nastroj;
}

} // namespace zvonika
