#pragma once

#include "app/Program.h"
#include "platform/HomeDrive.h"
#include "platform/IniSettingsStore.h"
#include "spreadsheet/embedded/EmbeddedApplication.h"
#include "spreadsheet/embedded/ui/SheetTable.h"
#include "spreadsheet/embedded/ui/SheetWindow.h"
#include "spreadsheet/xls/Workbook.h"
#include "tests/app/ZaznamovyShell.h"
#include "tests/support/PrintQt.h"
#include "tests/support/RucniHodiny.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/ZaznamovaMedia.h"

#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace zvonika::testing {

QByteArray obsahSouboru(const QString& soubor);
void ulozSoubor(const QString& soubor, const QByteArray& obsah);
xls::Workbook sesit(const QString& soubor);
QByteArray bajty(const xls::Workbook& kniha);
QString textBunky(const xls::Workbook& kniha, const char* adresa); ///< of the first sheet

/// The whole program with its real windows over the built-in spreadsheet, a folder of its own as drive C: and
/// settings files in it. Boxes and file choices are scripted; everything else is done by mouse and keyboard.
class CelyProgram : public ::testing::Test {
protected:
    CelyProgram();

    /// Overridden where the start itself is tested.
    void SetUp() override { spust(); }

    void spust();

    // --- the main window ---
    QWidget* prvek(const QString& jmeno) const;
    QString napis(const QString& jmeno) const; ///< of a label or button
    bool povolen(const QString& jmeno) const;
    static QPoint mistoVOkne(const QWidget* cil, QPoint misto) { return cil->mapTo(cil->window(), misto); }
    void klikni(const QString& jmeno) const;
    void dvojklikni(const QString& jmeno) const;
    void klavesa(Qt::Key key, Qt::KeyboardModifiers m = Qt::NoModifier) const {
        QTest::keyClick(program->okno().windowHandle(), key, m);
    }
    void novaPisen(const QString& jmeno = QStringLiteral("Polka"));
    /// Boxes that the opening shows are to be expected in `boxy`.
    void otevri(const QString& soubor, const std::function<void()>& boxy = {});
    /// Marks the buttons, records the grip and releases everything.
    void zapisHmat(const QStringList& knofliky, bool tlak) const;
    void zavriOkno() const { program->okno().windowHandle()->close(); }
    /// No song is open, neither here nor in the sheet, and one can be begun.
    void ocekavejStavBezPisne() const;

    // --- the sheet window ---
    void prejdiNaTabulku() const;
    void prejdiNaHlavniOkno() const;
    void piseDoTabulky(const QString& text) const {
        for (const QChar znak : text)
            QTest::sendKeyEvent(QTest::Click, tabulka->windowHandle(), Qt::Key_unknown, QString(znak), {});
    }
    void klavesaTabulky(Qt::Key key, Qt::KeyboardModifiers m = Qt::NoModifier) const;
    void klikniNaBunku(const char* adresa) const;
    QString bunka(const char* adresa) const { return cellText(excel->value(QLatin1String(adresa))); }
    QString kurzor() const { return excel->activeAddress(); }

    // --- the disk ---
    QString domov() const { return slozka.filePath(QStringLiteral("domov")); }
    QString pracovni() const { return domov() + QStringLiteral("/Dokumenty/Heligonka/Zvonika"); }
    QString pisen(const QString& jmeno) const { return pracovni() + QLatin1Char('/') + jmeno; }
    QString slozkaProgramu() const { return slozka.filePath(QStringLiteral("program")); }
    QString souborNastaveniTabulky() const { return slozka.filePath(QStringLiteral("Tabulka Zvoniky.ini")); }
    QStringList soubory() const; ///< of the working folder, hidden ones too

    QTemporaryDir slozka;
    HomeDrive drive;
    ScriptedDialogs dialogs;
    IniSettingsStore nastaveni;
    IniSettingsStore vlastniNastaveniTabulky;
    JournalFolder zaznamy{slozka.filePath(QStringLiteral("zaznamy"))};
    ZaznamovyShell shell;
    RucniHodiny hodiny;
    ZaznamovaMedia media;
    QPointer<SheetWindow> tabulka;
    EmbeddedApplication* excel = nullptr; ///< the one started last
    std::unique_ptr<Program> program;

private:
    std::unique_ptr<SpreadsheetApplication> novaTabulka();
};

} // namespace zvonika::testing
