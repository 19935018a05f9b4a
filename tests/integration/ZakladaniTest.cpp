// New songs that cannot be made: names and folders that the disk refuses.
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
        EXPECT_TRUE(dialogs.done());
        EXPECT_EQ(dialogs.last.icon, Icon::Critical);
        EXPECT_TRUE(napis("lblStav").contains(pricina)) << napis("lblStav").toStdString();
        ocekavejStavBezPisne();
        EXPECT_EQ(soubory(), predtim);
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
    ocekavejOdmitnuti("a/b", "složka „" + pracovni() + "/a“ neexistuje");
    ocekavejOdmitnuti(QString(252, u'x'), "jeho jméno je příliš dlouhé");
    ocekavejOdmitnuti(QStringLiteral("a%1b").arg(QChar(u'\0')), "v jeho jménu je znak, který tam být nesmí");
    ocekavejOdmitnuti("složka", "pod tímto jménem je na disku složka");
    novaPisen();
    zapisHmat({"lbl(9)"}, true);
}

TEST_F(ZakladaniTest, NamesThatTheDiskTakes) {
    for (const QString& jmeno :
         {QStringLiteral("Kočka"), QStringLiteral(" "), QStringLiteral("a:b?*"), QString(251, u'x')}) {
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

} // namespace zvonika::testing
