#include "playing/stepping/PrikazyPisne.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace zvonika::testing {

namespace {

QStringList zmeny(CommandStates& prikazy, void (*prepni)(CommandStates&)) {
    QStringList jmena;
    const auto spojeni =
        QObject::connect(&prikazy, &CommandStates::zmeneno, [&jmena](const QString& prikaz, bool povolen) {
            jmena.append((povolen ? u'+' : u'-') + prikaz);
        });
    prepni(prikazy);
    QObject::disconnect(spojeni);
    return jmena;
}

QStringList soZnamenkem(QChar znamenko, const char* jmena) {
    QStringList seznam = QString::fromLatin1(jmena).split(u' ');
    for (QString& jmeno : seznam)
        jmeno.prepend(znamenko);
    return seznam;
}

constexpr auto prikazyPisne =
    "cmdTah cmdTlak cmdTahNoty cmdTlakNoty cmdReadTah cmdReadTlak cmdEndEdit cmdPrvni cmdDalsi cmdPredchozi "
    "cmdPredTlak cmdPredTah cmdJakDalZpet cmdPosledni cmdDalsiTlak cmdDalsiTah cmdJakDal cmdTimer Slider1 "
    "lblTempo mnuKonecPisne";
constexpr auto tlacitkaZvuku = "cmdZvuk(0) cmdZvuk(1) cmdZvuk(2)";

} // namespace

TEST(PrikazyPisne, AreSwitchedInTheirOrderAndOnlyOnce) {
    CommandStates prikazy;
    EXPECT_EQ(zmeny(prikazy, ZakazPrikazyPisne),
              soZnamenkem(u'-', prikazyPisne) + soZnamenkem(u'-', tlacitkaZvuku));
    EXPECT_EQ(zmeny(prikazy, ZakazPrikazyPisne), QStringList());
    EXPECT_EQ(zmeny(prikazy, PovolPrikazyPisne), soZnamenkem(u'+', prikazyPisne));
    EXPECT_FALSE(prikazy.povolen("cmdZvuk(1)"));
}

TEST(PrikazyPisne, BackwardCommandsAndStartOfASong) {
    CommandStates prikazy;
    const auto zpet = "cmdPredchozi cmdPredTlak cmdPredTah cmdJakDalZpet";
    EXPECT_EQ(zmeny(prikazy, ZakazZpet), soZnamenkem(u'-', zpet));
    EXPECT_EQ(zmeny(prikazy, PovolZpet), soZnamenkem(u'+', zpet));
    EXPECT_EQ(zmeny(prikazy, [](CommandStates& p) { povolZahajeniPisne(p, false); }),
              soZnamenkem(u'-', "cmdEdit mnuOtevrit mnuNovaPisen cmdNovaSkladba"));
}

} // namespace zvonika::testing
