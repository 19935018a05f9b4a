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
    for (const char* smer : {"Tah", "Tlak", ""})
        EXPECT_EQ(textSmeru(smerMechu(smer)), smer);
    for (const char* cizi : {"tah", "Tlak ", "TLAK"})
        EXPECT_EQ(smerMechu(cizi), SmerMechu::Neuveden) << cizi;
}

TEST(PopisSloupcu, TellsAPlayerWhatTheyAre) {
    const std::pair<char, const char*> slova[] = {
        {'A', "slabika"},   {'B', "tón"},    {'H', "tón"}, {'I', "měch"}, {'J', ""},
        {'L', ""},          {'M', "bas"},    {'S', "bas"}, {'T', ""},     {'U', ""},
        {'V', "prstoklad"}, {'W', "tónina"}, {'X', ""}};
    for (const auto& [sloupec, slovo] : slova)
        EXPECT_EQ(popisSloupcu().value(sloupec - 'A').label, QString::fromUtf8(slovo)) << sloupec;
}

TEST(CommandStates, AChangeIsToldOnceAndALockIsForGood) {
    CommandStates prikazy;
    QStringList zmeny;
    QObject::connect(&prikazy, &CommandStates::zmeneno,
                     [&](const QString& prikaz, bool povolen) { zmeny << (povolen ? u'+' : u'-') + prikaz; });
    for (const bool povolit : {true, false, false, true})
        prikazy.povol("cmdTah", povolit);
    prikazy.zamkni("cmdTah");
    prikazy.povol("cmdTah");
    EXPECT_EQ(zmeny.join(u' '), "-cmdTah +cmdTah -cmdTah");
    EXPECT_FALSE(prikazy.povolen("cmdTah"));
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
    EXPECT_EQ(hmaty[1].tony, QStringList("poslední"));
    EXPECT_TRUE(hmaty[1].bezPrvnihoTonu);
    EXPECT_FALSE(hmaty[1].basyZaMezerou);
    EXPECT_EQ(log.calls, QStringList("readBlock")) << "one call for all rows";
    excel->put("E3", "");
    EXPECT_EQ(list.tonyDoMezery(3), (QStringList{"tB", "tC", "tD"}));
    EXPECT_EQ(list.grip(3).tony, (QStringList{"tB", "tC", "tD", "tF", "tG", "tH"}));
    EXPECT_FALSE(list.grip(3).bezPrvnihoTonu);
}

TEST_F(SongSheetTest, WritesTheNamedPartsOfAGripAndNothingElse) {
    const struct {
        CastHmatu cast;
        char prvni, posledni; ///< columns that it writes
        const char* obsah;
    } radky[] = {{CastHmatu::Tony, 'B', 'I', "t1,t2,,,,,,"},
                 {CastHmatu::Smer, 'I', 'I', "Tlak"},
                 {CastHmatu::Basy, 'M', 'T', "b1,,,,,,,"},
                 {CastHmatu::Prstoklad, 'V', 'V', "l1;1\\"},
                 {CastHmatu::Tonina, 'W', 'W', "G dur"}};
    const Grip hmat{"ne", {"t1", "t2"}, "Tlak", {"b1"}, "l1;1\\", "G dur"};
    for (const auto& [cast, prvni, posledni, obsah] : radky) {
        excel->setValue("A2:X2", QStringLiteral("starý"));
        log.calls.clear();
        list.zapis(2, hmat, {cast});
        EXPECT_EQ(log.calls.size(), 1) << obsah;
        QStringList psane, ostatni;
        for (char sloupec = 'A'; sloupec <= 'X'; ++sloupec)
            (sloupec >= prvni && sloupec <= posledni ? psane : ostatni)
                << excel->text(sloupec + QString("2"));
        EXPECT_EQ(psane.join(u','), obsah);
        EXPECT_EQ(ostatni.count("starý"), ostatni.size()) << obsah;
    }
}

// The song as one list is what export and practice start from; the player's commands go by the cursor.
TEST_F(SongSheetTest, TheWholeSongEndsBeforeTheFirstRowWithoutATone) {
    const struct {
        const char* popis;
        int hmatu;         ///< rows with a tone from row 1 on
        const char* bunka; ///< what stands below besides
        int bloku;
    } radky[] = {{"an empty sheet", 0, "A1", 1},           {"one grip", 1, "A2", 1},
                 {"basses alone end it", 3, "M4", 1},      {"nor do grips behind a gap count", 4, "B6", 1},
                 {"a tone behind an empty B", 4, "C5", 1}, {"longer than one read", 700, "A701", 2}};
    for (const auto& [popis, hmatu, bunka, bloku] : radky) {
        SCOPED_TRACE(popis);
        excel->app().addWorkbook();
        for (int radek = 1; radek <= hmatu; ++radek)
            excel->put(QStringLiteral("B%1").arg(radek), QStringLiteral("t%1").arg(radek));
        excel->put(bunka, "něco");
        const int predtim = log.count("readBlock");
        const QVector<Grip> pisen = list.vsechnyHmaty();
        ASSERT_EQ(pisen.size(), hmatu);
        EXPECT_EQ(pisen.isEmpty() ? QString() : pisen.last().tony.join(u' '),
                  excel->text(QStringLiteral("B%1").arg(qMax(1, hmatu))));
        EXPECT_EQ(log.count("readBlock") - predtim, bloku);
    }
}

TEST_F(SongSheetTest, AktivujPisenTellsWhetherTheSongIsOpen) {
    EXPECT_FALSE(pisen.AktivujPisen()) << "no song";
    pisen.aktualniPisen = excel->activeWorkbookName();
    excel->app().addWorkbook();
    EXPECT_TRUE(pisen.AktivujPisen());
    EXPECT_EQ(excel->activeWorkbookName(), pisen.aktualniPisen);
    excel->userQuits();
    EXPECT_FALSE(pisen.AktivujPisen());
}

} // namespace zvonika::testing
