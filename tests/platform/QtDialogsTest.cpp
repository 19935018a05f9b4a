#include "platform/ui/QtDialogs.h"

#include "platform/ui/CzechTranslator.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QInputDialog>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zvonika {
namespace {

/// Runs `act` on the next box of this kind, once it is on the screen.
template <class Box, class Act>
void whenOpen(Act act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
        if (!box) return whenOpen<Box>(act);
        act(*box);
        if (box->isVisible()) box->reject();
    });
}

QPushButton* buttonNamed(QWidget& box, const QString& name) {
    for (auto* button : box.findChildren<QPushButton*>())
        if (button->accessibleName() == name || button->text() == name) return button;
    return nullptr;
}

class Boxes : public ::testing::Test {
protected:
    QtDialogs dialogs;
};

TEST_F(Boxes, ShowForeignTextsAndObeyNothingInThem) {
    const QString picture = "<img src='/dev/zero'><a href='x'>y</a>";
    const QString turned = QStringLiteral("a") + QChar(0x202E) + "slx.exe\x1b";
    whenOpen<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "a↵b");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.text(), picture + "\na[U+202E]slx.exe[U+001B]");
        EXPECT_EQ(box.accessibleDescription(), box.text());
    });
    dialogs.message({"a\nb", picture + '\n' + turned, Icon::None, Buttons::Ok});
    whenOpen<QMessageBox>([](QMessageBox& box) {
        const QRect screen = box.screen()->geometry();
        EXPECT_TRUE(screen.width() >= box.width() && screen.height() >= box.height());
    });
    dialogs.message({"a", QString(32000, u'W'), Icon::None, Buttons::Ok});
    whenOpen<QInputDialog>([&](QInputDialog& box) {
        for (auto* label : box.findChildren<QLabel*>())
            EXPECT_EQ(label->textFormat(), Qt::PlainText);
    });
    dialogs.input("a", picture);
}

TEST_F(Boxes, AFileChoiceShowsNamesOnOneLineAndOpensNothing) {
    const QTemporaryDir folder;
    const QStringList names{"a\nb.xls", QStringLiteral("c") + QChar(0x202E) + "slx.xls", "<b>d.xls"};
    for (const QString& name : names)
        ASSERT_TRUE(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.filePath("roura.xls")), 0666), 0);
    ASSERT_TRUE(QFile::link("/dev/zero", folder.filePath("nuly.xls")));
    whenOpen<QFileDialog>([](QFileDialog& dialog) {
        auto* list = dialog.findChild<QTreeView*>("treeView");
        ASSERT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) >= 3; }));
        auto* drawn = qobject_cast<QStyledItemDelegate*>(list->itemDelegate());
        ASSERT_TRUE(drawn);
        EXPECT_EQ(drawn->displayText("a\nb.xls", {}), "a↵b.xls");
        EXPECT_EQ(drawn->displayText(QStringLiteral("c") + QChar(0x202E), {}), "c[U+202E]");
        dialog.grab();
    });
    dialogs.openFile("a", "Excel Files,*.xls", folder.path());
}

TEST_F(Boxes, GiveTheAnswerOfAButtonEscapeOrEnter) {
    const struct {
        Buttons buttons;
        std::optional<Answer> byEnter;
        const char* pressed; ///< a button, or a key
        Answer answer;
    } cases[] = {
        {Buttons::YesNoCancel, {}, "Ano", Answer::Yes},
        {Buttons::YesNoCancel, {}, "Ne", Answer::No},
        {Buttons::YesNoCancel, {}, "Storno", Answer::Cancel},
        {Buttons::OkCancel, {}, "OK", Answer::Ok},
        {Buttons::Ok, {}, "Esc", Answer::Ok},
        {Buttons::OkCancel, {}, "Esc", Answer::Cancel},
        {Buttons::YesNo, {}, "Esc", Answer::No},
        {Buttons::YesNoCancel, {}, "Esc", Answer::Cancel},
        {Buttons::YesNo, {}, "Enter", Answer::Yes},
        {Buttons::YesNo, Answer::No, "Enter", Answer::No},
        {Buttons::OkCancel, {}, "Enter", Answer::Ok},
    };
    for (const auto& c : cases) {
        whenOpen<QMessageBox>([&c](QMessageBox& box) {
            const QString pressed = c.pressed;
            if (pressed == "Esc" || pressed == "Enter")
                QTest::keyClick(&box, pressed == "Esc" ? Qt::Key_Escape : Qt::Key_Return);
            else if (auto* button = buttonNamed(box, pressed))
                QTest::mouseClick(button, Qt::LeftButton);
            EXPECT_FALSE(box.isVisible()) << c.pressed;
        });
        EXPECT_EQ(dialogs.message({"Titul", "Otázka ?", Icon::Question, c.buttons, c.byEnter}), c.answer)
            << c.pressed;
    }
}

