#pragma once

#include <QComboBox>

namespace zvonika {

/// A choice in a narrow place: a long entry is written in smaller letters, and the list is as wide as it
/// needs.
class SevrenyVyber : public QComboBox {
public:
    using QComboBox::QComboBox;

    QSize minimumSizeHint() const override { return {8, 8}; }
    void showPopup() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zvonika
