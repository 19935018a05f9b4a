#pragma once

#include <QColor>

namespace zvonika {

/// A colour written blue-green-red, lowest byte red: 0xFF8080 is a light blue.
constexpr QColor zBgr(unsigned bgr) {
    return QColor(int(bgr & 0xFF), int(bgr >> 8 & 0xFF), int(bgr >> 16 & 0xFF));
}

/// Pull, wherever it is shown: blue.
namespace barvyTahu {
inline constexpr QColor krok = zBgr(0xFF8080);     ///< stepping buttons: light blue
inline constexpr QColor prikaz{214, 226, 255};     ///< command buttons that pull
inline constexpr QColor znacka{52, 84, 214};       ///< arrow in the strip of grips, on white
inline constexpr QColor knoflik{140, 148, 255};    ///< light button and white key, under a dark mark
inline constexpr QColor tmavyKnoflik{62, 72, 190}; ///< dark button and black key, under a white mark
} // namespace barvyTahu

/// Push, wherever it is shown: purple, and on the stepping buttons light red too.
namespace barvyTlaku {
inline constexpr QColor krok = zBgr(0xC000C0);         ///< stepping buttons, while stepping: purple
inline constexpr QColor krokPoZapisu = zBgr(0x8080FF); ///< stepping buttons, after recording: light red
inline constexpr QColor prikaz{241, 217, 243};         ///< command buttons that push
inline constexpr QColor znacka{170, 0, 170};           ///< arrow in the strip of grips, on white
inline constexpr QColor knoflik{186, 20, 186};         ///< light button and white key, under a white mark
inline constexpr QColor tmavyKnoflik{112, 6, 118};     ///< dark button and black key, under a white mark
} // namespace barvyTlaku

/// An interval, wherever it is shown: brown.
namespace barvyIntervalu {
inline constexpr QColor nota{140, 84, 32};         ///< on the paper of a staff
inline constexpr QColor knoflik{206, 150, 90};     ///< light button and white key, under a dark mark
inline constexpr QColor tmavyKnoflik{104, 62, 26}; ///< dark button and black key, under a light mark
} // namespace barvyIntervalu

} // namespace zvonika
