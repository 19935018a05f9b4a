#pragma once

#include "song/PopisSloupcu.h"
#include "spreadsheet/embedded/ui/SheetTable.h"
#include "spreadsheet/embedded/ui/SheetTabs.h"
#include "spreadsheet/embedded/ui/SheetWindow.h"
#include "tests/spreadsheet/embedded/Rig.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace zvonika::testing {

/// The built-in application with its real window on an empty workbook.
class SheetWindowFixture : public ::testing::Test, protected World {
protected:
    void SetUp() override {
        ASSERT_TRUE(folder.isValid());
        application.setDefaultFilePath(folder.path());
        application.setListener(&listener);
        application.setVisible(true);
        ASSERT_NE(window, nullptr);
        window->resize(1366, 190);
        window->raise();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        application.addWorkbook();
        table().setFocus();
    }

    /// What the program did to the document comes into sight when its command is done.
    template <typename Part>
    Part& part(const char* name = nullptr) const {
        QCoreApplication::sendPostedEvents(window, QEvent::MetaCall);
        return *window->findChild<Part*>(QString::fromLatin1(name));
    }
    SheetTable& table() const { return part<SheetTable>(); }
    SheetTabs& tabs() const { return *window->findChild<SheetTabs*>(); }
    QLineEdit& line() const { return part<QLineEdit>("obsahBunky"); }
    QString status() const { return part<QLabel>("stavTabulky").text(); }
    QLineEdit* editor() const { return window->findChild<QLineEdit*>(QStringLiteral("editBunky")); }
    QAction& action(const char* name) const { return *window->findChild<QAction*>(QLatin1String(name)); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : window, key, modifiers);
        QApplication::processEvents(); // an editor commits after it has seen the key
    }
    /// Key by key: the first one may open an editor, which then gets the others.
    void type(const char* text) const {
        for (; *text; ++text)
            QTest::keyClick(QApplication::focusWidget(), *text);
    }
    QModelIndex indexOf(const char* address) const {
        const auto range = parseAddress(QString::fromLatin1(address));
        return table().model()->index(range->first.row - 1, range->first.column - 1);
    }
    void click(const char* address) const {
        const QPoint centre = table().visualRect(indexOf(address)).center();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, centre);
    }
    QString text(const char* address) const { return cellText(application.value(QLatin1String(address))); }
    QString shown(const char* address) const { return indexOf(address).data().toString(); }
    std::string cursor() const { return application.activeAddress().toStdString(); }

    Listener listener;
    SheetWindow* window = nullptr;
    EmbeddedApplication application{drive, dialogs, settings, journals, [this](SheetCommands& commands) {
                                        auto made = std::make_unique<SheetWindow>(commands, popisSloupcu());
                                        window = made.get();
                                        return made;
                                    }};
};

} // namespace zvonika::testing
