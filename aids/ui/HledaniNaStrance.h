#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace zvonika {

/// The search line at the foot of the help window. Enter goes to the next match, Shift+Enter to the one
/// before; Escape closes it.
class HledaniNaStrance : public QWidget {
    Q_OBJECT
public:
    explicit HledaniNaStrance(QWidget* rodic);

    /// Shows it and gives it the keyboard.
    void otevri();
    /// Closes it and ends the search.
    void zavri();
    void ukazVysledek(int kolikaty, int celkem);

Q_SIGNALS:
    void hledat(const QString& text, bool dozadu);
    void zavreno();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* txtHledat_;
    QLabel* lblVysledek_;
};

} // namespace zvonika
