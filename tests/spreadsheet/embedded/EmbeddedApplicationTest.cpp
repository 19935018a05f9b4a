#include "tests/spreadsheet/embedded/Rig.h"

namespace zvonika::testing {

namespace {

class EmbeddedApplicationTest : public ::testing::Test, protected World {
protected:
    std::unique_ptr<EmbeddedApplication> owned = launch();
    EmbeddedApplication& app = *owned;
};

} // namespace

TEST_F(EmbeddedApplicationTest, AMissingDefaultFolderLastsUntilTheNextInstance) {
    EXPECT_EQ(app.defaultFilePath(), QStringLiteral("C:\\Dokumenty"));
    app.setDefaultFilePath(pracovniAdresar);
    EXPECT_EQ(app.defaultFilePath(), pracovniAdresar);
    EXPECT_EQ(launch()->defaultFilePath(), QStringLiteral("C:\\Dokumenty"));
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Dokumenty/Heligonka/Zvonika")));
    EXPECT_EQ(launch()->defaultFilePath(), pracovniAdresar);
    app.setDefaultFilePath(QString());
    EXPECT_EQ(launch()->defaultFilePath(), QStringLiteral("C:\\Dokumenty"));
}

TEST_F(EmbeddedApplicationTest, NamesWithADriveMeanNativeFiles) {
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("Dokumenty/Heligonka")));
    app.addWorkbook();
    app.saveActiveWorkbookAs({QStringLiteral("C:\\Dokumenty\\Heligonka\\pisen.xls")});
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Dokumenty/Heligonka/pisen.xls"))));
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("pisen.xls"));
    app.saveActiveWorkbookAs({path(QStringLiteral("jak stojí.txt"))});
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("jak stojí.txt"));
    const QString missing = QStringLiteral("1004 Disk „D:“ na tomto počítači není.");
    EXPECT_EQ(refusalOf([&] { app.saveActiveWorkbookAs({QStringLiteral("D:\\x.xls")}); }), missing);
    EXPECT_EQ(refusalOf([&] { app.openWorkbook(QStringLiteral("D:\\x.xls")); }), missing);
    EXPECT_EQ(refusalOf([&] { app.saveActiveWorkbookAs({QString()}); }),
              QStringLiteral("1004 Chybí jméno souboru."));
}

TEST_F(EmbeddedApplicationTest, ANewWorkbookIsSavedIntoTheDefaultFolder) {
    app.setDefaultFilePath(folder.path());
    app.addWorkbook();
    app.addWorkbook();
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("Sešit2"));
    app.saveActiveWorkbook();
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("Sešit2.xls"));
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("Sešit2.xls"))));
}

TEST_F(EmbeddedApplicationTest, TwoWorkbooksOfOneFileNameAreRefused) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("b")));
    for (const char* name : {"b/pisen.xls", "pisen.xls"}) {
        app.addWorkbook();
        app.saveActiveWorkbookAs({path(QString::fromLatin1(name))});
        if (name[0] == 'b') app.closeActiveWorkbook();
    }
    const QString question = QStringLiteral("Sešit „pisen.xls“ je ještě otevřen v okně tabulky a dva");
    const QString refusal =
        QStringLiteral("1004 Sešit „pisen.xls“ je už otevřen v okně tabulky; dva sešity téhož jména najednou "
                       "otevřít nelze. Uložte ho tam pod jiným jménem, nebo ho zavřete.");
    dialogs.expect(jmenoTabulky, question, Answer::No);
    EXPECT_EQ(refusalOf([&] { app.openWorkbook(path(QStringLiteral("b/PISEN.xls"))); }), refusal);
    app.addWorkbook();
    dialogs.expect(jmenoTabulky, question, Answer::No);
    EXPECT_EQ(refusalOf([&] { app.saveActiveWorkbookAs({path(QStringLiteral("b/pisen.xls"))}); }), refusal);
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("Sešit3")) << "which the program may close now";
    app.activateWindow(QStringLiteral("pisen.xls"));
    app.saveActiveWorkbookAs({path(QStringLiteral("pisen.xls"))});
    dialogs.expect(jmenoTabulky, question, Answer::Yes);
    app.openWorkbook(path(QStringLiteral("b/pisen.xls")));
    EXPECT_EQ(app.session().active()->file().path(), path(QStringLiteral("b/pisen.xls")));
    EXPECT_EQ(app.session().documents().size(), 2U);
}

