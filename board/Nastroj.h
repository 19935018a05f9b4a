#pragma once

#include <optional>
#include <vector>

namespace zvonika {

/// Top left corner in twips (1/1440 inch, 15 to a pixel at 96 dpi), Y grows downward.
struct Poloha {
    int left = 0;
    int top = 0;
    friend bool operator==(const Poloha&, const Poloha&) = default;
};

/// Free picture of a bass button, as its tactile mark is felt.
enum class ObrazBasu { Bezny, Mriz, C };

/// What an instrument is like: which buttons, keys and basses it has and where they stand. It is made once
/// and handed to the models; who shows or counts buttons asks theirs. Lengths are twips. Buttons, keys and
/// basses are numbered from 1, number labels from 0; a number beyond the last one is a programming error.
struct Nastroj {
    struct Misto {
        int rada = 0; ///< 1..`pocetRad`, as the row covers are counted: from the right
        Poloha poloha;
        Poloha otocena; ///< on the board that is turned over, where every row runs the other way
        const Poloha& kde(bool otoceno) const { return otoceno ? otocena : poloha; }
    };
    struct Knoflik {
        bool pulton = false; ///< an accidental: dark
        Misto hlavni;
        std::optional<Misto> pomocny; ///< the second button of the same tone, in an outer row
    };
    /// Piano key of a treble button.
    struct Klavesa {
        Poloha poloha;
        int sirka = 0;
        int vyska = 0;
        Poloha ton; ///< its label lblTonKlav
    };
    /// Number label beside the treble board.
    struct Cislo {
        Poloha poloha;
        Poloha obracena; ///< in the reversed layout, where some lie on top of others
        int text = 0;    ///< the same on the board turned over
    };
    struct Bas {
        int rada = 0; ///< 0..5: counter-bass, fundamental, major, minor, seventh, diminished
        Poloha poloha;
        ObrazBasu obraz = ObrazBasu::Bezny;
    };

    int pocetKnofliku() const { return static_cast<int>(knofliky.size()); }
    int pocetCisel() const { return static_cast<int>(cisla.size()); }
    int pocetBasu() const { return static_cast<int>(basy.size()); }

    const Knoflik& knoflik(int n) const { return knofliky.at(static_cast<std::size_t>(n - 1)); }
    const Klavesa& klavesa(int n) const { return klavesy.at(static_cast<std::size_t>(n - 1)); }
    const Cislo& cislo(int index) const { return cisla.at(static_cast<std::size_t>(index)); }
    const Bas& bas(int n) const { return basy.at(static_cast<std::size_t>(n - 1)); }

    int pocetRad = 0; ///< of the treble board
    int basuVRade = 0;
    int sirkaKnofliku = 0; ///< of the picture
    int vyskaKnofliku = 0;
    int klikaciPlocha = 0;    ///< side of the click area, from the same corner
    int zastavkaDiskantu = 1; ///< where a hand finds the board: the button that Tab leads to first
    int zastavkaBasu = 1;
    int vyjimecnaKlavesa = 0;      ///< starts in window background; 0 where none does
    std::vector<Knoflik> knofliky; ///< a semitone apart
    std::vector<Klavesa> klavesy;
    std::vector<Cislo> cisla; ///< the right column upward, then the left one
    std::vector<Bas> basy;
};

/// The instrument that Zvonika teaches: 49 treble buttons in three rows with two auxiliary ones, the lowest e
/// of the small octave, and 120 basses.
Nastroj nastrojZvonika();

} // namespace zvonika
