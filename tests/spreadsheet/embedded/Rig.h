#pragma once

#include "platform/HomeDrive.h"
#include "spreadsheet/SpreadsheetApplication.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"
#include "tests/support/MemorySettings.h"
#include "tests/support/PrintQt.h"
#include "tests/support/ScriptedDialogs.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zvonika::testing {

/// What the application has told its window.
struct ViewLog {
    int made = 0;
    bool visible = false;
    int raised = 0;
    Document* document = nullptr;
    SheetCommands* commands = nullptr;
    std::function<void()> typing; ///< what the user has typed and not committed
};

class RecordingView : public SheetView {
public:
    explicit RecordingView(ViewLog& log) : log_(log) {}
    void setVisible(bool visible) override { log_.visible = visible; }
    void raise() override { ++log_.raised; }
    void commitPending() override {
        if (log_.typing) std::exchange(log_.typing, nullptr)();
    }
    void setDocument(Document* document) override { log_.document = document; }

private:
    ViewLog& log_;
};

/// A folder of its own as drive C:, scripted boxes, settings in memory and a window that only keeps a log.
struct World {
    QTemporaryDir folder;
    QTemporaryDir state;
    JournalFolder journals{state.filePath(QStringLiteral("zaznamy"))};
    HomeDrive drive{folder.path(), QString()};
    ScriptedDialogs dialogs;
    MemorySettings settings;
    ViewLog view;

    std::unique_ptr<EmbeddedApplication> launch() {
        return std::make_unique<EmbeddedApplication>(drive, dialogs, settings, journals,
                                                     [this](SheetCommands& commands) {
                                                         ++view.made;
                                                         view.commands = &commands;
                                                         return std::make_unique<RecordingView>(view);
                                                     });
    }
    QString path(const QString& name) const { return folder.filePath(name); }
    QStringList files() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
};

inline QByteArray contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

inline void store(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << path.toStdString();
    file.write(bytes);
}

/// Number and sentence of a refusal, "0" when there is none: "1004 Soubor ...".
template <typename Call>
QString refusalOf(Call call) {
    try {
        call();
        return QStringLiteral("0");
    } catch (const RuntimeError& refusal) {
        return QStringLiteral("%1 %2").arg(refusal.number()).arg(refusal.cause());
    }
}

} // namespace zvonika::testing
