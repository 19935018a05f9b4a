#pragma once

namespace zvonika {

/// The treble keyboard's geometry. Positions are in twips (1/1440 inch, 15 to a pixel at 96 dpi), Y grows
/// downward.
constexpr int pocetKnofliku =
    49; ///< treble buttons are numbered 1..49, a semitone apart, 1 = e of the small octave
constexpr int pocetBasu = 120; ///< bass buttons are numbered 1..120

constexpr int sirkaKnofliku = 600;
constexpr int vyskaKnofliku = 570;

struct Poloha {
    int left = 0;
    int top = 0;
    friend bool operator==(const Poloha&, const Poloha&) = default;
};

/// True for the dark buttons (accidentals): 3, 5, 7, 10, 12 and the same plus 12, 24 and 36.
bool jePulton(int knoflik);

/// True when the tone has a second button in an outer row: every number but 1 and the multiples of 3.
bool maPomocny(int knoflik);

/// Row of the main button counted as the row covers are: 4 (row B), 3 (row C) or 2 (row A).
int rada(int knoflik);
/// Row of the auxiliary button: 5 (outer left) or 1 (outer right); 0 when there is none.
int radaPomocneho(int knoflik);

/// Place of a button. `otoceno`: on the board that is turned over, where every row runs the other way. Rows
/// are reversed in place but for row B, which moves up by one button: 2 stands level with 1 again.
Poloha polohaKnofliku(int knoflik, bool otoceno = false);
Poloha polohaPomocneho(int knoflik, bool otoceno = false); ///< only where maPomocny()

/// Left edge of row 1..5.
int levyOkrajRady(int rada);

/// Number labels 0..31 beside the board: 0..15 on the right, 16..31 on the left. With `obracene` the labels
/// 0..12 and 13..24 take the descending positions of the reversed layout, on top of others.
Poloha polohaCisla(int index, bool obracene);
/// What label 0..31 reads: "1" to "8" upward and "8" down to "1", the same on the board turned over.
int textCisla(int index);

/// Piano key of a tone: left and top edge, and its size.
Poloha polohaKlavesy(int knoflik);
int sirkaKlavesy(int knoflik);         ///< 1575 for naturals, 975 for accidentals
int vyskaKlavesy(int knoflik);         ///< 255 or 200
Poloha polohaTonuKlavesy(int knoflik); ///< its label lblTonKlav

/// Top-left of a bass button in its grid of six vertical runs (columns of 20, lowest number at the bottom).
Poloha polohaBasu(int bas);
/// 0..5: counter-bass, fundamental, major, minor, seventh, diminished.
int radaBasu(int bas);

} // namespace zvonika