TEST_F(Boxes, APedalClosesThemByAFreshPressOnly) {
    const struct {
        QEvent::Type type;
        quint64 when;
        bool repeated, closes;
    } events[] = {{QEvent::KeyPress, 1000, true, false},
                  {QEvent::KeyRelease, 1040, false, false}, // of a held key, not marked as such
                  {QEvent::KeyPress, 1040, false, false},
                  {QEvent::KeyRelease, 1080, false, false},
                  {QEvent::KeyPress, 1200, false, true}};
    for (const bool pedal : {true, false})
        for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageUp}) {
            whenOpen<QMessageBox>([&](QMessageBox& box) {
                for (const auto& e : events) {
                    QKeyEvent event(e.type, key, {}, {}, e.repeated);
                    event.setTimestamp(e.when);
                    QCoreApplication::sendEvent(box.windowHandle(), &event);
                    EXPECT_EQ(box.isVisible(), !(pedal && e.closes)) << e.when;
                }
            });
            dialogs.message({.title = "T", .text = "x", .pedal = pedal});
        }
}

TEST_F(Boxes, ShowTheMessageAboveAWindowKeptOnTop) {
    QWidget main;
    main.setWindowFlag(Qt::WindowStaysOnTopHint);
    main.show();
    QtDialogs above(&main);
    whenOpen<QMessageBox>([&main](QMessageBox& box) {
        EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_EQ(box.parentWidget(), &main);
        EXPECT_EQ(box.objectName(), "zprava");
        EXPECT_EQ(box.windowTitle(), "Zvonika");
        EXPECT_EQ(box.text(), "<b>1\n2");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_LT(box.width(), 420);
    });
    above.message({QString(), "<b>1\n2", Icon::Exclamation});

    main.hide();
    whenOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_GE(box.width(), 420);
        EXPECT_LE(box.width(), 800);
    });
    above.message({"Titul", QString("Dlouhý text nápovědy. ").repeated(30), Icon::None});
}

TEST_F(Boxes, AskForOneLineOfText) {
    const auto type = [this](Qt::Key end) {
        whenOpen<QInputDialog>([end](QInputDialog& box) {
            EXPECT_EQ(box.objectName(), QStringLiteral("vstup"));
            EXPECT_EQ(box.labelText(), QStringLiteral("Prst ?"));
            EXPECT_EQ(box.cancelButtonText(), QStringLiteral("Storno"));
            QTest::keyClicks(box.findChild<QLineEdit*>(), QStringLiteral("4"));
            QTest::keyClick(&box, end);
        });
        return dialogs.input(QStringLiteral("Prstoklad"), QStringLiteral("Prst ?"));
    };
    EXPECT_EQ(type(Qt::Key_Return), QStringLiteral("4"));
    EXPECT_EQ(type(Qt::Key_Escape), QString());
}

TEST(CzechTranslator, HasTheToolkitsTextsBesideItsOwnWords) {
    const CzechTranslator whole({"/není", QLibraryInfo::path(QLibraryInfo::TranslationsPath)}),
        bare({"/není"});
    const struct {
        const char *context, *text, *czech;
        bool ours;
    } cases[] = {
        {"QWidgetTextControl", "&Copy", "&Kopírovat", false},
        {"QFileDialog", "&New Folder", "&Nová složka", false},
        {"QFileDialog", "Parent Directory", "Nadřazená složka", true},
        {"QDialogButtonBox", "Cancel", "Storno", true},
        {"QShortcut", "Left", "", true}, // on the keyboard it is so
        {"zvonika", "Cancel", "", true},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(whole.translate(c.context, c.text, nullptr, -1), QString(c.czech)) << c.text;
        EXPECT_EQ(bare.translate(c.context, c.text, nullptr, -1), QString(c.ours ? c.czech : "")) << c.text;
    }
}

