#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace zvonika {

/// The active cell's address and contents above the sheet. Enter commits, Esc takes the contents back.
class EditLine : public QWidget {
    Q_OBJECT

public:
    explicit EditLine(QWidget* parent = nullptr);

    /// Shows a cell; the contents stay as they are while the user is typing in them, unless the cell is another.
    void showCell(const QString& address, const QString& contents);

Q_SIGNALS:
    void committed(const QString& contents);
    void entered(); ///< Enter, after the commit
    void left();    ///< Esc, with the contents as they were

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void commit();
    void takeBack();

    QLabel* address_;
    QLineEdit* contents_;
    QString shown_;
};

} // namespace zvonika
