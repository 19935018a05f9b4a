#include "theory/Tonavox12.h"

#include "tests/theory/Vypis.h"
#include "theory/Toniny.h"

#include <QStringList>

#include <array>
#include <gtest/gtest.h>
#include <set>

namespace zvonika {
namespace {

using testing::nazev;

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
        static const std::array<const char*, 12> krizky{"c",   "cis", "d",   "dis", "e",   "f",
                                                        "fis", "g",   "gis", "a",   "ais", "h"};
        static const std::array<const char*, 12> becka{"c",   "des", "d",  "es", "e", "f",
                                                       "ges", "g",   "as", "a",  "b", "h"};
        const auto t = static_cast<std::size_t>(trida(cislo));
        const int oktava = (cislo + 3) / 12;
        if (t == 11 && predznamenani_ <= -6) return sOktavou("ces", oktava + 1);
        if (t == 4 && predznamenani_ == -7) return sOktavou("fes", oktava);
        return sOktavou(predznamenani_ < 0 ? becka[t] : krizky[t], oktava);
    }

private:
    /// Semitones above c; tone 1 is e.
    static int trida(int cislo) { return (cislo + 3) % 12; }
    static QString sOktavou(const char* jmeno, int oktava) {
        return QLatin1String(jmeno) + (oktava > 0 ? QString::number(oktava) : QString()) + QLatin1String(",");
    }

    int predznamenani_;
    std::set<int> skala_;
};

struct Pojmenovani {
    ToneName nazev;
    bool mimo;
};

Pojmenovani pojmenuj(int cislo, QString stupnice) {
    Tonavox12 model;
    model.DejTonVeStupnici(CisloTonu(cislo), stupnice);
    return {model.nazevTonu(), model.MimoStupnici()};
}

CisloTonu cislo(const ToneName& nazev) {
    Tonavox12 model;
    model.DejCisloTonu(nazev);
    return model.cisloTonu();
}

TEST(Tonavox12, NamesTheCompassWithSharps) {
    const QStringList zacatek =
        QStringLiteral("e, f, fis, g, gis, a, ais, h, c1, cis1, d1, dis1, e1,").split(QLatin1Char(' '));
    Tonavox12 model;
    for (int n = 1; n <= zacatek.size(); ++n) {
        model.DejTon(CisloTonu(n));
        EXPECT_EQ(model.nazevTonu().text(), zacatek[n - 1]);
    }
    for (int n = 1; n <= 49; ++n) {
        model.DejTon(CisloTonu(n));
        EXPECT_EQ(model.nazevTonu().text(), Teorie(0).nazev(n));
    }
    EXPECT_EQ(model.nazevTonu(), nazev("e4,"));
}

TEST(Tonavox12, SpellsEveryToneOfEveryKey) {
    for (const DurovaTonina& tonina : toniny) {
        const Teorie teorie(tonina.predznamenani);
        for (int n = 1; n <= 49; ++n) {
            SCOPED_TRACE(tonina.nazev.toString().toStdString() + " " + std::to_string(n));
            const auto [jmeno, mimo] = pojmenuj(n, tonina.nazev.toString());
            const bool vyjimka = tonina.nazev == u"F dur" && n == 49;
            EXPECT_EQ(jmeno.text(), vyjimka ? QStringLiteral("e,") : teorie.nazev(n));
            EXPECT_EQ(mimo, tonina.nazev != u"Fis dur" && teorie.mimo(n));
            EXPECT_EQ(cislo(jmeno).hodnota(), vyjimka ? 1 : n);
        }
    }
}

