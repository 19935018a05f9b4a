#pragma once

#include <QColor>
#include <QSize>

namespace zvonika {

/// What a part of the board is made of.
enum class TvarPrvku { Kolo, Pilulka, BilaKlavesa, CernaKlavesa };

/// What it says. Each state has a mark of its own besides its colour.
enum class VyznamPrvku { Volny, Oznaceny, Tah, Tlak, Interval };

/// Tactile mark of a bass button.
enum class HmatovaZnacka { Zadna, Mriz, Dulek };

/// Everything a drawn part looks like; equal values share one picture.
struct PodobaPrvku {
    TvarPrvku tvar = TvarPrvku::Kolo;
    VyznamPrvku vyznam = VyznamPrvku::Volny;
    bool tmavy = false;    ///< dark button or, with BilaKlavesa, the key in window background
    bool popsany = false;  ///< a caption stands on it: the mark moves aside
    bool obtazeny = false; ///< marked behind the state it shows: red rim
    HmatovaZnacka hmat = HmatovaZnacka::Zadna;
    QSize velikost; ///< of the picture in device independent pixels

    friend bool operator==(const PodobaPrvku&, const PodobaPrvku&) = default;
};

/// Colours of one state: the face and the mark or caption drawn on it.
struct BarvyPrvku {
    QColor lic;
    QColor znak;
};

BarvyPrvku barvyKnofliku(VyznamPrvku vyznam, bool tmavy);
/// Colour of the caption; the interval's square lies under it.
QColor barvaNapisu(const PodobaPrvku& podoba);
BarvyPrvku barvyKlavesy(VyznamPrvku vyznam, bool cerna);

namespace barvy {
inline constexpr QColor oznaceni{214, 40, 34};
inline constexpr QColor oznacenaKlavesa{255, 0, 0};
inline constexpr QColor okrajZnaku{40, 0, 0};   ///< around the mark of a marked key
inline constexpr QColor zamereni{255, 196, 64}; ///< focus ring
} // namespace barvy

} // namespace zvonika
