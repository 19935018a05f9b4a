// A long run over the cells of a real Calc.
#include "conversion/Konverze.h"
#include "tests/spreadsheet/libreoffice/CalcWorld.h"
#include "theory/Toniny.h"

#include <QDir>
#include <QFile>

namespace zvonika::testing {

namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

TEST(CalcConversion, StoppedBetweenTwoRowsItSaysSoAndTheSourceIsAsItWas) {
    CalcWorld world;
    HomeDrive drive(world.folder.path(), QStringLiteral(ZVONIKA_RESOURCES));
    const QString folder = drive.nativePath(pracovniAdresar);
    ASSERT_TRUE(QDir().mkpath(folder));
    Pisen pisen;
    pisen.aplikaceExcel = world.launch();
    pisen.aktualniPisen = QStringLiteral("Polka.xls");
    SpreadsheetApplication& calc = pisen.excel();
    calc.addWorkbook();
    calc.saveActiveWorkbookAs({folder + QStringLiteral("/Polka.xls")});
    calc.renameActiveSheet(QStringLiteral("Tonavox XII"));
    for (int row = 1; row <= 4; ++row)
        for (const auto& [column, text] : {std::pair("B", "c1,"), {"C", "e1,"}, {"I", "Tah"}, {"W", "C dur"}})
            calc.setValue(QString(column) + QString::number(row), QString(text));
    calc.saveActiveWorkbook();
    const QByteArray before = contents(folder + QStringLiteral("/Polka.xls"));

    StavKonverze stav;
    Konverze konverze(pisen, world.dialogs, drive, stav, [&] {
        if (stav.radek == 1) konverze.cmdKonec();
    });
    konverze.Form_Load();
    for (int i = 0; i < static_cast<int>(toniny.size()); ++i)
        if (toniny[static_cast<std::size_t>(i)].nazev == u"G dur") stav.optStupnice = i;
    konverze.cmdGo();

    EXPECT_EQ(calc.activeWorkbookName(), "Polka G dur.xls");
    EXPECT_EQ(calc.activeSheetName(), "G dur Nedokončeno");
    EXPECT_EQ(cellText(calc.value("B2")), "g,");
    EXPECT_EQ(cellText(calc.value("B3")), "c1,");
    EXPECT_EQ(contents(folder + QStringLiteral("/Polka.xls")), before);
}

} // namespace zvonika::testing
