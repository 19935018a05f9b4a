#include "spreadsheet/embedded/ui/EditLine.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace zvonika {

EditLine::EditLine(QWidget* parent)
    : QWidget(parent), address_(new QLabel(this)), contents_(new QLineEdit(this)) {
    address_->setObjectName(QStringLiteral("adresaBunky"));
    address_->setAccessibleName(QStringLiteral("Adresa buňky"));
    address_->setAlignment(Qt::AlignCenter);
    address_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("IV65536 ")));
    contents_->setObjectName(QStringLiteral("obsahBunky"));
    contents_->setAccessibleName(QStringLiteral("Obsah buňky"));
    contents_->installEventFilter(this);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 2, 0);
    row->setSpacing(4);
    row->addWidget(address_);
    row->addWidget(contents_, 1);
    connect(contents_, &QLineEdit::returnPressed, this, [this] {
        commit();
        Q_EMIT entered();
    });
}

void EditLine::showCell(CellPosition cell, const QString& contents) {
    if (contents_->isModified() && contents_->hasFocus()) return;
    cell_ = cell;
    shown_ = contents;
    address_->setText(columnLetters(cell.column) + QString::number(cell.row));
    if (contents_->text() != contents) contents_->setText(contents);
    contents_->setModified(false);
}

bool EditLine::isTyping() const {
    return contents_->isModified();
}

void EditLine::commitPending() {
    if (isTyping()) commit();
}

void EditLine::clear() {
    shown_.clear();
    takeBack();
    address_->clear();
}

bool EditLine::eventFilter(QObject* watched, QEvent* event) {
    if (watched == contents_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        takeBack();
        Q_EMIT left();
        return true;
    }
    // What was typed belongs to the cell also when the user goes on with the mouse.
    if (watched == contents_ && event->type() == QEvent::FocusOut) commitPending();
    return QWidget::eventFilter(watched, event);
}

void EditLine::commit() {
    const bool changed = contents_->text() != shown_;
    shown_ = contents_->text();
    contents_->setModified(false);
    if (changed) Q_EMIT committed(cell_, shown_);
}

void EditLine::takeBack() {
    contents_->setText(shown_);
    contents_->setModified(false);
}

} // namespace zvonika
