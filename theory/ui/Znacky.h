#pragma once

#include <QPainterPath>

namespace zvonika::znacky {

// Music signs as outlines, in staff spaces (the distance of two lines), y downwards. Origins lie on the line
// or space that the sign names: the clef's on the line of g1, the others' on the step of their note. Clef and
// accidentals begin at x = 0, the note head is centred.

const QPainterPath& houslovyKlic();
const QPainterPath& krizek();
const QPainterPath& becko();
const QPainterPath& odrazka();
/// Filled note head, slightly tilted.
const QPainterPath& hlavicka();
/// Square head of an interval's note.
const QPainterPath& ctverec();

} // namespace zvonika::znacky
