#pragma once

// The contract that every spreadsheet application behind the port keeps. A back end's test program includes
// this file once, with XLS_DATA defined as the folder of sample workbooks, and instantiates the suite:
//
//     INSTANTIATE_TEST_SUITE_P(Embedded, SpreadsheetContract,
//                              ::testing::Values(SpreadsheetRigFactory{"embedded", makeEmbeddedRig}));

#include "platform/Dialogs.h"
#include "spreadsheet/SpreadsheetApplication.h"
#include "tests/support/Raised.h"

#include <QFile>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>

namespace zvonika::testing {

/// What a listener hears, for rigs.
struct RigListener : SpreadsheetListener {
    void cursorMoved() override {}
    void cellsEdited() override { ++edited; }
    void workbookRenamed(const QString& before, const QString& now, const QString& fullName) override {
        renamed << before << now << fullName;
    }
    int edited = 0;
    QStringList renamed;
};

/// What the suite needs of a back end beside the port.
class SpreadsheetRig {
public:
    virtual ~SpreadsheetRig() = default;
    /// A new instance; the rig outlives it. All instances of a rig share the default folder.
    virtual std::unique_ptr<SpreadsheetApplication> launch() = 0;
    /// A native folder that exists, may be written and is empty at first.
    virtual QString folder() const = 0;
    /// The user's answer to the next file choice; nothing for Cancel.
    virtual void willChoose(const std::optional<QString>& file) = 0;
    /// The user's answer when `quit` asks about the next workbook with unsaved changes.
    virtual void willSaveChanges(bool save) = 0;
    /// The user's answer to the next box; `textPart` occurs in its text.
    virtual void willAnswer(const QString& textPart, Answer answer) = 0;
    /// Types a text into the active cell, without ending it by Enter.
    virtual void userTypes(SpreadsheetApplication& application, const QString& text) = 0;
    virtual void userClosesWorkbook(SpreadsheetApplication& application) = 0;
    virtual void userQuits(SpreadsheetApplication& application) = 0;
    /// Into a cell of the active workbook, as if by its window; returns when the program has heard of it.
    virtual void userEnters(SpreadsheetApplication& application, const QString& cell,
                            const QString& text) = 0;
    /// The active workbook under another name, from the application's menu. What the listener has heard of
    /// it: name before, name now, full name.
    virtual QStringList userSavesAs(SpreadsheetApplication& application, const QString& nativePath) = 0;
    /// The application ends without any closing step, or this program does, and the application with it.
    virtual void kill(std::unique_ptr<SpreadsheetApplication> application) = 0;
    /// The user's answer to the next offer of what a crash has left, which must contain these words.
    virtual void willBeOffered(const QString& words, bool takesBack) = 0;
};

/// A back end under test, by its name.
struct SpreadsheetRigFactory {
    const char* name;
    std::unique_ptr<SpreadsheetRig> (*make)();
    friend std::ostream& operator<<(std::ostream& out, const SpreadsheetRigFactory& factory) {
        return out << factory.name;
    }
};

/// Every operation that needs a workbook, with its name in messages.
struct NamedCall {
    const char* name;
    std::function<void(SpreadsheetApplication&)> call;
};

inline const std::vector<NamedCall>& callsOnWorkbook() {
    using App = SpreadsheetApplication;
    static const std::vector<NamedCall> calls{
        {"saveActiveWorkbookAs", [](App& app) { app.saveActiveWorkbookAs({QStringLiteral("x")}); }},
        {"saveActiveWorkbook", [](App& app) { app.saveActiveWorkbook(); }},
        {"closeActiveWorkbook", [](App& app) { app.closeActiveWorkbook(); }},
        {"activeWorkbookModified", [](App& app) { app.activeWorkbookModified(); }},
        {"activeSheetName", [](App& app) { app.activeSheetName(); }},
        {"renameActiveSheet", [](App& app) { app.renameActiveSheet(QStringLiteral("x")); }},
        {"activeSheetIndex", [](App& app) { app.activeSheetIndex(); }},
        {"sheetCount", [](App& app) { app.sheetCount(); }},
        {"selectSheet", [](App& app) { app.selectSheet(1); }},
        {"selectSheet by name", [](App& app) { app.selectSheet(QStringLiteral("x")); }},
        {"selectNextSheet", [](App& app) { app.selectNextSheet(); }},
        {"selectRange", [](App& app) { app.selectRange(QStringLiteral("B1")); }},
        {"value", [](App& app) { app.value(QStringLiteral("B1")); }},
        {"setValue", [](App& app) { app.setValue(QStringLiteral("B1"), 1.0); }},
        {"activeCellValue", [](App& app) { app.activeCellValue(); }},
        {"setActiveCellValue", [](App& app) { app.setActiveCellValue(1.0); }},
        {"activeRow", [](App& app) { app.activeRow(); }},
        {"activeAddress", [](App& app) { app.activeAddress(); }},
        {"moveCursor", [](App& app) { app.moveCursor(1, 0); }},
        {"clearContents", [](App& app) { app.clearContents(QStringLiteral("B1")); }},
        {"findAndActivate", [](App& app) { app.findAndActivate({}); }},
        {"copyRange", [](App& app) { app.copyRange(QStringLiteral("B1")); }},
        {"paste", [](App& app) { app.paste(); }},
        {"readBlock", [](App& app) { app.readBlock(QStringLiteral("B1:C2")); }},
        {"writeBlock", [](App& app) { app.writeBlock(QStringLiteral("B1"), {{1.0}}); }},
        {"insertRow", [](App& app) { app.insertRow(1); }},
        {"deleteRow", [](App& app) { app.deleteRow(1); }},
        {"putBack", [](App& app) { app.putBack(QStringLiteral("B1"), {{1.0}}); }},
    };
    return calls;
}

class SpreadsheetContract : public ::testing::TestWithParam<SpreadsheetRigFactory> {
protected:
    SpreadsheetContract() : rig(GetParam().make()), owned_(rig->launch()), app(*owned_) {}