class FileChoice : public Boxes {
protected:
    void SetUp() override {
        for (const char* name : {"kočka.xls", "VELKÁ.XLS", "text.txt"}) {
            QFile file(folder.filePath(QString::fromUtf8(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    static void typeName(QFileDialog& box, const QString& name, Qt::Key end = Qt::Key_Return) {
        auto* edit = box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(edit, nullptr);
        box.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
        edit->setFocus();
        edit->clear();
        edit->insert(name);
        QTest::keyClick(edit, end);
    }

    const QString title = QStringLiteral("Výběr písně");
    const QString filter = QStringLiteral("Excel Files,*.xls");
    QTemporaryDir folder;
};

TEST_F(FileChoice, StartsInTheNearestFolderThereIsAndOffersSongsOnly) {
    for (const char* start : {"", "chybí/také"}) {
        whenOpen<QFileDialog>([this](QFileDialog& box) {
            EXPECT_EQ(box.objectName(), "vyberSouboru");
            EXPECT_EQ(box.windowTitle(), title);
            EXPECT_EQ(box.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
            auto* model = box.findChild<QFileSystemModel*>();
            ASSERT_NE(model, nullptr);
            const QModelIndex root = model->index(folder.path());
            ASSERT_TRUE(QTest::qWaitFor([&] { return model->rowCount(root) == 2; }));
            typeName(box, "kočka.xls");
        });
        EXPECT_EQ(dialogs.openFile(title, filter, folder.filePath(start)), folder.filePath("kočka.xls"));
    }
    whenOpen<QFileDialog>([](QFileDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.openFile(title, filter, folder.path()), std::nullopt);
}

TEST_F(FileChoice, ANameWithoutItsEndingIsFound) {
    ASSERT_TRUE(QFile::copy(folder.filePath("kočka.xls"), folder.filePath("1. Ach synku.xls")));
    for (const auto& [typed, chosen] :
         {std::pair("kočka", "kočka.xls"), {"1. Ach synku", "1. Ach synku.xls"}, {"VELKÁ", "VELKÁ.XLS"}})
        for (const bool byMouse : {false, true}) {
            whenOpen<QFileDialog>([&, typed = typed](QFileDialog& box) {
                typeName(box, typed, byMouse ? Qt::Key_End : Qt::Key_Return);
                if (byMouse) QTest::mouseClick(buttonNamed(box, "Otevřít"), Qt::LeftButton);
            });
            EXPECT_EQ(dialogs.openFile(title, filter, folder.path()), folder.filePath(chosen)) << typed;
        }
}

TEST_F(FileChoice, SavingAddsTheEndingAndAsksBeforeOverwriting) {
    ASSERT_TRUE(QFile::copy(folder.filePath("kočka.xls"), folder.filePath("1. Ach synku.xls")));
    const struct {
        const char *typed, *asked, *instead, *chosen; ///< asked: of a file that is there; its answer is no
    } cases[] = {
        {"nová", nullptr, nullptr, "nová.xls"},
        {"kočka.xls", "„kočka.xls“ již existuje", "jiná.xls", "jiná.xls"},
        {"1. Ach synku", "„1. Ach synku.xls“ již existuje", "2. Ach", "2. Ach.xls"},
    };
    for (const auto& c : cases) {
        bool asked = false;
        whenOpen<QFileDialog>([&](QFileDialog& box) {
            if (c.asked)
                whenOpen<QMessageBox>([&](QMessageBox& question) {
                    asked = question.text().contains(c.asked);
                    whenOpen<QFileDialog>([&](QFileDialog& again) { typeName(again, c.instead); });
                    QTest::keyClick(&question, Qt::Key_Escape);
                });
            typeName(box, c.typed);
        });
        EXPECT_EQ(dialogs.saveFile(title, filter, folder.filePath("a.xls")), folder.filePath(c.chosen));
        EXPECT_EQ(asked, c.asked != nullptr) << c.typed;
    }
}

} // namespace
} // namespace zvonika
