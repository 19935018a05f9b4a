#include "spreadsheet/embedded/ui/SheetModel.h"

#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/embedded/SheetCommands.h"

#include <utility>

namespace zvonika {

namespace {

QVariant rowHeader(int row, int role) {
    switch (role) {
    case Qt::DisplayRole:
        return row;
    case Qt::AccessibleTextRole:
        return QStringLiteral("Řádek %1").arg(row);
    default:
        return {};
    }
}

} // namespace

SheetModel::SheetModel(SheetCommands& commands, SheetColumns columns, QObject* parent)
    : QAbstractTableModel(parent), commands_(commands), columns_(std::move(columns)) {}

void SheetModel::setDocument(Document* document) {
    beginResetModel();
    if (document_) document_->disconnect(this);
    document_ = document;
    if (document_) connect(document_, &Document::cellsChanged, this, &SheetModel::showChange);
    endResetModel();
}

void SheetModel::refresh() {
    if (document_) Q_EMIT dataChanged(index(0, 0), index(lastRow - 1, lastColumn - 1));
}

int SheetModel::rowCount(const QModelIndex& parent) const {
    return document_ && !parent.isValid() ? lastRow : 0;
}

int SheetModel::columnCount(const QModelIndex& parent) const {
    return document_ && !parent.isValid() ? lastColumn : 0;
}

QVariant SheetModel::data(const QModelIndex& index, int role) const {
    if (!document_ || !index.isValid()) return {};
    const int sheet = document_->activeSheet();
    const CellPosition cell = cellOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return document_->displayText(sheet, cell);
    case Qt::EditRole:
        return document_->editText(sheet, cell);
    case Qt::TextAlignmentRole: {
        const bool number = std::holds_alternative<double>(document_->value(sheet, cell));
        return int((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    case Qt::AccessibleTextRole:
        return spokenText(cell);
    case Qt::ToolTipRole:
        return document_->isFormula(sheet, cell) ? QStringLiteral("Výsledek vzorce") : QString();
    default:
        return {};
    }
}

bool SheetModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!document_ || !index.isValid() || role != Qt::EditRole) return false;
    commands_.type(cellOf(index), value.toString());
    return true;
}

QVariant SheetModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal ? columnHeader(section + 1, role) : rowHeader(section + 1, role);
}

QVariant SheetModel::columnHeader(int column, int role) const {
    const SheetColumn meaning = columns_.value(column - 1);
    switch (role) {
    case Qt::DisplayRole:
        return columnLetters(column);
    case Qt::ToolTipRole:
        return meaning.meaning;
    case Qt::AccessibleTextRole:
        return QStringLiteral("%1 %2").arg(columnLetters(column), meaning.label).trimmed();
    case LabelRole:
        return meaning.label;
    case WidthRole:
        return meaning.width;
    default:
        return {};
    }
}

Qt::ItemFlags SheetModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemNeverHasChildren;
}

void SheetModel::showChange(int sheet, const CellRange& range) {
    if (sheet == document_->activeSheet()) Q_EMIT dataChanged(indexOf(range.first), indexOf(range.last));
}

QString SheetModel::spokenText(CellPosition cell) const {
    const QString place = columnLetters(cell.column) + QString::number(cell.row);
    const QString meaning = columns_.value(cell.column - 1).label;
    const QString text = document_->displayText(document_->activeSheet(), cell);
    return QStringLiteral("%1 %2: %3").arg(place, meaning, text.isEmpty() ? QStringLiteral("prázdná") : text);
}

} // namespace zvonika
