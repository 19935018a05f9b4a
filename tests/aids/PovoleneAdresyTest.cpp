#include "aids/PovoleneAdresy.h"

#include "tests/support/System.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

TEST(PovoleneAdresy, OnlyFilesOfTheManualTheWebAndMail) {
    const QTemporaryDir slozka;
    QDir(slozka.path()).mkpath("manual/obrazky");
    QDir(slozka.path()).mkpath("manual2");
    for (const char* soubor : {"manual/a.htm", "manual/obrazky/b.png", "manual2/c.htm", "tajne.htm"})
        ASSERT_TRUE(QFile(slozka.filePath(soubor)).open(QIODevice::WriteOnly));
    const char* const odkaz =
        testing::linkTo(slozka.filePath("tajne.htm"), slozka.filePath("manual/odkaz.htm")) ? "odkaz.htm"
                                                                                           : "../tajne.htm";
    using enum PovoleneAdresy::Zachazeni;
    const PovoleneAdresy povolene(slozka.filePath("manual"));
    const std::pair<PovoleneAdresy::Zachazeni, std::vector<const char*>> pripady[] = {
        {Zobrazit,
         {"a.htm", "obrazky/b.png", "neni.htm", "http://a.example", "https://a.example/x", "about:blank"}},
        {Odmitnout,
         {odkaz, "../tajne.htm", "../manual2/c.htm", "../manual2/neni", "../neni.htm", "/etc/passwd",
          "about:config", "ftp://a.example/x", "javascript:alert(1)", "data:text/html,x"}},
        {Ven, {"mailto:a@b.example"}},
    };
    for (const auto& [zachazeni, adresy] : pripady)
        for (const char* adresa : adresy)
            EXPECT_EQ(povolene.zachazeni(povolene.zTextu(adresa)), zachazeni) << adresa;
}

} // namespace
} // namespace zvonika
