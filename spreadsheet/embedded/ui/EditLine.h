#pragma once

#include "spreadsheet/Address.h"

#include <QWidget>

class QLabel;
class QLineEdit;

namespace zvonika {

/// The active cell's address and contents above the sheet. Enter commits, Esc takes the contents back.
class EditLine : public QWidget {
    Q_OBJECT

public:
    explicit EditLine(QWidget* parent = nullptr);

    /// Shows a cell, unless the user is just typing into another one.
    void showCell(CellPosition cell, const QString& contents);
    bool isTyping() const;
    /// Commits what was typed and not yet committed.
    void commitPending();
    /// Drops what was typed and shows nothing.
    void clear();

Q_SIGNALS:
    void committed(zvonika::CellPosition cell, const QString& contents);
    void entered(); ///< Enter, after the commit
    void left();    ///< Esc, with the contents as they were

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void commit();
    void takeBack();

    QLabel* address_;
    QLineEdit* contents_;
    CellPosition cell_;
    QString shown_;
};

} // namespace zvonika
