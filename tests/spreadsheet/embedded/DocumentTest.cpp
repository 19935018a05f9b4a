#include "spreadsheet/embedded/Document.h"

#include "tests/spreadsheet/embedded/Rig.h"

#include <algorithm>

namespace zvonika::testing {

namespace {

const QString psani = QStringLiteral("Psaní");

/// A document whose cells are read and written by address, as texts.
class DocumentTest : public ::testing::Test {
protected:
    static CellPosition at(const char* address) { return parseAddress(QString::fromLatin1(address))->first; }
    QString text(const char* address) const { return cellText(document.cells().value(1, at(address))); }
    void userTypes(const char* address, const char* typed) {
        editing.edit(1, at(address), {{QString::fromUtf8(typed)}}, psani);
    }
    void programWrites(const char* address, const char* written) {
        editing.write(1, at(address), {{QString::fromUtf8(written)}});
    }
    /// Column B from row 1 on, joined.
    QString column() const {
        QStringList texts;
        for (const auto& row :
             document.cells().block(1, {{1, 2}, {std::max(1, document.cells().usedRows(1)), 2}}))
            texts << cellText(row.first());
        return texts.join(QLatin1Char(' '));
    }
    void fillColumn(const char* letters) {
        for (int row = 1; letters[row - 1]; ++row)
            editing.write(1, {row, 2}, {{QString(QLatin1Char(letters[row - 1]))}});
    }

    QTemporaryDir folder;
    Document document{QStringLiteral("Sešit1")};
    Editing& editing = document.editing();
};

} // namespace

TEST_F(DocumentTest, UndoAndRedoExchangeValuesAndShowTheCells) {
    userTypes("B2", "c");
    userTypes("B2", "d");
    editing.edit(1, at("C5"), {{1.0, 2.0}, {3.0, 4.0}}, QStringLiteral("Vložení"));
    EXPECT_EQ(editing.undoLabel(), QStringLiteral("Vložení"));
    document.cursor().select({1, 1});
    ASSERT_TRUE(editing.undo());
    EXPECT_EQ(document.cells().block(1, {at("C5"), at("D6")}), CellBlock({{{}, {}}, {{}, {}}}));
    EXPECT_EQ(document.cursor().selection(), (Selection{{at("C5"), at("D6")}, at("C5")}));
    EXPECT_TRUE(editing.undo());
    EXPECT_EQ(text("B2"), QStringLiteral("c"));
    EXPECT_TRUE(editing.undo());
    EXPECT_EQ(text("B2"), QString());
    EXPECT_FALSE(editing.undo());
    EXPECT_TRUE(editing.redo());
    EXPECT_TRUE(editing.redo());
    EXPECT_EQ(text("B2"), QStringLiteral("d"));
    EXPECT_EQ(editing.redoLabel(), QStringLiteral("Vložení"));
    userTypes("B3", "e");
    EXPECT_FALSE(editing.redo());
}

TEST_F(DocumentTest, WhatTheProgramWritesEndsWhatCanBeTakenBack) {
    const std::pair<const char*, std::function<void()>> writes[] = {
        {"the same text", [&] { programWrites("B5", "x"); }},
        {"fill", [&] { editing.fill(1, single(at("Z1")), 1.0); }},
        {"put back", [&] { editing.putBack(1, at("B5"), {{1.0}}); }},
        {"insert a row", [&] { editing.insertRow(1, 1, Editing::By::Program); }},
        {"delete a row", [&] { editing.deleteRow(1, 1, Editing::By::Program); }},
    };
    for (const auto& [name, write] : writes) {
        userTypes("B5", "y");
        userTypes("B5", "x");
        userTypes("B5", "z");
        editing.undo();
        QSignalSpy history(&document, &Document::historyChanged);
        write();
        EXPECT_EQ(editing.undoLabel() + editing.redoLabel(), QString()) << name;
        write();
        EXPECT_EQ(history.count(), 1) << name;
        editing.fill(1, {{1, 1}, {9, 9}}, {});
    }
}

TEST_F(DocumentTest, RowsAreInsertedAndDeletedAndBack) {
    fillColumn("abcd");
    ASSERT_TRUE(editing.insertRow(1, 2));
    EXPECT_EQ(column(), QStringLiteral("a  b c d"));
    ASSERT_TRUE(editing.deleteRow(1, 4));
    EXPECT_EQ(column(), QStringLiteral("a  b d"));
    editing.undo();
    EXPECT_EQ(column(), QStringLiteral("a  b c d"));
    editing.undo();
    EXPECT_EQ(column(), QStringLiteral("a b c d"));
    editing.redo();
    editing.redo();
    EXPECT_EQ(column(), QStringLiteral("a  b d"));
    EXPECT_FALSE(editing.insertRow(1, 5));
    EXPECT_FALSE(editing.deleteRow(1, 5));
}

TEST_F(DocumentTest, BlocksThatDoNotFitAreRefusedWhole) {
    EXPECT_EQ(refusalOf([&] {
                  editing.write(1, {lastRow, 2}, {{1.0}, {2.0}});
              }),
              QStringLiteral("1004 Údaje se na list od buňky $B$65536 nevejdou."));
    EXPECT_TRUE(refusalOf([&] {
                    editing.edit(1, {1, 1}, {{1.0}, {QString(32768, u'a')}}, psani);
                }).startsWith(QStringLiteral("1004 Text je příliš dlouhý")));
    EXPECT_EQ(refusalOf([&] { editing.editFill(1, *parseAddress(u"A:IV"), 1.0, psani); }),
              QStringLiteral("1004 Oblast je příliš velká."));
    EXPECT_EQ(document.cells().usedRows(1), 0);
    EXPECT_FALSE(document.file().isModified());
    editing.write(1, {lastRow, 2}, {{QStringLiteral("z")}});
    EXPECT_TRUE(
        refusalOf([&] { editing.insertRow(1, 5); }).startsWith(QStringLiteral("1004 Řádek nelze vložit")));
    EXPECT_EQ(cellText(document.cells().value(1, {lastRow, 2})), QStringLiteral("z"));
}

TEST_F(DocumentTest, SignalsTellOfChangesAndOnlyOfChanges) {
    QSignalSpy cells(&document, &Document::cellsChanged), selection(&document, &Document::selectionChanged);
    QSignalSpy modified(&document, &Document::modifiedChanged), sheets(&document, &Document::sheetsChanged);
    document.cursor().select({1, 1});
    editing.fill(1, single({1, 1}), {});
    editing.renameSheet(1, document.cells().sheetName(1));
    EXPECT_EQ(cells.count() + selection.count() + modified.count() + sheets.count(), 0);
    document.cursor().select({2, 2});
    programWrites("B2", "c");
    programWrites("B2", "d");
    editing.renameSheet(1, QStringLiteral("G dur"));
    EXPECT_EQ(selection.count(), 1);
    EXPECT_EQ(cells.count(), 2);
    EXPECT_EQ(cells.first().at(1).value<CellRange>(), single({2, 2}));
    EXPECT_EQ(modified.count(), 1);
    EXPECT_EQ(sheets.count(), 1);
}

TEST_F(DocumentTest, SheetNamesThatSpreadsheetsTakeForEqualOrRefuseAreRefused) {
    const QString file = folder.filePath(QStringLiteral("dva.xls"));
    QFile::copy(QStringLiteral(XLS_DATA "/xlwt.xls"), file);
    const auto two = Document::open(file, {});
    two->editing().renameSheet(2, QStringLiteral("Žlutý"));
    for (const char* name : {"ŽLUTÝ", "žlutý", "'a", "a'", "", "a:b"})
        EXPECT_TRUE(
            refusalOf([&] { two->editing().renameSheet(1, QString::fromUtf8(name)); })
                .startsWith(
                    QStringLiteral("1004 Jméno listu „%1“ nelze použít: ").arg(QString::fromUtf8(name))))
            << name;
    two->editing().renameSheet(2, QStringLiteral("ŽLUTÝ")); // its own name in another case
    EXPECT_EQ(two->cells().sheetName(2), QStringLiteral("ŽLUTÝ"));
}

TEST_F(DocumentTest, EveryChangeCountsAsOne) {
    document.saveAs(folder.filePath(QStringLiteral("pisen.xls")));
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"write", [&] { fillColumn("abc"); }},
        {"fill", [&] { editing.fill(1, single(at("B1")), 1.0); }},
        {"edit", [&] { userTypes("B1", "x"); }},
        {"insert a row", [&] { editing.insertRow(1, 2); }},
        {"delete a row", [&] { editing.deleteRow(1, 3); }},
        {"take back", [&] { editing.undo(); }},
        {"do again", [&] { editing.redo(); }},
        {"rename", [&] { editing.renameSheet(1, QStringLiteral("G dur")); }},
        {"widen", [&] { editing.setColumnWidth(1, 1, 30); }},
    };
    for (const auto& [name, change] : changes) {
        document.save();
        ASSERT_FALSE(document.file().isModified());
        change();
        EXPECT_TRUE(document.file().isModified()) << name;
    }
}

