#pragma once

#include <QWidget>

namespace zvonika {

/// Row cover `cmdZabrana(N)`: bars the row for the eye. The buttons under it stay visible and clickable.
class Zabrana : public QWidget {
    Q_OBJECT
public:
    Zabrana(int rada, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zvonika
