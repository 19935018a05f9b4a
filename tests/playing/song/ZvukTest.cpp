#include "tests/playing/SongFixture.h"

namespace zvonika::testing {

using ZvukTest = SongFixture;

TEST_F(ZvukTest, EachSoundButtonAnswersForItsOwnFile) {
    const QStringList pripony{"mp3", "mid", "wav"};
    for (int bity = 0; bity < 8; ++bity) {
        drive.files = {slozkaPisni + "Polka.xls", slozkaPisni + "Polkamid", slozkaPisni + "Jina.mp3"};
        for (int i = 0; i < 3; ++i)
            if (bity >> i & 1) drive.files.insert(slozkaPisni + "Polka." + pripony[i]);
        otevriPolku(1);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(prikazy.povolen(QStringLiteral("cmdZvuk(%1)").arg(i)), bool(bity >> i & 1)) << bity;
        zivot.cmdEndEdit();
        for (int i = 0; i < 3; ++i)
            EXPECT_FALSE(prikazy.povolen(QStringLiteral("cmdZvuk(%1)").arg(i)));
    }
}

TEST_F(ZvukTest, LooksIntoTheWorkingFolderWhereverTheSongWasOpenedFrom) {
    drive.files = {"D:\\Polka.mp3", slozkaPisni + "Polka.wav"};
    disk["D:\\Polka.xls"] = {"Polka.xls", "D:\\Polka.xls", {{"L", {}, {}, 1, 2}}, 0};
    excel->fileChoice = "D:\\Polka.xls";
    zivot.cmdEdit();
    EXPECT_FALSE(prikazy.povolen("cmdZvuk(0)"));
    EXPECT_TRUE(prikazy.povolen("cmdZvuk(2)"));
}

TEST_F(ZvukTest, AClickFailsAtOnce) {
    for (int i = 0; i < 3; ++i)
        ocekavejChybu(error::subscriptOutOfRange, [&] { zvuk.cmdZvuk(i); });
    EXPECT_TRUE(media.prikazy.isEmpty());
}

TEST_F(ZvukTest, CommandStringsToTheLetter) {
    const QString jmeno = slozkaPisni + "Kočka leze dírou.wav";
    EXPECT_TRUE(zvuk.PrehrajZvuk(jmeno));
    zvuk.ZastavZvuk(jmeno);
    EXPECT_EQ(media.prikazy, QStringList({"open " + jmeno + " type sequencer", "play " + jmeno,
                                          "stop " + jmeno, "close " + jmeno}));
    media.kody = {275, 0}; // only the play command counts
    EXPECT_TRUE(zvuk.PrehrajZvuk(jmeno));
    media.kody = {0, 263};
    EXPECT_FALSE(zvuk.PrehrajZvuk(jmeno));
}

} // namespace zvonika::testing
