#include "platform/DesktopLink.h"

#include <gtest/gtest.h>

namespace zvonika {
namespace {

TEST(DesktopLink, IsWhatADesktopAccepts) {
    const std::pair<QString, const char*> cases[] = {
        {"\"mailto:a@b.example?subject=Verze 2.1&body=Dobrý den & attach = ",
         "mailto:a@b.example?subject=Verze%202.1&body=Dobr%C3%BD%20den%20&%20attach%20=%20"},
        {"mailto:a@b.example?subject=a%20b", "mailto:a@b.example?subject=a%20b"}, // encoded already
        {"https://zvonika.example/\"x\"", "https://zvonika.example/%22x%22"},
        {"", ""},
    };
    for (const auto& [link, expected] : cases)
        EXPECT_EQ(desktopLink(link).toStdString(), expected);
}

} // namespace
} // namespace zvonika
