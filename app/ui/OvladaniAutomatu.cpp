#include "app/ui/OvladaniAutomatu.h"

#include "app/ui/PrikazoveTlacitko.h"
#include "playing/stepping/Timer1.h"

#include <QLabel>
#include <QSlider>
#include <QToolTip>

namespace zvonika {

namespace {

const QColor barvaBehu(0x1E, 0x6E, 0x46);

/// "krok po 1,62 s"
QString krokPo(Timer1::Interval interval) {
    QString sekundy = QString::number(double(interval.count()) / 1000);
    sekundy.replace(QLatin1Char('.'), QLatin1Char(','));
    return QStringLiteral("krok po %1 s").arg(sekundy);
}

} // namespace

OvladaniAutomatu::OvladaniAutomatu(PrikazoveTlacitko& cmdTimer, const Timer1& timer1, QWidget* scena,
                                   const Umisti& umisti)
    : QObject(scena), cmdTimer_(cmdTimer), timer1_(timer1) {
    cmdTimer_.setCheckable(true);
    // A click turns the button by itself, also when nothing came of it.
    connect(&cmdTimer_, &QPushButton::clicked, this, &OvladaniAutomatu::ukazTlacitko);
    postavTempo(scena, umisti);
    connect(&timer1_, &Timer1::zmeneno, this, [this] {
        ukazTlacitko();
        ukazTempo();
    });
    ukazTlacitko();
    ukazTempo();
}

void OvladaniAutomatu::postavTempo(QWidget* scena, const Umisti& umisti) {
    posuvnik_ = new QSlider(Qt::Horizontal, scena);
    posuvnik_->setObjectName(QStringLiteral("Slider1"));
    posuvnik_->setRange(-5, 5);
    posuvnik_->setPageStep(1);
    posuvnik_->setAccessibleName(QStringLiteral("Tempo automatického krokování"));
    connect(posuvnik_, &QSlider::valueChanged, this, &OvladaniAutomatu::tempoPosunuto);
    umisti(posuvnik_, {13360, 9330, 2580, 300});
    auto* popisek = new QLabel(QStringLiteral("<--- Tempo --->"), scena);
    popisek->setObjectName(QStringLiteral("lblTempo"));
    popisek->setTextFormat(Qt::PlainText);
    popisek->setAlignment(Qt::AlignCenter);
    umisti(popisek, {13360, 9620, 2580, 240});
}

void OvladaniAutomatu::tempoPosunuto(int pozice) {
    Q_EMIT tempoZmeneno(pozice);
    if (posuvnik_->isVisible())
        QToolTip::showText(posuvnik_->mapToGlobal(QPoint(0, posuvnik_->height())), posuvnik_->toolTip(),
                           posuvnik_);
}

void OvladaniAutomatu::ukazTlacitko() {
    const bool bezi = timer1_.zapnuty();
    cmdTimer_.setChecked(bezi);
    cmdTimer_.nastavObrazek(bezi ? PrikazoveTlacitko::Obrazek::Zastavit
                                 : PrikazoveTlacitko::Obrazek::Spustit);
    cmdTimer_.nastavBarvu(bezi ? std::optional(barvaBehu) : std::nullopt);
    cmdTimer_.setToolTip(bezi ? QStringLiteral("Zastavit automatické krokování (F9)")
                              : QStringLiteral("Spustit automatické krokování (F9)"));
    cmdTimer_.setAccessibleDescription(bezi ? QStringLiteral("zapnuto") : QStringLiteral("vypnuto"));
}

void OvladaniAutomatu::ukazTempo() {
    const QString krok = krokPo(timer1_.interval());
    posuvnik_->setToolTip(QStringLiteral("Tempo: ") + krok);
    posuvnik_->setAccessibleDescription(krok);
}

} // namespace zvonika
