// Opening what is no song: one box that says why, and everything as it was before.
#include "tests/integration/CelyProgram.h"

#include <QFile>

namespace zvonika::testing {

namespace {

class OteviraniTest : public CelyProgram {
protected:
    /// Tries to open such a file: one box with the number and, as its last line, the sentence.
    void ocekavejOdmitnuti(const QString& jmeno, const QByteArray& obsah, const QString& duvod) {
        SCOPED_TRACE(jmeno.toStdString());
        ulozSoubor(pisen(jmeno), obsah);
        const int predtim = dialogs.count;
        otevri(pisen(jmeno),
               [this] { dialogs.expect("Neočekávaná chyba !", "a sdělte číslo chyby 1004\n"); });
        EXPECT_EQ(dialogs.count, predtim + 1);
        const QString veta = dialogs.last.text.section('\n', 1);
        EXPECT_TRUE(veta.startsWith("Soubor „" + jmeno + "“ ")) << veta.toStdString();
        EXPECT_TRUE(veta.contains(duvod) && veta.endsWith('.')) << veta.toStdString();
        ocekavejStavBezPisne();
        EXPECT_EQ(obsahSouboru(pisen(jmeno)), obsah);
        EXPECT_EQ(soubory(), QStringList{jmeno}) << "nothing is left beside the file";
        QFile::remove(pisen(jmeno));
    }
};

} // namespace

TEST_F(OteviraniTest, FilesThatAreNoSongAreNamedAndLeftAlone) {
    const struct {
        QString jmeno;
        QByteArray obsah;
        QString duvod;
    } pripady[] = {
        {"prázdný.xls", {}, "je prázdný"},
        {"dopis.xls", "Milá babičko, posílám Ti písničku.", "prostý text (CSV)"},
        {"useknutý & 100% „x“.xls", bajty(xls::Workbook::create(u"Tonavox XII")).left(1000), "nelze otevřít"},
    };
    for (const auto& pripad : pripady)
        ocekavejOdmitnuti(pripad.jmeno, pripad.obsah, pripad.duvod);
    novaPisen();
    zapisHmat({"lbl(9)"}, true);
    klikni("cmdEndEdit");
    EXPECT_EQ(textBunky(sesit(pisen("Polka.xls")), "B1"), "c1,");
}

} // namespace zvonika::testing
