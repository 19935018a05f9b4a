// What stands around Calc and needs none: the view's text, what a cell means, the profile, what is installed,
// what was read ahead.
#include "platform/RuntimeError.h"
#include "spreadsheet/libreoffice/Installation.h"
#include "spreadsheet/libreoffice/Profile.h"
#include "spreadsheet/libreoffice/ReadAhead.h"
#include "spreadsheet/libreoffice/ShownValues.h"
#include "spreadsheet/libreoffice/ViewData.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zvonika::testing {

namespace {

void storeInNewFolder(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(ViewData, TellsSheetAndCursor) {
    const struct {
        const char* data;
        int sheet, row, column;
    } views[] = {{"100/60/0;0;tw:270;2/30/0/0/0/0/2/0/0/0/0", 1, 31, 3},
                 {"100/60/0;1;tw:270;2/30/0/0;0/4/0/0;;", 2, 5, 1},
                 {"100/60/0;0;tw:270;1+70000+0+0", 1, 70001, 2},
                 {"", 0, 0, 0},
                 {"100/60/0;-3;tw:270;2/30/0/0", 0, 0, 0},
                 {"100/60/0;2;tw:270;2/30/0/0;0/4/0/0", 0, 0, 0},
                 {"100/60/0;0;tw:270;", 0, 0, 0},
                 {"100/60/0;0;tw:270;x/30/0", 0, 0, 0}};
    for (const auto& [data, sheet, row, column] : views) {
        const auto found = cursorInViewData(QString::fromLatin1(data));
        ASSERT_EQ(found.has_value(), sheet > 0) << data;
        if (!found) continue;
        EXPECT_EQ(found->sheet, sheet) << data;
        EXPECT_EQ(found->cell, (CellPosition{row, column})) << data;
    }
}

TEST(ShownValues, TellTruthFromNumbersAndErrorsFromEachOther) {
    const struct {
        const char *shown, *formula;
        bool truth;
    } cells[] = {{"TRUE", "1", true},     {"NEPRAVDA", "0", true}, {"1", "=TRUE()", true},
                 {"0", "=FALSE()", true}, {"1", "1", false},       {"1,00", "1", false},
                 {"", "0", false},        {"0 %", "=A1", false},   {"Ano", "=A1", true},
                 {"1", "=TRUE", false}};
    for (const auto& [shown, formula, truth] : cells)
        EXPECT_EQ(showsTruth(shown, formula), truth) << shown << ' ' << formula;
    const std::pair<const char*, const char*> errors[] = {
        {"#DIV/0!", "#DIV/0!"}, {"#REF!", "#REF!"}, {"Err:508", "#N/A"}, {"", "#N/A"}, {"#N/A", "#N/A"}};
    for (const auto& [shown, error] : errors)
        EXPECT_EQ(errorShown(shown), error) << shown;
    EXPECT_TRUE(isZeroOrOne(0.0) && isZeroOrOne(1.0) && !isZeroOrOne(0.5) && !isZeroOrOne(-1.0));
}

TEST(Profile, IsTakenOnceAndKeepsTheUsersSettings) {
    QTemporaryDir folder;
    const Profile first(folder.path());
    const Profile second(folder.path());
    EXPECT_NE(first.path(), second.path());
    const QString file = first.path() + "/user/registrymodifications.xcu";
    const QByteArray users = "<item oor:path=\"/org.openoffice.Office.Calc/Grid\"><prop oor:name=\"X\" "
                             "oor:op=\"fuse\"><value>1</value></prop></item>\n";
    storeInNewFolder(file, "<?xml version=\"1.0\"?>\n<oor:items>\n" + users + "</oor:items>\n");
    first.seed({"/tmp/Dvě písně", QRect(10, 20, 300, 400)});
    first.seed({"/tmp/Dvě & písně", QRect(11, 20, 300, 400), "7.4"});
    const QByteArray seeded = contents(file);
    EXPECT_TRUE(seeded.contains(users));
    EXPECT_EQ(seeded.count("WarnAlienFormat"), 1);
    EXPECT_EQ(seeded.count("<value>7.4</value>"), 1);
    EXPECT_EQ(seeded.count("<value>file:///tmp/Dv%C4%9B%20&amp;%20p%C3%ADsn%C4%9B</value>"), 1);
    EXPECT_EQ(seeded.count("<value>11,20,300,400;1;0,0,0,0;</value>"), 1);
    EXPECT_FALSE(seeded.contains("<value>10,20"));
    EXPECT_THROW(Profile("/proc/zvonika"), RuntimeError);
}

TEST(ReadAhead, KnowsThePieceItHasReadUntilTheUserActs) {
    ReadAhead seen;
    const CellRange piece = ReadAhead::pieceWith({7, 2});
    CellBlock cells(piece.rows(), QVector<CellValue>(piece.columns()));
    cells[1][22] = QString("C dur");
    seen.learnCells(piece, cells, true, 5);
    EXPECT_EQ(seen.value({8, 23}, 5), CellValue(QString("C dur")));
    EXPECT_FALSE(seen.value({8, 24}, 5) || seen.value({6, 2}, 5) || seen.value({8, 23}, 6));
    seen.learnCells(piece, cells, false, 5);
    seen.write({8, 2}, "c1,", 5);
    EXPECT_FALSE(seen.value({8, 23}, 5)) << "it may have been calculated from what was written";
    seen.learnCells(piece, cells, true, 5);
    seen.learnCursor({8, 2}, 6);
    EXPECT_FALSE(seen.value({8, 23}, 6)) << "what was known before the act is gone";
    seen.learnActive("pisen.xls", 6);
    EXPECT_TRUE(seen.isActive("pisen.xls", 6));
    EXPECT_FALSE(seen.isActive("pisen.xls", 7) || seen.isActive("jina.xls", 6) || seen.isActive("", 6));
    seen.forget();
    EXPECT_FALSE(seen.cursor(6));
    EXPECT_EQ(ReadAhead::pieceWith({lastRow, 30}), single({lastRow, 30}));
    EXPECT_EQ(ReadAhead::pieceWith({lastRow, 3}).last.row, lastRow);
}

TEST(ReadAhead, KnowsNothingForLong) {
    ReadAhead seen(std::chrono::milliseconds(1));
    seen.learnCursor({8, 2}, 0);
    QElapsedTimer clock;
    clock.start();
    while (!clock.hasExpired(3)) {
    }
    EXPECT_FALSE(seen.cursor(0));
}

TEST(Installation, NamesWhatIsMissing) {
    QTemporaryDir folder;
    const auto path = [&](const char* name) { return folder.filePath(name); };
    const auto missing = [&](const char* program) {
        return findLibreOffice({{path("none"), path(program)}, {path("plugins")}}).missing;
    };
    for (const char* program : {"good", "old", "nocalc", "nowindows"}) {
        storeInNewFolder(path(program) + "/soffice.bin", "");
        storeInNewFolder(path(program) + "/bootstraprc", QByteArray("[Bootstrap]\nProductKey=LibreOffice ") +
                                                             (program == std::string("old") ? "6.4" : "7.4") +
                                                             "\n");
        if (program != std::string("nocalc")) storeInNewFolder(path(program) + "/libsclo.so", "");
        if (program != std::string("nowindows")) storeInNewFolder(path(program) + "/libvclplug_genlo.so", "");
    }
    EXPECT_TRUE(missing("good").contains("sestavena bez spojení"));
    storeInNewFolder(path("plugins/libzvonika_libreoffice.so"), "");
    storeInNewFolder(path("plugins/zvonika-hlidac"), "");
    EXPECT_TRUE(missing("none").contains("není na tomto počítači nainstalován"));
    EXPECT_TRUE(missing("old").contains("6.4 je příliš starý"));
    EXPECT_TRUE(missing("nocalc").contains("chybí tabulkový program Calc"));
    EXPECT_TRUE(missing("nowindows").contains("bez oken"));
    EXPECT_EQ(missing("good"), "");
    const Installation best = findLibreOffice({{path("old"), path("good")}, {path("plugins")}});
    EXPECT_EQ(best.version, "7.4");
}

} // namespace zvonika::testing
