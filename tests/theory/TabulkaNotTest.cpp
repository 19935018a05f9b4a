#include "theory/TabulkaNot.h"

#include "tests/theory/Vypis.h"
#include "theory/NazvyTonu.h"
#include "theory/Toniny.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <array>
#include <gtest/gtest.h>

namespace zvonika {
namespace {

/// Semitones from C dur to each key, the way that keeps a song closest to the middle of the instrument.
constexpr std::array<int, 15> posuny{0, -5, 2, -3, 4, -1, 6, 1, 5, -2, 3, -4, 1, 6, -1};

QString prvek(const DurovaTonina& tonina) {
    return tonina.nazev.toString().remove(u' ');
}

bool jeVeStupniciC(int cislo) {
    static const QSet<int> stupnice{0, 2, 4, 5, 7, 9, 11};
    return stupnice.contains((cislo + 15) % 12);
}

/// C dur tone numbers in the order of the entries.
QList<int> poradiTonu() {
    QList<int> stupne, ostatni;
    for (int cislo = -5; cislo <= 54; ++cislo)
        (jeVeStupniciC(cislo) ? stupne : ostatni).append(cislo);
    const QList<int> krajni{-5, -2, 51, 53};
    ostatni.removeIf([&](int cislo) { return krajni.contains(cislo); });
    return QList<int>{-6} + stupne + ostatni + krajni;
}

/// The name one octave higher or lower, beyond the names of the tone model.
QString oOktavu(QString jmeno, int oktavy) {
    jmeno.chop(1);
    int oktava = 0;
    if (jmeno.back().isDigit()) {
        oktava = jmeno.back().digitValue();
        jmeno.chop(1);
    }
    oktava += oktavy;
    if (oktava < 0) jmeno[0] = jmeno[0].toUpper();
    return jmeno + (oktava > 0 ? QString::number(oktava) : QString()) + u',';
}

QString jmeno(int cislo, const DurovaTonina& tonina) {
    const int oktavy = cislo < 1 ? -1 : cislo > 48 ? 1 : 0; // tone 49 has a name of its own in F dur
    const QString nazev = nazevTonu(CisloTonu(cislo - 12 * oktavy), tonina.key()).nazev.text();
    return oktavy == 0 ? nazev : oOktavu(nazev, oktavy);
}

TEST(TabulkaNot, TheShippedTableIsTheToneModelInEveryKey) {
    const TabulkaNot tabulka(QStringLiteral(ZVONIKA_RESOURCES));
    EXPECT_EQ(tabulka.chyba(), "");
    const QList<int> cisla = poradiTonu();
    ASSERT_EQ(tabulka.pocet(), 61);
    ASSERT_EQ(cisla.size(), 61);
    EXPECT_EQ(tabulka.pocetStupnu(), 36); // the heading and 35 steps
    for (std::size_t k = 0; k < toniny.size(); ++k)
        for (int i = 0; i < tabulka.pocet(); ++i)
            EXPECT_EQ(tabulka.ton(i, prvek(toniny[k])), jmeno(cisla[i] + posuny[k], toniny[k]))
                << toniny[k].nazev.toString().toStdString() << ' ' << i;
    EXPECT_EQ(tabulka.ton(34, "Fdur"), QStringLiteral("c5,"));
    EXPECT_EQ(tabulka.ton(33, "Fdur"), QStringLiteral("b4,"));
}

TEST(TabulkaNot, ReadsAnEditedTableAsItStands) {
    const QByteArray polozka = "<nota><Cdur> c, </Cdur><Gdur/></nota>";
    const struct {
        const char* popis;
        QByteArray obsah;
        int pocet, stupnu;
        const char* chyba;
    } radky[] = {
        {"missing", {}, 0, 0, "nebyla ve složce programu nalezena."},
        {"damaged", polozka + polozka + "<", 0, 0, "je poškozená a nejde přečíst."},
        {"no entry", "<konverze/>", 0, 0, "má jich 0."},
        {"no marks", "<k>" + polozka.repeated(57) + "</k>", 57, 57, "má jich 57."},
        {"nested", "<k><a>" + polozka.repeated(58) + "</a></k>", 58, 58, ""},
        {"any mark", "<k>" + polozka.repeated(57) + "<nota mimoStupnici=''/>" + polozka + "</k>", 59, 57, ""},
    };
    for (const auto& radek : radky) {
        QTemporaryDir slozka;
        if (!radek.obsah.isEmpty()) {
            QFile soubor(slozka.filePath(QStringLiteral("konverze.xml")));
            ASSERT_TRUE(soubor.open(QIODevice::WriteOnly));
            soubor.write(radek.obsah);
        }
        const TabulkaNot tabulka(slozka.path());
        EXPECT_EQ(tabulka.pocet(), radek.pocet) << radek.popis;
        EXPECT_EQ(tabulka.pocetStupnu(), radek.stupnu) << radek.popis;
        if (radek.pocet > 0) {
            EXPECT_EQ(tabulka.ton(0, "Cdur"), " c, ") << "blanks belong to the name";
        }
        const QString chyba = QString::fromUtf8(radek.chyba);
        EXPECT_EQ(tabulka.chyba().right(chyba.size()), chyba) << radek.popis;
        EXPECT_EQ(tabulka.chyba().isEmpty(), chyba.isEmpty()) << radek.popis;
    }
}

} // namespace
} // namespace zvonika
