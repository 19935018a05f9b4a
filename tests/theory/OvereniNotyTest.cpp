#include "theory/OvereniNoty.h"

#include "platform/Contact.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/Vypis.h"
#include "theory/Tonina.h"
#include "theory/VolbaStupnice.h"
#include "theory/clsNotyZapis.h"

#include <QStringList>

#include <functional>
#include <gtest/gtest.h>

namespace zvonika {
namespace {

using testing::nazev;
using testing::ScriptedDialogs;
using testing::stupnice;

const QString titulek = QStringLiteral("Nota je mimo stupnici.");

struct Zapisovac : PrijemceNot {
    void popisKlavesu(CisloTonu ton, const ToneName& nazev) override {
        kroky += QStringLiteral("popis %1 %2").arg(ton.hodnota()).arg(nazev.text());
    }
    void zakresliNotu(const KreslenaNota& nota) override {
        kroky += QStringLiteral("nota %1").arg(nota.nazev.text());
        nakreslena = nota;
    }
    void vratTlacitko(CisloTonu ton) override { kroky += QStringLiteral("zpět %1").arg(ton.hodnota()); }
    void otevriVyberStupnice() override {
        kroky += QStringLiteral("výběr");
        if (vyber) vyber();
    }

    QStringList kroky;
    KreslenaNota nakreslena;
    std::function<void()> vyber;
};

class OvereniNotyTest : public ::testing::Test {
protected:
    void over(const char* klic, int ton) {
        tonina.nastavStupnici(stupnice(klic));
        overeni.OverNotuVeStupnici(CisloTonu(ton));
        EXPECT_TRUE(dialogs.done());
    }

