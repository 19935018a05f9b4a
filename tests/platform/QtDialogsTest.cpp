#include "platform/ui/QtDialogs.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

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
    Answer answer(const Message& message, const QString& button) {
        whenOpen<QMessageBox>([button](QMessageBox& box) {
            auto* choice = buttonNamed(box, button);
            ASSERT_NE(choice, nullptr) << button.toStdString();
            QTest::mouseClick(choice, Qt::LeftButton);
        });
        return dialogs.message(message);
    }
    Answer answer(const Message& message, Qt::Key key) {
        whenOpen<QMessageBox>([key](QMessageBox& box) { QTest::keyClick(&box, key); });
        return dialogs.message(message);
    }
    Message question(Buttons buttons, std::optional<Answer> byEnter = {}) const {
        return {QStringLiteral("Titul"), QStringLiteral("Otázka ?"), Icon::Question, buttons, byEnter};
    }

    QtDialogs dialogs;
};

TEST_F(Boxes, GiveEachButtonsAnswer) {
    EXPECT_EQ(answer(question(Buttons::YesNoCancel), QStringLiteral("Ano")), Answer::Yes);
    EXPECT_EQ(answer(question(Buttons::YesNoCancel), QStringLiteral("Ne")), Answer::No);
    EXPECT_EQ(answer(question(Buttons::YesNoCancel), QStringLiteral("Storno")), Answer::Cancel);
    EXPECT_EQ(answer(question(Buttons::OkCancel), QStringLiteral("OK")), Answer::Ok);
}

TEST_F(Boxes, EscapeAnswersTheMostCautiousButton) {
    EXPECT_EQ(answer(question(Buttons::Ok), Qt::Key_Escape), Answer::Ok);
    EXPECT_EQ(answer(question(Buttons::OkCancel), Qt::Key_Escape), Answer::Cancel);
    EXPECT_EQ(answer(question(Buttons::YesNo), Qt::Key_Escape), Answer::No);
    EXPECT_EQ(answer(question(Buttons::YesNoCancel), Qt::Key_Escape), Answer::Cancel);
}

TEST_F(Boxes, EnterAnswersTheDefaultButton) {
    EXPECT_EQ(answer(question(Buttons::YesNo), Qt::Key_Return), Answer::Yes);
    EXPECT_EQ(answer(question(Buttons::YesNo, Answer::No), Qt::Key_Return), Answer::No);
    EXPECT_EQ(answer(question(Buttons::OkCancel), Qt::Key_Return), Answer::Ok);
}

TEST_F(Boxes, ShowTheMessage) {
    whenOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.objectName(), QStringLiteral("zprava"));
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Zvonika"));
        EXPECT_EQ(box.text(), QStringLiteral("<b>1\n2"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_LT(box.width(), 420);
    });
    dialogs.message({QString(), QStringLiteral("<b>1\n2"), Icon::Exclamation});

    whenOpen<QMessageBox>([](QMessageBox& box) {
        EXPECT_GE(box.width(), 420);
        EXPECT_LE(box.width(), 800);
    });
    dialogs.message(
        {QStringLiteral("Titul"), QStringLiteral("Dlouhý text nápovědy. ").repeated(30), Icon::None});
}

TEST_F(Boxes, StayAboveAWindowKeptOnTop) {
    QWidget main;
    main.setWindowFlag(Qt::WindowStaysOnTopHint);
    main.show();
    QtDialogs above(&main);
    whenOpen<QMessageBox>([&main](QMessageBox& box) {
        EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_EQ(box.parentWidget(), &main);
    });
    above.message(question(Buttons::Ok));

    main.hide();
    whenOpen<QMessageBox>(
        [](QMessageBox& box) { EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint)); });
    above.message(question(Buttons::Ok));
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

