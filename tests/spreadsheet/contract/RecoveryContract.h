#pragma once

// What every spreadsheet keeps of unsaved changes when it is killed; instantiated beside the contract.

#include "tests/spreadsheet/contract/SpreadsheetContract.h"

namespace zvonika::testing {

/// One song and runs of the application on it.
class RecoveryContract : public ::testing::TestWithParam<SpreadsheetRigFactory> {
protected:
    RecoveryContract() : rig(GetParam().make()) {
        start();
        app->addWorkbook();
        app->setValue(QStringLiteral("B1"), QStringLiteral("c,"));
        app->saveActiveWorkbookAs({song()});
    }
    void start() {
        app = rig->launch();
        app->setVisible(true);
    }
    void killed() { rig->kill(std::move(app)); }
    QString song() const { return rig->folder() + QStringLiteral("/Kočka.xls"); }
    QString text(const char* address) const { return cellText(app->value(QString::fromLatin1(address))); }
    void put(const char* address, const char* text) {
        app->setValue(QString::fromLatin1(address), QString::fromUtf8(text));
    }
    /// The song as the next run finds it, with this answer to an offer; without one there must be none.
    void comesAgain(const std::optional<bool>& takesBack) {
        start();
        if (takesBack) rig->willBeOffered(QStringLiteral("„Kočka.xls“ zůsta"), *takesBack);
        app->openWorkbook(song());
    }

    std::unique_ptr<SpreadsheetRig> rig;
    std::unique_ptr<SpreadsheetApplication> app;
};

TEST_P(RecoveryContract, EveryWayToWriteComesBack) {
    app->writeBlock(QStringLiteral("B2"),
                    {{QStringLiteral("e,"), QStringLiteral("g,")}, {QStringLiteral("f,"), 1.5}});
    app->setValue(QStringLiteral("I2:I3"), QStringLiteral("Tah"));
    app->clearContents(QStringLiteral("I3"));
    app->selectRange(QStringLiteral("W2"));
    app->setActiveCellValue(QStringLiteral("C dur"));
    app->renameActiveSheet(QStringLiteral("Tonavox XII"));
    app->copyRange(QStringLiteral("B2:C2"));
    app->selectRange(QStringLiteral("B5"));
    app->paste();
    rig->userEnters(*app, QStringLiteral("A2"), QStringLiteral("leze"));
    const CellBlock before = app->readBlock(QStringLiteral("A1:W6"));
    killed();
    comesAgain(true);
    EXPECT_EQ(app->readBlock(QStringLiteral("A1:W6")), before);
    EXPECT_EQ(app->activeSheetName(), QStringLiteral("Tonavox XII"));
    EXPECT_EQ(app->activeAddress(), QStringLiteral("$B$2")) << "where the work was";
    put("B3", "d,"); // goes behind what has come back
    killed();
    comesAgain(true);
    EXPECT_EQ(text("B3") + text("A2") + text("C5"), QStringLiteral("d,lezeg,"));
    app->saveActiveWorkbook();
    killed();
    comesAgain({});
    EXPECT_EQ(text("B3") + text("A2") + text("C5"), QStringLiteral("d,lezeg,"));
}

TEST_P(RecoveryContract, WhatIsSavedOrNotWantedIsNotOffered) {
    const std::function<void()> ways[] = {
        [&] {
            app->saveActiveWorkbook();
            killed();
        },
        [&] {
            app->saveActiveWorkbookAs({rig->folder() + QStringLiteral("/Kopie.xls")});
            killed();
        },
        [&] { app->closeActiveWorkbook(); },
        [&] {
            rig->willSaveChanges(false);
            app->quit();
        },
        [&] {
            killed();
            comesAgain(false);
            EXPECT_EQ(text("B9"), QStringLiteral("0")) << "as it was saved";
            killed();
        },
    };
    int number = 0;
    for (const auto& way : ways) {
        app.reset();
        comesAgain({});
        app->setValue(QStringLiteral("B9"), QString::number(number++));
        way();
        app.reset();
    }
    comesAgain({});
    EXPECT_EQ(text("B9"), QStringLiteral("0")) << "saved by the first way";
}

TEST_P(RecoveryContract, ASongNeverSavedIsOfferedAtTheStart) {
    app->addWorkbook();
    put("B1", "f,");
    killed();
    rig->willBeOffered(QStringLiteral("V dosud neuloženém sešitu"), true);
    start();
    EXPECT_EQ(text("B1"), QStringLiteral("f,"));
    app->saveActiveWorkbookAs({rig->folder() + QStringLiteral("/nová.xls")});
    killed();
    start();
    EXPECT_EQ(app->activeWorkbookName(), QString());
}

TEST_P(RecoveryContract, ASongRenamedMeanwhileIsKnownByItsContents) {
    put("B2", "d,");
    killed();
    const QString moved = rig->folder() + QStringLiteral("/Pes.xls");
    ASSERT_TRUE(QFile::rename(song(), moved));
    start();
    rig->willBeOffered(QStringLiteral("V sešitu „Pes.xls“ (dříve „Kočka.xls“) zůsta"), true);
    app->openWorkbook(moved);
    EXPECT_EQ(text("B2"), QStringLiteral("d,"));
    app->saveActiveWorkbook();
    killed();
    start();
    app->openWorkbook(moved);
}

TEST_P(RecoveryContract, AWorkbookThatTheUserSavesElsewhereGoesOnUnderItsNewName) {
    const QString dog = rig->folder() + QStringLiteral("/Pes.xls");
    const QStringList heard{QStringLiteral("Kočka.xls"), QStringLiteral("Pes.xls"), dog};
    EXPECT_EQ(rig->userSavesAs(*app, dog), heard);
    app->activateWindow(QStringLiteral("Pes.xls"));
    EXPECT_EQ(raised([&] { app->activateWindow(QStringLiteral("Kočka.xls")); }), 9);
    put("B2", "e,");
    killed();
    comesAgain({});
    EXPECT_EQ(text("B2"), QString()) << "the first file is as it was left";
    rig->willBeOffered(QStringLiteral("„Pes.xls“ zůsta"), true);
    app->openWorkbook(dog);
    EXPECT_EQ(text("B1") + text("B2"), QStringLiteral("c,e,"));
}

} // namespace zvonika::testing
