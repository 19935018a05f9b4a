#pragma once

// What every spreadsheet does with files and their locks; a part of the contract.

#include "platform/files/FileLock.h"
#include "tests/spreadsheet/contract/SpreadsheetContract.h"

#include <QDir>
#include <QFileInfo>
#include <QSysInfo>

namespace zvonika::testing {

TEST_P(SpreadsheetContract, SavedWorkbooksOpenWithCellsSheetAndCursor) {
    addSaved(QStringLiteral("pisen.xls"));
    app.renameActiveSheet(QStringLiteral("Tonavox XII"));
    app.writeBlock(QStringLiteral("A1"),
                   {{QStringLiteral("Koč"), 1.5, true}, {{}, QStringLiteral("fis,"), {}}});
    app.selectRange(QStringLiteral("B2"));
    app.saveActiveWorkbook();
    app.closeActiveWorkbook();
    app.openWorkbook(file(QStringLiteral("pisen.xls")));
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("pisen.xls"));
    EXPECT_EQ(app.activeSheetName(), QStringLiteral("Tonavox XII"));
    EXPECT_EQ(app.activeAddress(), QStringLiteral("$B$2"));
    const CellBlock expected{{QStringLiteral("Koč"), 1.5, true}, {{}, QStringLiteral("fis,"), {}}};
    EXPECT_EQ(app.readBlock(QStringLiteral("A1:C2")), expected);
}

TEST_P(SpreadsheetContract, OnlyCellsAndNamesOfSheetsCountAsAChange) {
    const QString path = sample("xlwt.xls", QStringLiteral("pisen.xls"));
    app.openWorkbook(path);
    const auto modified = [this] { return app.activeWorkbookModified(); };
    EXPECT_FALSE(modified());
    app.selectRange(QStringLiteral("C7"));
    app.moveCursor(1, 0);
    app.selectSheet(2);
    app.selectSheet(1);
    EXPECT_FALSE(modified()) << "where one was is no change";
    put(QStringLiteral("B1"), QStringLiteral("změna"));
    EXPECT_TRUE(modified());
    app.saveActiveWorkbook();
    EXPECT_FALSE(modified());
    app.renameActiveSheet(QStringLiteral("jiné"));
    EXPECT_TRUE(modified());
}

TEST_P(SpreadsheetContract, ClosingThrowsAwayWhatWasNotSaved) {
    addSaved(QStringLiteral("pisen.xls"));
    put(QStringLiteral("B1"), QStringLiteral("c"));
    app.closeActiveWorkbook();
    app.openWorkbook(file(QStringLiteral("pisen.xls")));
    EXPECT_EQ(text(QStringLiteral("B1")), QString());
}

TEST_P(SpreadsheetContract, BareNamesGoIntoTheDefaultFolderAndGetTheEnding) {
    app.setDefaultFilePath(rig->folder());
    const std::vector<std::pair<QString, QString>> names{
        {QStringLiteral("Kočka D dur"), QStringLiteral("Kočka D dur.xls")},
        {QStringLiteral("verze 1.2"), QStringLiteral("verze 1.2.xls")},
        {QStringLiteral("celá.xls"), QStringLiteral("celá.xls")},
        {QStringLiteral("Polka.XLS"), QStringLiteral("Polka.XLS")}};
    app.addWorkbook();
    for (const auto& [given, saved] : names) {
        app.saveActiveWorkbookAs({given});
        EXPECT_EQ(app.activeWorkbookName(), saved);
        EXPECT_TRUE(QFileInfo(file(saved)).isFile()) << saved.toStdString();
    }
}

TEST_P(SpreadsheetContract, RefusedFilesRaise1004AndLeaveTheWorkbookAsItIs) {
    EXPECT_EQ(raised([&] { app.openWorkbook(file(QStringLiteral("není.xls"))); }), 1004);
    EXPECT_EQ(app.activeWorkbookName(), QString());
    addSaved(QStringLiteral("pisen.xls"));
    put(QStringLiteral("B1"), QStringLiteral("c"));
    EXPECT_EQ(raised([&] { app.saveActiveWorkbookAs({file(QStringLiteral("není/pisen.xls"))}); }), 1004);
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("pisen.xls"));
    EXPECT_EQ(text(QStringLiteral("B1")), QStringLiteral("c"));
}

TEST_P(SpreadsheetContract, TheFileChoiceGivesANameOrNothing) {
    const QString filter = QStringLiteral("Excel Files,*.xls"), title = QStringLiteral("Vyberte písničku");
    rig->willChoose(file(QStringLiteral("pisen.xls")));
    EXPECT_EQ(app.getOpenFilename(filter, title), file(QStringLiteral("pisen.xls")));
    rig->willChoose({});
    EXPECT_EQ(app.getOpenFilename(filter, title), std::nullopt);
}

TEST_P(SpreadsheetContract, AWorkbookOfTheOlderFormatIsConvertedOnlyForItsChangesAndWithConsent) {
    const QString old = sample("biff5.xls", QStringLiteral("stará.xls"));
    const QByteArray before = contents(old);
    app.openWorkbook(old);
    app.moveCursor(1, 0);
    app.saveActiveWorkbook();
    put(QStringLiteral("X1"), QStringLiteral("c"));
    rig->willAnswer(QStringLiteral("ve starším formátu .xls"), Answer::No);
    EXPECT_EQ(raised([&] { app.saveActiveWorkbook(); }), 1004);
    EXPECT_EQ(contents(old), before);
    rig->willAnswer(QStringLiteral("ve starším formátu .xls"), Answer::Yes);
    app.saveActiveWorkbook();
    app.saveActiveWorkbook();
    app.closeActiveWorkbook();
    app.openWorkbook(old);
    EXPECT_EQ(text(QStringLiteral("X1")), QStringLiteral("c"));
}