    QString file(const QString& name) const { return rig->folder() + QLatin1Char('/') + name; }
    void addSaved(const QString& name) {
        app.addWorkbook();
        app.saveActiveWorkbookAs({file(name)});
    }
    QString text(const QString& address) const { return cellText(app.value(address)); }
    void put(const QString& address, const QString& text) { app.setValue(address, CellValue(text)); }
    QString sample(const char* name, const QString& as) const {
        QFile::remove(file(as));
        EXPECT_TRUE(QFile::copy(QStringLiteral(XLS_DATA "/") + QLatin1String(name), file(as)));
        return file(as);
    }
    static QByteArray contents(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }
    static void store(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(bytes);
    }
    /// The sample of two sheets with one of them hidden: by its entry, which ends with the name.
    QString withHidden(const QByteArray& nameInFile, const QString& as) const {
        QByteArray bytes = contents(sample("xlwt.xls", as));
        const qsizetype name = bytes.indexOf(nameInFile);
        EXPECT_GT(name, 4);
        bytes[name - 4] = 1;
        store(file(as), bytes);
        return file(as);
    }

    std::unique_ptr<SpreadsheetRig> rig;

private:
    std::unique_ptr<SpreadsheetApplication> owned_;

protected:
    SpreadsheetApplication& app;
};

TEST_P(SpreadsheetContract, WithoutAWorkbookTheNameIsEmptyAndEverythingElseRaises) {
    EXPECT_EQ(app.activeWorkbookName(), QString());
    EXPECT_EQ(raised([&] { app.activateWindow(QString()); }), 9);
    EXPECT_EQ(raised([&] { app.activateWindow(QStringLiteral("pisen.xls")); }), 9);
    for (const auto& [name, call] : callsOnWorkbook())
        EXPECT_EQ(raised([&] { call(app); }), 91) << name;
}

TEST_P(SpreadsheetContract, AfterTheUserHasQuitEverythingRaises91) {
    addSaved(QStringLiteral("pisen.xls"));
    rig->userQuits(app);
    for (const auto& [name, call] : callsOnWorkbook())
        EXPECT_EQ(raised([&] { call(app); }), 91) << name;
    EXPECT_EQ(raised([&] { app.activeWorkbookName(); }), 91);
    EXPECT_EQ(raised([&] { app.activateWindow(QStringLiteral("pisen.xls")); }), 91);
    EXPECT_EQ(raised([&] { app.addWorkbook(); }), 91);
    EXPECT_EQ(raised([&] { app.openWorkbook(file(QStringLiteral("pisen.xls"))); }), 91);
    EXPECT_EQ(raised([&] { app.setVisible(true); }), 91);
    EXPECT_EQ(raised([&] { app.quit(); }), 91);
    EXPECT_EQ(raised([&] { app.quit(); }), 0);
    EXPECT_EQ(raised([&] { app.setDefaultFilePath(rig->folder()); }), 0);
}

TEST_P(SpreadsheetContract, QuittingAsksOnlyForWorkbooksWithUnsavedChanges) {
    for (const bool saved : {true, false}) {
        auto quitting = rig->launch();
        quitting->addWorkbook();
        for (const char* name : {"beze_změn", "změněný"}) {
            quitting->addWorkbook();
            quitting->saveActiveWorkbookAs(
                {file(QStringLiteral("%1%2.xls").arg(QString::fromUtf8(name)).arg(saved))});
        }
        quitting->setValue(QStringLiteral("B1"), QStringLiteral("c"));
        rig->willSaveChanges(saved);
        quitting->quit();
        app.openWorkbook(file(QStringLiteral("změněný%1.xls").arg(saved)));
        EXPECT_EQ(text(QStringLiteral("B1")), saved ? QStringLiteral("c") : QString());
    }
}

TEST_P(SpreadsheetContract, TheDefaultFolderOutlivesQuitAndReachesTheNextInstance) {
    const QString before = app.defaultFilePath();
    app.setDefaultFilePath(rig->folder());
    app.addWorkbook();
    app.quit();
    EXPECT_EQ(app.defaultFilePath(), rig->folder());
    auto next = rig->launch();
    EXPECT_EQ(next->defaultFilePath(), rig->folder());
    next->quit();
    next->setDefaultFilePath(before);
    EXPECT_EQ(rig->launch()->defaultFilePath(), before);
}

TEST_P(SpreadsheetContract, AWorkbookThatTheUserClosedIsNoWindowAnyMore) {
    addSaved(QStringLiteral("pisen.xls"));
    rig->userClosesWorkbook(app);
    EXPECT_EQ(raised([&] { app.activateWindow(QStringLiteral("pisen.xls")); }), 9);
    EXPECT_EQ(app.activeWorkbookName(), QString());
    EXPECT_EQ(raised([&] { app.saveActiveWorkbook(); }), 91);
    app.addWorkbook();
    EXPECT_EQ(app.sheetCount(), 1);
}

TEST_P(SpreadsheetContract, WorkbooksComeToTheFrontByTheirFileName) {
    addSaved(QStringLiteral("jedna.xls"));
    addSaved(QStringLiteral("dva.xls"));
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("dva.xls"));
    app.activateWindow(QStringLiteral("jedna.xls"));
    put(QStringLiteral("B1"), QStringLiteral("c"));
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("jedna.xls"));
    app.closeActiveWorkbook();
    EXPECT_EQ(app.activeWorkbookName(), QStringLiteral("dva.xls"));
    EXPECT_EQ(text(QStringLiteral("B1")), QString());
}