class FileChoice : public Boxes {
protected:
    void SetUp() override {
        for (const char* name : {"kočka.xls", "VELKÁ.XLS", "text.txt"}) {
            QFile file(folder.filePath(QString::fromUtf8(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }
    static void typeName(QFileDialog& box, const QString& name) {
        auto* edit = box.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(edit, nullptr);
        box.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
        edit->setFocus();
        edit->clear();
        edit->insert(name);
        QTest::keyClick(edit, Qt::Key_Return);
    }

    const QString title = QStringLiteral("Výběr písně");
    const QString filter = QStringLiteral("Excel Files,*.xls");
    QTemporaryDir folder;
};

TEST_F(FileChoice, StartsInTheFolderAndOffersSongsOnly) {
    whenOpen<QFileDialog>([this](QFileDialog& box) {
        EXPECT_EQ(box.objectName(), QStringLiteral("vyberSouboru"));
        EXPECT_EQ(box.windowTitle(), title);
        EXPECT_EQ(box.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        auto* model = box.findChild<QFileSystemModel*>();
        ASSERT_NE(model, nullptr);
        const QModelIndex root = model->index(folder.path());
        ASSERT_TRUE(QTest::qWaitFor([&] { return model->rowCount(root) == 2; }));
        typeName(box, QStringLiteral("kočka.xls"));
    });
    EXPECT_EQ(dialogs.openFile(title, filter, folder.path()), folder.filePath(QStringLiteral("kočka.xls")));
}

TEST_F(FileChoice, StartsInTheNearestFolderThereIs) {
    whenOpen<QFileDialog>([this](QFileDialog& box) {
        EXPECT_EQ(box.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
    });
    EXPECT_EQ(dialogs.openFile(title, filter, folder.filePath(QStringLiteral("chybí/také"))), std::nullopt);
}

TEST_F(FileChoice, SavingAddsTheEndingAndAsksBeforeOverwriting) {
    whenOpen<QFileDialog>([](QFileDialog& box) { typeName(box, QStringLiteral("nová")); });
    EXPECT_EQ(dialogs.saveFile(title, filter, folder.filePath(QStringLiteral("a.xls"))),
              folder.filePath(QStringLiteral("nová.xls")));

    // The first name is refused in the question, the second one is free.
    whenOpen<QFileDialog>([](QFileDialog& box) {
        whenOpen<QMessageBox>([](QMessageBox& question) {
            EXPECT_TRUE(question.text().contains(QStringLiteral("kočka.xls")));
            whenOpen<QFileDialog>([](QFileDialog& again) { typeName(again, QStringLiteral("jiná.xls")); });
            QTest::keyClick(&question, Qt::Key_Escape);
        });
        typeName(box, QStringLiteral("kočka.xls"));
    });
    EXPECT_EQ(dialogs.saveFile(title, filter, folder.filePath(QStringLiteral("kočka.xls"))),
              folder.filePath(QStringLiteral("jiná.xls")));
}

TEST_F(FileChoice, ANameWithADotStandsForTheSongOfThatName) {
    const QString song = folder.filePath(QStringLiteral("1. Ach synku.xls"));
    ASSERT_TRUE(QFile::copy(folder.filePath(QStringLiteral("kočka.xls")), song));
    bool asked = false;
    whenOpen<QFileDialog>([&asked](QFileDialog& box) {
        whenOpen<QMessageBox>([&asked](QMessageBox& question) {
            asked = question.text().contains(QStringLiteral("„1. Ach synku.xls“ již existuje"));
            whenOpen<QFileDialog>([](QFileDialog& again) { typeName(again, QStringLiteral("2. Ach")); });
            QTest::keyClick(&question, Qt::Key_Escape);
        });
        typeName(box, QStringLiteral("1. Ach synku"));
    });
    EXPECT_EQ(dialogs.saveFile(title, filter, folder.filePath(QStringLiteral("a.xls"))),
              folder.filePath(QStringLiteral("2. Ach.xls")));
    EXPECT_TRUE(asked);
}

} // namespace
} // namespace zvonika
