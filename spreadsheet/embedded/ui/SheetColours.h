#pragma once

#include <QColor>

namespace zvonika::sheet {

// One light, calm palette; every text stands on its ground with a contrast of at least 4.5 : 1.
inline constexpr QColor paper{0xff, 0xff, 0xff};
inline constexpr QColor ink{0x22, 0x28, 0x30};
inline constexpr QColor grid{0xe2, 0xe6, 0xea};
inline constexpr QColor gripRow{0xff, 0xf6, 0xdc}; ///< the row of the current grip
inline constexpr QColor selection{0xd6, 0xe6, 0xf7};
inline constexpr QColor activeCell{0x1f, 0x6f, 0xb8};
inline constexpr QColor header{0xf2, 0xf4, 0xf6};
inline constexpr QColor headerCurrent{0xfb, 0xe3, 0xa0};
inline constexpr QColor headerLabel{0x5f, 0x69, 0x75};
inline constexpr QColor pull{0x17, 0x5a, 0xa8};
inline constexpr QColor push{0x8f, 0x1f, 0x8f};
inline constexpr QColor emptyPage{0xd9, 0xdc, 0xe0};

} // namespace zvonika::sheet
