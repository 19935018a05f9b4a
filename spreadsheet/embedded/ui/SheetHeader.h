#pragma once

#include <QHeaderView>

namespace zvonika {

/// Column letters with the word for what the column is, or row numbers; the current one stands out.
class SheetHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit SheetHeader(Qt::Orientation orientation, QWidget* parent = nullptr);

    /// The section of the active cell; -1 for none.
    void setCurrent(int section);

    QSize sizeHint() const override;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    void paintColumn(QPainter& painter, const QRect& rect, int column) const;

    int current_ = -1;
};

} // namespace zvonika
