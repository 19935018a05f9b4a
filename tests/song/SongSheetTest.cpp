#include "song/PopisSloupcu.h"
#include "tests/playing/SongFixture.h"

namespace zvonika::testing {

namespace {

class SongSheetTest : public SongFixture {
protected:
    SongSheetTest() { excel->app().addWorkbook(); }
    SongSheet list{pisen};
};

} // namespace

TEST(Grip, DirectionIsExactlyTahOrTlak) {
    const QHash<QString, SmerMechu> pripady{{"Tah", SmerMechu::Tah},       {"Tlak", SmerMechu::Tlak},
                                            {"tah", SmerMechu::Neuveden},  {"Tlak ", SmerMechu::Neuveden},
                                            {"TLAK", SmerMechu::Neuveden}, {"", SmerMechu::Neuveden}};
    for (auto it = pripady.cbegin(); it != pripady.cend(); ++it)
        EXPECT_EQ(smerMechu(it.key()), it.value()) << it.key().toStdString();
    EXPECT_EQ(textSmeru(SmerMechu::Tah), "Tah");
    EXPECT_EQ(textSmeru(SmerMechu::Tlak), "Tlak");
    EXPECT_EQ(textSmeru(SmerMechu::Neuveden), "");
}

TEST(PopisSloupcu, TellsAPlayerWhatTheyAre) {
    const std::pair<char, const char*> slova[] = {
        {'A', "slabika"},   {'B', "tón"},    {'H', "tón"}, {'I', "měch"}, {'J', ""},
        {'L', ""},          {'M', "bas"},    {'S', "bas"}, {'T', ""},     {'U', ""},
        {'V', "prstoklad"}, {'W', "tónina"}, {'X', ""}};
    for (const auto& [sloupec, slovo] : slova)
        EXPECT_EQ(popisSloupcu().value(sloupec - 'A').label, QString::fromUtf8(slovo)) << sloupec;
}

TEST_F(SongSheetTest, ReadsEveryColumnOfARow) {
    excel->put("A3", "Koč");
    for (const char* bunka : {"B3", "C3", "D3", "E3", "F3", "G3", "H3"})
        excel->put(bunka, QString("t") + bunka[0]);
    excel->put("I3", "Tlak");
    for (const char* bunka : {"M3", "N3", "O3", "P3", "Q3", "R3", "S3"})
        excel->put(bunka, QString("b") + bunka[0]);
    excel->put("H4", "poslední");
    for (const char* cizi : {"J3", "K3", "L3", "T3", "U3", "X3"})
        excel->put(cizi, "cizí");
    excel->put("V3", "l12;1\\");
    excel->put("W3", "G dur");

    const Grip ocekavany{"Koč",     {"tB", "tC", "tD", "tE", "tF", "tG", "tH"},
                         "Tlak",    {"bM", "bN", "bO", "bP", "bQ", "bR", "bS"},
                         "l12;1\\", "G dur"};
    const auto hmaty = list.gripy(3, 2);
    EXPECT_EQ(hmaty[0], ocekavany);
    EXPECT_TRUE(hmaty[1].prazdny());
    EXPECT_TRUE(hmaty[1].tonyZaMezerou);
    EXPECT_FALSE(hmaty[1].basyZaMezerou);
    EXPECT_EQ(log.calls, QStringList("readBlock")) << "one call for all rows";
}

TEST_F(SongSheetTest, TonesEndAtTheFirstEmptyCellAndForeignContentsStayText) {
    excel->put("B1", CellValue(5.0));
    excel->put("C1", CellValue(CellError{"#N/A"}));
    excel->put("D1", CellValue(true));
    excel->put("F1", "e,");
    excel->put("I1", CellValue(1.0));
    excel->put("N1", "C");
    const Grip grip = list.gripy(1, 1).constFirst();
    EXPECT_EQ(grip.tony, (QStringList{"5", "#N/A", "True"})) << "F stands behind a gap";
    EXPECT_EQ(smerMechu(grip.smer), SmerMechu::Neuveden);
    EXPECT_TRUE(grip.tonyZaMezerou);
    EXPECT_TRUE(grip.basy.isEmpty()) << "N stands behind the empty M";
    EXPECT_TRUE(grip.basyZaMezerou);
}

TEST_F(SongSheetTest, RowsBeyondTheEdgeOfTheSheetAreEmpty) {
    excel->put("B65536", "e,");
    const auto hmaty = list.gripy(65535, 16);
    ASSERT_EQ(hmaty.size(), 16);
    EXPECT_TRUE(hmaty[0].prazdny());
    EXPECT_EQ(hmaty[1].tony, QStringList{"e,"});
    EXPECT_TRUE(hmaty[2].prazdny());
}

TEST_F(SongSheetTest, CursorGoesToColumnBOfItsRow) {
    excel->selectRange("F7");
    list.VyberBunkuB();
    EXPECT_EQ(excel->activeAddress(), "$B$7");
    list.vyberRadek(12);
    EXPECT_EQ(excel->activeAddress(), "$B$12");
    EXPECT_EQ(list.aktualniRadek(), 12);
}

TEST_F(SongSheetTest, AktivujPisenTellsWhetherTheSongIsOpen) {
    EXPECT_FALSE(pisen.AktivujPisen()) << "no song";
    pisen.aktualniPisen = excel->activeWorkbookName();
    excel->app().addWorkbook();
    EXPECT_TRUE(pisen.AktivujPisen());
    EXPECT_EQ(excel->activeWorkbookName(), pisen.aktualniPisen);
    excel->userQuits();
    EXPECT_FALSE(pisen.AktivujPisen());
    pisen.aplikaceExcel.reset();
    EXPECT_FALSE(pisen.AktivujPisen());
    EXPECT_EQ(raised([this] { list.VyberBunkuB(); }), error::objectNotSet);
}

} // namespace zvonika::testing