TEST_P(SpreadsheetContract, SheetsAreNamedCountedAndWalked) {
    app.addWorkbook();
    EXPECT_EQ(app.sheetCount(), 1);
    app.renameActiveSheet(QStringLiteral("Tonavox XII"));
    app.selectSheet(QStringLiteral("Tonavox XII"));
    app.selectSheet(1);
    EXPECT_EQ(app.activeSheetIndex(), 1);
    EXPECT_EQ(raised([&] { app.selectSheet(QStringLiteral("G dur")); }), 9);
    EXPECT_EQ(raised([&] { app.selectSheet(2); }), 9);
    EXPECT_EQ(raised([&] { app.selectSheet(0); }), 9);
    EXPECT_EQ(raised([&] { app.selectNextSheet(); }), 91);
    for (const char* name : {"", "a/b", "a:b", "a*b", "[a]", "12345678901234567890123456789012"})
        EXPECT_EQ(raised([&] { app.renameActiveSheet(QString::fromUtf8(name)); }), 1004) << name;
    EXPECT_EQ(app.activeSheetName(), QStringLiteral("Tonavox XII"));
}

TEST_P(SpreadsheetContract, EachSheetOfAForeignFileHasItsOwnCellsAndCursor) {
    app.openWorkbook(sample("xlwt.xls", QStringLiteral("cizí.xls")));
    EXPECT_EQ(app.sheetCount(), 2);
    put(QStringLiteral("X1"), QStringLiteral("změna"));
    app.selectSheet(1);
    app.selectRange(QStringLiteral("B3"));
    app.selectNextSheet();
    EXPECT_EQ(app.activeSheetName(), QStringLiteral("Druhý"));
    EXPECT_EQ(app.activeSheetIndex(), 2);
    EXPECT_EQ(text(QStringLiteral("A1")), QStringLiteral("druhý list"));
    EXPECT_EQ(raised([&] { app.renameActiveSheet(QStringLiteral("Píseň")); }), 1004);
    app.selectRange(QStringLiteral("C5"));
    app.selectSheet(QStringLiteral("Píseň"));
    EXPECT_EQ(app.activeAddress(), QStringLiteral("$B$3"));
    app.selectSheet(2);
    app.saveActiveWorkbook();
    app.closeActiveWorkbook();
    app.openWorkbook(file(QStringLiteral("cizí.xls")));
    EXPECT_EQ(app.activeSheetIndex(), 2);
    EXPECT_EQ(app.activeAddress(), QStringLiteral("$C$5"));
    app.selectSheet(1);
    EXPECT_EQ(app.activeAddress(), QStringLiteral("$B$3"));
}

