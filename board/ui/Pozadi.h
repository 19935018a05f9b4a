#pragma once

#include <QPixmap>
#include <QRect>
#include <QVector>
#include <QWidget>

namespace zvonika {

/// The body of the instrument under a group of buttons: wood with a groove for every row. All rectangles in
/// twips of the scene.
class Pozadi : public QWidget {
    Q_OBJECT
public:
    struct Nacrt {
        QRect telo;            ///< where the widget is placed
        QVector<QRect> drazky; ///< grooves, in the order of painting
        double sklon = 0; ///< how far the body sinks per unit to the right; its own box is the unsheared one
    };
    Pozadi(const Nacrt& nacrt, QWidget* parent);
    void prestav(const Nacrt& nacrt); ///< other grooves in the same body

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void nakresli(QPainter& painter, double meritko) const;

    Nacrt nacrt_;
    QPixmap obraz_;
};

} // namespace zvonika
