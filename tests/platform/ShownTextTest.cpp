#include "platform/ShownText.h"

#include "platform/ui/PlainToolTips.h"

#include <QFontMetrics>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace zvonika::testing {

TEST(ShownText, NothingInANameIsObeyed) {
    const QString turn(QChar(0x202E));
    const std::pair<QString, QString> names[] = {
        {"Kočka leze dírou.xls", "Kočka leze dírou.xls"},
        {"a\nb\r\tc", "a↵b[U+000D]→c"},
        {QString::fromLatin1("a\0b\x1b[2J\x7f", 8), "a[U+0000]b[U+001B][2J[U+007F]"},
        {"pisen" + turn + "slx.exe", "pisen[U+202E]slx.exe"},
        {QString(QChar(0x2066)) + QChar(0x200F) + QChar(0x061C), "[U+2066][U+200F][U+061C]"},
        {QString(QChar(0x2028)) + QChar(0x2029) + QChar(0x85), "[U+2028][U+2029][U+0085]"},
        {"<b>tučně</b> & co", "<b>tučně</b> & co"},
        {"👩‍🎤 שלום", "👩‍🎤 שלום"},
    };
    for (const auto& [name, shown] : names)
        EXPECT_EQ(shownName(name), shown) << shown.toStdString();
    EXPECT_EQ(shownText("a\n\tb" + turn), "a\n\tb[U+202E]");
    EXPECT_EQ(shownFileName("/tmp/x/a\nb.xls"), "a↵b.xls");
    EXPECT_EQ(shownTitle("a[*].xls"), "a[*][*].xls");
}

TEST(ShownText, ALongNameKeepsItsBeginningAndItsEnd) {
    const QString name = QString(5000, u'a') + ".xls";
    EXPECT_EQ(shownName(name, 20), "aaaaaaaaaaaaaaa…a.xls");
    const QString wide = QStringLiteral("👩").repeated(100);
    EXPECT_TRUE(shownName(wide, 21).isValidUtf16());
}

TEST(PlainToolTips, AreTextOfALargestSize) {
    const QString tips[] = {"<img src='/dev/zero'>", "<a href=x>odkaz</a> & <!-- ", QString(32000, u'W'),
                            QStringLiteral("slovo ").repeated(5000), QStringLiteral("\n").repeated(900)};
    for (const QString& tip : tips) {
        QTextDocument shown;
        shown.setHtml(PlainToolTips::shown(tip));
        QString text = shown.toPlainText().remove('\n');
        EXPECT_TRUE(text.startsWith(tip.left(20).remove('\n'))) << text.left(60).toStdString();
        EXPECT_LT(shown.idealWidth(), 1400);
        EXPECT_LT(shown.size().height(), 400);
    }
}

} // namespace zvonika::testing
