#pragma once

#include <QRect>

#include <functional>

class QWidget;

namespace zvonika {

/// Puts a widget at its rectangle in the scene's twips; called again for a widget that moves.
using Umisti = std::function<void(QWidget* widget, const QRect& twips)>;

} // namespace zvonika