TEST_F(DocumentTest, FormulasAreReplacedOnPurposeAndNeverMoved) {
    const QString copy = folder.filePath(QStringLiteral("vzorce.xls"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/libreoffice.xls"), copy));
    const auto formulas = Document::open(copy);
    const CellPosition cell = at("F1");
    ASSERT_TRUE(formulas->cells().isFormula(1, cell));
    for (const auto& refusal : {refusalOf([&] { formulas->editing().insertRow(1, 1); }),
                                refusalOf([&] { formulas->editing().deleteRow(1, 1); })})
        EXPECT_EQ(refusal, QStringLiteral("1004 Řádky nelze posunout: v buňce $F$1 je vzorec."));
    EXPECT_FALSE(formulas->file().isModified());
    EXPECT_TRUE(formulas->editing().edit(1, cell, {{formulas->cells().value(1, cell)}}, psani));
    EXPECT_FALSE(formulas->cells().isFormula(1, cell));
    formulas->save();
    EXPECT_TRUE(formulas->editing().undo());
    EXPECT_TRUE(formulas->cells().isFormula(1, cell)) << "the formula comes back, not only what it showed";
    EXPECT_TRUE(formulas->editing().redo());
    EXPECT_FALSE(formulas->cells().isFormula(1, cell));
    for (const bool same : {true, false}) {
        const CellValue shown = formulas->cells().value(1, cell);
        formulas->editing().write(1, cell, {{same ? shown : CellValue(QStringLiteral("x"))}});
        EXPECT_FALSE(formulas->cells().isFormula(1, cell));
        formulas->editing().putBack(1, cell, {{shown}});
        EXPECT_TRUE(formulas->cells().isFormula(1, cell)) << same;
        formulas->editing().putBack(1, cell, {{QStringLiteral("y")}});
        EXPECT_EQ(formulas->cells().value(1, cell), CellValue(QStringLiteral("y")));
        formulas->editing().putBack(1, cell, {{shown}});
    }
    formulas->save();
    formulas->editing().putBack(1, cell, {{formulas->cells().value(1, cell)}});
    EXPECT_FALSE(formulas->file().isModified()) << "it is there already";
    formulas->editing().write(1, at("F2"), {{formulas->cells().value(1, at("F2"))}});
    EXPECT_FALSE(formulas->cells().isFormula(1, at("F2")));
}

} // namespace zvonika::testing
