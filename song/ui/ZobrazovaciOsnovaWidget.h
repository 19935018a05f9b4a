#pragma once

#include "theory/Predznamenani.h"
#include "theory/ui/RozvrzeniAkordu.h"

#include <QWidget>

namespace zvonika {

class ZobrazovaciOsnova;

/// The display staff `osnova`: all tones of the shown grip as one chord, and among them the note of an
/// interval, a brown square. Text that is no tone is not drawn.
class ZobrazovaciOsnovaWidget : public QWidget {
    Q_OBJECT
public:
    explicit ZobrazovaciOsnovaWidget(ZobrazovaciOsnova& osnova, QWidget* parent = nullptr);

    /// Shows the signature of the key. The notes then carry only the signs that it does not say, and naturals
    /// where it says too much. Any text that is no key shows no signature.
    void nastavStupnici(const Key& stupnice);
    const RozvrzeniAkordu& akord() const { return akord_; }

    QSize sizeHint() const override { return {109, 143}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void rozvrhni();
    QString popisNot() const;

    ZobrazovaciOsnova& osnova_;
    Predznamenani predznamenani_;
    RozvrzeniAkordu akord_;
};

} // namespace zvonika
