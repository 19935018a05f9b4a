#pragma once

#include <QVector>
#include <QWidget>

namespace zvonika {

/// The one scene of the main window. Children are placed in twips (1/1440 inch, 15 to a pixel at 96 dpi) and
/// keep their places relative to each other at every size of the window; the inherited font scales with them.
class TwipsScene : public QWidget {
public:
    /// `twips`: the extent of the whole scene.
    TwipsScene(QSize twips, QWidget* parent = nullptr);

    /// Places a child; a second call moves it. The widget becomes the scene's.
    void place(QWidget* widget, const QRect& twips);
    /// Pixels per twip at the present size.
    double scale() const { return scale_; }
    QRect toPixels(const QRect& twips) const;
    QSize twips() const { return twips_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Placed {
        QWidget* widget;
        QRect twips;
    };
    void rescale();

    QSize twips_;
    QVector<Placed> placed_;
    double scale_ = 1.0 / 15;
    QPoint origin_;
};

} // namespace zvonika
