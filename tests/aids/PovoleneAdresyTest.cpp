#include "aids/PovoleneAdresy.h"

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
    ASSERT_TRUE(QFile::link(slozka.filePath("tajne.htm"), slozka.filePath("manual/odkaz.htm")));
    using enum PovoleneAdresy::Zachazeni;
    const PovoleneAdresy povolene(slozka.filePath("manual"));
    const std::pair<const char*, PovoleneAdresy::Zachazeni> pripady[] = {{"a.htm", Zobrazit},
                                                                         {"obrazky/b.png", Zobrazit},
                                                                         {"neni.htm", Zobrazit},
                                                                         {"odkaz.htm", Odmitnout},
                                                                         {"../tajne.htm", Odmitnout},
                                                                         {"../manual2/c.htm", Odmitnout},
                                                                         {"../manual2/neni", Odmitnout},
                                                                         {"../neni.htm", Odmitnout},
                                                                         {"/etc/passwd", Odmitnout},
                                                                         {"http://a.example", Zobrazit},
                                                                         {"https://a.example/x", Zobrazit},
                                                                         {"about:blank", Zobrazit},
                                                                         {"about:config", Odmitnout},
                                                                         {"mailto:a@b.example", Ven},
                                                                         {"ftp://a.example/x", Odmitnout},
                                                                         {"javascript:alert(1)", Odmitnout},
                                                                         {"data:text/html,x", Odmitnout}};
    for (const auto& [adresa, zachazeni] : pripady)
        EXPECT_EQ(povolene.zachazeni(povolene.zTextu(adresa)), zachazeni) << adresa;
}

} // namespace
} // namespace zvonika
