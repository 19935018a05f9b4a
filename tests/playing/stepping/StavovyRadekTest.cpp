#include "playing/stepping/StavovyRadek.h"

#include <gtest/gtest.h>

namespace zvonika::testing {

TEST(StavovyRadek, TellsTheNextStepAndWarnsOfAMissingKeyWhileWriting) {
    struct Pripad {
        StavProgramu stav;
        const char* obsahuje;
        bool varujeOTonine;
    };
    const QString vyberte = "Vyberte tóninu";
    const Pripad pripady[] = {
        {{false, vyberte, true, true, ""}, "Nová píseň", false},
        {{false, vyberte, false, true, ""}, "Nová píseň", false},
        {{true, vyberte, true, true, ""}, "Označte knoflíky", true},
        {{true, "G dur", true, true, ""}, "Označte knoflíky", false},
        {{true, "G dur", true, true, ""}, "do sloupce A", false},
        {{true, vyberte, false, true, ""}, "< Tah nebo > Tlak", true},
        {{true, "G dur", false, false, ""}, "< Tah nebo > Tlak", false},
        {{true, vyberte, true, false, ""}, "PageDown", false},
        {{true, "G dur", true, false, "", true}, "klávesa F9", false},
        {{true, vyberte, true, true, "Neznámý tón."}, "Neznámý tón.", false},
    };
    for (const auto& [stav, obsahuje, varuje] : pripady) {
        const QString text = stavovyRadek(stav);
        EXPECT_TRUE(text.contains(QString::fromUtf8(obsahuje))) << text.toStdString();
        EXPECT_EQ(text.contains("Tónina není zvolena"), varuje) << text.toStdString();
    }
}

} // namespace zvonika::testing
