#include "spreadsheet/embedded/ui/CellDelegate.h"

#include "spreadsheet/embedded/ui/SheetColours.h"
#include "spreadsheet/embedded/ui/SheetTable.h"

#include <QLineEdit>
#include <QPainter>

namespace zvonika {

namespace {

constexpr int margin = 4; // px left and right of a cell's text

QColor textColour(const QString& text) {
    if (text == QLatin1String("Tah")) return sheet::pull;
    if (text == QLatin1String("Tlak")) return sheet::push;
    return sheet::ink;
}

QColor ground(const QStyleOptionViewItem& option, const QModelIndex& index, const QModelIndex& current) {
    if (option.state.testFlag(QStyle::State_Selected) && index != current) return sheet::selection;
    return index.row() == current.row() ? sheet::gripRow : sheet::paper;
}

} // namespace

// Drawn by hand and not by the style: a sheet repaints some 150 cells with every step of a song.
void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const auto* table = qobject_cast<const SheetTable*>(option.widget);
    const QModelIndex current = table ? table->activeCell() : QModelIndex();
    painter->fillRect(option.rect, ground(option, index, current));

    painter->setPen(sheet::grid);
    painter->drawLine(option.rect.topRight(), option.rect.bottomRight());
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());

    const QString text = index.data().toString();
    if (!text.isEmpty()) {
        const auto alignment = Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt());
        const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
        painter->setPen(textColour(text));
        painter->setFont(option.font);
        painter->drawText(room, int(alignment) | Qt::TextSingleLine, text);
    }
    if (index != current) return;
    painter->setPen(QPen(sheet::activeCell, 2));
    painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                    const QModelIndex& index) const {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(QStringLiteral("editBunky"));
    edit->setAccessibleName(
        QStringLiteral("Obsah buňky %1%2").arg(columnLetters(index.column() + 1)).arg(index.row() + 1));
    edit->setFrame(false);
    edit->setTextMargins(margin - 2, 0, 0, 0);
    return edit;
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    const auto* edit = qobject_cast<QLineEdit*>(editor);
    if (edit && edit->text() != index.data(Qt::EditRole).toString()) model->setData(index, edit->text());
}

// A long text gets room to the right, up to the window's edge.
void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const {
    const int wanted = option.fontMetrics.horizontalAdvance(index.data(Qt::EditRole).toString()) + 4 * margin;
    const int room = editor->parentWidget()->width() - option.rect.left();
    QRect place = option.rect.adjusted(1, 1, -2, -2);
    place.setWidth(std::max(place.width(), std::min(wanted, room)));
    editor->setGeometry(place);
}

} // namespace zvonika
