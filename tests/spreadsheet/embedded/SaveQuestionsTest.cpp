#include "tests/spreadsheet/embedded/Rig.h"

namespace zvonika::testing {

namespace {

class SaveQuestionsTest : public ::testing::Test, protected World {
protected:
    SaveQuestionsTest() {
        app.addWorkbook();
        app.saveActiveWorkbookAs({song});
        app.setValue(QStringLiteral("B1"), QStringLiteral("moje"));
    }
    void someoneElseWrites() { store(song, foreign); }
    QString saving() {
        return refusalOf([&] { app.saveActiveWorkbook(); });
    }

    const QString song = path(QStringLiteral("píseň.xls"));
    const QByteArray foreign = "cizí";
    const QString question = QStringLiteral("Soubor „píseň.xls“ na disku mezitím změnil jiný program");
    std::unique_ptr<EmbeddedApplication> owned = launch();
    EmbeddedApplication& app = *owned;
};

} // namespace

TEST_F(SaveQuestionsTest, WhatAnotherProgramHasWrittenIsNotOverwrittenUnasked) {
    someoneElseWrites();
    dialogs.expect(jmenoTabulky, question, Answer::No);
    EXPECT_TRUE(saving().startsWith(QStringLiteral("1004 Soubor „píseň.xls“ uložen není: na disku ho")));
    EXPECT_EQ(dialogs.last.defaultAnswer, Answer::No);
    EXPECT_EQ(contents(song), foreign);
    EXPECT_TRUE(app.session().active()->file().isModified());
    dialogs.expect(jmenoTabulky, question, Answer::No);
    EXPECT_FALSE(app.commands().files().save()) << "the user has said so himself, no second box";
    dialogs.expect(jmenoTabulky, question, Answer::Yes);
    EXPECT_EQ(saving(), QStringLiteral("0"));
    EXPECT_NE(contents(song), foreign);
    someoneElseWrites();
    dialogs.expect(jmenoTabulky, question, Answer::No);
    EXPECT_TRUE(refusalOf([&] { app.saveActiveWorkbookAs({song}); }).startsWith(QStringLiteral("1004")));
    dialogs.expect(jmenoTabulky, question, Answer::Yes);
    EXPECT_EQ(saving(), QStringLiteral("0"));
}

TEST_F(SaveQuestionsTest, NothingIsAskedWhenNothingIsLost) {
    const QByteArray same = contents(song);
    QFile::remove(song);
    EXPECT_EQ(saving(), QStringLiteral("0")) << "a file that is gone";
    EXPECT_TRUE(QFile::exists(song));
    app.closeActiveWorkbook();
    app.openWorkbook(song);
    const QByteArray now = contents(song);
    store(song, now); // touched, and another file
    EXPECT_EQ(saving(), QStringLiteral("0"));
}

TEST_F(SaveQuestionsTest, ElsewhereTheSongCanAlwaysBeSaved) {
    someoneElseWrites();
    dialogs.expectFile(QStringLiteral("Uložit jako"), path(QStringLiteral("jinam.xls")));
    EXPECT_TRUE(app.commands().files().saveAs());
    EXPECT_EQ(contents(song), foreign);
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("jinam.xls"));
}

TEST_F(SaveQuestionsTest, WhatASaveDoesToAnOlderFileIsSaidBefore) {
    const QString old = path(QStringLiteral("stará.xls"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/biff5.xls"), old));
    const QByteArray before = contents(old);
    app.openWorkbook(old);
    app.selectRange(QStringLiteral("C7"));
    EXPECT_EQ(saving(), QStringLiteral("0")) << "the cursor is no reason to convert";
    EXPECT_EQ(contents(old), before);
    app.setValue(QStringLiteral("B1"), QStringLiteral("c"));
    const QString conversion = QStringLiteral("Sešit „stará.xls“ je ve starším formátu .xls");
    dialogs.expect(jmenoTabulky, conversion, Answer::No);
    EXPECT_TRUE(saving().startsWith(QStringLiteral("1004 Soubor „stará.xls“ uložen není: sešit měl zůstat")));
    EXPECT_EQ(contents(old), before);
    store(old, foreign); // what is on the disk is looked at last
    dialogs.expect(jmenoTabulky, conversion, Answer::Yes)
        .expect(jmenoTabulky, QStringLiteral("Soubor „stará.xls“ na disku mezitím změnil"), Answer::No);
    EXPECT_TRUE(saving().contains(QStringLiteral("není: na disku ho mezitím změnil")));
    EXPECT_EQ(contents(old), foreign);
    store(old, before);
    dialogs.expect(jmenoTabulky,
                   QStringLiteral("maticové konstanty), nahradí jejich výsledky; písmo jednotlivých slov"),
                   Answer::Yes);
    EXPECT_EQ(saving(), QStringLiteral("0"));
    EXPECT_NE(contents(old), before);
    app.setValue(QStringLiteral("B1"), QStringLiteral("d"));
    EXPECT_EQ(saving(), QStringLiteral("0")) << "said once";
}

TEST_F(SaveQuestionsTest, ASongThatIsOpenElsewhereIsOpenedOnlyWithTheUsersConsent) {
    app.saveActiveWorkbook();
    const QByteArray lock = contents(FileLock::lockName(song));
    app.closeActiveWorkbook();
    QList<QByteArray> lines = lock.split('\n');
    lines[1] = "doma";
    lines[6] = "jiny-pocitac";
    store(FileLock::lockName(song), lines.join('\n'));
    const QString elsewhere = QStringLiteral("Soubor „píseň.xls“ má už otevřený někdo jiný");
    dialogs.expect(jmenoTabulky, elsewhere, Answer::No);
    EXPECT_TRUE(refusalOf([&] {
                    app.openWorkbook(song);
                }).startsWith(QStringLiteral("1004 Soubor „píseň.xls“ je už otevřen jinde (")));
    EXPECT_TRUE(dialogs.last.text.contains(QStringLiteral("počítač doma")));
    EXPECT_EQ(dialogs.last.defaultAnswer, Answer::No);
    dialogs.expect(jmenoTabulky, elsewhere, Answer::Yes);
    app.openWorkbook(song);
    EXPECT_EQ(app.value(QStringLiteral("B1")), CellValue(QStringLiteral("moje")));
    app.closeActiveWorkbook();
    EXPECT_FALSE(QFile::exists(FileLock::lockName(song)));
}

} // namespace zvonika::testing
