// A song sheet with numbers, formulas, errors and rubbish where a grip should stand.
#include "tests/integration/CelyProgram.h"

namespace zvonika::testing {

namespace {

const QString chyba340 = QStringLiteral("Chyba č. 340.");
const QString neprovedeno = QStringLiteral("Neprovedeno.");

xls::Workbook kniha() {
    using xls::Value;
    constexpr int A = 0, B = 1, C = 2, D = 3, E = 4, I = 8, M = 12, N = 13, V = 21, W = 22;
    auto kniha = xls::Workbook::create(u"Tonavox XII");
    const std::vector<std::vector<std::pair<int, Value>>> radky = {
        {{A, 3.5},
         {B, 15.0},
         {C, true},
         {D, xls::ErrorValue{0x07}},
         {E, u"hovadina"},
         {I, u"sever"},
         {M, 7.0},
         {V, u"nesmysl"},
         {W, 42.0}},
        {{B, u"c1,"}, {I, 1.0}, {V, u"l99;1\\"}},
        {{B, std::u16string(32000, u'ž')}, {I, u"Tah"}, {V, u"x9;1\\"}},
        {{A, std::u16string(500, u'ř')}, {B, u"c1,"}, {D, u"e1,"}, {I, u"tlak"}, {V, u"l9;2\\"}},
        {{B, u"e1,"}, {I, u"Tah"}, {M, u"C"}, {N, u"Nic"}},
        {{B, u"c 1"}, {C, u"C1,"}, {D, u"g1,"}, {I, u"Tlak"}},
    };
    for (int radek = 0; radek < int(radky.size()); ++radek)
        for (const auto& [sloupec, hodnota] : radky[std::size_t(radek)])
            kniha.setValue(0, {radek, sloupec}, hodnota);
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
        klavesa(Qt::Key_PageDown);
        EXPECT_TRUE(dialogs.done()) << kurzor().toStdString();
    }
    void ocekavejVeStavu(const char* text) const {
        EXPECT_TRUE(napis("lblStav").contains(text)) << napis("lblStav").toStdString();
    }
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
    ocekavejVeStavu("Neznámý tón v tabulce: 15 True #DIV/0! hovadina.");
    ocekavejVeStavu("Neznámý bas v tabulce: 7.");

    krok({chyba340, neprovedeno}); // row 2: no such button, and a number for the direction
    EXPECT_NE(knoflik(9), StavKnofliku::Volny);
    krok({"Chyba !"}); // row 3: a wrong kind of finger mark, said once though the grip is shown twice
    EXPECT_EQ(program->modely().panel.barvaKroku, BarvaKroku::Tah);
    krok({neprovedeno}); // row 4: the direction in small letters is none
    EXPECT_TRUE(program->modely().diskant.popis(9).startsWith('2'));
    EXPECT_EQ(knoflik(13), StavKnofliku::Tah) << "tones are read across an empty cell";
    krok({});
    EXPECT_EQ(knoflik(13), StavKnofliku::Tah);
    EXPECT_EQ(program->modely().basy.stav(30), StavBasu::Tah);
    ocekavejVeStavu("Neznámý bas v tabulce: Nic.");
    krok({});
    EXPECT_EQ(knoflik(16), StavKnofliku::Tlak);
    ocekavejVeStavu("Neznámý tón v tabulce: c 1 C1.");
    krok({neprovedeno}); // beyond the last grip
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

} // namespace zvonika::testing
