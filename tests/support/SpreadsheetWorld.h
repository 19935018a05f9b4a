#pragma once

#include "platform/HomeDrive.h"
#include "spreadsheet/xls/Workbook.h"
#include "tests/support/MemorySettings.h"
#include "tests/support/PrintQt.h"
#include "tests/support/Raised.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/WatchedSpreadsheet.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace zvonika::testing {

/// The real drive in a folder, except that deletions can fail.
class TestDrive : public HomeDrive {
public:
    explicit TestDrive(const QString& root) : HomeDrive(root, {}) {}
    QString programFolderPath;
    int failingDeletions = 0; ///< so many files cannot be set aside first
    QString readOnly;         ///< why every file is read-only; "" where none is

    QString programFolder() const override { return programFolderPath; }
    std::unique_ptr<SetAside> setAside(const QString& path) override {
        if (failingDeletions-- > 0) throw RuntimeError(70, QStringLiteral("nejde vymazat"));
        failingDeletions = 0;
        return HomeDrive::setAside(path);
    }
    QString readOnlyBecause(const QString&) const override { return readOnly; }
    QStringList files(const QString& folder) const {
        return QDir(nativePath(folder)).entryList(QDir::Files, QDir::Name);
    }
    void addFile(const QString& path) const {
        EXPECT_TRUE(QFile(nativePath(path)).open(QIODevice::WriteOnly)) << path.toStdString();
    }
    void removeFolder(const QString& path) const { QDir(nativePath(path)).removeRecursively(); }
};

/// A sheet of a file to be written.
struct SheetContents {
    QString name;
    CellBlock rows = {}; ///< from A1 on
    QString cursor = QStringLiteral("A1");
};

/// A folder of its own as drive C: with the working folder in it, scripted boxes, settings in memory and a
/// spreadsheet without a window and without recovery journals.
class SpreadsheetWorld {
protected:
    SpreadsheetWorld() { QDir().mkpath(drive.nativePath(pracovniAdresar)); }

    std::unique_ptr<WatchedSpreadsheet> launch() {
        auto app = std::make_unique<EmbeddedApplication>(drive, dialogs, settings, JournalFolder());
        return std::make_unique<WatchedSpreadsheet>(std::move(app), log);
    }
    /// Writes a workbook of one or two sheets, the first of them in front.
    void store(const QString& fullName, const QVector<SheetContents>& sheets) const {
        const QString path = drive.nativePath(fullName);
        QFile::remove(path);
        const auto book = sheets.size() > 1 ? twoSheets(path) : std::make_unique<Document>(QString());
        for (int i = 1; i <= sheets.size(); ++i)
            book->editing().renameSheet(i, QStringLiteral("List%1 k přejmenování").arg(i));
        for (int i = static_cast<int>(sheets.size()); i > 0; --i) {
            const SheetContents& sheet = sheets.at(i - 1);
            book->editing().renameSheet(i, sheet.name);
            book->cursor().activateSheet(i);
            book->editing().fill(i, {{1, 1}, {lastRow, lastColumn}}, {});
            book->editing().write(i, {1, 1}, sheet.rows);
            book->cursor().select(parseAddress(sheet.cursor).value().first);
        }
        book->saveAs(path);
    }
    /// What lies on the disk.
    xls::Workbook stored(const QString& fullName) const {
        QFile file(drive.nativePath(fullName));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fullName.toStdString();
        const QByteArray bytes = file.readAll();
        return xls::Workbook::open({bytes.begin(), bytes.end()});
    }
    /// A text cell of the first sheet of a file, "" where there is none.
    QString storedText(const QString& fullName, const QString& address) const {
        const CellPosition cell = parseAddress(address).value().first;
        const xls::Value value = stored(fullName).value(0, {cell.row - 1, cell.column - 1});
        const auto* text = std::get_if<std::u16string>(&value);
        return text ? QString::fromStdU16String(*text) : QString();
    }

private:
    /// Of a foreign file: a workbook made here has one sheet.
    static std::unique_ptr<Document> twoSheets(const QString& path) {
        EXPECT_TRUE(QFile::copy(QStringLiteral(ZVONIKA_TESTS "/spreadsheet/xls/data/xlwt.xls"), path));
        return Document::open(path);
    }
    /// In memory where the system has such a folder: each save waits for the disk.
    static QString folderTemplate() {
        const QString memory = QStringLiteral("/dev/shm");
        return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
               QStringLiteral("/zvonika-XXXXXX");
    }
    QTemporaryDir folder_{folderTemplate()};

protected:
    TestDrive drive{folder_.path()};
    ScriptedDialogs dialogs;
    MemorySettings settings;
    CallLog log;
};

} // namespace zvonika::testing
