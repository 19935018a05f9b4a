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
    /// The ticked rows, e.g. "12".
    QString rady() const {
        QString text;
        for (int rada = 1; rada <= 5; ++rada)
            if (formular.zaskrtnuto(rada)) text += QString::number(rada);
        return text;
    }
    QString zakryte() const {
        QString text;
        for (int rada = 1; rada <= 5; ++rada)
            if (diskant.zakryta(rada)) text += QString::number(rada);
        return text;
    }
    QStringList popisky() const {
        QStringList texty;
        for (const auto t : {TlacitkoRad::cmdCDur, TlacitkoRad::cmdGDur, TlacitkoRad::cmdFDur})
            texty << formular.tlacitka().popisek(t);
        return texty;
    }
    QString sloupec(int kolikaty) const {
        QStringList texty;
        for (int i = 4 * kolikaty; i < 4 * kolikaty + 4; ++i)
            texty << formular.tlacitka().label1(i).chopped(4);
        return texty.join(' ');
    }

    testing::MemorySettings nastaveni;
    testing::ScriptedDialogs dialogy;
    TrebleBoard diskant{nastrojZvonika()};
    NastaveniRad formular{nastaveni, diskant, dialogy};
};

TEST_F(NastaveniRadTest, CaptionsAndLabelsTravelTogether) {
    const QString podC = "A Es Fis Ges", podG = "B E Des Cis", podF = "Ces H As D";
    const struct {
        int typ;
        QStringList popisky, sloupce;
    } tabulka[] = {
        {2, {"F Dur", "C Dur", "G Dur"}, {podF, podC, podG}},
        {1, {"G Dur", "F Dur", "C Dur"}, {podG, podF, podC}},
        {1, {"G Dur", "F Dur", "C Dur"}, {podG, podF, podC}}, // again: nothing moves
        {0, {"C Dur", "G Dur", "F Dur"}, {podC, podG, podF}},
    };
    for (const auto& radek : tabulka) {
        formular.optTypPrstokladu(radek.typ);
        EXPECT_EQ(popisky(), radek.popisky) << radek.typ;
        EXPECT_EQ(QStringList({sloupec(0), sloupec(1), sloupec(2)}), radek.sloupce) << radek.typ;
        EXPECT_EQ(formular.typ(), radek.typ);
    }
}

TEST_F(NastaveniRadTest, WhatAButtonCoversBelongsToTheButton) {
    formular.optTypPrstokladu(1); // cmdFDur shows "C Dur"
    formular.chkZabrany(3, true);
    formular.klikTlacitkaRad(TlacitkoRad::cmdFDur);
    EXPECT_EQ(rady(), "45");
    formular.klikTlacitkaRad(TlacitkoRad::cmdCDur);
    EXPECT_EQ(rady(), "12");
    formular.klikTlacitkaRad(TlacitkoRad::cmdGDur);
    EXPECT_EQ(rady(), "15");
    formular.cmdNic();
    EXPECT_EQ(rady(), "");
}

TEST_F(NastaveniRadTest, OkStoresTheBoxesAndTheTypeAndCoversTheRows) {
    formular.Form_Load();
    formular.klikTlacitkaRad(TlacitkoRad::cmdGDur);
    formular.chkZabrany(5, false);
    formular.chkZabrany(3, true);
    formular.optTypPrstokladu(2);
    diskant.nastavZabranu(4, true);
    EXPECT_EQ(zakryte(), "4"); // nothing before Ok
    EXPECT_EQ(nastaveni.get("Zabrany", "1"), std::nullopt);
    formular.cmdOk();
    EXPECT_EQ(zakryte(), "13");
    QString ulozeno;
    for (const char* klic : {"1", "2", "3", "4", "5"})
        ulozeno += nastaveni.getOr("Zabrany", klic, "?");
    EXPECT_EQ(ulozeno, "10100");
    EXPECT_EQ(nastaveni.get("TypPrstokladu", "Index"), "2");
}

TEST_F(NastaveniRadTest, HelpIsOneBox) {
    dialogy.expect("Nápověda",
                   "Tento formulář slouží k určení řad, které mají být jako jediné používány při "
                   "pozičním prstokladu a hře v konkrétní tónině.\nOstatní řady budou přeškrtnuty");
    formular.cmdNapoveda();
    EXPECT_EQ(dialogy.last.icon, Icon::Information);
    EXPECT_EQ(dialogy.last.text.count('\n'), 8);
    EXPECT_TRUE(dialogy.last.text.endsWith("Nastavení se při potvrzení automaticky ukládá."));
}

TEST_F(NastaveniRadTest, CoversReadTheirSettingsAsTheBoardDoes) {
    const char* hodnoty[] = {"1", "True", "nesmysl", "", "-1"};
    for (int rada = 1; rada <= 5; ++rada)
        nastaveni.save("Zabrany", QString::number(rada), hodnoty[rada - 1]);
    formular.Form_Load();
    EXPECT_EQ(rady(), "125");
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
