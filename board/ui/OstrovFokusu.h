#pragma once

#include <QPoint>
#include <QVector>

class QWidget;

namespace zvonika {

/// A group of widgets that is one stop of the Tab key: the member that had the focus last. Arrow keys move
/// within the group.
class OstrovFokusu {
public:
    /// How arrow keys find the next member: by where it lies, or by the order in which the members were added
    /// (up and right forward, down and left back).
    enum class Pohyb { PodlePolohy, PodlePoradi };

    explicit OstrovFokusu(Pohyb pohyb) : pohyb_(pohyb) {}

    void pridej(QWidget* clen);
    /// Makes the member the Tab stop; called whenever it gets the focus.
    void vstup(QWidget* clen);
    QWidget* zastavka() const { return zastavka_; }

    /// The member that an arrow key, Home or End leads to; null when there is none that way or the key is
    /// another.
    QWidget* soused(const QWidget* od, int klavesa) const;

private:
    QWidget* podlePolohy(const QWidget* od, QPoint smer) const;
    QWidget* podlePoradi(const QWidget* od, int krok) const;

    Pohyb pohyb_;
    QVector<QWidget*> clenove_;
    QWidget* zastavka_ = nullptr;
};

} // namespace zvonika
