#include "tests/support/ScriptedDialogs.h"
#include "tests/theory/KresleniTonu.h"
#include "tests/theory/Vypis.h"
#include "theory/clsNotyZapis.h"

#include <QMap>
#include <QObject>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

using testing::kreslenaNota;
using testing::ScriptedDialogs;

class NotyZapis : public ::testing::Test {
protected:
    NotyZapis() {
        QObject::connect(&osnova, &NotovaOsnova::changed, [this] { ++zmen; });
    }

    /// One step in words; false where it is refused or changes nothing.
    bool krok(const QString& text) {
        static const QMap<QChar, Znamenko> znamenka{{'#', Znamenko::Krizek},
                                                    {'b', Znamenko::Becko},
                                                    {'n', Znamenko::Odrazka},
                                                    {'z', Znamenko::Zadne}};
        const QChar co = text[0];
        const int cislo = text.mid(1).section(':', 0, 0).toInt(), predtim = zmen;
        if (znamenka.contains(co)) return zapis.nastavZnamenko(cislo, znamenka[co]);
        if (co == 'p') return zapis.pridejNotu(cislo).has_value();
        if (co == 'm') return zapis.posunNotu(cislo, text.section(':', 1).toInt());
        if (co == 't') return zapis.zakresliNotu(kreslenaNota(cislo, osnova.stupnice(), dialogs)).has_value();
        if (co == 'o') zapis.odeberTon(CisloTonu(cislo));
        if (co == 'x') zapis.odeberNotu(cislo);
        if (co == 'k') zapis.NastavStupnici(Key(text.mid(1) + " dur"));
        if (co == 'N') osnova.odeberNoty();
        if (co == 'S') osnova.odeberPultony();
        if (co == 'O') osnova.odeberOdrazky();
        return zmen != predtim;
    }
    /// Each slot: a natural's n, the name as it reads, "=" and the recorded one where it differs, "!" in red.
    QString obsah() const {
        QStringList sloty;
        for (int slot = 0; slot < NotovaOsnova::pocetNot; ++slot) {
            const auto& nota = osnova.nota(slot);
            const QString cteno = zapis.ctenyNazev(slot).text().chopped(nota ? 1 : 0);
            const QString zapsano = zapis.ZjistiNotu(slot).text().chopped(nota ? 1 : 0);
            const bool odrazka = nota && nota->poloha.znamenko == Znamenko::Odrazka;
            EXPECT_TRUE(!nota || nota->ton == cisloTonu(ToneName(zapsano + ',')));
            sloty << QString(odrazka ? "n" : "") + (nota ? cteno : cteno + "-") +
                         (zapsano == cteno ? QString() : '=' + zapsano) +
                         (zapis.CervenaNota(slot) ? "!" : "");
        }
        return sloty.join(' ');
    }

    ScriptedDialogs dialogs; ///< nothing is ever asked here
    NotovaOsnova osnova;
    clsNotyZapis zapis{osnova, dialogs};
    int zmen = 0;
};

TEST_F(NotyZapis, EveryStepObeysTheKeyAndTheBoard) {
    // p places at staff units, m moves a slot, #bnz its sign, x removes; t and o are a tone of the board; k
    // is another key, N S O release notes, signs, naturals. With ! the step is refused or changes nothing.
    const struct {
        const char *popis, *kroky, *obsah;
    } pripady[] = {
        {"the next free slot, the nearest place", "kC p420 p145 x0 p1800", "e4 e - - -"},
        {"outside the board, twice, when full",
         "kC p60! p0! p-60! p1860! p600 p660 p720 p780 p840 p420! x2 p600! p420", "f1 g1 c1 h1 c2"},
        {"a note moves with its sign; his is the c1 of slot 1",
         "kC p600 #0 p420 m0:670 m0:1800! m1:0! m2:420! m0:360!", "gis1! c1 - - -"},
        {"b1 and ais1 are one button; an empty slot; es lies below the board",
         "kC p720 p780 #0 b1! #4! p120 b2!", "ais1! h1 e - -"},
        {"a flat", "kC p720 b0", "as1=gis1! - - - -"},
        {"a natural", "kC p720 n0", "na1 - - - -"},
        {"no sign again", "kC p720 #0 z0", "a1 - - - -"},
        {"the signature governs plain notes", "kG p600", "fis1 - - - -"},
        {"a natural overrules it", "kG p600 n0", "nf1! - - - -"},
        {"and goes where there is nothing to cancel", "kG p600 n0 m0:660", "g1 - - - -"},
        {"read as written, recorded as the key spells", "kCis p540", "eis1=f1 - - - -"},
        {"the same in a flat key", "kF p420 #0", "cis1=des1! - - - -"},
        {"tones of the board", "kC t13 t14 t15 t16 t17", "e1 f1 fis1! g1 gis1!"},
        {"one is released", "kC t13 t14 t15 t16 t17 o15 o40!", "e1 f1 - g1 gis1!"},
        {"a plain d would read des; there already", "kDes t10 t11 t10", "des1 nd1! - - -"},
        {"full", "kDes t10 t11 o10 t20 t21 t22 t23 t24!", "nh1! nd1! c2 des2 nd2!"},
        {"another key keeps the tones", "kC p600 p780 b1 p660 kD kD!", "nf1! ais1! g1 - -"},
        {"the plain f is the ges1 of slot 1", "kG p600 n0 p660 b1 p720 #2 O", "- ges1=fis1 ais1! - -"},
        {"signs go too", "kG p600 n0 p660 b1 p720 #2 O S S! O!", "- g1 a1 - -"},
        {"neighbours swap without loss", "kC p180 #0 p120 #1 S", "f e - - -"},
        {"all notes", "kB p600 p660 b1 N N! S! O!", "- - - - -"},
    };
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.popis);
        osnova.odeberNoty();
        zapis.NastavStupnici({});
        for (const QString& text : QString(p.kroky).split(' ')) {
            const int predtim = zmen;
            const bool odmitnuto = text.endsWith('!');
            EXPECT_EQ(krok(odmitnuto ? text.chopped(1) : text), !odmitnuto) << qPrintable(text);
            EXPECT_TRUE(!odmitnuto || zmen == predtim) << qPrintable(text);
        }
        EXPECT_EQ(obsah(), p.obsah);
    }
    EXPECT_EQ(osnova.stupnice(), Key("B dur")) << "releasing keeps the key";
    EXPECT_EQ(osnova.vybranySlot(), std::nullopt);
}

TEST_F(NotyZapis, ANaturalCancelsItsSignOfTheSignature) {
    for (const char* text : {"kD", "p840", "n0"}) // the c of f and c
        krok(text);
    EXPECT_TRUE(osnova.odrazka(1));
    EXPECT_FALSE(osnova.odrazka(0) || osnova.odrazka(2));
    krok("m0:660");
    EXPECT_FALSE(osnova.odrazka(1)) << "nothing to cancel on g";
}

TEST_F(NotyZapis, EveryToneOfEveryKeyReadsAsItSounds) {
    for (const char* tonina : {"", "G dur", "A dur", "Fis dur", "Cis dur", "F dur", "As dur", "Ces dur"}) {
        zapis.NastavStupnici(Key(tonina));
        for (int n = 1; n <= 49; ++n) {
            ASSERT_TRUE(krok('t' + QString::number(n)));
            const bool vyjimka = Key(tonina) == Key("F dur") && n == 49;
            EXPECT_EQ(cisloTonu(zapis.ctenyNazev(0)).hodnota(), vyjimka ? 1 : n) << tonina;
            zapis.odeberTon(CisloTonu(n));
        }
    }
}

} // namespace
} // namespace zvonika
