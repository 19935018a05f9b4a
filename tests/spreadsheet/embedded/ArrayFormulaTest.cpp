#include "tests/spreadsheet/embedded/Rig.h"
#include "tests/spreadsheet/xls/XlsFiles.h"

namespace zvonika::testing {

namespace {

using xls::Bytes;
using xlstest::le;
using xlstest::Rec;
using xlstest::operator+;

Rec formula(unsigned column, const Bytes& tokens) {
    return {0x0006,
            le(2, {0, column, 15}) + Bytes(8) + le(2, {8}) + le(4, {0}) + le(2, {tokens.size()}) + tokens};
}

/// A sheet whose first row is: a formula, an array formula over two cells, a number.
QByteArray sheetWithArray() {
    const Bytes five{0x1E, 5, 0}, ofArray = Bytes{0x01} + le(2, {0, 1});
    const Bytes array = le(2, {0, 0}) + Bytes{1, 2} + le(2, {0}) + le(4, {0}) + le(2, {3}) + five;
    const Bytes file = xlstest::fileWithTable({{0x0208, le(2, {0, 0, 4, 255, 0, 0, 0x0100, 15})},
                                               formula(0, five),
                                               formula(1, ofArray),
                                               {0x0221, array},
                                               formula(2, ofArray),
                                               xlstest::numberCell(0, 3, 1.5)});
    return {reinterpret_cast<const char*>(file.data()), static_cast<qsizetype>(file.size())};
}

class ArrayFormulaTest : public ::testing::Test, protected World {
protected:
    ArrayFormulaTest() {
        store(path(QStringLiteral("pole.xls")), sheetWithArray());
        app.openWorkbook(path(QStringLiteral("pole.xls")));
        app.setListener(&listener);
    }
    Document& document() { return *app.session().active(); }

    const QString refused = QStringLiteral(
        "1004 Buňku $B$1 nelze změnit samotnou: patří k maticovému vzorci v oblasti $B$1:$C$1.");
    Listener listener;
    std::unique_ptr<EmbeddedApplication> owned = launch();
    EmbeddedApplication& app = *owned;
};

} // namespace

TEST_F(ArrayFormulaTest, IsRefusedBeforeAnythingIsWritten) {
    document().editing().edit(1, {1, 4}, {{2.5}}, QStringLiteral("Psaní"));
    document().save();
    QSignalSpy cells(&document(), &Document::cellsChanged);
    Editing& editing = document().editing();
    const CellBlock block{{1.0, 2.0, 3.0}, {4.0}};
    const CellRange range{{1, 2}, {3, 4}};
    const std::pair<const char*, std::function<void()>> calls[] = {
        {"write", [&] { editing.write(1, range.first, block); }},
        {"fill", [&] { editing.fill(1, range, 7.0); }},
        {"edit", [&] { editing.edit(1, range.first, block, {}); }},
        {"editFill", [&] { editing.editFill(1, range, {}, {}); }},
    };
    for (const auto& [name, call] : calls)
        EXPECT_EQ(refusalOf(call), refused) << name;
    EXPECT_EQ(document().cells().value(1, {1, 4}), CellValue(2.5));
    EXPECT_EQ(document().cells().usedRows(1), 1);
    EXPECT_EQ(cells.count(), 0);
    EXPECT_FALSE(document().file().isModified());
    EXPECT_EQ(document().editing().undoLabel(), QStringLiteral("Psaní"))
        << "what was not written takes nothing away";
}

TEST_F(ArrayFormulaTest, WhatTheProgramWroteBeforeTheRefusalIsTold) {
    QSignalSpy cells(&document(), &Document::cellsChanged);
    EXPECT_EQ(refusalOf([&] { app.writeBlock(QStringLiteral("A1"), {{1.0, 2.0}, {3.0, 4.0}}); }), refused);
    ASSERT_EQ(cells.count(), 1);
    EXPECT_EQ(cells.first().at(1).value<CellRange>(), single({1, 1}));
    EXPECT_EQ(app.value(QStringLiteral("A1")), CellValue(1.0));
    EXPECT_EQ(document().cells().usedRows(1), 1);
    EXPECT_TRUE(document().file().isModified());
    document().save();
}

TEST_F(ArrayFormulaTest, WhatTheUserDidBeforeTheRefusalIsToldAndCanBeTakenBack) {
    const CellValue before = app.value(QStringLiteral("A1"));
    dialogs.expect(jmenoTabulky, QStringLiteral("maticovému vzorci"));
    app.commands().paste(QStringLiteral("1\t2\n3\t4"));
    EXPECT_EQ(app.value(QStringLiteral("A1")), CellValue(1.0));
    EXPECT_EQ(listener.take(), QStringLiteral("b"));
    app.commands().undo();
    EXPECT_EQ(app.value(QStringLiteral("A1")), before);
    Keeper keeper(listener.heard);
    keeper.kept = app.activeWorkbookName();
    app.setStepKeeper(&keeper);
    dialogs.expect(jmenoTabulky, QStringLiteral("maticovému vzorci"));
    app.commands().paste(QStringLiteral("1\t2\n3\t4"));
    ASSERT_EQ(listener.take(), QStringLiteral("bhb"));
    EXPECT_EQ(keeper.steps.back().parts.size(), 1U);
}

} // namespace zvonika::testing
