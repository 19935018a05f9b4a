#include "platform/ui/PlainToolTips.h"

#include "platform/ShownText.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

#include <algorithm>

namespace zvonika {

namespace {

constexpr qsizetype longestTip = 800; // characters; what is longer stands in the sheet
constexpr int longestLine = 80;       // characters
constexpr int mostLines = 12;

/// Broken behind the last blank of a line, or within a word that is longer than a line.
QStringList lines(const QString& text) {
    QStringList broken;
    for (QString rest : text.split(QLatin1Char('\n'))) {
        while (rest.size() > longestLine) {
            const qsizetype blank = rest.lastIndexOf(QLatin1Char(' '), longestLine);
            const qsizetype end = blank > 0 ? blank + 1 : longestLine;
            broken << rest.left(end);
            rest.remove(0, end);
        }
        broken << rest;
    }
    return broken;
}

} // namespace

PlainToolTips::PlainToolTips() {
    QCoreApplication::instance()->installEventFilter(this);
}

// HTML of our own, with everything in it escaped, is never taken for anything else.
QString PlainToolTips::shown(const QString& text) {
    QStringList broken = lines(shownText(text, longestTip));
    if (broken.size() > mostLines) broken = broken.mid(0, mostLines) << QString(QChar(u'…'));
    return QStringLiteral("<p style='white-space:pre'>%1</p>")
        .arg(broken.join(QLatin1Char('\n')).toHtmlEscaped());
}

bool PlainToolTips::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip || !watched->isWidgetType()) return false;
    auto* widget = static_cast<QWidget*>(watched);
    if (widget->toolTip().isEmpty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shown(widget->toolTip()), widget);
    return true;
}

} // namespace zvonika
