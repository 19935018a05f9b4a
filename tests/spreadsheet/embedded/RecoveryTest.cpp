#include "spreadsheet/journal/Journal.h"
#include "tests/spreadsheet/embedded/Rig.h"

#include <cmath>

namespace zvonika::testing {

namespace {

const QString title = jmenoTabulky;

/// Runs of the program on one song, each of which may be cut off.
class RecoveryTest : public ::testing::Test, protected World {
protected:
    RecoveryTest() {
        start();
        app->addWorkbook();
        app->setValue(QStringLiteral("B1"), QStringLiteral("c"));
        app->saveActiveWorkbookAs({song});
        app->closeActiveWorkbook();
        saved = contents(song);
    }
    void start() {
        app = launch();
        app->setVisible(true);
    }
    /// The program is gone at once; what it had opened is closed by nobody, its lock stays.
    void crash() {
        const QByteArray lock =
            QFile::exists(FileLock::lockName(song)) ? contents(FileLock::lockName(song)) : QByteArray();
        app.reset();
        if (!lock.isEmpty()) store(FileLock::lockName(song), QByteArray(lock).replace(1, 1, "?"));
    }
    void open() { app->openWorkbook(song); }
    QString text(const char* address) const { return cellText(app->value(QString::fromLatin1(address))); }
    void write(const char* address, const char* text) {
        app->setValue(QString::fromLatin1(address), QString::fromUtf8(text));
    }
    void crashWith(const char* address, const char* text) {
        start();
        open();
        write(address, text);
        crash();
        start();
    }
    Document& document() { return *app->session().active(); }
    int journalCount(const char* folder = "zaznamy") const {
        return int(QDir(state.filePath(QString::fromLatin1(folder))).entryList(QDir::Files).size());
    }

