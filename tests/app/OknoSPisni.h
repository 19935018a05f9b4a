#pragma once

#include "app/Program.h"
#include "tests/app/ZaznamovyShell.h"
#include "tests/support/FakeDrive.h"
#include "tests/support/FakeSpreadsheet.h"
#include "tests/support/MemorySettings.h"
#include "tests/support/RucniHodiny.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/ZaznamovaMedia.h"

#include <QAction>
#include <QTest>

#include <gtest/gtest.h>

namespace zvonika::testing {

/// The whole program with its real window over a spreadsheet in memory and scripted boxes.
class OknoSPisni : public ::testing::Test {
protected:
    void SetUp() override {
        drive.programFolderPath = QStringLiteral(ZVONIKA_RESOURCES);
        program = std::make_unique<Program>(
            Prostredi{dialogs, nastaveni, drive, shell, tabulky, hodiny, media,
                      [this](const MistoProhlizece& misto) { return tvurceProhlizece(misto); }});
        program->Main();
        program->okno().resize(1000, 720);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&program->okno()));
    }

    std::unique_ptr<SpreadsheetApplication> novaTabulka() {
        auto nova = std::make_unique<FakeSpreadsheet>(disk);
        excel = nova.get();
        return nova;
    }
    void novaPisen(const QString& jmeno = QStringLiteral("Polka")) {
        dialogs.expectInput("Nová skladba.", jmeno);
        klikni("cmdNovaSkladba");
    }
    QWidget* prvek(const QString& jmeno) {
        QWidget* nalezeny = program->okno().prvek(jmeno);
        if (!nalezeny) throw std::runtime_error("no such control: " + jmeno.toStdString());
        return nalezeny;
    }
    QAction* akce(const QString& jmeno) { return program->okno().findChild<QAction*>(jmeno); }
    void klikni(const QString& jmeno) { QTest::mouseClick(prvek(jmeno), Qt::LeftButton); }
    bool povolen(const QString& jmeno) {
        if (const QAction* polozka = akce(jmeno)) return polozka->isEnabled();
        return prvek(jmeno)->isEnabled();
    }

    FakeDisk disk;
    FakeDrive drive;
    ScriptedDialogs dialogs;
    MemorySettings nastaveni;
    ZaznamovyShell shell;
    RucniHodiny hodiny;
    ZaznamovaMedia media;
    TvurceProhlizece tvurceProhlizece = jednoduchyProhlizec();
    TabulkovyProgram vestavena{Tabulka::Vestavena, nabidkaVestavene, [this] { return novaTabulka(); }};
    TabulkoveProgramy tabulky{{vestavena}, Tabulka::Vestavena};
    FakeSpreadsheet* excel = nullptr;
    std::unique_ptr<Program> program;
};

} // namespace zvonika::testing
