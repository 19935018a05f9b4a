#include "app/ui/SevrenyVyber.h"

#include <QAbstractItemView>
#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace zvonika {

namespace {

constexpr int nejmensiPismoVyberu = 7; // px
constexpr int okrajTextu = 3;

QFont pismoDoSirky(QFont pismo, const QString& text, int sirka) {
    int px = QFontInfo(pismo).pixelSize();
    while (px > nejmensiPismoVyberu && QFontMetrics(pismo).horizontalAdvance(text) > sirka)
        pismo.setPixelSize(--px);
    return pismo;
}

} // namespace

void SevrenyVyber::showPopup() {
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + 4 * okrajTextu);
    QComboBox::showPopup();
}

void SevrenyVyber::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionComboBox volba;
    initStyleOption(&volba);
    painter.drawComplexControl(QStyle::CC_ComboBox, volba);
    const QRect misto = style()
                            ->subControlRect(QStyle::CC_ComboBox, &volba, QStyle::SC_ComboBoxEditField, this)
                            .adjusted(okrajTextu, 0, 0, 0);
    painter.setFont(pismoDoSirky(font(), currentText(), misto.width()));
    painter.drawItemText(misto, Qt::AlignLeft | Qt::AlignVCenter, volba.palette, isEnabled(), currentText(),
                         QPalette::ButtonText);
}

} // namespace zvonika
