#include "spreadsheet/embedded/ui/ColumnWidths.h"

#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/embedded/SheetCommands.h"
#include "spreadsheet/embedded/ui/SheetModel.h"

#include <QHeaderView>
#include <QScopedValueRollback>

namespace zvonika {

namespace {

constexpr int padding = 5; // px that a column is wider than its characters

int digitWidth(const QWidget& widget) {
    return std::max(1, widget.fontMetrics().horizontalAdvance(QLatin1Char('0')));
}

} // namespace

ColumnWidths::ColumnWidths(SheetCommands& commands, QHeaderView* header)
    : QObject(header), commands_(commands), header_(header) {
    connect(header_, &QHeaderView::sectionResized, this, &ColumnWidths::userResized);
}

void ColumnWidths::setDocument(Document* document) {
    if (document_) document_->disconnect(this);
    document_ = document;
    if (!document_) return;
    connect(document_, &Document::columnWidthChanged, this, [this](int sheet, int column) {
        if (sheet == document_->activeSheet()) apply(column);
    });
    refresh();
}

void ColumnWidths::refresh() {
    for (int column = 1; column <= lastColumn; ++column)
        apply(column);
}

// Nothing reaches the sheet's last column: its width is the file's default, and whatever equals it was not
// set.
int ColumnWidths::pixels(int column) const {
    const int sheet = document_->activeSheet();
    const double characters = document_->columnWidth(sheet, column);
    if (qFuzzyCompare(characters, document_->columnWidth(sheet, lastColumn)))
        return header_->model()->headerData(column - 1, Qt::Horizontal, SheetModel::WidthRole).toInt();
    return qRound(characters * digitWidth(*header_)) + padding;
}

void ColumnWidths::apply(int column) {
    const QScopedValueRollback guard(applying_, true);
    const int width = pixels(column);
    if (header_->sectionSize(column - 1) != width) header_->resizeSection(column - 1, width);
}

void ColumnWidths::userResized(int section, int, int newSize) {
    // The header also tells of sections that come and go with a document.
    if (applying_ || !document_ || newSize <= padding) return;
    const QScopedValueRollback guard(applying_, true);
    commands_.setColumnWidth(section + 1, double(newSize - padding) / digitWidth(*header_));
}

} // namespace zvonika
