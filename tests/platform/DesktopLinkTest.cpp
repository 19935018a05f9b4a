#include "platform/DesktopLink.h"

#include <QUrl>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

struct Case {
    const char* name;
    QString link;
    QString expected;
};

TEST(DesktopLink, IsWhatADesktopAccepts) {
    const Case cases[] = {
        {"quotation mark, blanks, accents",
         QStringLiteral("\"mailto:a@b.example?subject=Verze 2.1&body=Dobrý den & attach = "),
         QStringLiteral("mailto:a@b.example?subject=Verze%202.1&body=Dobr%C3%BD%20den%20&%20attach%20=%20")},
        {"encoded already", QStringLiteral("mailto:a@b.example?subject=a%20b"),
         QStringLiteral("mailto:a@b.example?subject=a%20b")},
        {"quotation mark inside", QStringLiteral("https://zvonika.example/\"x\""),
         QStringLiteral("https://zvonika.example/%22x%22")},
        {"nothing", QString(), QString()},
    };
    for (const auto& c : cases)
        EXPECT_EQ(desktopLink(c.link).toStdString(), c.expected.toStdString()) << c.name;
    EXPECT_EQ(QUrl(desktopLink(cases[0].link)).scheme(), QStringLiteral("mailto"));
}

} // namespace
} // namespace zvonika