TEST(Tonavox12, FindsAKeyByItsNormalisedName) {
    struct Pripad {
        const char *stupnice, *normalizovana, *ton3;
        bool mimo;
    };
    for (const Pripad& p : {Pripad{"F dur", "Fdur", "ges,", true},
                            {"D dur", "ddur", "fis,", false},
                            {"C Dur", "Cdur", "fis,", true},
                            {" D e s Dur", "desdur", "ges,", false},
                            {"ddur", "ddur", "fis,", false},
                            {"f dur", "fdur", "fis,", false},
                            {"Fis dur", "Fisdur", "fis,", false},
                            {"Vyberte tóninu", "Vybertetóninu", "fis,", false},
                            {"", "", "fis,", false}}) {
        QString stupnice = QString::fromUtf8(p.stupnice);
        Tonavox12 model;
        model.DejTonVeStupnici(CisloTonu(3), stupnice);
        EXPECT_EQ(stupnice, QString::fromUtf8(p.normalizovana));
        EXPECT_EQ(model.nazevTonu(), nazev(p.ton3)) << p.stupnice;
        EXPECT_EQ(model.MimoStupnici(), p.mimo) << p.stupnice;
    }
}

TEST(Tonavox12, HasNoNameOutsideTheCompass) {
    Tonavox12 model;
    for (int n : {-1, 0, 50, 99}) {
        model.DejTon(CisloTonu(n));
        EXPECT_EQ(model.nazevTonu(), ToneName::nenalezeno());
        QString stupnice = QStringLiteral("Ces dur");
        model.DejTonVeStupnici(CisloTonu(n), stupnice);
        EXPECT_EQ(model.nazevTonu(), nazev("Nenalezeno"));
        EXPECT_FALSE(model.MimoStupnici());
    }
}

TEST(Tonavox12, OnlyNamingTouchesTheOutOfScaleFlag) {
    Tonavox12 model;
    QString stupnice = QStringLiteral("G dur");
    model.DejTonVeStupnici(CisloTonu(2), stupnice);
    EXPECT_TRUE(model.MimoStupnici());
    model.DejCisloTonu(nazev("c1,"));
    EXPECT_TRUE(model.MimoStupnici());
    EXPECT_EQ(model.Ton(), Tonavox12::Vysledek(CisloTonu(9)));
    EXPECT_TRUE(model.nazevTonu().jePrazdny());
    model.DejTon(CisloTonu(3));
    EXPECT_FALSE(model.MimoStupnici());
    EXPECT_EQ(model.Ton(), Tonavox12::Vysledek(nazev("fis,")));
    EXPECT_EQ(model.cisloTonu(), CisloTonu::neznamy());
}

TEST(Tonavox12, NumbersEverySpelling) {
    // All spellings of an octave from e, by semitone.
    const std::array<QStringList, 12> prvniOktava{{{"e1,", "fes1,"},
                                                   {"f1,", "eis1,"},
                                                   {"fis1,", "ges1,"},
                                                   {"g1,"},
                                                   {"gis1,", "as1,"},
                                                   {"a1,"},
                                                   {"ais1,", "b1,"},
                                                   {"h1,", "ces2,"},
                                                   {"c2,", "his1,"},
                                                   {"cis2,", "des2,"},
                                                   {"d2,"},
                                                   {"dis2,", "es2,"}}};
    for (int i = 0; i < 12; ++i) {
        for (const QString& jmeno : prvniOktava[static_cast<std::size_t>(i)])
            EXPECT_EQ(cislo(ToneName(jmeno)).hodnota(), 13 + i) << jmeno.toStdString();
    }
    struct Okraj {
        const char* jmeno;
        int cislo;
    };
    for (const Okraj& o : {Okraj{"fes,", 1},
                           {"eis,", 2},
                           {"b,", 7},
                           {"ces1,", 8},
                           {"his,", 9},
                           {"ces4,", 44},
                           {"his3,", 45},
                           {"fes4,", 49},
                           {"e4,", 49}})
        EXPECT_EQ(cislo(nazev(o.jmeno)).hodnota(), o.cislo) << o.jmeno;
}

TEST(Tonavox12, KnowsNoOtherName) {
    for (const char* jmeno :
         {"",      ",",       "cis1",    "e",  "es,", "dis,", "c,",  "ces,", "eis4,", "f4,",
          "his4,", "cisis1,", "heses1,", "E,", " e,", "e0,",  "e5,", "hes,", "es 1,", "Nenalezeno"})
        EXPECT_EQ(cislo(nazev(jmeno)).hodnota(), 99) << jmeno;
}

} // namespace
} // namespace zvonika
