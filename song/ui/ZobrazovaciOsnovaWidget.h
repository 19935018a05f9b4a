#pragma once

#include "theory/ui/RozvrzeniAkordu.h"

#include <QWidget>

namespace zvonika {

class ZobrazovaciOsnova;

/// The display staff `osnova`: all tones of the shown grip as one chord, and among them the note of an
/// interval, a brown square. There is no signature: each note carries its own sign. Text
/// that is no tone is not drawn.
class ZobrazovaciOsnovaWidget : public QWidget {
    Q_OBJECT
public:
    explicit ZobrazovaciOsnovaWidget(ZobrazovaciOsnova& osnova, QWidget* parent = nullptr);

    const RozvrzeniAkordu& akord() const { return akord_; }

    QSize sizeHint() const override { return {109, 143}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void rozvrhni();
    QString popisNot() const;

    ZobrazovaciOsnova& osnova_;
    RozvrzeniAkordu akord_;
};

} // namespace zvonika
