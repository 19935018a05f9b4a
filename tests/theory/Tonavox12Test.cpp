#include "theory/Tonavox12.h"

#include "tests/theory/Vypis.h"
#include "theory/NazvyTonu.h"
#include "theory/Toniny.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <set>

namespace zvonika {
namespace {

/// The names by the rules of music: a key's scale is a chain of fifths, sharp keys write sharps and flat keys
/// flats.
class Teorie {
public:
    explicit Teorie(int predznamenani) : predznamenani_(predznamenani) {
        // F C G D A E H as steps of a chain of fifths; seven neighbours of it are a major scale.
        for (int clanek = predznamenani - 1; clanek < predznamenani + 6; ++clanek)
            skala_.insert(((clanek * 7) % 12 + 12) % 12);
    }

    bool mimo(int cislo) const { return !skala_.count(trida(cislo)); }

    QString nazev(int cislo) const {
        static const QStringList krizky = QString("c cis d dis e f fis g gis a ais h").split(' ');
        static const QStringList becka = QString("c des d es e f ges g as a b h").split(' ');
        const int t = trida(cislo), oktava = (cislo + 3) / 12;
        if (t == 11 && predznamenani_ <= -6) return sOktavou("ces", oktava + 1);
        if (t == 4 && predznamenani_ == -7) return sOktavou("fes", oktava);
        return sOktavou(predznamenani_ < 0 ? becka[t] : krizky[t], oktava);
    }

private:
    /// Semitones above c; tone 1 is e.
    static int trida(int cislo) { return (cislo + 3) % 12; }
    static QString sOktavou(const QString& jmeno, int oktava) {
        return jmeno + (oktava > 0 ? QString::number(oktava) : QString()) + ',';
    }

    int predznamenani_;
    std::set<int> skala_;
};

TEST(Tonavox12, SpellsEveryToneOfEveryKey) {
    for (const DurovaTonina& tonina : toniny) {
        const Teorie teorie(tonina.predznamenani);
        for (int n = 1; n <= 49; ++n) {
            SCOPED_TRACE(tonina.nazev.toString().toStdString() + " " + std::to_string(n));
            const auto [jmeno, mimo] = nazevTonu(CisloTonu(n), tonina.key());
            const bool vyjimka = tonina.nazev == u"F dur" && n == 49;
            EXPECT_EQ(jmeno.text(), vyjimka ? QStringLiteral("e,") : teorie.nazev(n));
            EXPECT_EQ(mimo, tonina.nazev != u"Fis dur" && teorie.mimo(n));
            EXPECT_EQ(cisloTonu(jmeno).hodnota(), vyjimka ? 1 : n);
            EXPECT_EQ(nazevTonu(CisloTonu(n)).text(), Teorie(0).nazev(n));
        }
    }
}

TEST(Tonavox12, LeavesTheKeyNormalisedAndItsResultInItself) {
    const struct {
        const char *stupnice, *normalizovana, *ton3;
        bool mimo;
    } pripady[] = {
        {"F dur", "Fdur", "ges,", true},
        {"D dur", "ddur", "fis,", false},
        {"C Dur", "Cdur", "fis,", true},
        {" D e s Dur", "desdur", "ges,", false},
        {"ddur", "ddur", "fis,", false},
        {"f dur", "fdur", "fis,", false},
        {"Fis dur", "Fisdur", "fis,", false},
        {"Vyberte tóninu", "Vybertetóninu", "fis,", false},
        {"", "", "fis,", false},
    };
    Tonavox12 model;
    for (const auto& p : pripady) {
        QString stupnice = p.stupnice;
        model.DejTonVeStupnici(CisloTonu(3), stupnice);
        EXPECT_EQ(stupnice, p.normalizovana);
        EXPECT_EQ(model.nazevTonu(), ToneName(p.ton3)) << p.stupnice;
        EXPECT_EQ(model.MimoStupnici(), p.mimo) << p.stupnice;
    }
    QString stupnice = "G dur";
    model.DejTonVeStupnici(CisloTonu(2), stupnice);
    model.DejCisloTonu(ToneName("c1,"));
    EXPECT_TRUE(model.MimoStupnici()) << "numbering leaves the flag alone";
    EXPECT_EQ(model.Ton(), Tonavox12::Vysledek(CisloTonu(9)));
    EXPECT_TRUE(model.nazevTonu().jePrazdny());
    model.DejTon(CisloTonu(3));
    EXPECT_FALSE(model.MimoStupnici());
    EXPECT_EQ(model.Ton(), Tonavox12::Vysledek(ToneName("fis,")));
    EXPECT_EQ(model.cisloTonu(), CisloTonu::neznamy());
    for (const int n : {-1, 0, 50, 99}) {
        model.DejTon(CisloTonu(n));
        EXPECT_EQ(model.nazevTonu(), ToneName("Nenalezeno"));
        stupnice = "Ces dur";
        model.DejTonVeStupnici(CisloTonu(n), stupnice);
        EXPECT_EQ(model.nazevTonu(), ToneName::nenalezeno());
        EXPECT_FALSE(model.MimoStupnici());
    }
}

TEST(Tonavox12, NumbersEverySpellingAndNothingElse) {
    // All spellings of an octave from e, by semitone.
    const QStringList oktava =
        QString(
            "e1,=fes1, f1,=eis1, fis1,=ges1, g1, gis1,=as1, a1, ais1,=b1, h1,=ces2, c2,=his1, cis2,=des2, "
            "d2, dis2,=es2,")
            .split(' ');
    ASSERT_EQ(oktava.size(), 12);
    for (int i = 0; i < 12; ++i)
        for (const QString& jmeno : oktava[i].split('='))
            EXPECT_EQ(cisloTonu(ToneName(jmeno)).hodnota(), 13 + i) << qPrintable(jmeno);
    // At the edges of the compass; his3 and fes4 belong to it, eis4 does not.
    for (const auto& [jmeno, cislo] : {std::pair{"fes,", 1},
                                       {"eis,", 2},
                                       {"b,", 7},
                                       {"ces1,", 8},
                                       {"his,", 9},
                                       {"ces4,", 44},
                                       {"his3,", 45},
                                       {"fes4,", 49},
                                       {"e4,", 49}})
        EXPECT_EQ(cisloTonu(ToneName(jmeno)).hodnota(), cislo) << jmeno;
    for (const char* jmeno :
         {"",      ",",       "cis1",    "e",  "es,", "dis,", "c,",  "ces,", "eis4,", "f4,",
          "his4,", "cisis1,", "heses1,", "E,", " e,", "e0,",  "e5,", "hes,", "es 1,", "Nenalezeno"})
        EXPECT_EQ(cisloTonu(ToneName(jmeno)).hodnota(), 99) << jmeno;
}

} // namespace
} // namespace zvonika
