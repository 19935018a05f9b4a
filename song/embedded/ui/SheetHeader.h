#pragma once

#include <QHeaderView>

namespace zvonika {

/// Column letters with a word for what the column is in a song, or row numbers; the current one stands out.
class SheetHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit SheetHeader(Qt::Orientation orientation, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    bool isCurrent(int section) const;
    void paintColumn(QPainter& painter, const QRect& rect, int column) const;
};

} // namespace zvonika
