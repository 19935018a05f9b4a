#include "platform/ShownText.h"

#include <QFileInfo>

#include <algorithm>

namespace zvonika {

namespace {

bool isLayout(QChar c) {
    return c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QLatin1Char('\t');
}

bool turnsDirection(QChar c) {
    const char16_t code = c.unicode();
    return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

bool isObeyed(QChar c) {
    const QChar::Category kind = c.category();
    return kind == QChar::Other_Control || kind == QChar::Separator_Line ||
           kind == QChar::Separator_Paragraph || turnsDirection(c);
}

QString mark(QChar c) {
    if (c == QLatin1Char('\n')) return QStringLiteral("↵"); // signs that every font has
    if (c == QLatin1Char('\t')) return QStringLiteral("→");
    return QStringLiteral("[U+%1]").arg(c.unicode(), 4, 16, QLatin1Char('0')).toUpper();
}

/// No half of a character that takes two places is left at the cut.
QString shortened(const QString& text, qsizetype longest) {
    if (text.size() <= longest) return text;
    qsizetype head = longest - longest / 4, tail = text.size() - longest / 4;
    if (text.at(head - 1).isHighSurrogate()) --head;
    if (text.at(tail).isLowSurrogate()) ++tail;
    return text.left(head) + QChar(u'…') + text.mid(tail);
}

template <typename Stays>
QString marked(const QString& text, Stays stays) {
    const auto obeyed = [&](QChar c) { return isObeyed(c) && !stays(c); };
    if (std::none_of(text.begin(), text.end(), obeyed)) return text;
    QString shown;
    for (const QChar c : text)
        shown += obeyed(c) ? mark(c) : QString(c);
    return shown;
}

} // namespace

QString shownName(const QString& name, qsizetype longest) {
    return marked(shortened(name, longest), [](QChar) { return false; });
}

QString shownFileName(const QString& nativePath) {
    return shownName(QFileInfo(nativePath).fileName());
}

QString shownTitle(const QString& name) {
    return shownName(name).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

QString shownText(const QString& text, qsizetype longest) {
    return marked(shortened(text, longest), isLayout);
}

} // namespace zvonika
