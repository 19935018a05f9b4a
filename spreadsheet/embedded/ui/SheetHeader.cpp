#include "spreadsheet/embedded/ui/SheetHeader.h"

#include "spreadsheet/Address.h"
#include "spreadsheet/embedded/ui/SheetColours.h"
#include "spreadsheet/embedded/ui/SheetModel.h"

#include <QPainter>

namespace zvonika {

namespace {

constexpr int gap = 5; // px between a column's letter and its word

QFont labelFont(const QFont& font) {
    QFont smaller = font;
    smaller.setPointSizeF(font.pointSizeF() * 0.85);
    return smaller;
}

} // namespace

SheetHeader::SheetHeader(Qt::Orientation orientation, QWidget* parent) : QHeaderView(orientation, parent) {
    setSectionsClickable(true);
    setHighlightSections(true);
    setDefaultAlignment(Qt::AlignCenter);
    setMinimumSectionSize(18);
}

QSize SheetHeader::sizeHint() const {
    const QFontMetrics metrics(font());
    // Wide enough for the last row, so that the cells do not jump aside on the way down.
    if (orientation() == Qt::Vertical) return {metrics.horizontalAdvance(QStringLiteral("65536")) + 10, 0};
    return {0, metrics.height() + 4};
}

void SheetHeader::setCurrent(int section) {
    if (section == current_) return;
    updateSection(current_);
    updateSection(section);
    current_ = section;
}

void SheetHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    painter->save();
    painter->fillRect(rect, section == current_ ? sheet::headerCurrent : sheet::header);
    painter->setPen(sheet::grid.darker(112));
    painter->drawLine(rect.topRight(), rect.bottomRight());
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    painter->setFont(font());
    painter->setPen(sheet::ink);
    if (orientation() == Qt::Horizontal)
        paintColumn(*painter, rect, section);
    else
        painter->drawText(rect, Qt::AlignCenter, QString::number(section + 1));
    painter->restore();
}

void SheetHeader::paintColumn(QPainter& painter, const QRect& rect, int column) const {
    const QString letters = columnLetters(column + 1);
    const QString label = model()->headerData(column, Qt::Horizontal, SheetModel::LabelRole).toString();
    const QFont small = labelFont(font());
    const int lettersWidth = QFontMetrics(font()).horizontalAdvance(letters);
    const int width = lettersWidth + gap + QFontMetrics(small).horizontalAdvance(label);
    if (label.isEmpty() || width > rect.width() - 4) {
        painter.drawText(rect, Qt::AlignCenter, letters);
        return;
    }
    QRect text = rect;
    text.setLeft(rect.left() + (rect.width() - width) / 2);
    painter.drawText(text, Qt::AlignVCenter, letters);
    text.setLeft(text.left() + lettersWidth + gap);
    painter.setFont(small);
    painter.setPen(sheet::headerLabel);
    painter.drawText(text, Qt::AlignVCenter, label);
}

} // namespace zvonika
