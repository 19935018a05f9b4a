#pragma once

#include <QObject>

namespace zvonika {

/// Shows the tool tips of all widgets as plain text, for as long as it lives: what stands in a song or in a
/// file's name is never taken for HTML, which could have pictures and other files read. Long ones are broken
/// into lines and cut. `QWidget::toolTip` stays the text itself, which a screen reader speaks.
class PlainToolTips : public QObject {
    Q_OBJECT
public:
    PlainToolTips();

    /// The text as it is handed to the tool tip.
    static QString shown(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace zvonika
