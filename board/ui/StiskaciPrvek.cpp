#include "board/ui/StiskaciPrvek.h"

#include "board/ui/ObrazyPrvku.h"
#include "board/ui/OstrovFokusu.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

namespace zvonika {

QString slovyStav(VyznamPrvku vyznam, bool oznacen) {
    static const QString slova[] = {QStringLiteral("volný"), QStringLiteral("označený"),
                                    QStringLiteral("tah"), QStringLiteral("tlak"),
                                    QStringLiteral("interval")};
    const QString slovo = slova[static_cast<int>(vyznam)];
    return oznacen && vyznam != VyznamPrvku::Oznaceny ? slovo + QStringLiteral(", označený") : slovo;
}

StiskaciPrvek::StiskaciPrvek(int cislo, std::shared_ptr<ObrazyPrvku> obrazy, QWidget* parent)
    : QAbstractButton(parent), cislo_(cislo), obrazy_(std::move(obrazy)) {
    setCheckable(true);
    setAccessibleDescription(slovyStav(VyznamPrvku::Volny, false));
}

void StiskaciPrvek::vlozDoOstrova(std::shared_ptr<OstrovFokusu> ostrov) {
    ostrov_ = std::move(ostrov);
    ostrov_->pridej(this);
}

void StiskaciPrvek::prevezmi(const PodobaPrvku& podoba, bool oznacen) {
    if (podoba.vyznam != podoba_.vyznam || oznacen != isChecked())
        setAccessibleDescription(slovyStav(podoba.vyznam, oznacen));
    nastavZaskrtnuti(oznacen);
    if (podoba == podoba_) return;
    podoba_ = podoba;
    update();
}

void StiskaciPrvek::nastavZaskrtnuti(bool zaskrtnuty) {
    const QScopedValueRollback<bool> zModelu(prebira_, true);
    setChecked(zaskrtnuty);
}

void StiskaciPrvek::checkStateSet() {
    if (prebira_) return;
    // Assistive technology toggles by setting the state; here that is a click, and the model decides.
    nastavZaskrtnuti(!isChecked());
    click();
}

void StiskaciPrvek::kresliObraz(QPainter& painter, const QRect& misto) {
    PodobaPrvku obraz = podoba_;
    obraz.velikost = misto.size();
    obrazy_->kresli(painter, misto.topLeft(), obraz);
}

void StiskaciPrvek::kresliZamereni(QPainter& painter, const QRectF& obrys, qreal polomer) const {
    if (!hasFocus()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const qreal tah = std::max(2.0, height() * 0.05);
    painter.setPen(QPen(QColor(30, 20, 12), tah * 1.7));
    painter.drawRoundedRect(obrys, polomer, polomer);
    painter.setPen(QPen(barvy::zamereni, tah));
    painter.drawRoundedRect(obrys, polomer, polomer);
}

void StiskaciPrvek::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        click();
    else
        event->ignore();
}

void StiskaciPrvek::mouseReleaseEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void StiskaciPrvek::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        druhyStisk();
    else
        event->ignore();
}

void StiskaciPrvek::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
        if (!event->isAutoRepeat()) click();
        return;
    default:
        break;
    }
    if (event->key() == Qt::Key_F2 && event->modifiers() == Qt::NoModifier) {
        Q_EMIT dvojklik();
        return;
    }
    const bool samotna = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    QWidget* soused = ostrov_ && samotna ? ostrov_->soused(this, event->key()) : nullptr;
    if (soused)
        soused->setFocus(Qt::OtherFocusReason);
    else
        event->ignore();
}

void StiskaciPrvek::keyReleaseEvent(QKeyEvent* event) {
    event->ignore();
}

void StiskaciPrvek::nastavZastavku() {
    if (ostrov_) ostrov_->vstup(this);
}

void StiskaciPrvek::focusInEvent(QFocusEvent* event) {
    nastavZastavku();
    QAbstractButton::focusInEvent(event);
}

} // namespace zvonika
