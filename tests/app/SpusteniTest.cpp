#include "app/Spusteni.h"

#include "platform/HodnotyNastaveni.h"
#include "tests/support/MemorySettings.h"
#include "tests/support/ScriptedDialogs.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace zvonika;
using zvonika::testing::MemorySettings;
using zvonika::testing::ScriptedDialogs;

namespace {

/// Runs a start-up over these settings and keeps what it did, in order.
class Start {
public:
    QStringList deje;
    ScriptedDialogs dialogs;
    MemorySettings nastaveni;

    /// No entry where the value is nothing.
    void nastav(const char* sekce, const char* hodnota) {
        if (hodnota) nastaveni.save(sekce, "Index", hodnota);
    }
    bool spust() {
        const auto zapis = [this](const QString& dej) { deje << dej; };
        KrokySpusteni kroky{
            [=] { zapis("nahore"); },
            [=] { zapis("excel"); },
            [=](bool ano) { zapis(ano ? "obracene" : "rovne"); },
            [=](bool ano) { zapis(ano ? "nazvy" : "bez nazvu"); },
            [=](bool ano) { zapis(ano ? "cisla" : "bez cisel"); },
            [=] { zapis("basy"); },
            [=] { zapis("diskant"); },
            [](int, bool) {},
        };
        return Spusteni(nastaveni, dialogs, kroky).Form_Load();
    }
};

} // namespace

TEST(Spusteni, OneByteServesTheThreeReadings) {
    const struct {
        const char *znaceni, *popis, *cislovani;
        QStringList cekano; ///< layout, names, numbers
    } pripady[] = {
        {nullptr, nullptr, nullptr, {"rovne", "bez nazvu", "bez cisel"}},
        {"1", nullptr, nullptr, {"obracene", "nazvy", "cisla"}}, // a missing entry takes over the one before
        {"1", "0", nullptr, {"obracene", "bez nazvu", "bez cisel"}},
        {"2", "nesmysl", "0", {"rovne", "nazvy", "bez cisel"}},
        {"0", "1", "", {"rovne", "nazvy", "cisla"}},
        {"255", "0", "1", {"rovne", "bez nazvu", "cisla"}},
        {"0,5", "0.4", "1.5", {"rovne", "bez nazvu", "cisla"}}, // rounded to even
    };
    for (const auto& pripad : pripady) {
        Start start;
        start.nastav("Znaceni", pripad.znaceni);
        start.nastav("PopisKnof", pripad.popis);
        start.nastav("Cislovani", pripad.cislovani);
        EXPECT_TRUE(start.spust());
        EXPECT_EQ(start.deje.mid(2, 3), pripad.cekano) << pripad.cekano.join('|').toStdString();
        EXPECT_EQ(start.deje.mid(0, 2), QStringList({"nahore", "excel"}));
        EXPECT_EQ(start.deje.mid(5), QStringList({"basy", "diskant"}));
    }
}

TEST(Spusteni, AnOverflowIsReportedAndEndsTheSequence) {
    for (const char* hodnota : {"256", "-1", "1e9"}) {
        Start start;
        start.nastav("PopisKnof", hodnota);
        start.dialogs.expect("Neočekávaná chyba programu.",
                             "V programu došlo k chybě číslo 6. Možná budete moci dále pokračovat. "
                             "V případě problémů kontaktujte ");
        EXPECT_FALSE(start.spust());
        EXPECT_EQ(start.deje.last(), "rovne") << hodnota;
        EXPECT_EQ(start.dialogs.last.icon, Icon::Exclamation);
    }
}
