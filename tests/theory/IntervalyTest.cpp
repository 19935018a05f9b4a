#include "tests/support/ScriptedDialogs.h"
#include "theory/NazevIntervalu.h"
#include "theory/Toniny.h"
#include "theory/VychodiskoIntervalu.h"
#include "theory/clsIntervaly.h"
#include "theory/clsNoty.h"

#include <QFile>
#include <QTemporaryDir>

namespace zvonika {
namespace {

using testing::ScriptedDialogs;

/// The table that comes with the program.
class IntervalyTest : public ::testing::Test {
protected:
    QString urci(const char* ton, const char* stupnice, int kroky, bool bezKontroly = false) {
        return urci(intervaly, ton, stupnice, kroky, bezKontroly);
    }
    static QString urci(const clsIntervaly& intervaly, const char* ton, const char* stupnice, int kroky,
                        bool bezKontroly = false) {
        ToneName vysledek(QStringLiteral("x"));
        intervaly.UrciInterval(ToneName(QString::fromUtf8(ton)), Key(QString::fromUtf8(stupnice)),
                               static_cast<std::int16_t>(kroky), bezKontroly, vysledek);
        return vysledek.text();
    }
    /// A table of C dur alone.
    QString slozkaSTabulkou(const QStringList& tony, int mimoStupniciOd = 999) {
        QFile soubor(slozka.filePath(QStringLiteral("konverze.xml")));
        if (!soubor.open(QIODevice::WriteOnly)) return {};
        soubor.write("<t>");
        for (int i = 0; i < tony.size(); ++i)
            soubor.write(QStringLiteral("<nota%1><Cdur>%2</Cdur></nota>")
                             .arg(QLatin1String(i >= mimoStupniciOd ? " mimoStupnici=\"1\"" : ""), tony[i])
                             .toUtf8());
        soubor.write("</t>");
        return slozka.path();
    }

