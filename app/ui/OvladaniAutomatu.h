#pragma once

#include <QObject>

#include <functional>

class QSlider;
class QWidget;

namespace zvonika {

class PrikazoveTlacitko;
class Timer1;

/// The controls of automatic stepping: the button cmdTimer, which looks pressed while stepping is on, and the
/// tempo slider Slider1 with its label lblTempo.
class OvladaniAutomatu : public QObject {
    Q_OBJECT
public:
    using Umisti = std::function<void(QWidget*, const QRect& twips)>;

    OvladaniAutomatu(PrikazoveTlacitko& cmdTimer, const Timer1& timer1, QWidget* scena, const Umisti& umisti);

Q_SIGNALS:
    void tempoZmeneno(int pozice); ///< the user moved the slider: -5 to 5

private:
    void postavTempo(QWidget* scena, const Umisti& umisti);
    void tempoPosunuto(int pozice);
    void ukazTlacitko();
    void ukazTempo();

    PrikazoveTlacitko& cmdTimer_;
    const Timer1& timer1_;
    QSlider* posuvnik_ = nullptr;
};

} // namespace zvonika
