#include "board/BassTable.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zvonika {
namespace {

constexpr int pocetBasu = 120;

BassTable dodanaTabulka() {
    return BassTable(QStringLiteral(ZVONIKA_RESOURCES), pocetBasu);
}

/// A program folder with a table of its own.
class VlastniTabulka {
public:
    void zapis(const QByteArray& obsah) {
        QFile soubor(slozka_.filePath(QStringLiteral("tonavox.xml")));
        ASSERT_TRUE(soubor.open(QIODevice::WriteOnly));
        soubor.write(obsah);
    }
    QString slozka() const { return slozka_.path(); }

private:
    QTemporaryDir slozka_;
};

QByteArray polozka(const QByteArray& bas, const QByteArray& cislo) {
    return "<knoflik><bas>" + bas + "</bas><cislo>" + cislo + "</cislo></knoflik>";
}

/// Semitones above c of a Czech tone name.
int pulton(const QString& nazev) {
    static const QMap<QString, int> kmeny{{"c", 0}, {"d", 2}, {"e", 4}, {"f", 5},
                                          {"g", 7}, {"a", 9}, {"h", 11}};
    if (nazev == u'B') return 10;
    const QString maly = nazev.toLower();
    int pultonu = kmeny.value(maly.left(1), -100);
    pultonu += static_cast<int>(maly.count(QStringLiteral("is")));
    pultonu -= static_cast<int>(maly.mid(1).count(u's') - maly.count(QStringLiteral("is")));
    return (pultonu + 12) % 12;
}

TEST(BassTable, TheShippedTableIsWhole) {
    const BassTable tabulka = dodanaTabulka();
    EXPECT_EQ(tabulka.chyba().toStdString(), "");
    for (int bas = 1; bas <= pocetBasu; ++bas)
        EXPECT_EQ(tabulka.cislo(tabulka.nazev(bas)), bas) << bas;
}

TEST(BassTable, ColumnsFollowTheCircleOfFifths) {
    const BassTable tabulka = dodanaTabulka();
    const struct {
        int bas;
        const char* nazev;
    } radky[] = {{21, "Heses"}, {26, "As"},     {30, "C"},        {34, "E"},
                 {40, "Ais"},   {10, "E/C"},    {1, "Des/Heses"}, {20, "Cisis/Ais"},
                 {50, "C-dur"}, {70, "c-moll"}, {90, "C-sept"},   {110, "C-zm"}};
    for (const auto& [bas, nazev] : radky)
        EXPECT_EQ(tabulka.nazev(bas).toStdString(), nazev) << bas;
    for (int bas = 22; bas <= 40; ++bas)
        EXPECT_EQ((pulton(tabulka.nazev(bas - 1)) + 7) % 12, pulton(tabulka.nazev(bas))) << bas;
}

TEST(BassTable, ACounterBassIsAMajorThirdAboveItsColumn) {
    const BassTable tabulka = dodanaTabulka();
    const auto kmen = [](const QString& ton) {
        return QStringLiteral("CDEFGAH").indexOf(ton == u'B' ? QChar(u'H') : ton.front());
    };
    for (int bas = 1; bas <= 20; ++bas) {
        const QString zaklad = tabulka.nazev(bas + 20);
        const QStringList casti = tabulka.nazev(bas).split(u'/');
        ASSERT_EQ(casti.size(), 2) << bas;
        EXPECT_EQ(casti.at(1), zaklad);
        EXPECT_EQ(pulton(casti.at(0)), (pulton(zaklad) + 4) % 12) << bas;
        EXPECT_EQ(kmen(casti.at(0)), (kmen(zaklad) + 2) % 7) << bas; // a third, not a diminished fourth
    }
}

TEST(BassTable, ChordsCarryTheRootOfTheirColumn) {
    const BassTable tabulka = dodanaTabulka();
    const char* druhy[] = {"-dur", "-moll", "-sept", "-zm"};
    for (int bas = 41; bas <= pocetBasu; ++bas) {
        const QString ocekavany = tabulka.nazev((bas - 1) % 20 + 21) + QLatin1String(druhy[(bas - 41) / 20]);
        EXPECT_EQ(tabulka.nazev(bas).toLower(), ocekavany.toLower()) << bas;
    }
}

TEST(BassTable, NamesAreNothingButTextToASpreadsheet) {
    const BassTable tabulka = dodanaTabulka();
    // No digit: no number, date, cell or exponent. No blank: several names in a row stay apart.
    const QRegularExpression bezpecny(QStringLiteral("^[A-Ha-h][a-z]*([/-][A-Za-z]+)?$"));
    const QSet<QString> zakazane{"true", "false", "pravda", "nepravda"};
    QSet<QString> jmena;
    for (int bas = 1; bas <= pocetBasu; ++bas) {
        const QString nazev = tabulka.nazev(bas);
        EXPECT_TRUE(bezpecny.match(nazev).hasMatch()) << nazev.toStdString();
        EXPECT_LE(nazev.size(), 10);
        EXPECT_FALSE(zakazane.contains(nazev.toLower()));
        jmena.insert(nazev.toLower()); // some spreadsheets compare without regard to case
    }
    EXPECT_EQ(jmena.size(), pocetBasu);
}

TEST(BassTable, OutsideTheTableThereIsNothing) {
    const BassTable tabulka = dodanaTabulka();
    EXPECT_EQ(tabulka.nazev(0), QString());
    EXPECT_EQ(tabulka.nazev(121), QString());
    for (const char* nazev : {"", "c", "C ", "X"})
        EXPECT_EQ(tabulka.cislo(QLatin1String(nazev)), 0) << nazev;
}

TEST(BassTable, FaultsAreToldInOneSentenceAndTheRestIsUsed) {
    const struct {
        const char* popis;
        QByteArray obsah;
        const char* chyba;
        int znamych;
    } radky[] = {
        {"empty", "", "je poškozená", 0},
        {"damaged", "<tonavox><knoflik><bas>C</bas>", "je poškozená", 0},
        {"other document", "<html/>", "nezná 120 ze 120", 0},
        {"incomplete", "<t>" + polozka("C", "30") + "</t>", "nezná 119 ze 120", 1},
        {"nested", "<t><a>" + polozka("C", " 30 ") + "</a></t>", "nezná 119 ze 120", 1},
        {"number twice", "<t>" + polozka("C", "30") + polozka("D", "30") + "</t>", "opakované položky (1)",
         1},
        {"name twice", "<t>" + polozka("C", "30") + polozka("C", "31") + "</t>", "opakované položky (1)", 1},
        {"no number", "<t>" + polozka("C", "x") + polozka("D", "121") + polozka("", "1") + "</t>",
         "položky (3)", 0},
    };
    for (const auto& radek : radky) {
        VlastniTabulka vlastni;
        vlastni.zapis(radek.obsah);
        const BassTable tabulka(vlastni.slozka(), pocetBasu);
        EXPECT_TRUE(tabulka.chyba().contains(QString::fromUtf8(radek.chyba)))
            << radek.popis << ": " << tabulka.chyba().toStdString();
        EXPECT_TRUE(tabulka.chyba().endsWith(u'.')) << radek.popis;
        int znamych = 0;
        for (int bas = 1; bas <= pocetBasu; ++bas)
            znamych += !tabulka.nazev(bas).isEmpty();
        EXPECT_EQ(znamych, radek.znamych) << radek.popis;
    }
}

TEST(BassTable, AMissingTableIsFoundOnceItIsThere) {
    VlastniTabulka vlastni;
    BassTable tabulka(vlastni.slozka(), pocetBasu);
    EXPECT_TRUE(tabulka.chyba().contains(QStringLiteral("nebyla ve složce programu nalezena")));
    vlastni.zapis("<t>" + polozka("C", "30") + "</t>");
    EXPECT_FALSE(tabulka.nacti());
    EXPECT_EQ(tabulka.cislo(QStringLiteral("C")), 30);
    vlastni.zapis("<t>" + polozka("D", "30") + "</t>");
    tabulka.nacti();
    EXPECT_EQ(tabulka.cislo(QStringLiteral("C")), 0); // nothing of the former table is left
}

} // namespace
} // namespace zvonika
