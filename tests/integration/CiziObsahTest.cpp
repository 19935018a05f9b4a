// A song sheet with numbers, formulas, errors and rubbish where a grip should stand.
#include "tests/integration/CelyProgram.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

namespace zvonika::testing {

namespace {

const QString chyba340 = QStringLiteral("Chyba č. 340.");
const QString neprovedeno = QStringLiteral("Neprovedeno.");

xls::Workbook kniha() {
    using xls::Value;
    constexpr int A = 0, B = 1, C = 2, D = 3, E = 4, I = 8, M = 12, N = 13, V = 21, W = 22;
    auto kniha = xls::Workbook::create(u"Tonavox XII");
    const struct {
        int radek, sloupec;
        Value hodnota;
    } bunky[] = {
        {0, A, 3.5},
        {0, B, 15.0},
        {0, C, true},
        {0, D, xls::ErrorValue{0x07}},
        {0, E, u"hovadina"},
        {0, I, u"sever"},
        {0, M, 7.0},
        {0, V, u"nesmysl"},
        {0, W, 42.0},
        {1, B, u"c1,"},
        {1, I, 1.0},
        {1, V, u"l99;1\\"},
        {2, B, std::u16string(32000, u'ž')},
        {2, I, u"Tah"},
        {2, V, u"x9;1\\"},
        {3, A, std::u16string(500, u'ř')},
        {3, B, u"c1,"},
        {3, D, u"e1,"},
        {3, I, u"tlak"},
        {3, V, u"l9;2\\"},
        {4, B, u"e1,"},
        {4, I, u"Tah"},
        {4, M, u"C"},
        {4, N, u"Nic"},
        {5, B, u"c 1"},
        {5, C, u"C1,"},
        {5, D, u"g1,"},
        {5, I, u"Tlak"},
    };
    for (const auto& bunka : bunky)
        kniha.setValue(0, {bunka.radek, bunka.sloupec}, bunka.hodnota);
    return kniha;
}

class CiziObsahTest : public CelyProgram {
protected:
    void SetUp() override {
        CelyProgram::SetUp();
        puvodni_ = bajty(kniha());
        ulozSoubor(soubor_, puvodni_);
        otevri(soubor_, [this] { dialogs.expect(chyba340, "ve sloupci V neobsahuje platnou hodnotu"); });
        ASSERT_EQ(program->okno().windowTitle(), "Cizí.xls");
    }
    /// Steps to the next row; the boxes must be those expected.
    void krok(const QStringList& titulky) {
        for (const QString& titulek : titulky)
            dialogs.expect(titulek, {});
        const int predtim = dialogs.count;
        klavesa(Qt::Key_PageDown);
        EXPECT_EQ(dialogs.count, predtim + titulky.size()) << kurzor().toStdString();
        EXPECT_TRUE(dialogs.done()) << kurzor().toStdString();
    }
    bool stavObsahuje(const char* text) const { return napis("lblStav").contains(QString::fromUtf8(text)); }
    StavKnofliku knoflik(int n) const { return program->modely().diskant.stav(n); }

