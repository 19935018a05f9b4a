#include "app/ui/PrubehSpusteni.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QScreen>

namespace zvonika {

namespace {
constexpr int okraj = 20;
constexpr int obrazek = 48;
constexpr int vyskaPruhu = 8;
constexpr int krokuPruhu = 16; ///< from one end of the band to the other
} // namespace

PrubehSpusteni::PrubehSpusteni(const QString& text)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint), text_(text) {
    setObjectName(QStringLiteral("prubehSpusteni"));
    setWindowTitle(text);
    setAccessibleName(text);
    setAttribute(Qt::WA_ShowWithoutActivating);
    QFont pismo = font();
    pismo.setPixelSize(fontInfo().pixelSize() * 5 / 4);
    setFont(pismo);
    const int sirkaTextu = QFontMetrics(pismo).horizontalAdvance(text);
    resize(3 * okraj + obrazek + std::max(sirkaTextu, 240), 2 * okraj + obrazek);
    const QRect plocha = screen()->availableGeometry();
    move(plocha.center() - rect().center());
    show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void PrubehSpusteni::posun() {
    krok_ = (krok_ + 1) % (2 * krokuPruhu);
    update(pruh());
}

QRect PrubehSpusteni::pruh() const {
    const int vlevo = 2 * okraj + obrazek;
    return {vlevo, height() - okraj - vyskaPruhu - 4, width() - vlevo - okraj, vyskaPruhu};
}

void PrubehSpusteni::paintEvent(QPaintEvent*) {
    QPainter malir(this);
    malir.setRenderHint(QPainter::Antialiasing);
    malir.setPen(palette().color(QPalette::Mid));
    malir.setBrush(palette().color(QPalette::Window));
    malir.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    QApplication::windowIcon().paint(&malir, QRect(okraj, okraj, obrazek, obrazek));
    malir.setPen(palette().color(QPalette::WindowText));
    malir.drawText(QRect(pruh().left(), okraj, pruh().width(), pruh().top() - okraj - 4),
                   Qt::AlignLeft | Qt::AlignVCenter, text_);
    malir.setPen(Qt::NoPen);
    malir.setBrush(palette().color(QPalette::Mid));
    const double polomer = vyskaPruhu / 2.0;
    malir.drawRoundedRect(pruh(), polomer, polomer);
    // The bright part runs to the end and back again.
    const int poloha = krok_ < krokuPruhu ? krok_ : 2 * krokuPruhu - krok_;
    QRectF svetly = pruh();
    svetly.setWidth(pruh().width() / 4.0);
    svetly.translate((pruh().width() - svetly.width()) * poloha / krokuPruhu, 0);
    malir.setBrush(palette().color(QPalette::Highlight));
    malir.drawRoundedRect(svetly, polomer, polomer);
}

} // namespace zvonika
