#pragma once

#include <QWidget>

namespace zvonika {

/// A small window in the middle of the screen that says what is being waited for, with a band that moves as
/// long as `posun` is called.
class PrubehSpusteni : public QWidget {
    Q_OBJECT
public:
    explicit PrubehSpusteni(const QString& text);

    void posun(); ///< one step on

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect pruh() const;

    QString text_;
    int krok_ = 0;
};

} // namespace zvonika
