// What the disk refuses: names and folders of new songs, files that are no song, tables that are missing.
#include "platform/files/FileNames.h"
#include "tests/integration/CelyProgram.h"

#include <QDir>

namespace zvonika::testing {

namespace {

const QString titulek = QStringLiteral("Pracovní adresář neexistuje.");

class ZakladaniTest : public CelyProgram {
protected:
    /// The box names the folder whatever the cause; the cause stands in the status line.
    void ocekavejOdmitnuti(const QString& jmeno, const QString& pricina) {
        SCOPED_TRACE(jmeno.left(20).toStdString());
        const QStringList predtim = soubory();
        dialogs.expectInput("Nová skladba.", jmeno);
        dialogs.expect(titulek,
                       "Cesta C:\\Dokumenty\\Heligonka nenalezena. Aby mohl program správně pracovat, "
                       "vytvořte nejprve ručně tento adresář !!!");
        klikni("cmdNovaSkladba");
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
        EXPECT_TRUE(napis("lblVarovani").contains(pricina)) << napis("lblVarovani").toStdString();
        ocekavejStavBezPisne();
        EXPECT_EQ(soubory(), predtim);
    }
    /// Tries to open such a file: one box with the number and, as its last line, the sentence.
    void ocekavejOdmitnutiSouboru(const QString& jmeno, const QByteArray& obsah, const QString& duvod) {
        SCOPED_TRACE(jmeno.toStdString());
        ulozSoubor(pisen(jmeno), obsah);
        otevri(pisen(jmeno),
               [this] { dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 1004\n"); });
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
        const QString veta = dialogs.last.text.section('\n', 1);
        EXPECT_TRUE(veta.startsWith("Soubor „" + jmeno + "“ ")) << veta.toStdString();
        EXPECT_TRUE(veta.contains(duvod) && veta.endsWith('.')) << veta.toStdString();
        ocekavejStavBezPisne();
        EXPECT_EQ(obsahSouboru(pisen(jmeno)), obsah);
        EXPECT_EQ(soubory(), QStringList{jmeno}) << "nothing is left beside the file";
        QFile::remove(pisen(jmeno));
    }
    void ocekavejZpravuOSlozce() {
        dialogs.expect(titulek, "Cesta do C:\\Dokumenty\\Heligonka\\Zvonika nebyla nalezena.\n"
                                "Aby mohl program správně pracovat, bude nyní vytvořena tato složka.\n"
                                "Do ní se budou ukládat Vaše skladby.");
    }
    void smaz(const QString& cesta) const { ASSERT_TRUE(QDir(cesta).removeRecursively()); }
};

} // namespace

TEST_F(ZakladaniTest, NamesThatTheDiskRefuses) {
    ASSERT_TRUE(QDir(pracovni()).mkdir("složka.xls"));
    ocekavejOdmitnuti("a/b", "složka „" + QDir::toNativeSeparators(pracovni() + "/a") + "“ neexistuje");
    ocekavejOdmitnuti(QString(252, u'x'), "jeho jméno je příliš dlouhé");
    for (const QString& jmeno : {QStringLiteral("a%1b").arg(QChar(u'\0')), QStringLiteral("a:b")})
        if (const QString proc = forbiddenName(jmeno); !proc.isEmpty())
            ocekavejOdmitnuti(jmeno, proc);
        else if (jmeno.contains(QChar(u'\0')))
            ocekavejOdmitnuti(jmeno, "v jeho jménu je znak, který tam být nesmí");
    ocekavejOdmitnuti("složka", "pod tímto jménem je na disku složka");
    novaPisen();
    zapisHmat({"lbl(9)"}, true);
}

TEST_F(ZakladaniTest, NamesThatTheDiskTakes) {
    for (const QString& jmeno :
         {QStringLiteral("Kočka"), QStringLiteral(" "), QStringLiteral("a:b?*"), QString(251, u'x')}) {
        if (!forbiddenName(jmeno).isEmpty()) continue;
        novaPisen(jmeno); // the last one is 255 bytes with the ending, as long as a name may be
        zapisHmat({"lbl(9)"}, true);
        klikni("cmdEndEdit");
        EXPECT_EQ(textBunky(sesit(pisen(jmeno + ".xls")), "B1"), "c1,") << jmeno.toStdString();
    }
}

TEST_F(ZakladaniTest, AMissingWorkingFolderIsMade) {
    for (const QString& chybejici : {pracovni(), domov() + "/Dokumenty/Heligonka", domov() + "/Dokumenty"}) {
        SCOPED_TRACE(chybejici.toStdString());
        smaz(chybejici);
        ocekavejZpravuOSlozce();
        novaPisen();
        EXPECT_EQ(dialogs.last.icon, Icon::Exclamation);
        klikni("cmdEndEdit");
        EXPECT_EQ(soubory(), QStringList{"Polka.xls"});
    }
}

TEST_F(ZakladaniTest, ASongThatAKilledProgramHasSetAsideIsBackAfterTheStart) {
    ASSERT_TRUE(QDir(pracovni()).mkdir(".~odlozeno-x"));
    ulozSoubor(pisen(".~odlozeno-x/Polka.xls"), bajty(xls::Workbook::create(u"stará")));
    spust();
    EXPECT_EQ(soubory(), QStringList{"Polka.xls"});
    EXPECT_TRUE(napis("lblStav").endsWith("na svém místě je zpátky: Polka.xls."));
    EXPECT_EQ(sesit(pisen("Polka.xls")).sheetName(0), u"stará");
}

TEST_F(ZakladaniTest, FilesThatAreNoSongAreNamedAndLeftAlone) {
    const auto kniha = bajty(xls::Workbook::create(u"Tonavox XII"));
    ocekavejOdmitnutiSouboru("prázdný.xls", {}, "je prázdný");
    ocekavejOdmitnutiSouboru("dopis.xls", "Milá babičko, posílám Ti písničku.", "prostý text (CSV)");
    ocekavejOdmitnutiSouboru("useknutý & 100% „x“.xls", kniha.left(1000), "nelze otevřít");
    novaPisen();
    zapisHmat({"lbl(9)"}, true);
}

TEST_F(ZakladaniTest, AMissingBassTableIsSaidAndRecordingGoesOn) {
    const QString soubor = slozkaProgramu() + "/tonavox.xml";
    ASSERT_TRUE(QFile::remove(soubor));
    spust();
    EXPECT_EQ(napis("lblStav"), "Tabulka basů tonavox.xml nebyla ve složce programu nalezena.");
    novaPisen();
    dialogs.expect("Bas nebyl zapsán !", "nebyla ve složce programu nalezena.");
    zapisHmat({"lbl(9)", "ImgBas(30)", "ImgBas(31)"}, true);
    EXPECT_EQ(bunka("B1"), "c1,");
    EXPECT_EQ(bunka("M1"), "");

    QFile::copy(QStringLiteral(ZVONIKA_RESOURCES "/tonavox.xml"), soubor);
    zapisHmat({"ImgBas(30)"}, false);
    EXPECT_EQ(bunka("M2"), "C") << "a repaired table counts at once";
}

} // namespace zvonika::testing
