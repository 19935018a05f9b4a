#include "board/BassTable.h"

#include <QFile>
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

TEST(BassTable, TheShippedTableFollowsTheCircleOfFifths) {
    const QStringList kvinty = QStringLiteral("Heses Fes Ces Ges Des As Es B F C G D A E H Fis Cis Gis Dis "
                                              "Ais Eis His Fisis Cisis")
                                   .split(u' ');
    const BassTable tabulka = dodanaTabulka();
    EXPECT_EQ(tabulka.chyba().toStdString(), "");
    for (int bas = 1; bas <= pocetBasu; ++bas) {
        const QString zaklad = kvinty.at((bas - 1) % 20), tercie = kvinty.at((bas - 1) % 20 + 4);
        const QString rady[] = {tercie + u'/' + zaklad,     zaklad,           zaklad + "-dur",
                                zaklad.toLower() + "-moll", zaklad + "-sept", zaklad + "-zm"};
        EXPECT_EQ(tabulka.nazev(bas).toStdString(), rady[(bas - 1) / 20].toStdString());
        EXPECT_EQ(tabulka.cislo(tabulka.nazev(bas)), bas);
    }
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