    const QString song = path(QStringLiteral("Kočka.xls"));
    QByteArray saved;
    std::unique_ptr<EmbeddedApplication> app;
};

} // namespace

TEST_F(RecoveryTest, EveryWayToChangeASongComesBack) {
    start();
    open();
    SheetCommands& user = app->commands();
    app->writeBlock(QStringLiteral("B2:D2"), {{QStringLiteral("e,"), 1.5, true}});
    app->renameActiveSheet(QStringLiteral("Tonavox XII"));
    user.type({3, 1}, QStringLiteral("leze"));
    user.type({1, 2}, QStringLiteral("d"));
    user.undo();
    user.select(single({2, 1}), {2, 1});
    user.insertRow();
    user.setColumnWidth(1, 30);
    user.paste(QStringLiteral("x\ty"));
    user.select(single({1, 1}), {1, 1});
    user.deleteRow();
    user.undo();
    user.redo();
    app->selectRange(QStringLiteral("B1"));
    app->copyRange(QStringLiteral("A1:D3"));
    app->selectRange(QStringLiteral("F4"));
    app->paste();
    app->clearContents(QStringLiteral("F4"));
    const CellBlock before = app->readBlock(QStringLiteral("A1:J8"));
    crash();
    start();
    dialogs.expect(title, QStringLiteral("V sešitu „Kočka.xls“ zůstalo z minula "), Answer::Yes);
    open();
    EXPECT_EQ(app->readBlock(QStringLiteral("A1:J8")), before);
    EXPECT_EQ(app->activeSheetName(), QStringLiteral("Tonavox XII"));
    EXPECT_EQ(document().cells().columnWidth(1, 1), 30);
    EXPECT_EQ(app->activeAddress(), QStringLiteral("$B$4")) << "where the work was";
    EXPECT_TRUE(document().file().isModified());
    EXPECT_EQ(document().editing().undoLabel(), QString());
    EXPECT_EQ(contents(song), saved);
    app->saveActiveWorkbook();
    EXPECT_EQ(journalCount(), 0);
    crash();
    start();
    open();
    EXPECT_EQ(app->readBlock(QStringLiteral("A1:J8")), before);
}

TEST_F(RecoveryTest, TheQuestionSaysHowManyChangesAndWhen) {
    const std::pair<int, const char*> cases[] = {{1, "zůstala z minula 1 neuložená změna (poslední "},
                                                 {3, "zůstaly z minula 3 neuložené změny (poslední "},
                                                 {5, "zůstalo z minula 5 neuložených změn (poslední "}};
    for (const auto& [count, words] : cases) {
        start();
        open();
        for (int i = 0; i < 2 * count; ++i) // a cell that was written twice counts once
            app->setValue(QStringLiteral("B%1").arg(1 + i % count), double(i));
        crash();
        start();
        dialogs.expect(title, QString::fromUtf8(words), Answer::No);
        open();
        const QString now = QDateTime::currentDateTime().toString(QStringLiteral("d. M. yyyy 'v' H:"));
        EXPECT_TRUE(dialogs.last.text.contains(now)) << dialogs.last.text.toStdString();
        EXPECT_FALSE(dialogs.last.text.contains(QStringLiteral("Pozor")));
        app->closeActiveWorkbook();
    }
}

TEST_F(RecoveryTest, TurnedDownTheSongIsAsItWasSavedAndTheJournalIsKeptAside) {
    crashWith("B2", "d");
    dialogs.expect(title, QStringLiteral("Chcete ji vrátit?"), Answer::No);
    open();
    EXPECT_TRUE(dialogs.last.text.endsWith(QStringLiteral("se odloží; program ji už nenabídne.")));
    EXPECT_EQ(text("B2"), QString());
    EXPECT_FALSE(document().file().isModified());
    EXPECT_EQ(contents(song), saved);
    EXPECT_EQ(journalCount(), 0);
    EXPECT_EQ(journalCount("zaznamy/odmitnute"), 1);
    crash();
    start();
    open();
}

TEST_F(RecoveryTest, SaysWhenTheSongHasChangedSince) {
    crashWith("B2", "d");
    auto other = Document::open(song);
    other->editing().write(1, {4, 2}, {{QStringLiteral("cizí")}});
    other->save();
    dialogs.expect(title, QStringLiteral("Pozor: soubor se od té doby změnil."), Answer::Yes);
    other.reset(); // closes the song before it is opened here
    open();
    EXPECT_EQ(text("B2") + text("B4"), QStringLiteral("dcizí"));
}

TEST_F(RecoveryTest, ASongNeverSavedIsOfferedAtTheStart) {
    start();
    app->addWorkbook();
    write("B1", "f");
    crash();
    dialogs.expect(title, QStringLiteral("V dosud neuloženém sešitu „Sešit1“"), Answer::Yes);
    start();
    EXPECT_EQ(app->activeWorkbookName(), QStringLiteral("Sešit1"));
    EXPECT_EQ(text("B1"), QStringLiteral("f"));
    app->addWorkbook();
    EXPECT_EQ(app->activeWorkbookName(), QStringLiteral("Sešit2"));
    app->activateWindow(QStringLiteral("Sešit1"));
    app->saveActiveWorkbookAs({path(QStringLiteral("nová.xls"))});
    crash();
    start();
    EXPECT_EQ(app->activeWorkbookName(), QString());
}

TEST_F(RecoveryTest, WhatTheUserOrTheProgramGaveUpIsNotOffered) {
    const std::function<void()> ways[] = {
        [&] { app->closeActiveWorkbook(); },
        [&] {
            dialogs.expect(title, QStringLiteral("Chcete uložit změny"), Answer::No);
            app->commands().files().close();
        },
        [&] {
            dialogs.expect(title, QStringLiteral("Chcete uložit změny"), Answer::No);
            app->commands().files().quit();
        },
        [&] {
            dialogs.expect(title, QStringLiteral("má neuložené změny"), Answer::No);
            app->quit();
        },
    };
    for (const auto& way : ways) {
        start();
        open();
        write("B2", "d");
        way();
        EXPECT_EQ(journalCount(), 0);
    }
}

TEST_F(RecoveryTest, WhoChangesHisMindWhileQuittingGivesNothingUp) {
    start();
    open();
    write("B2", "d");
    app->addWorkbook();
    write("B1", "f");
    const QString question = QStringLiteral("Chcete uložit změny");
    dialogs.expect(title, question, Answer::No).expect(title, question, Answer::Cancel);
    EXPECT_FALSE(app->commands().files().quit());
    crash();
    EXPECT_EQ(journalCount(), 2);
}

TEST_F(RecoveryTest, ADamagedJournalIsToldOfWithItsPlace) {
    crashWith("B2", "d");
    const QDir records(state.filePath(QStringLiteral("zaznamy")));
    store(records.filePath(records.entryList(QDir::Files).value(0)), "co to je?");
    dialogs.expect(title, QStringLiteral("Záznam neuložených změn sešitu „Kočka.xls“ je poškozený"));
    open();
    const QString place =
        dialogs.last.text.section(QStringLiteral("„"), -1).section(QStringLiteral("“"), 0, 0);
    EXPECT_EQ(contents(place), "co to je?") << place.toStdString();
    EXPECT_EQ(text("B1"), QStringLiteral("c"));
}

TEST_F(RecoveryTest, WhatCouldNotBeSavedAtTheEndIsOfferedAgain) {
    start();
    open();
    write("B2", "d");
    store(song, "cizí"); // and the user does not want to lose that
    dialogs.expect(title, QStringLiteral("má neuložené změny"), Answer::Yes)
        .expect(title, QStringLiteral("změnil jiný program"), Answer::No)
        .expectFile(QStringLiteral("Uložit jako"), {});
    app->quit();
    crash();
    store(song, saved);
    start();
    dialogs.expect(title, QStringLiteral("1 neuložená"), Answer::Yes);
    open();
    EXPECT_EQ(text("B2"), QStringLiteral("d"));
    app->closeActiveWorkbook(); // a program that could not show the song
    dialogs.expect(title, QStringLiteral("1 neuložená"), Answer::Yes);
    open();
}

TEST_F(RecoveryTest, AStepCutShortByTheEndOfItsWorkbookIsOffered) {
    const std::function<void()> ends[] = {
        [&] { app->closeActiveWorkbook(); },
        [&] {
            dialogs.expect(title, QStringLiteral("má neuložené změny"), Answer::Yes)
                .expect(title, QStringLiteral("změnil jiný program"), Answer::No)
                .expectFile(QStringLiteral("Uložit jako"), {});
            store(song, "cizí");
            app->quit();
            store(song, saved);
        },
    };
    for (const auto& end : ends) {
        crashWith("B2", "d");
        dialogs.expect(title, QStringLiteral("1 neuložená"), Answer::Yes);
        open();
        app->beginStep();
        write("B3", "e");
        end();
        crash();
        start();
        dialogs.expect(title, QStringLiteral("2 neuložené"), Answer::Yes);
        open();
        EXPECT_EQ(text("B2") + text("B3"), QStringLiteral("de"));
        document().journal().giveUp();
    }
}

TEST_F(RecoveryTest, AFormulaThatTheProgramHasPutBackComesBack) {
    ASSERT_TRUE(QFile::remove(song) && QFile::copy(QStringLiteral(XLS_DATA "/libreoffice.xls"), song));
    start();
    open();
    const CellValue shown = app->value(QStringLiteral("F1"));
    write("F1", "x");
    app->putBack(QStringLiteral("F1"), {{shown}});
    EXPECT_TRUE(document().cells().isFormula(1, {1, 6}));
    write("B2", "d");
    crash();
    start();
    dialogs.expect(title, QStringLiteral("2 neuložené"), Answer::Yes);
    open();
    EXPECT_TRUE(document().cells().isFormula(1, {1, 6}));
}

TEST_F(RecoveryTest, AJournalOfAFormerSongOfThatNameIsNotOffered) {
    crashWith("B2", "d");
    QFile::remove(song);
    app->addWorkbook();
    app->saveActiveWorkbookAs({song});
    app->closeActiveWorkbook();
    open();
    EXPECT_EQ(journalCount("zaznamy/odmitnute"), 1);
}

TEST_F(RecoveryTest, WhatDoesNotFitIsTold) {
    start();
    open();
    {
        Journal journal(journals, {song, QStringLiteral("Kočka.xls"), "jiná"});
        journal.record({CellWritten{1, {2, 2}, QStringLiteral("d")}, CellWritten{7, {1, 1}, 1.0},
                        SheetRenamed{1, QStringLiteral("a/b")}, RowInserted{9, 1}});
    }
    crash();
    start();
    dialogs.expect(title, QStringLiteral("Pozor"), Answer::Yes)
        .expect(title, QStringLiteral("se nepodařilo vrátit 3 změny"));
    open();
    EXPECT_EQ(text("B2"), QStringLiteral("d"));
}

TEST_F(RecoveryTest, APlantedJournalLeadsNowhereAndBreaksNothing) {
    for (const char* name : {"../../x", "a\nb", "/etc/passwd", "", ".bashrc"}) {
        {
            Journal journal(journals, {{}, QString::fromUtf8(name), {}});
            journal.record({CellWritten{1, {65536, 256}, QString(40000, u'x')},
                            SheetRenamed{1, QString(500, u'y')}, RowDeleted{1, 65536},
                            ColumnResized{1, 1, 1e300}, CellWritten{1, {1, 2}, QStringLiteral("c")}});
        }
        dialogs.expect(title, QStringLiteral("V dosud neuloženém sešitu"), Answer::Yes)
            .expect(title, QStringLiteral("se nepodařilo vrátit 2 změny"));
        start();
        EXPECT_TRUE(document().file().name().startsWith(QStringLiteral("Sešit"))) << name;
        EXPECT_EQ(text("B1"), QStringLiteral("c"));
        document().journal().giveUp();
    }
    {
        Journal journal(journals, {song, QStringLiteral("Kočka.xls"), {}});
        journal.record({ColumnResized{1, 1, std::nan("")}});
    }
    start();
    open(); // what is no number makes the record damaged: nothing of it is offered
}

TEST_F(RecoveryTest, ATypedOverFormulaComesBackWhenThatWasTakenBack) {
    const QString sheet = path(QStringLiteral("vzorce.xls"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/libreoffice.xls"), sheet));
    const auto formulas = Document::open(sheet);
    const CellPosition cell{1, 6};
    ASSERT_TRUE(formulas->cells().isFormula(1, cell));
    const CellValue shown = formulas->cells().value(1, cell);
    PendingJournal pending{JournalFile::create(path(QStringLiteral("zápis")), {}), {}};
    pending.contents.groups = {{{}, {CellWritten{1, cell, 7.0}, CellWritten{1, cell, shown, true}}}};
    EXPECT_EQ(formulas->recover(std::move(pending)), 0);
    EXPECT_TRUE(formulas->cells().isFormula(1, cell));
    EXPECT_EQ(formulas->cells().value(1, cell), shown);
}

} // namespace zvonika::testing
