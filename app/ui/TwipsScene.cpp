#include "app/ui/TwipsScene.h"

#include <QPainter>
#include <QResizeEvent>

#include <algorithm>
#include <cmath>

namespace zvonika {

namespace {
constexpr double fontTwips = 195; // 13 px at 96 dpi
constexpr int smallestFont = 9;   // px; below that nothing can be read anyway
} // namespace

TwipsScene::TwipsScene(QSize twips, QWidget* parent) : QWidget(parent), twips_(twips) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TwipsScene::place(QWidget* widget, const QRect& twips) {
    if (widget->parentWidget() != this) widget->setParent(this);
    const auto known = std::find_if(placed_.begin(), placed_.end(),
                                    [&](const Placed& item) { return item.widget == widget; });
    if (known != placed_.end())
        known->twips = twips;
    else
        placed_.push_back({widget, twips});
    widget->setGeometry(toPixels(twips));
}

QRect TwipsScene::toPixels(const QRect& twips) const {
    // Both edges are rounded, not the size: neighbours that touch in twips touch in pixels.
    const auto px = [this](int value) { return static_cast<int>(std::lround(value * scale_)); };
    const QPoint from(px(twips.x()), px(twips.y()));
    const QPoint to(px(twips.x() + twips.width()), px(twips.y() + twips.height()));
    return QRect(origin_ + from, QSize(to.x() - from.x(), to.y() - from.y()));
}

void TwipsScene::resizeEvent(QResizeEvent*) {
    rescale();
}

void TwipsScene::rescale() {
    scale_ = std::min(double(width()) / twips_.width(), double(height()) / twips_.height());
    origin_ = QPoint(static_cast<int>((width() - twips_.width() * scale_) / 2),
                     static_cast<int>((height() - twips_.height() * scale_) / 2));
    QFont scaled = font();
    scaled.setPixelSize(std::max(smallestFont, static_cast<int>(std::lround(fontTwips * scale_))));
    setFont(scaled);
    for (const Placed& item : placed_)
        item.widget->setGeometry(toPixels(item.twips));
}

void TwipsScene::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().window());
}

} // namespace zvonika