    const QString soubor_ = pisen("Cizí.xls");
    QByteArray puvodni_;
};

} // namespace

TEST_F(CiziObsahTest, SteppingShowsWhatCanBeShown) {
    EXPECT_EQ(napis("lblTony"), "15 True #DIV/0! hovadina");
    EXPECT_EQ(napis("lblBasy"), "7");
    EXPECT_EQ(napis("lblSlabika(2)"), "3.5");
    EXPECT_EQ(napis("lblStupnice"), "42");
    EXPECT_TRUE(stavObsahuje("Neznámý tón v tabulce: 15 True #DIV/0! hovadina."))
        << napis("lblStav").toStdString();
    EXPECT_TRUE(stavObsahuje("Neznámý bas v tabulce: 7.")) << napis("lblStav").toStdString();

    krok({chyba340, neprovedeno}); // row 2: no such button, and a number for the direction
    EXPECT_NE(knoflik(9), StavKnofliku::Volny);
    krok({"Chyba !"}); // row 3: a wrong kind of finger mark, said once though the grip is shown twice
    EXPECT_EQ(program->modely().panel.barvaKroku, BarvaKroku::Tah);
    krok({neprovedeno}); // row 4: the direction in small letters is none
    EXPECT_TRUE(program->modely().diskant.popis(9).startsWith('2'));
    EXPECT_EQ(knoflik(13), StavKnofliku::Volny) << "tones end at the first empty cell";
    krok({});
    EXPECT_EQ(knoflik(13), StavKnofliku::Tah);
    EXPECT_EQ(program->modely().basy.stav(30), StavBasu::Tah);
    EXPECT_TRUE(stavObsahuje("Neznámý bas v tabulce: Nic.")) << napis("lblStav").toStdString();
    krok({});
    EXPECT_EQ(knoflik(16), StavKnofliku::Tlak);
    EXPECT_TRUE(stavObsahuje("Neznámý tón v tabulce: c 1 C1,.")) << napis("lblStav").toStdString();
    krok({neprovedeno}); // beyond the last grip
}

TEST_F(CiziObsahTest, TheSheetsCursorShowsTheSameWithoutBoxes) {
    prejdiNaTabulku();
    const int predtim = dialogs.count;
    klikniNaBunku("C3");
    klikniNaBunku("C2");
    EXPECT_NE(knoflik(9), StavKnofliku::Volny);
    EXPECT_TRUE(stavObsahuje("Prstoklad ve sloupci V není platný.")) << napis("lblStav").toStdString();
    klikniNaBunku("A1");
    EXPECT_TRUE(stavObsahuje("Neznámý tón v tabulce: 15 True")) << napis("lblStav").toStdString();
    EXPECT_EQ(dialogs.count, predtim);
}

TEST_F(CiziObsahTest, ReadingWritesNothing) {
    krok({chyba340, neprovedeno});
    krok({"Chyba !"});
    klikni("cmdPosledni");
    EXPECT_EQ(kurzor(), "$B$6");
    prejdiNaTabulku();
    klikniNaBunku("D5");
    klavesaTabulky(Qt::Key_F2);
    klavesaTabulky(Qt::Key_Return); // an editor opened and left is no change
    prejdiNaHlavniOkno();
    EXPECT_EQ(obsahSouboru(soubor_), puvodni_);
    EXPECT_FALSE(excel->session().active()->file().isModified());
    klikni("cmdEndEdit");
    const auto pred = kniha(), po = sesit(soubor_);
    for (int radek = 0; radek < 8; ++radek)
        for (int sloupec = 0; sloupec < 26; ++sloupec)
            EXPECT_EQ(po.value(0, {radek, sloupec}), pred.value(0, {radek, sloupec}))
                << radek << ' ' << sloupec;
}

TEST_F(CiziObsahTest, AGripRecordedOverRubbishIsClean) {
    dialogs.expect(chyba340, {});
    klikni("cmdPrvni");
    zapisHmat({"lbl(9)", "ImgBas(30)"}, true);
    for (const auto& [adresa, obsah] : std::initializer_list<std::pair<const char*, const char*>>{
             {"A1", "3.5"}, {"B1", "c1,"}, {"C1", ""}, {"E1", ""}, {"I1", "Tlak"}, {"M1", "C"}, {"V1", ""}})
        EXPECT_EQ(bunka(adresa), obsah) << adresa;
}

/// A formula without references, with its stored result as the file has it.
xlstest::Rec vzorec(std::uint64_t radek, std::uint64_t sloupec, const xls::Bytes& vysledek) {
    using xlstest::le;
    using xlstest::operator+;
    return {0x0006, le(2, {radek, sloupec, 15}) + vysledek + le(2, {0, 0, 0, 3}) + xls::Bytes{0x1E, 1, 0}};
}

xlstest::Rec text(const char* ascii) {
    const std::string_view znaky(ascii);
    using xlstest::operator+;
    return {0x0207, xlstest::le(2, {znaky.size()}) + xls::Bytes{0} + xls::Bytes(znaky.begin(), znaky.end())};
}

using CiziSesitTest = CelyProgram;

TEST_F(CiziSesitTest, ResultsOfFormulasAreReadAndTheFormulasStay) {
    const xls::Bytes jakoText{0, 0, 0, 0, 0, 0, 0xFF, 0xFF}, pravda{1, 0, 1, 0, 0, 0, 0xFF, 0xFF},
        nedostupne{2, 0, 0x2A, 0, 0, 0, 0xFF, 0xFF}, ctyri = xlstest::le(8, {0x4010000000000000});
    const xls::Bytes zdroj = xlstest::fileWithTable(
        {vzorec(0, 1, jakoText), text("c1,"), vzorec(0, 2, ctyri), vzorec(0, 3, pravda),
         vzorec(0, 4, nedostupne), vzorec(1, 1, jakoText), text("e1,"), vzorec(1, 8, jakoText), text("Tah")});
    const QByteArray puvodni(reinterpret_cast<const char*>(zdroj.data()), qsizetype(zdroj.size()));
    ulozSoubor(pisen("Vzorce.xls"), puvodni);
    otevri(pisen("Vzorce.xls"));
    EXPECT_EQ(napis("lblTony"), "c1, 4 True #N/A");
    EXPECT_NE(program->modely().diskant.stav(9), StavKnofliku::Volny);
    klavesa(Qt::Key_PageDown);
    EXPECT_EQ(program->modely().diskant.stav(13), StavKnofliku::Tah);
    EXPECT_EQ(obsahSouboru(pisen("Vzorce.xls")), puvodni);

    klikni("cmdPrvni");
    zapisHmat({"lbl(16)"}, true); // over the formulas of the first row
    klikni("cmdEndEdit");
    const auto po = sesit(pisen("Vzorce.xls"));
    EXPECT_EQ(textBunky(po, "B1"), "g1,");
    EXPECT_FALSE(po.isFormula(0, {0, 2}));
    EXPECT_EQ(textBunky(po, "C1"), "");
    EXPECT_TRUE(po.isFormula(0, {1, 1}));
    EXPECT_EQ(textBunky(po, "B2"), "e1,");
}

} // namespace zvonika::testing