TEST_P(SpreadsheetContract, HiddenSheetsAreNotCountedWalkedOrNamed) {
    const QString first = QStringLiteral("Píseň"), second = QStringLiteral("Druhý");
    const struct {
        QByteArray nameInFile;
        QString hidden, visible;
    } files[] = {
        {QByteArray("P\0\xED\0s\0e\0\x48\x01", 10), first, second},
        {QByteArray("Druh\xFD"), second, first},
    };
    for (const auto& [nameInFile, hidden, visible] : files) {
        const QString song = withHidden(nameInFile, visible + QStringLiteral(".xls"));
        for (const bool stored : {false, true}) {
            app.openWorkbook(song);
            EXPECT_EQ(app.sheetCount(), 1);
            EXPECT_EQ(app.activeSheetIndex(), 1);
            EXPECT_EQ(app.activeSheetName(), visible);
            app.selectSheet(visible);
            EXPECT_EQ(raised([&] { app.selectSheet(hidden); }), 9);
            EXPECT_EQ(raised([&] { app.selectSheet(2); }), 9);
            EXPECT_EQ(raised([&] { app.selectNextSheet(); }), 91);
            EXPECT_EQ(raised([&] { app.renameActiveSheet(hidden); }), 1004);
            EXPECT_EQ(text(QStringLiteral("A1")) == QStringLiteral("druhý list"), visible == second);
            put(QStringLiteral("X1"), stored ? QStringLiteral("b") : QStringLiteral("a"));
            app.saveActiveWorkbook();
            app.closeActiveWorkbook();
        }
    }
}

