#pragma once

#include <QPoint>
#include <QVector>

class QWidget;

namespace zvonika {

/// A group of widgets that is one stop of the Tab key: the member that had the focus last. Arrow keys move
/// within the group.
class OstrovFokusu {
public:
    /// Arrow keys lead to the member that lies there.
    OstrovFokusu() = default;
    /// Arrow keys lead so many members further in the order in which they were added. Where a step to the
    /// right is more than one, the members are columns of that length and up and down stay within a column.
    OstrovFokusu(int vpravo, int nahoru) : vpravo_(vpravo), nahoru_(nahoru) {}

    void pridej(QWidget* clen);
    /// Makes the member the Tab stop; called whenever it gets the focus.
    void vstup(QWidget* clen);

    /// The member that an arrow key, Home or End leads to; null when there is none that way or the key is
    /// another.
    QWidget* soused(const QWidget* od, int klavesa) const;

private:
    QWidget* podlePolohy(const QWidget* od, QPoint smer) const;
    QWidget* podlePoradi(const QWidget* od, QPoint smer) const;

    int vpravo_ = 0; ///< 0: by place
    int nahoru_ = 0;
    QVector<QWidget*> clenove_;
    QWidget* zastavka_ = nullptr;
};

} // namespace zvonika
