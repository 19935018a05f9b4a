#include "tests/support/ScriptedDialogs.h"
#include "theory/NazevIntervalu.h"
#include "theory/Toniny.h"
#include "theory/VychodiskoIntervalu.h"
#include "theory/clsIntervaly.h"
#include "theory/clsNoty.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace zvonika {
namespace {

using testing::ScriptedDialogs;

/// The table that comes with the program.
class IntervalyTest : public ::testing::Test {
protected:
    static QString urci(const clsIntervaly& intervaly, const QString& ton, const QString& stupnice, int kroky,
                        bool bezKontroly = false) {
        ToneName vysledek("x");
        intervaly.UrciInterval(ToneName(ton), Key(stupnice), std::int16_t(kroky), bezKontroly, vysledek);
        return vysledek.text();
    }
    /// A table of C dur alone; for "" an entry without it.
    QString slozkaSTabulkou(const QStringList& tony) {
        QFile soubor(slozka.filePath(QStringLiteral("konverze.xml")));
        if (!soubor.open(QIODevice::WriteOnly)) return {};
        soubor.write("<t>");
        for (const QString& ton : tony)
            soubor.write(ton.isEmpty() ? "<nota><Gdur>x</Gdur></nota>"
                                       : QStringLiteral("<nota><Cdur>%1</Cdur></nota>").arg(ton).toUtf8());
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
    const std::pair<const char*, QString> radky[] = {
        // what the scale does not know has no result: not of the scale, not of the key, no key, no name
        {"C dur", "c1,+2=e1, c1,-2=a, e,+14=e2, e4,-14=e2, c1,+0=c1, fis1,+2= c1+2="},
        {"G dur", "e1,+1=fis1, ges1,+2="},
        {"G Dur", "e1,+1=fis1,"},
        {"F dur", "b,+1=c1, e4,-7=e3, d4,+1=e4,"},
        {"Des dur", "c1,+7=c2,"},
        {"Ges dur", "b,+1=ces1,"},
        {"Ces dur", "fes,+7=fes1,"},
        {"Cis dur", "c1,-1=ais,"},
        {"Fis dur", "f1,+2=gis1, e1,+2="},
        {"Vyberte tóninu", "c1,+2="},
        {"", "c1,+2="},
    };
    static const QRegularExpression tvar("^(.*)([+-]\\d+)=(.*)$");
    for (const auto& [stupnice, kroky] : radky)
        for (const QString& krok : kroky.split(' ')) {
            const auto c = tvar.match(krok);
            if (!najdiToninu(Key(stupnice))) dialogs.expect("", mimoTabulku); // no entry has such a key
            EXPECT_EQ(urci(intervaly, c.captured(1), stupnice, c.captured(2).toInt()), c.captured(3))
                << stupnice << ' ' << qPrintable(krok);
            EXPECT_EQ(intervaly.zna(ToneName(c.captured(1)), Key(stupnice)), !c.captured(3).isEmpty());
        }
}

TEST_F(IntervalyTest, BeyondTheInstrumentIsReported) {
    // In the table C dur begins with great H at position 1, with a at 0, and ends with a4 at 35.
    const QString neznama =
        "Nota %1 v nastaveném ladění neexistuje.\n\nV tuto chvíli tón nemůže být zobrazen !";
    const QString mimoRozsah = "Ve stupnici C dur je výsledným intervalem dle Vašeho požadavku nota A, avšak "
                               "tento tón je již mimo rozsah tohoto akordeonu.\nInterval nelze zobrazit!";
    const struct {
        const char* ton;
        int kroky;
        const char* titulek;
        QString text;
        const char* bezKontroly; ///< the note that is returned as it stands; empty where the box is shown too
    } radky[] = {
        {"e,", -1, "Chyba při vyhledávání tónu.", neznama.arg("d,"), "d,"},
        {"e4,", 1, "Chyba při vyhledávání tónu.", neznama.arg("f4,"), "f4,"},
        {"e,", -4, "Interval mimo rozsah !", mimoRozsah, ""},
        {"e,", -5, "", mimoTabulku, ""},
        {"e4,", 4, "", mimoTabulku, ""},
    };
    for (const auto& r : radky)
        for (const bool bezKontroly : {false, true}) {
            const QString vysledek = bezKontroly ? r.bezKontroly : "";
            if (vysledek.isEmpty()) dialogs.expect(r.titulek, r.text);
            EXPECT_EQ(urci(intervaly, r.ton, "C dur", r.kroky, bezKontroly), vysledek) << r.ton << r.kroky;
            EXPECT_EQ(dialogs.last.text, r.text);
            EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
        }
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

    const clsIntervaly kratka(slozkaSTabulkou({"x", "c1,", "d1,"}), dialogs);
    EXPECT_EQ(urci(bezeZnacek, "c1,", "C dur", 2), "g1,") << "a table is read once";
    EXPECT_EQ(urci(kratka, "c1,", "C dur", 1), "d1,");
    dialogs.expect("", mimoTabulku); // the search meets the table's end
    EXPECT_EQ(urci(kratka, "h1,", "C dur", 1), "");

    tony[2].clear();
    const clsIntervaly deravy(slozkaSTabulkou(tony), dialogs);
    dialogs.expect("", mimoTabulku);
    EXPECT_EQ(urci(deravy, "g1,", "C dur", 1), "") << "the search meets an entry without the key";
    EXPECT_EQ(urci(deravy, "c1,", "C dur", 2), "g1,") << "a tone before it is found before";
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
