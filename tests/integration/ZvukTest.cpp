// A sound button ends the process on the spot; the song on the disk outlives it, and what was not saved yet
// comes back.
#include "tests/integration/CelyProgram.h"

namespace zvonika::testing {

using ZvukTest = CelyProgram;

TEST_F(ZvukTest, TheSongFileIsWholeWhenASoundButtonEndsTheProcess) {
    novaPisen();
    zapisHmat({"lbl(9)"}, true);
    klikni("cmdEndEdit");
    ulozSoubor(pisen("Polka.mid"), "MThd");
    otevri(pisen("Polka.xls"));
    EXPECT_FALSE(povolen("cmdZvuk(0)"));
    EXPECT_FALSE(povolen("cmdZvuk(2)"));
    klikni("cmdDalsi");
    zapisHmat({"lbl(13)"}, false); // not saved yet
    const QString neulozena = bunka("B3");
    const QByteArray pred = obsahSouboru(pisen("Polka.xls"));

    dialogs.expect("", "'9'");
    klikni("cmdZvuk(1)");
    EXPECT_TRUE(shell.ukonceno);
    EXPECT_EQ(dialogs.last.icon, Icon::Critical);
    EXPECT_EQ(obsahSouboru(pisen("Polka.xls")), pred) << "the process ends without a save";
    EXPECT_EQ(textBunky(sesit(pisen("Polka.xls")), "B1"), "c1,");
    EXPECT_EQ(excel->session().state(), Session::State::Running) << "no step of the shutdown was made";
    EXPECT_EQ(vlastniNastaveniTabulky.get("Tabulka", "DefaultFilePath"), pracovniAdresar);

    program.reset();
    dialogs.expect("Neuložené písničky", "„Polka.xls“: 3 změny", Answer::No);
    spust();
    otevri(pisen("Polka.xls"), [this] { dialogs.expect("Tabulka Zvoniky", " z minula ", Answer::Yes); });
    EXPECT_NE(neulozena, QString());
    EXPECT_EQ(bunka("B3"), neulozena);
    EXPECT_EQ(napis("lblTon"), "3") << "at the grip that was recorded last";
    klikni("cmdEndEdit");
    EXPECT_EQ(textBunky(sesit(pisen("Polka.xls")), "B3"), neulozena);
}

} // namespace zvonika::testing
