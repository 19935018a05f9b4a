#pragma once

#include <QPainterPath>

#include <span>

namespace zvonika {

/// One point that a pen passes, and how broad its line is there.
struct BodPera {
    double x, y, sirka;
};

/// The outline of a line of changing breadth through all points, smooth, with round ends. At least two
/// points.
QPainterPath tahPera(std::span<const BodPera> body);

} // namespace zvonika
