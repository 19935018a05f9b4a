#pragma once

// Rows, what is put back, and steps as the port has them; a part of the contract.

#include "tests/spreadsheet/contract/RecoveryContract.h"

namespace zvonika::testing {

/// Column B from row 1 on, joined; "." for a cell that holds nothing.
inline QString columnB(const SpreadsheetApplication& app, int rows) {
    QString texts;
    for (const auto& row : app.readBlock(QStringLiteral("B1:B%1").arg(rows)))
        texts += isEmpty(row.first()) ? QStringLiteral(".") : cellText(row.first());
    return texts;
}

TEST_P(SpreadsheetContract, RowsOfTheActiveSheetMove) {
    app.openWorkbook(sample("xlwt.xls", QStringLiteral("dva.xls")));
    for (const int sheet : {1, 2}) {
        app.selectSheet(sheet);
        app.clearContents(QStringLiteral("A:IV"));
        app.writeBlock(QStringLiteral("B1"),
                       {{QStringLiteral("a")}, {QStringLiteral("b")}, {QStringLiteral("c")}});
    }
    app.selectRange(QStringLiteral("B3"));
    const struct {
        std::function<void()> move;
        const char* column;
    } moves[] = {
        {[&] { app.insertRow(2); }, "a.bc."}, {[&] { app.deleteRow(1); }, ".bc.."},
        {[&] { app.insertRow(1); }, "..bc."}, {[&] { app.insertRow(9); }, "..bc."},
        {[&] { app.deleteRow(9); }, "..bc."}, {[&] { app.deleteRow(4); }, "..b.."},
        {[&] { app.deleteRow(3); }, "....."},
    };
    for (const auto& [move, column] : moves) {
        EXPECT_EQ(text(QStringLiteral("B1")), columnB(app, 1).remove(QLatin1Char('.'))); // seen before
        move();
        EXPECT_EQ(columnB(app, 5), QString::fromLatin1(column));
    }
    EXPECT_EQ(app.activeAddress(), QStringLiteral("$B$3"));
    app.selectSheet(1);
    EXPECT_EQ(columnB(app, 5), QStringLiteral("abc.."));
}

TEST_P(SpreadsheetContract, RowsThatCannotMoveAreRefused) {
    app.addWorkbook();
    put(QStringLiteral("B65536"), QStringLiteral("z"));
    put(QStringLiteral("B3"), QStringLiteral("c"));
    for (const int row : {0, -1, 65537, 3, 65536})
        EXPECT_EQ(raised([&] { app.insertRow(row); }), 1004) << row;
    for (const int row : {0, 65537})
        EXPECT_EQ(raised([&] { app.deleteRow(row); }), 1004) << row;
    EXPECT_EQ(text(QStringLiteral("B65536")) + text(QStringLiteral("B3")), QStringLiteral("zc"));
    app.deleteRow(65536);
    app.insertRow(3);
    EXPECT_EQ(columnB(app, 4), QStringLiteral("...c"));
}

TEST_P(SpreadsheetContract, WhatIsPutBackIsThere) {
    app.openWorkbook(sample("libreoffice.xls", QStringLiteral("vzorce.xls")));
    const CellBlock before = app.readBlock(QStringLiteral("A1:H6"));
    app.setValue(QStringLiteral("A1:H6"), QStringLiteral("x"));
    app.putBack(QStringLiteral("A1"), before);
    EXPECT_EQ(app.readBlock(QStringLiteral("A1:H6")), before);
    EXPECT_EQ(raised([&] { app.putBack(QStringLiteral("IV1"), {{1.0, 2.0}}); }), 1004);
}

TEST_P(RecoveryContract, AStepComesBackAsAWholeOrNotAtAll) {
    const auto at = [&](const char* address) { return text(address); };
    const struct {
        const char* name;
        std::function<void()> end;
        bool offered, whole, more;
    } ends[] = {
        {"nothing", [] {}, true, false, false},
        {"its end", [&] { app->endStep(); }, true, true, false},
        {"a save", [&] { app->saveActiveWorkbook(); }, false, true, false},
        {"a save and what is written behind it",
         [&] {
             app->saveActiveWorkbook();
             put("B9", "h");
             app->endStep();
         },
         true, true, true},
        {"another name for a sheet", [&] { app->renameActiveSheet(QStringLiteral("G dur")); }, true, true,
         false},
    };
    for (const auto& [name, end, offered, whole, more] : ends) {
        SCOPED_TRACE(name);
        app.reset();
        ASSERT_TRUE(QFile::remove(song()));
        ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/xlwt.xls"), song()));
        comesAgain({});
        app->selectSheet(1);
        app->clearContents(QStringLiteral("A:IV"));
        put("B1", "a");
        put("B2", "b");
        app->saveActiveWorkbook();
        put("A1", "la-");
        app->beginStep();
        put("B2", "x");
        app->insertRow(2);
        put("B2", "y");
        app->selectSheet(2);
        put("X1", "z");
        end();
        app->finishWriting();
        killed();
        comesAgain(offered ? std::optional(true) : std::nullopt);
        app->selectSheet(2);
        EXPECT_EQ(at("X1") + at("B9"), QString(whole ? "z" : "") + (more ? "h" : ""));
        app->selectSheet(1);
        EXPECT_EQ(at("A1") + columnB(*app, 4), whole ? QStringLiteral("la-ayx.") : QStringLiteral("la-ab.."));
        app->closeActiveWorkbook();
        killed();
        start();
        if (offered) rig->willBeOffered(QStringLiteral("„Kočka.xls“ zůsta"), false);
        app->openWorkbook(song());
        app->closeActiveWorkbook();
    }
}

} // namespace zvonika::testing
