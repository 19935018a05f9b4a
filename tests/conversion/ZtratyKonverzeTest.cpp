#include "conversion/ZtratyKonverze.h"

#include "tests/conversion/KonverzeFixture.h"

namespace zvonika {
namespace {

TEST(ZtratyKonverze, RowsAreNamedShortly) {
    const struct {
        QList<int> radky;
        const char* popis;
    } radky[] = {
        {{3}, "řádek 3"},
        {{3, 4}, "řádky 3–4"},
        {{1, 3, 5, 6, 7, 9}, "řádky 1, 3, 5–7, 9"},
        {{1, 3, 5, 7, 9, 11}, "řádky 1, 3, 5, 7, 9, 11"},
        {{1, 3, 5, 7, 9, 11, 12, 13}, "řádky 1, 3, 5, 7, 9, 11–13"},
        {{1, 3, 5, 7, 9, 11, 13, 14}, "řádky 1, 3, 5, 7, 9, 11 a další, celkem 8 řádků"},
    };
    for (const auto& r : radky)
        EXPECT_EQ(popisRadku(r.radky), QString::fromUtf8(r.popis));
}

TEST(ZtratyKonverze, CountsAreInGoodCzech) {
    const char* slova[] = {"", "1 tón ", "2 tóny ", "3 tóny ", "4 tóny ", "5 tónů "};
    ZtratyKonverze ztraty;
    EXPECT_EQ(ztraty.veta(), "");
    for (int i = 1; i <= 5; ++i) {
        ztraty.pridejMimoNastroj(8);
        EXPECT_EQ(
            ztraty.veta(),
            QStringLiteral("Převod: mimo rozsah nástroje %1(řádek 8).").arg(QString::fromUtf8(slova[i])));
    }
}

} // namespace
} // namespace zvonika
