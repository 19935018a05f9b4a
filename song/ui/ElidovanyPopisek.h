#pragma once

#include <QLabel>

namespace zvonika {

/// A label that never draws beyond itself: its letters become smaller down to a limit, then the text
/// is cut with three dots and stands whole in the tool tip. `text()` is always the whole text.
class ElidovanyPopisek : public QLabel {
public:
    explicit ElidovanyPopisek(const QString& jmeno, QWidget* parent = nullptr);

    void nastavText(const QString& text);
    /// An invalid colour follows the window's text colour.
    void nastavBarvu(const QColor& barva);
    void nastavTucne(bool tucne);
    /// Letter height by that of the widget's font: at best and, where the text does not fit, at least.
    void nastavVelikost(double nejvice, double nejmene);
    /// A text too long for one line goes into two where the height allows it.
    void nastavDvaRadky();

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override { return {4, 8}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void prizpusob();
    bool vejdeSe(int velikost);

    QColor barva_;
    double nejvice_ = 1, nejmene_ = 0.75;
    bool dvaRadky_ = false;
    QFont pismo_;
    QString zkraceny_;
};

} // namespace zvonika
