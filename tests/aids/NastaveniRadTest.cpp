#include "aids/NastaveniRad.h"

#include "board/TrebleBoard.h"
#include "tests/support/MemorySettings.h"
#include "tests/support/ScriptedDialogs.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

class NastaveniRadTest : public ::testing::Test {
protected:
    /// The rows whose boxes are ticked, e.g. "12".
    QString zaskrtnute() const {
        QString text;
        for (int rada = 1; rada <= 5; ++rada)
            if (formular.zaskrtnuto(rada)) text += QString::number(rada);
        return text;
    }
    /// A button with the labels under it: "C: A Es Fis Ges".
    QString sloupec(int kolikaty) const {
        QStringList texty{formular.tlacitka().popisek(TlacitkoRad(kolikaty)).chopped(4) + ':'};
        for (int i = 4 * kolikaty; i < 4 * kolikaty + 4; ++i)
            texty << formular.tlacitka().label1(i).chopped(4);
        return texty.join(' ');
    }

    testing::MemorySettings nastaveni;
    testing::ScriptedDialogs dialogy;
    TrebleBoard diskant{nastrojZvonika()};
    NastaveniRad formular{nastaveni, diskant, dialogy};
};

TEST_F(NastaveniRadTest, LabelsTravelWithTheirButtonsAndCoversStay) {
    const QString c = "C: A Es Fis Ges", g = "G: B E Des Cis", f = "F: Ces H As D";
    formular.chkZabrany(3, true);
    for (const auto& [typ, sloupce] : {std::pair{2, QStringList{f, c, g}},
                                       {1, {g, f, c}},
                                       {1, {g, f, c}}, // again: nothing moves
                                       {0, {c, g, f}},
                                       {2, {f, c, g}}}) {
        formular.optTypPrstokladu(typ);
        EXPECT_EQ(QStringList({sloupec(0), sloupec(1), sloupec(2)}), sloupce) << typ;
        EXPECT_EQ(formular.typ(), typ);
        for (const auto& [tlacitko, rady] : {std::pair{TlacitkoRad::cmdFDur, "45"},
                                             {TlacitkoRad::cmdCDur, "12"},
                                             {TlacitkoRad::cmdGDur, "15"}}) {
            formular.klikTlacitkaRad(tlacitko);
            EXPECT_EQ(zaskrtnute(), rady) << typ;
        }
    }
    formular.cmdNic();
    EXPECT_EQ(zaskrtnute(), "");
}

TEST_F(NastaveniRadTest, CoversReadTheirSettingsAsTheBoardDoes) {
    const char* hodnoty[] = {"1", "True", "nesmysl", "", "-1"};
    for (int rada = 1; rada <= 5; ++rada)
        nastaveni.save("Zabrany", QString::number(rada), hodnoty[rada - 1]);
    formular.Form_Load();
    EXPECT_EQ(zaskrtnute(), "125");
    EXPECT_EQ(formular.typ(), 0); // nothing stored: the first type
}

TEST_F(NastaveniRadTest, AStoredTypeMayBeAnything) {
    const struct {
        const char* ulozeno;
        std::optional<int> typ;
        bool ohlaseno;
    } tabulka[] = {
        {"2", 2, false},  {" 1 ", 1, false},  {"0,4", 0, false},         {"abc", {}, false},
        {"", {}, false},  {"3", {}, true},    {"255", {}, true},         {"256", {}, true},
        {"-1", {}, true}, {"1e99", {}, true}, {"99999999999", {}, true},
    };
    for (const auto& radek : tabulka) {
        nastaveni.save("TypPrstokladu", "Index", radek.ulozeno);
        NastaveniRad otevreny(nastaveni, diskant, dialogy);
        if (radek.ohlaseno) dialogy.expect("V programu došlo k chybě !", "Neznámý typ prstokladu, Zvonika");
        otevreny.Form_Load();
        EXPECT_TRUE(dialogy.done()) << radek.ulozeno;
        EXPECT_EQ(otevreny.typ(), radek.typ) << radek.ulozeno;
        otevreny.cmdOk(); // a type that nobody chose is not stored
        const QString cekano = radek.typ ? QString::number(*radek.typ) : QString(radek.ulozeno);
        EXPECT_EQ(nastaveni.get("TypPrstokladu", "Index"), cekano);
    }
}

} // namespace
} // namespace zvonika
