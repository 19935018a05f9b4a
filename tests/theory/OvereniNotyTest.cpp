#include "theory/OvereniNoty.h"

#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/KresleniTonu.h"
#include "tests/theory/Vypis.h"
#include "theory/Tonina.h"
#include "theory/Toniny.h"

#include <functional>
#include <gtest/gtest.h>

namespace zvonika {
namespace {

using testing::ScriptedDialogs;

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
    void over(const Key& klic, int ton) {
        tonina.nastavStupnici(klic);
        overeni.OverNotuVeStupnici(CisloTonu(ton));
    }

    ScriptedDialogs dialogs;
    clsNoty noty{dialogs};
    Tonina tonina;
    Zapisovac prijemce;
    OvereniNoty overeni{dialogs, noty, tonina, prijemce};
};

TEST_F(OvereniNotyTest, DrawsTonesOfTheKeyWithoutAsking) {
    for (const DurovaTonina& klic : toniny)
        for (int ton = 1; ton <= 49; ++ton) {
            const auto [nazev, mimo] = nazevTonu(CisloTonu(ton), klic.key());
            if (mimo) continue;
            prijemce.kroky.clear();
            over(klic.key(), ton);
            EXPECT_EQ(prijemce.nakreslena, testing::kreslenaNota(ton, klic.key(), dialogs));
            EXPECT_EQ(prijemce.kroky, QStringList({QString("popis %1 %2").arg(ton).arg(nazev.text()),
                                                   QString("nota %1").arg(nazev.text())}));
        }
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
            over(Key(p.klic), p.ton);
            EXPECT_EQ(dialogs.last.text,
                      QString("Nota %1 se ve stupnici %2 nepoužívá.\n%3").arg(p.nazev, p.klic, p.nabidka));
            EXPECT_EQ(dialogs.last.icon, Icon::Question);
            EXPECT_EQ(dialogs.last.buttons, Buttons::YesNoCancel);
            EXPECT_EQ(prijemce.kroky.mid(1), QStringList(krok)) << p.klic;
            if (odpoved == Answer::Yes) {
                EXPECT_EQ(prijemce.nakreslena, (KreslenaNota{CisloTonu(p.ton), ToneName(p.nazev), p.poloha,
                                                             p.nabidka == odrazka}));
            }
        }
}

TEST_F(OvereniNotyTest, ANewKeyIsCheckedAgain) {
    prijemce.vyber = [this] {
        tonina.nastavStupnici(Key(tonina.stupnice() == Key("C dur") ? "F dur" : "G dur"));
    };
    dialogs.expect(titulek, QStringLiteral("fis, se ve stupnici C dur"), Answer::No);
    dialogs.expect(titulek, QStringLiteral("ges, se ve stupnici F dur"), Answer::No);
    over(Key("C dur"), 3);
    EXPECT_EQ(prijemce.kroky,
              QStringList({"popis 3 fis,", "výběr", "popis 3 ges,", "výběr", "popis 3 fis,", "nota fis,"}));
}

} // namespace
} // namespace zvonika
