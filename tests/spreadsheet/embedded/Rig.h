#pragma once

#include "platform/HomeDrive.h"
#include "spreadsheet/SpreadsheetApplication.h"
#include "spreadsheet/StepKeeper.h"
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

/// Keeps what the program is told of the user's doings.
class Listener : public SpreadsheetListener {
public:
    void cursorMoved() override { heard += QLatin1Char('k'); }
    void cellsEdited() override { heard += QLatin1Char('b'); }
    /// What came since the last call: "k" for the cursor, "b" for cells.
    QString take() { return std::exchange(heard, {}); }
    QString heard;
};

/// Keeps the steps of the workbooks of one name.
class Keeper : public StepKeeper {
public:
    bool keeps(const QString& workbook) const override { return workbook == kept; }
    void done(WorkStep step) override {
        heard += QStringLiteral("h");
        steps.push_back(std::move(step));
    }
    QString undoLabel() const override { return steps.empty() ? QString() : QStringLiteral("Hmat 1"); }
    QString redoLabel() const override { return QStringLiteral("Hmat 2"); }
    void undo() override { heard += QStringLiteral("z"); }
    void redo() override { heard += QStringLiteral("v"); }

    QString kept;
    QString& heard; ///< "h" for a step handed over, "z" and "v" for one to be taken back and done again
    std::vector<WorkStep> steps;
    explicit Keeper(QString& log) : heard(log) {}
};

/// Shows nothing; gives over what the user has typed and not committed.
class BlindView : public SheetView {
public:
    explicit BlindView(std::function<void()>& typing) : typing_(typing) {}
    void setVisible(bool) override {}
    void raise() override {}
    bool isTyping() const override { return typing_ != nullptr; }
    void commitPending() override {
        if (typing_) std::exchange(typing_, nullptr)();
    }
    void setDocument(Document*) override {}

private:
    std::function<void()>& typing_;
};

/// A folder of its own as drive C:, scripted boxes, settings in memory and a window that shows nothing.
struct World {
    QTemporaryDir folder;
    QTemporaryDir state;
    JournalFolder journals{state.filePath(QStringLiteral("zaznamy"))};
    HomeDrive drive{folder.path(), QString()};
    ScriptedDialogs dialogs;
    MemorySettings settings;
    std::function<void()> typing;

    std::unique_ptr<EmbeddedApplication> launch() {
        return std::make_unique<EmbeddedApplication>(
            drive, dialogs, settings, journals,
            [this](SheetCommands&) { return std::make_unique<BlindView>(typing); });
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