TEST_P(SpreadsheetContract, CellsKeepTheirTypes) {
    app.addWorkbook();
    const CellValue values[] = {QStringLiteral("fis,"),           15.0, -0.25, true,
                                QStringLiteral("l12;1\\s14;4\\"), {}};
    for (const auto& value : values) {
        app.setValue(QStringLiteral("C7"), value);
        EXPECT_EQ(app.value(QStringLiteral("$C$7")), value);
    }
    app.setValue(QStringLiteral("C7"), QString());
    EXPECT_TRUE(isEmpty(app.value(QStringLiteral("C7"))));
    EXPECT_EQ(raised([&] { app.setValue(QStringLiteral("C7"), QString(32768, u'a')); }), 1004);
}

TEST_P(SpreadsheetContract, TheActiveCellIsReadWrittenAndMoved) {
    app.addWorkbook();
    EXPECT_EQ(app.activeAddress(), QStringLiteral("$A$1"));
    app.selectRange(QStringLiteral("B3:D9"));
    EXPECT_EQ(app.activeAddress(), QStringLiteral("$B$3"));
    EXPECT_EQ(app.activeRow(), 3);
    app.setActiveCellValue(QStringLiteral("c"));
    EXPECT_EQ(cellText(app.activeCellValue()), QStringLiteral("c"));
    EXPECT_EQ(text(QStringLiteral("C3")), QString());
    app.moveCursor(1, 7);
    EXPECT_EQ(app.activeAddress(), QStringLiteral("$I$4"));
    EXPECT_EQ(raised([&] { app.moveCursor(-4, 0); }), 1004);
    EXPECT_EQ(raised([&] { app.moveCursor(0, -9); }), 1004);
    EXPECT_EQ(app.activeAddress(), QStringLiteral("$I$4"));
    app.selectRange(QStringLiteral("IV65536"));
    EXPECT_EQ(raised([&] { app.moveCursor(1, 0); }), 1004);
    EXPECT_EQ(raised([&] { app.moveCursor(0, 1); }), 1004);
}

TEST_P(SpreadsheetContract, WhatTheUserIsTypingIsTakenOverBeforeTheProgramWrites) {
    app.setVisible(true);
    addSaved(QStringLiteral("pisen.xls"));
    for (const char* typedInto : {"B3", "A3"}) {
        app.selectRange(QString::fromLatin1(typedInto));
        EXPECT_FALSE(app.userIsTyping()) << typedInto;
        rig->userTypes(app, QStringLiteral("le-"));
        EXPECT_TRUE(app.userIsTyping()) << typedInto;
        put(QStringLiteral("B3"), QStringLiteral("c,"));
        app.selectRange(QStringLiteral("B3"));
        app.moveCursor(1, 0);
        EXPECT_EQ(text(QStringLiteral("I4")), QString());
        EXPECT_EQ(app.activeAddress(), QStringLiteral("$B$4")) << typedInto;
        app.saveActiveWorkbook();
        EXPECT_FALSE(app.userIsTyping()) << typedInto;
        EXPECT_EQ(text(QStringLiteral("B3")), QStringLiteral("c,")) << typedInto;
    }
    EXPECT_EQ(text(QStringLiteral("A3")), QStringLiteral("le-"));
}

TEST_P(SpreadsheetContract, AddressesThatAreNoneRaise1004) {
    app.addWorkbook();
    for (const char* address : {"", "B", "7", "B0", "B65537", "IW1", "B1:", "B1;C2", "List1!B1", "B-1"}) {
        const QString given = QString::fromUtf8(address);
        EXPECT_EQ(raised([&] { app.selectRange(given); }), 1004) << address;
        EXPECT_EQ(raised([&] { app.value(given); }), 1004) << address;
        EXPECT_EQ(raised([&] { app.clearContents(given); }), 1004) << address;
        EXPECT_EQ(raised([&] { app.writeBlock(given, {{1.0}}); }), 1004) << address;
    }
    EXPECT_EQ(raised([&] { app.writeBlock(QStringLiteral("IV1"), {{1.0, 2.0}}); }), 1004);
    EXPECT_TRUE(isEmpty(app.value(QStringLiteral("IV1"))));
}