TEST_P(SpreadsheetContract, WhatAnotherProgramHasPutIntoTheFileIsOverwrittenOnlyWithConsent) {
    const QString song = file(QStringLiteral("pisen.xls")),
                  asked = QStringLiteral("mezitím změnil jiný program");
    addSaved(QStringLiteral("pisen.xls"));
    put(QStringLiteral("B1"), QStringLiteral("c"));
    app.saveActiveWorkbook(); // nobody else has
    sample("xlwt.xls", QStringLiteral("pisen.xls"));
    const QByteArray others = contents(song);
    put(QStringLiteral("B1"), QStringLiteral("d"));
    for (int i = 0; i < 2; ++i) {
        rig->willAnswer(asked, Answer::No);
        EXPECT_EQ(raised([&] { app.saveActiveWorkbook(); }), 1004);
        EXPECT_EQ(contents(song), others);
    }
    rig->willAnswer(asked, Answer::Yes);
    app.saveActiveWorkbook();
    put(QStringLiteral("B1"), QStringLiteral("e"));
    app.saveActiveWorkbook();
    app.closeActiveWorkbook();
    app.openWorkbook(song);
    EXPECT_EQ(text(QStringLiteral("B1")), QStringLiteral("e"));
}

TEST_P(SpreadsheetContract, AFileThatIsOpenComesToTheFrontAsItIs) {
    addSaved(QStringLiteral("pisen.xls"));
    put(QStringLiteral("B1"), QStringLiteral("c"));
    addSaved(QStringLiteral("jiná.xls"));
    ASSERT_TRUE(QFile::link(file(QStringLiteral("pisen.xls")), file(QStringLiteral("odkaz.xls"))));
    for (const char* name : {"pisen.xls", "odkaz.xls"}) {
        app.activateWindow(QStringLiteral("jiná.xls"));
        app.openWorkbook(file(QString::fromLatin1(name)));
        EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("pisen.xls"));
        EXPECT_EQ(text(QStringLiteral("B1")), QStringLiteral("c"));
    }
}

TEST_P(SpreadsheetContract, AFileOfTheSameNameOpensWhenTheOtherHasBeenPutAway) {
    const QString question = QStringLiteral("dva sešity téhož jména");
    ASSERT_TRUE(QDir(rig->folder()).mkdir(QStringLiteral("jinde")));
    sample("xlwt.xls", QStringLiteral("jinde/pisen.xls"));
    addSaved(QStringLiteral("pisen.xls"));
    rig->willAnswer(question, Answer::No);
    EXPECT_EQ(raised([&] { app.openWorkbook(file(QStringLiteral("jinde/pisen.xls"))); }), 1004);
    EXPECT_EQ(app.sheetCount(), 1);
    put(QStringLiteral("B1"), QStringLiteral("c"));
    rig->willAnswer(question, Answer::Yes);
    rig->willChoose(file(QStringLiteral("odložená.xls")));
    app.openWorkbook(file(QStringLiteral("jinde/pisen.xls")));
    EXPECT_EQ(app.sheetCount(), 2);
    app.openWorkbook(file(QStringLiteral("odložená.xls")));
    EXPECT_EQ(text(QStringLiteral("B1")), QStringLiteral("c"));
    EXPECT_EQ(raised([&] { app.activateWindow(QStringLiteral("pisen.xls")); }), 0);
}

TEST_P(SpreadsheetContract, AFileThatIsOpenElsewhereIsAskedAboutByWhoHasIt) {
    const QString song = sample("xlwt.xls", QStringLiteral("pisen.xls"));
    QByteArray ours;
    {
        const FileLock lock = FileLock::acquire(song);
        ours = contents(FileLock::lockName(song)).replace(QSysInfo::machineHostName().toUtf8(), "doma");
    }
    const std::pair<QString, QByteArray> locks[] = {
        {FileLock::lockName(song), ours},
        {file(QStringLiteral(".~lock.pisen.xls#")), ",jana,doma,22.11.2026 03:10,file:///home/jana/office;"}};
    for (const auto& [name, lock] : locks) {
        store(name, lock);
        rig->willAnswer(QStringLiteral("počítač doma"), Answer::No);
        EXPECT_EQ(raised([&] { app.openWorkbook(song); }), 1004) << name.toStdString();
        EXPECT_EQ(contents(name), lock);
        rig->willAnswer(QStringLiteral("počítač doma"), Answer::Yes);
        app.openWorkbook(song);
        EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("pisen.xls"));
        EXPECT_TRUE(QFile::exists(FileLock::lockName(song)));
        auto other = rig->launch();
        EXPECT_EQ(raised([&] { other->openWorkbook(song); }), 1004);
        app.closeActiveWorkbook();
        EXPECT_FALSE(QFile::exists(FileLock::lockName(song)));
        QFile::remove(name);
    }
}

} // namespace zvonika::testing