TEST_F(EmbeddedApplicationTest, ASongThatCouldNotBeSavedMakesRoomForAnotherOfItsName) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("pryč")));
    const QString song = path(QStringLiteral("pryč/pisen.xls"));
    app.addWorkbook();
    app.saveActiveWorkbookAs({song});
    app.setValue(QStringLiteral("B1"), QStringLiteral("c"));
    ASSERT_TRUE(QDir(path(QStringLiteral("pryč"))).removeRecursively());
    EXPECT_TRUE(refusalOf([&] { app.saveActiveWorkbook(); }).startsWith(QStringLiteral("1004")));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("pryč")));
    app.addWorkbook();
    dialogs.expect(jmenoTabulky, QStringLiteral("má neuložené změny"), Answer::Yes)
        .expectFile(QStringLiteral("Uložit jako"), path(QStringLiteral("zachráněná")));
    app.saveActiveWorkbookAs({song});
    EXPECT_EQ(app.session().documents().size(), 1U);
    EXPECT_TRUE(QFile::exists(song));
    EXPECT_EQ(cellText(Document::open(path(QStringLiteral("zachráněná.xls")))->cells().value(1, {1, 2})),
              QStringLiteral("c"));
}

TEST_F(EmbeddedApplicationTest, BehindAClosedWorkbookStandsTheOneOpenedLast) {
    for (const char* name : {"a.xls", "b.xls", "c.xls"}) {
        app.addWorkbook();
        app.saveActiveWorkbookAs({path(QString::fromLatin1(name))});
    }
    app.activateWindow(QStringLiteral("b.xls"));
    for (const char* next : {"c.xls", "a.xls", ""}) {
        app.closeActiveWorkbook();
        EXPECT_EQ(app.activeWorkbookName(), QString::fromLatin1(next));
    }
}

TEST_F(EmbeddedApplicationTest, AFileThatIsOpenHereComesToTheFrontAsItIs) {
    app.addWorkbook();
    app.saveActiveWorkbookAs({path(QStringLiteral("pisen.xls"))});
    app.setValue(QStringLiteral("B1"), QStringLiteral("c"));
    app.addWorkbook();
    app.openWorkbook(path(QStringLiteral("pisen.xls")));
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("pisen.xls"));
    EXPECT_EQ(app.value(QStringLiteral("B1")), CellValue(QStringLiteral("c")));
}

TEST_F(EmbeddedApplicationTest, AnExistingFileIsReplacedOnlyWithTheUsersConsent) {
    store(path(QStringLiteral("pisen.xls")), "stará");
    app.addWorkbook();
    dialogs.expect(jmenoTabulky, QStringLiteral("Soubor „pisen.xls“ už existuje."), Answer::No);
    const SaveAsArguments arguments{path(QStringLiteral("pisen.xls"))};
    EXPECT_TRUE(refusalOf([&] { app.saveActiveWorkbookAs(arguments); }).startsWith(QStringLiteral("1004")));
    EXPECT_EQ(contents(arguments.filename), "stará");
    dialogs.expect(jmenoTabulky, QStringLiteral("nahradit"), Answer::Yes);
    app.saveActiveWorkbookAs(arguments);
    EXPECT_NE(contents(arguments.filename), "stará");
}

TEST_F(EmbeddedApplicationTest, TheFileChoiceStartsInTheDefaultFolder) {
    app.setDefaultFilePath(pracovniAdresar);
    dialogs.expectFile(QStringLiteral("Vyberte"), {});
    app.getOpenFilename(QStringLiteral("Excel Files,*.xls"), QStringLiteral("Vyberte"));
    EXPECT_EQ(dialogs.lastFolder, path(QStringLiteral("Dokumenty/Heligonka/Zvonika")));
}

TEST_F(EmbeddedApplicationTest, WhatCannotBeSavedOnQuittingMayBeSavedElsewhere) {
    const QString question = QStringLiteral("Sešit „%1“ má neuložené změny. Chcete ho uložit?");
    const QString saveAs = QStringLiteral("Uložit jako");
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("pryč")));
    app.addWorkbook();
    app.saveActiveWorkbookAs({path(QStringLiteral("pryč/pisen.xls"))});
    app.setValue(QStringLiteral("B1"), QStringLiteral("c"));
    ASSERT_TRUE(QDir(path(QStringLiteral("pryč"))).removeRecursively());
    for (const char* text : {"d", "e"}) {
        app.addWorkbook();
        app.setValue(QStringLiteral("B1"), QString::fromLatin1(text));
    }
    const QString unsaved = path(QStringLiteral("pryč/jinam.xls"));
    dialogs.expect(jmenoTabulky, question.arg(QStringLiteral("pisen.xls")), Answer::Yes)
        .expect(jmenoTabulky, QStringLiteral("neexistuje"))
        .expectFile(saveAs, unsaved)
        .expect(jmenoTabulky, QStringLiteral("neexistuje"))
        .expectFile(saveAs, path(QStringLiteral("zachráněná")))
        .expect(jmenoTabulky, question.arg(QStringLiteral("Sešit2")), Answer::Yes)
        .expectFile(saveAs, {})
        .expect(jmenoTabulky, question.arg(QStringLiteral("Sešit3")), Answer::No);
    app.quit();
    EXPECT_EQ(files(), QStringList{QStringLiteral("zachráněná.xls")});
    const auto rescued = Document::open(path(QStringLiteral("zachráněná.xls")));
    EXPECT_EQ(cellText(rescued->cells().value(1, {1, 2})), QStringLiteral("c"));
}

} // namespace zvonika::testing
