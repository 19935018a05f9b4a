#include "aids/ZmenaCesty.h"

#include "song/SongSheet.h"
#include "tests/support/FakeDrive.h"
#include "tests/support/ScriptedDialogs.h"

#include <gtest/gtest.h>

namespace zvonika {
namespace {

constexpr auto zmeneno = "Změna konfigurace Excelu z Tamíka.";
constexpr auto neexistuje = "Neexistující složka";
const QString stara = QStringLiteral("C:\\Stará");

TEST(ZmenaCesty, EveryChoiceHasItsMessageAndItsFolder) {
    const struct {
        std::optional<int> vybrana;
        const char* txtCesta;
        const char* titul; ///< null: no message
        const char* text;
        Icon ikona;
        bool zavre;
        QString potom;
    } tabulka[] = {
        {{},
         "C:\\Je",
         "Chyba, nic nezadáno.",
         "Cesta nenastavena, nesprávné zadání.",
         Icon::Critical,
         false,
         stara},
        {0, "C:\\Je", zmeneno, "Jako výchozí pro aplikaci Excel byla nastavena cesta do C:\\Dokumenty",
         Icon::Information, true, "C:\\Dokumenty"},
        {1, "C:\\Je", neexistuje, "Požadovanou změnu nebylo možno provést.", Icon::Critical, false, stara},
        {2, "C:\\Je", zmeneno, "cesta do C:\\Je", Icon::Information, true, "C:\\Je"},
        {2, "/home/nativni", zmeneno, "cesta do /home/nativni", Icon::Information, true, "/home/nativni"},
        {2, "C:\\Zmizelá", neexistuje, "nebylo možno", Icon::Critical, false, stara},
        {2, "", nullptr, "", Icon::None, true, stara},
        {3, "C:\\Zmizelá", "Reset nastavení",
         "Po ukončení Tamíka můžete zkontrolovat, zda volba splnila Vaše očekávání.", Icon::Information, true,
         "X:\\Nastavení bylo resetováno !!"},
    };
    for (const auto& radek : tabulka) {
        testing::ScriptedDialogs dialogy;
        testing::FakeDrive drive;
        drive.folders = {"C:\\Dokumenty", "C:\\Je", "/home/nativni"};
        Pisen pisen;
        pisen.puvodniCestaExcelu = stara;
        ZmenaCesty zmena(pisen, drive, dialogy);
        if (radek.titul) dialogy.expect(radek.titul, radek.text);
        EXPECT_EQ(zmena.OKButton(radek.vybrana, radek.txtCesta), radek.zavre) << radek.text;
        EXPECT_EQ(dialogy.last.icon, radek.ikona) << radek.text;
        EXPECT_EQ(zmena.lblStaraCesta(), radek.potom) << radek.text;
    }
}

} // namespace
} // namespace zvonika
