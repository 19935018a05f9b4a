#include "tests/playing/SongFixture.h"

namespace zvonika::testing {

using ZvukTest = SongFixture;

TEST_F(ZvukTest, EachSoundButtonAnswersForItsOwnFileInTheWorkingFolder) {
    const QStringList pripony{"mp3", "mid", "wav"};
    for (const char* cizi : {"Polkamid", "Jina.mp3"})
        drive.addFile(slozkaPisni + cizi);
    for (const QString& odkud : {QStringLiteral("C:\\"), slozkaPisni}) {
        store(odkud + "Polka.xls", {{QStringLiteral("L")}});
        for (int bity = 0; bity < 8; ++bity) {
            for (int i = 0; i < 3; ++i) {
                const QString soubor = "Polka." + pripony[i];
                drive.deleteFile(slozkaPisni + soubor);
                if (bity >> i & 1) drive.addFile(slozkaPisni + soubor);
            }
            otevri(odkud + "Polka.xls");
            for (int i = 0; i < 3; ++i)
                EXPECT_EQ(prikazy.povolen(QStringLiteral("cmdZvuk(%1)").arg(i)), bool(bity >> i & 1)) << bity;
            zivot.cmdEndEdit();
            for (int i = 0; i < 3; ++i)
                EXPECT_FALSE(prikazy.povolen(QStringLiteral("cmdZvuk(%1)").arg(i)));
        }
    }
}

TEST_F(ZvukTest, AClickFailsAtOnce) {
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(raised([&] { zvuk.cmdZvuk(i); }), error::subscriptOutOfRange);
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
