#include "tests/spreadsheet/libreoffice/CalcWorld.h"
#include "tests/support/NahodnyHrac.h"

#include <QFile>

namespace zvonika::testing {

// Short; `tools/steps calc` does the same for as long as one likes.
TEST(CalcSteps, WhateverIsRecordedIsTakenBackAndDoneAgain) {
    CalcWorld world;
    Pisen song;
    song.plneJmeno = world.path(QStringLiteral("Dva listy.xls"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/xlwt.xls"), song.plneJmeno));
    song.aplikaceExcel = world.launch();
    SpreadsheetApplication& calc = song.excel();
    calc.openWorkbook(song.plneJmeno);
    song.aktualniPisen = calc.activeWorkbookName();
    for (const int sheet : {1, 2}) {
        calc.selectSheet(sheet);
        calc.clearContents(QStringLiteral("A:IV"));
        calc.setValue(QStringLiteral("B1"), QStringLiteral("c1,"));
    }
    NahodnyHrac player(song, world.dialogs, world.drive, {}, 5);
    const auto before = player.obraz();
    for (int i = 0; i < 40; ++i)
        player.akce();
    player.vse(SmerKroku::Znovu);
    const auto after = player.obraz();
    EXPECT_GT(player.vse(SmerKroku::Zpet), 10);
    EXPECT_EQ(player.obraz(), before);
    player.vse(SmerKroku::Znovu);
    EXPECT_EQ(player.obraz(), after);
}

} // namespace zvonika::testing