TEST_P(SpreadsheetContract, RangesAreFilledAndCleared) {
    app.addWorkbook();
    app.setValue(QStringLiteral("B1:C2"), 7.0);
    app.clearContents(QStringLiteral("C1:D1"));
    const CellBlock expected{{7.0, {}}, {7.0, 7.0}};
    EXPECT_EQ(app.readBlock(QStringLiteral("B1:C2")), expected);
    app.clearContents(QStringLiteral("B:C"));
    EXPECT_EQ(app.readBlock(QStringLiteral("B1:B2")), (CellBlock{{{}}, {{}}}));
}

TEST_P(SpreadsheetContract, ARangeIsCopiedToTheSelection) {
    app.addWorkbook();
    app.writeBlock(QStringLiteral("M1"), {{QStringLiteral("C"), 15.0}, {{}, QStringLiteral("15")}});
    put(QStringLiteral("M11"), QStringLiteral("a"));
    app.copyRange(QStringLiteral("M1:N2"));
    app.selectRange(QStringLiteral("M10"));
    app.paste();
    const CellBlock expected{{QStringLiteral("C"), 15.0}, {{}, QStringLiteral("15")}};
    EXPECT_EQ(app.readBlock(QStringLiteral("M10:N11")), expected);
}

struct Search {
    const char* selection;
    FindArguments arguments;
    const char* found; ///< nullptr: 91
};

TEST_P(SpreadsheetContract, FindGoesOnBehindTheActiveCellAndAroundTheSelection) {
    app.addWorkbook();
    app.writeBlock(QStringLiteral("B1"), {{QStringLiteral("c"), QStringLiteral("Ces")},
                                          {QStringLiteral("d"), {}},
                                          {QStringLiteral("c,"), QStringLiteral("c")},
                                          {{}, 1.0}});
    const QString c = QStringLiteral("c");
    const Search searches[] = {{"B1:B500", {}, "$B$4"},
                               {"B1:C4", {}, "$C$2"},
                               {"B1:B3", {}, nullptr},
                               {"B1:B4", {c}, "$B$3"},
                               {"B1:B4", {c, -4163, 1}, "$B$1"},
                               {"B1:C4", {c}, "$C$1"},
                               {"B1:C4", {c, -4163, 2, 1, 1, true}, "$B$3"},
                               {"B1:C4", {c, -4163, 2, 2}, "$B$3"},
                               {"B1:C4", {c, -4163, 2, 1, 2}, "$C$3"},
                               {"B1:C4", {QStringLiteral("x")}, nullptr}};
    for (const auto& [selection, arguments, found] : searches) {
        app.selectRange(QString::fromLatin1(selection));
        const int number = raised([&] { app.findAndActivate(arguments); });
        EXPECT_EQ(number, found ? 0 : 91) << selection;
        EXPECT_EQ(app.activeAddress(), found ? QString::fromLatin1(found) : QStringLiteral("$B$1"))
            << selection;
    }
}

class ListenerCount : public SpreadsheetListener {
public:
    void cursorMoved() override { ++cursor; }
    void cellsEdited() override { ++cells; }
    int cursor = 0, cells = 0;
};

TEST_P(SpreadsheetContract, TheListenerHearsNothingOfTheProgram) {
    ListenerCount heard;
    app.setListener(&heard);
    addSaved(QStringLiteral("pisen.xls"));
    app.renameActiveSheet(QStringLiteral("Tonavox XII"));
    app.writeBlock(QStringLiteral("A1"), {{1.0, 2.0}});
    app.moveCursor(1, 1);
    app.clearContents(QStringLiteral("A1"));
    app.closeActiveWorkbook();
    EXPECT_EQ(heard.cursor + heard.cells, 0);
    app.setListener(nullptr);
}

} // namespace zvonika::testing
