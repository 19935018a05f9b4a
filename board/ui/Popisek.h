#pragma once

#include "board/ui/Napis.h"

#include <QLabel>

namespace zvonika {

/// A label whose text is always whole: its letters are as large as the label allows. Mouse clicks go through
/// it.
class Popisek : public QLabel {
    Q_OBJECT
public:
    Popisek(const QColor& barva, Qt::Alignment zarovnani, bool tucne, QWidget* parent);

    QColor barva() const { return barva_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor barva_;
    bool tucne_;
    Napis napis_;
};

} // namespace zvonika
