#include "aids/ZmenaCesty.h"

#include "song/SongSheet.h"
#include "tests/support/FakeDrive.h"
#include "tests/support/ScriptedDialogs.h"

#include <gtest/gtest.h>

namespace zvonika {
namespace {

TEST(ZmenaCesty, EveryChoiceHasItsMessageAndItsFolder) {
    const QString stara = "C:\\Stará", reset = "X:\\Nastavení bylo resetováno !!";
    const Message nic{"Chyba, nic nezadáno.", "Cesta nenastavena, nesprávné zadání.", Icon::Critical};
    const Message neni{"Neexistující složka", "Požadovanou změnu nebylo možno provést.", Icon::Critical};
    const Message obnova{"Reset nastavení",
                         "Po ukončení Tamíka můžete zkontrolovat, zda volba splnila Vaše očekávání.",
                         Icon::Information};
    const auto zmena = [](const QString& kam) {
        return Message{"Změna konfigurace Excelu z Tamíka.",
                       "Jako výchozí pro aplikaci Excel byla nastavena cesta do " + kam, Icon::Information};
    };
    const struct {
        std::optional<int> vybrana;
        QString txtCesta;
        std::optional<Message> zprava;
        bool zavre;
        QString potom;
    } tabulka[] = {
        {{}, "C:\\Je", nic, false, stara},
        {0, "C:\\Je", zmena("C:\\Dokumenty"), true, "C:\\Dokumenty"},
        {1, "C:\\Je", neni, false, stara},
        {2, "C:\\Je", zmena("C:\\Je"), true, "C:\\Je"},
        {2, "/home/nativni", zmena("/home/nativni"), true, "/home/nativni"},
        {2, "C:\\Zmizelá", neni, false, stara},
        {2, "", {}, true, stara},
        {3, "C:\\Zmizelá", obnova, true, reset},
    };
    for (const auto& radek : tabulka) {
        testing::ScriptedDialogs dialogy;
        testing::FakeDrive drive;
        drive.folders = {"C:\\Dokumenty", "C:\\Je", "/home/nativni"};
        Pisen pisen;
        pisen.puvodniCestaExcelu = stara;
        ZmenaCesty zmenaCesty(pisen, drive, dialogy);
        if (radek.zprava) dialogy.expect(radek.zprava->title, {});
        EXPECT_EQ(zmenaCesty.OKButton(radek.vybrana, radek.txtCesta), radek.zavre) << qPrintable(radek.potom);
        EXPECT_EQ(dialogy.last.text, radek.zprava.value_or(Message()).text);
        EXPECT_EQ(dialogy.last.icon, radek.zprava.value_or(Message()).icon);
        EXPECT_EQ(zmenaCesty.lblStaraCesta(), radek.potom);
    }
}

} // namespace
} // namespace zvonika