    ScriptedDialogs dialogs;
    clsIntervaly intervaly{QStringLiteral(ZVONIKA_RESOURCES), dialogs};
    QTemporaryDir slozka;
};

const QString mimoTabulku =
    QStringLiteral("Byl zvolen interval mimo rozsah tohoto akordeonu.\nVyberte kratší interval !");

TEST(NazevIntervalu, EveryStepCountHasItsName) {
    const std::pair<int, const char*> radky[] = {{1, "vrchní sekunda"},      {8, "vrchní nóna"},
                                                 {14, "vrchní kvintdecima"}, {-1, "spodní sekunda"},
                                                 {-4, "spodní kvinta"},      {-14, "spodní kvintdecima"},
                                                 {0, "nepojmenovaný"},       {15, "nepojmenovaný"},
                                                 {-15, "nepojmenovaný"},     {-32768, "nepojmenovaný"}};
    for (const auto& [kroky, nazev] : radky)
        EXPECT_EQ(NazevIntervalu(static_cast<std::int16_t>(kroky)), QString::fromUtf8(nazev)) << kroky;
}

TEST_F(IntervalyTest, StepsOfTheScale) {
    const struct {
        const char *ton, *stupnice;
        int kroky;
        const char* vysledek;
    } radky[] = {
        {"c1,", "C dur", 2, "e1,"},
        {"c1,", "C dur", -2, "a,"},
        {"e,", "C dur", 14, "e2,"},
        {"e4,", "C dur", -14, "e2,"},
        {"c1,", "C dur", 0, "c1,"},
        {"e1,", "G dur", 1, "fis1,"},
        {"e1,", "G Dur", 1, "fis1,"},
        {"c1,", "Des dur", 7, "c2,"},
        {"b,", "F dur", 1, "c1,"},
        {"e4,", "F dur", -7, "e3,"},
        {"d4,", "F dur", 1, "e4,"},
        {"b,", "Ges dur", 1, "ces1,"},
        {"fes,", "Ces dur", 7, "fes1,"},
        {"c1,", "Cis dur", -1, "ais,"},
        {"f1,", "Fis dur", 2, "gis1,"},
        // not of the scale, not of the key, no key, no name
        {"fis1,", "C dur", 2, ""},
        {"ges1,", "G dur", 2, ""},
        {"e1,", "Fis dur", 2, ""},
        {"c1,", "Vyberte tóninu", 2, ""},
        {"c1,", "", 2, ""},
        {"c1", "C dur", 2, ""},
    };
    for (const auto& r : radky) {
        EXPECT_EQ(urci(r.ton, r.stupnice, r.kroky), QString::fromUtf8(r.vysledek))
            << r.ton << ' ' << r.stupnice << ' ' << r.kroky;
        EXPECT_EQ(intervaly.zna(ToneName(r.ton), Key(QString::fromUtf8(r.stupnice))), *r.vysledek != '\0');
    }
    EXPECT_EQ(dialogs.count, 0) << "a tone that the scale does not know is no matter for a box";
}

TEST_F(IntervalyTest, BeyondTheInstrumentIsReported) {
    // In the table C dur begins with great H at position 1, with a at 0, and ends with a4 at 35.
    const struct {
        const char* ton;
        int kroky;
        const char *titulek, *text;
    } radky[] = {
        {"e,", -1, "Chyba při vyhledávání tónu.",
         "Nota d, v nastaveném ladění neexistuje.\n\nV tuto chvíli tón nemůže být zobrazen !"},
        {"e4,", 1, "Chyba při vyhledávání tónu.",
         "Nota f4, v nastaveném ladění neexistuje.\n\nV tuto chvíli tón nemůže být zobrazen !"},
        {"e,", -4, "Interval mimo rozsah !",
         "Ve stupnici C dur je výsledným intervalem dle Vašeho požadavku nota A, avšak tento tón je již "
         "mimo rozsah tohoto akordeonu.\nInterval nelze zobrazit!"},
        {"e,", -5, "", nullptr},
        {"e4,", 4, "", nullptr},
    };
    for (const auto& r : radky) {
        const QString text = r.text ? QString::fromUtf8(r.text) : mimoTabulku;
        dialogs.expect(QString::fromUtf8(r.titulek), text);
        EXPECT_EQ(urci(r.ton, "C dur", r.kroky), "") << r.ton << ' ' << r.kroky;
        EXPECT_EQ(dialogs.last.text, text);
        EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
    }
}

TEST_F(IntervalyTest, UncheckedANoteIsReturnedAsItStands) {
    EXPECT_EQ(urci("e,", "C dur", -1, true), "d,");
    EXPECT_EQ(urci("e4,", "C dur", 3, true), "a4,");
    dialogs.expect("Interval mimo rozsah !", "nota A, avšak");
    EXPECT_EQ(urci("e,", "C dur", -4, true), "") << "position 0 is out of range all the same";
}

TEST_F(IntervalyTest, WithoutMarksEveryEntryIsAStep) {
    QStringList tony{"x", "c1,", "e1,", "g1,"};
    while (tony.size() < 57)
        tony << QStringLiteral("t%1").arg(tony.size());
    tony << "a1,"
         << "h1,";
    const clsIntervaly bezeZnacek(slozkaSTabulkou(tony), dialogs);
    EXPECT_EQ(urci(bezeZnacek, "c1,", "C dur", 2), "g1,");
    EXPECT_EQ(urci(bezeZnacek, "c1,", "C dur", 57), "h1,");
    EXPECT_EQ(urci(bezeZnacek, "a1,", "C dur", 1), "h1,") << "position 57 is the last that is searched";
    EXPECT_EQ(urci(bezeZnacek, "h1,", "C dur", -1), "");
    EXPECT_EQ(urci(bezeZnacek, "x", "C dur", 1), "") << "position 0 is no starting point";
    dialogs.expect("", mimoTabulku);
    EXPECT_EQ(urci(bezeZnacek, "c1,", "C dur", 58), "");

    const clsIntervaly seZnackou(slozkaSTabulkou(tony, 3), dialogs);
    EXPECT_EQ(urci(bezeZnacek, "c1,", "C dur", 2), "g1,") << "a table is read once";
    EXPECT_EQ(urci(seZnackou, "g1,", "C dur", -1), "");
    dialogs.expect("", mimoTabulku);
    EXPECT_EQ(urci(seZnackou, "c1,", "C dur", 2), "");
}

TEST_F(IntervalyTest, AMissingTableKnowsNoToneAndSaysWhy) {
    const clsIntervaly bezTabulky(slozka.path(), dialogs);
    dialogs.expect("", mimoTabulku);
    EXPECT_EQ(urci(bezTabulky, "c1,", "C dur", 1), "");
    const clsIntervaly kratka(slozkaSTabulkou({"x", "c1,", "d1,"}), dialogs);
    EXPECT_EQ(urci(kratka, "c1,", "C dur", 1), "d1,");
    for (const auto& [ton, stupnice] : {std::pair("h1,", "C dur"), std::pair("c1,", "G dur")}) {
        dialogs.expect("", mimoTabulku); // the search meets the table's end
        EXPECT_EQ(urci(kratka, ton, stupnice, 1), "");
    }
    EXPECT_TRUE(bezTabulky.chyba().contains("konverze.xml"));
    EXPECT_EQ(intervaly.chyba(), "");
}

TEST_F(IntervalyTest, AStartOutsideTheScaleLeansOnTheToneOfItsLine) {
    const struct {
        int ton;
        const char *stupnice, *nazev;
        bool mimo;
        const char* opora;
        int posun;
    } radky[] = {
        {9, "C dur", "c1,", false, "c1,", 0},   {15, "C dur", "fis1,", true, "f1,", 0},
        {14, "G dur", "f1,", true, "fis1,", 0}, {15, "F dur", "ges1,", true, "g1,", 0},
        {13, "Cis dur", "e1,", true, "f1,", 0}, {13, "Ces dur", "fes1,", false, "fes1,", 0},
        {49, "F dur", "e4,", false, "e4,", 0},  {13, "Fis dur", "e1,", false, "e1,", 0},
        {1, "Es dur", "e,", true, "es1,", -7},  {49, "Cis dur", "e4,", true, "f3,", 7},
    };
    const clsNoty noty(dialogs);
    for (const auto& r : radky) {
        const auto v = vychodiskoIntervalu(CisloTonu(r.ton), Key(r.stupnice), noty);
        EXPECT_EQ(v.nazev.text(), r.nazev) << r.ton << r.stupnice;
        EXPECT_EQ(v.mimoStupnici, r.mimo) << r.ton << r.stupnice;
        EXPECT_EQ(v.opora.text(), r.opora) << r.ton << r.stupnice;
        EXPECT_EQ(v.posun, r.posun) << r.ton << r.stupnice;
    }
}

TEST_F(IntervalyTest, EveryToneOfEveryKeyCanBeCountedFrom) {
    const clsNoty noty(dialogs);
    for (const DurovaTonina& tonina : toniny) {
        int nezname = 0;
        for (int n = CisloTonu::nejnizsi; n <= CisloTonu::nejvyssi; ++n) {
            const auto v = vychodiskoIntervalu(CisloTonu(n), tonina.key(), noty);
            nezname += !intervaly.zna(v.opora, tonina.key());
        }
        // Fis dur names tones outside its scale as if they belonged to it: 5 of each 12.
        EXPECT_EQ(nezname, tonina.nazev == u"Fis dur" ? 21 : 0) << tonina.nazev.toUtf8().toStdString();
    }
}

} // namespace
} // namespace zvonika