    ScriptedDialogs dialogs;
    clsNoty noty{dialogs};
    Tonina tonina;
    Zapisovac prijemce;
    OvereniNoty overeni{dialogs, noty, tonina, prijemce};
};

TEST_F(OvereniNotyTest, DrawsTonesOfTheKeyWithoutAsking) {
    const struct {
        const char* stupnice;
        int ton;
        const char* nazev;
        PolohaNoty poloha;
    } pripady[] = {
        {"G dur", 3, "fis,", {Znamenko::Krizek, 180}},
        {"C dur", 9, "c1,", {Znamenko::Zadne, 420}},
        {"Ges dur", 8, "ces1,", {Znamenko::Becko, 420}},
        {"B dur", 7, "b,", {Znamenko::Becko, 360}},
        {"F dur", 49, "e,", {Znamenko::Zadne, 120}},
        {"Vyberte tóninu", 3, "fis,", {Znamenko::Krizek, 180}},
    };
    for (const auto& p : pripady) {
        prijemce.kroky.clear();
        over(p.stupnice, p.ton);
        EXPECT_EQ(prijemce.nakreslena, (KreslenaNota{CisloTonu(p.ton), nazev(p.nazev), p.poloha, false}))
            << p.stupnice;
        EXPECT_EQ(prijemce.kroky, QStringList({QString("popis %1 %2").arg(p.ton).arg(p.nazev),
                                               QString("nota %1").arg(p.nazev)}));
        EXPECT_EQ(tonina.stupnice(), stupnice(p.stupnice));
    }
    for (int ton = 1; ton <= 49; ++ton)
        over("Fis dur", ton);
    EXPECT_EQ(dialogs.count, 0);
}

TEST_F(OvereniNotyTest, AsksAboutAToneOutsideTheKey) {
    const QString odrazka = "Můžete použít odrážku pro dočasné zrušení půltónu, nebo zvolit jinou stupnici.\n"
                            "Přejete si použít odrážku ?";
    const QString zapis =
        "Pokud skladba pokračuje v jiné stupnici, stiskněte tlačítko Ne a pak zvolte jinou stupnici.\n"
        "Přejete-li si i přes upozornění zvolenou notu zapsat, stiskněte Ano a pak Vámi požadované tlačítko "
        "pro zápis.";
    const struct {
        const char* klic;
        int ton;
        const char* nazev;
        PolohaNoty poloha;
        QString nabidka;
    } pripady[] = {
        {"D dur", 2, "f,", {Znamenko::Zadne, 180}, odrazka},
        {"F dur", 3, "ges,", {Znamenko::Becko, 240}, zapis},
        {"C dur", 3, "fis,", {Znamenko::Krizek, 180}, zapis},
    };
    for (const auto& p : pripady)
        for (const auto& [odpoved, krok] : {std::pair{Answer::Yes, QString("nota %1").arg(p.nazev)},
                                            {Answer::No, QString("výběr")},
                                            {Answer::Cancel, QString("zpět %1").arg(p.ton)}}) {
            prijemce = {};
            dialogs.expect(titulek, {}, odpoved);
            over(p.klic, p.ton);
            EXPECT_EQ(dialogs.last.text,
                      QString("Nota %1 se ve stupnici %2 nepoužívá.\n%3").arg(p.nazev, p.klic, p.nabidka));
            EXPECT_EQ(dialogs.last.icon, Icon::Question);
            EXPECT_EQ(dialogs.last.buttons, Buttons::YesNoCancel);
            EXPECT_EQ(prijemce.kroky.mid(1), QStringList(krok)) << p.klic;
            if (odpoved == Answer::Yes) {
                EXPECT_EQ(prijemce.nakreslena,
                          (KreslenaNota{CisloTonu(p.ton), nazev(p.nazev), p.poloha, p.nabidka == odrazka}));
            }
        }
}

TEST_F(OvereniNotyTest, ANewKeyIsCheckedAgain) {
    prijemce.vyber = [this] {
        tonina.nastavStupnici(stupnice(tonina.stupnice() == stupnice("C dur") ? "F dur" : "G dur"));
    };
    dialogs.expect(titulek, QStringLiteral("fis, se ve stupnici C dur"), Answer::No);
    dialogs.expect(titulek, QStringLiteral("ges, se ve stupnici F dur"), Answer::No);
    over("C dur", 3);
    EXPECT_EQ(prijemce.kroky,
              QStringList({"popis 3 fis,", "výběr", "popis 3 ges,", "výběr", "popis 3 fis,", "nota fis,"}));
}

TEST_F(OvereniNotyTest, ReportsAToneThatCannotBePlaced) {
    dialogs.expect({}, QStringLiteral("Neznámý tón !"));
    dialogs.expect(
        {}, QStringLiteral("Nota nebyla rozpoznána a proto nemůže být zakreslena. Tato chyba by se v tomto "
                           "programu vyskytnout neměla. Aby mohla být opravena, informujte prosím autora.") +
                kontakt);
    over("C dur", 50);
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_TRUE(prijemce.kroky.isEmpty());
}

TEST_F(OvereniNotyTest, TheCheckedNoteReachesTheEntryStaff) {
    NotovaOsnova osnova;
    clsNotyZapis zapis(osnova, dialogs);
    zapis.NastavStupnici(stupnice("D dur"));
    dialogs.expect(titulek, {}, Answer::Yes);
    over("D dur", 2);
    EXPECT_EQ(zapis.zakresliNotu(prijemce.nakreslena), 0);
    EXPECT_EQ(osnova.nota(0)->poloha, (PolohaNoty{Znamenko::Odrazka, 180}));
    EXPECT_TRUE(osnova.odrazka(0));
}

class VolbaStupniceTest : public ::testing::Test {
protected:
    ScriptedDialogs dialogs;
    Tonina tonina;
    NotovaOsnova osnova;
    VolbaStupnice volba{dialogs, tonina, osnova};
};

TEST_F(VolbaStupniceTest, OkChoosesTheKeyAndPreparesTheStaff) {
    const QString popisky = "C dur,G dur,D dur,A dur,E dur,H dur,Fis dur,Cis dur,F dur,B dur,Es dur,As dur,"
                            "Des dur,Ges dur,Ces dur";
    EXPECT_EQ(tonina.stupnice(), stupnice("Vyberte tóninu"));
    int zmen = 0;
    QObject::connect(&tonina, &Tonina::changed, [&] { ++zmen; });
    for (int i = 0; i < 15; ++i) {
        volba.cmdOK(i);
        EXPECT_EQ(tonina.stupnice().text(), popisky.section(',', i, i));
        EXPECT_EQ(osnova.stupnice(), tonina.stupnice());
        EXPECT_EQ(osnova.predznamenani().pocet(), i < 8 ? i : i - 7);
    }
    EXPECT_EQ(zmen, 15);
    volba.cmdOK(std::nullopt);
    EXPECT_EQ(tonina.stupnice(), Key()) << "nothing is selected";
    EXPECT_EQ(osnova.stupnice(), Key());
    volba.cmdOK(1);
    volba.cmdZrusit();
    EXPECT_EQ(tonina.stupnice(), Key::vyberteToninu());
    EXPECT_EQ(osnova.predznamenani().pocet(), 0);
}

TEST_F(VolbaStupniceTest, HelpExplainsTheChoice) {
    dialogs.expect("Nápověda k výběru tóniny.", "v programu Tamík. Dále je toto určení");
    volba.cmdHelp();
    EXPECT_EQ(dialogs.last.icon, Icon::Information);
    EXPECT_TRUE(dialogs.last.text.startsWith("Tóninu skladby, kterou hodláte zapsat, je vhodné"));
    EXPECT_TRUE(dialogs.last.text.endsWith("náleží, stiskněte tlačítko Zrušit nastavení."));
}

} // namespace
} // namespace zvonika
