// A real song through the dialog, from every key into every other and back, over the built-in spreadsheet.
#include "conversion/Konverze.h"
#include "conversion/ui/FrmKonverze.h"
#include "tests/support/SpreadsheetWorld.h"
#include "theory/NazvyTonu.h"
#include "theory/Toniny.h"

#include <QAbstractButton>

namespace zvonika::testing {
namespace {

/// Semitones from C dur to each key.
constexpr std::array<int, 15> posuny{0, -5, 2, -3, 4, -1, 6, 1, 5, -2, 3, -4, 1, 6, -1};

class PrevodyPisne : public ::testing::Test, protected SpreadsheetWorld {
protected:
    PrevodyPisne() {
        drive.programFolderPath = QStringLiteral(ZVONIKA_RESOURCES);
        pisen.aplikaceExcel = launch();
        excel().setDefaultFilePath(pracovniAdresar);
        const QString zdroj = drive.nativePath(pracovniAdresar) + "/Kočka.xls";
        QFile::copy(ZVONIKA_RESOURCES "/ukazky/Kočka leze dírou.xls", zdroj);
        QFile(zdroj).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        otevri("Kočka.xls");
    }
    SpreadsheetApplication& excel() { return pisen.excel(); }
    void otevri(const QString& jmeno) {
        excel().openWorkbook(pracovniAdresar + u'\\' + jmeno);
        pisen.aktualniPisen = jmeno;
    }
    /// Converts the open song; the copy is then the open one.
    void preved(std::size_t cil) {
        StavKonverze stav;
        Konverze konverze(pisen, dialogs, drive, stav, [] {});
        konverze.Form_Load();
        FrmKonverze okno(konverze, stav, [](const auto& procedura) { procedura(); });
        okno.show();
        okno.findChild<QAbstractButton*>(QStringLiteral("optStupnice(%1)").arg(cil))->click();
        dialogs.expect("Hotovo", "");
        okno.findChild<QAbstractButton*>("cmdGo")->click();
        konverze.Form_Unload();
        EXPECT_EQ(konverze.veta(), "");
    }
    /// Closes the open copy, deletes it and opens `jmeno` again.
    void zahodKopii(const QString& jmeno) {
        const QString kopie = pisen.aktualniPisen;
        excel().closeActiveWorkbook();
        drive.deleteFile(pracovniAdresar + u'\\' + kopie);
        otevri(jmeno);
    }
    CellBlock radky() { return excel().readBlock("A1:W60"); }
    /// The song as it must stand in a key, by tone numbers and not by the table.
    static CellBlock vTonine(CellBlock blok, std::size_t odkud, std::size_t kam) {
        for (auto& radek : blok) {
            if (!isEmpty(radek[22])) radek[22] = toniny[kam].nazev.toString();
            radek[21] = {};
            for (int i = 1; i <= 7; ++i)
                if (!isEmpty(radek[i])) radek[i] = ton(cellText(radek[i]), posuny[kam] - posuny[odkud], kam);
        }
        return blok;
    }
    static QString ton(const QString& nazev, int posun, std::size_t kam) {
        const CisloTonu cil(cisloTonu(ToneName(nazev)).hodnota() + posun);
        return nazevTonu(cil, toniny[kam].key()).nazev.text();
    }

    Pisen pisen;
};

TEST_F(PrevodyPisne, GoIntoEveryKeyAndBack) {
    const CellBlock puvodni = radky();
    for (std::size_t zdroj = 0; zdroj < toniny.size(); ++zdroj) {
        if (zdroj > 0) preved(zdroj);
        const QString jmeno = pisen.aktualniPisen;
        const CellBlock vychozi = zdroj > 0 ? radky() : vTonine(puvodni, 0, 0);
        ASSERT_EQ(vychozi, vTonine(puvodni, 0, zdroj)) << jmeno.toStdString();
        for (std::size_t cil = zdroj + 1; cil < toniny.size(); ++cil) { // both ways of each pair
            preved(cil);
            ASSERT_EQ(radky(), vTonine(vychozi, zdroj, cil)) << pisen.aktualniPisen.toStdString();
            preved(zdroj);
            ASSERT_EQ(radky(), vychozi) << pisen.aktualniPisen.toStdString();
            zahodKopii(jmeno);
            drive.deleteFile(pracovniAdresar + u'\\' + jmeno.chopped(4) + u' ' +
                             toniny[cil].nazev.toString() + ".xls");
        }
        if (zdroj > 0) zahodKopii("Kočka.xls");
    }
}

} // namespace
} // namespace zvonika::testing
