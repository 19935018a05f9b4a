#pragma once

#include "app/Program.h"
#include "tests/app/ZaznamovyShell.h"
#include "tests/support/RucniHodiny.h"
#include "tests/support/SpreadsheetWorld.h"
#include "tests/support/ZaznamovaMedia.h"

#include <QAction>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace zvonika::testing {

/// The whole program with its real window over a spreadsheet without a window and scripted boxes.
class OknoSPisni : public ::testing::Test, protected SpreadsheetWorld {
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
        auto nova = launch();
        excel = nova.get();
        return nova;
    }
    void novaPisen(const QString& jmeno = QStringLiteral("Polka")) {
        dialogs.expectInput("Nová skladba.", jmeno);
        klikni("cmdNovaSkladba");
    }
    /// A song of so many grips g1, pulled; the cursor stands on the first.
    void pisenSHmaty(int hmatu) {
        novaPisen();
        for (int radek = 1; radek <= hmatu; ++radek) {
            excel->put(QStringLiteral("B%1").arg(radek), QStringLiteral("g1,"));
            excel->put(QStringLiteral("I%1").arg(radek), QStringLiteral("Tah"));
        }
        klikni("cmdPrvni");
    }
    QWidget* prvek(const QString& jmeno) {
        QWidget* nalezeny = program->okno().prvek(jmeno);
        if (!nalezeny) throw std::runtime_error("no such control: " + jmeno.toStdString());
        return nalezeny;
    }
    QAction* akce(const QString& jmeno) { return program->okno().findChild<QAction*>(jmeno); }
    QString stav() { return qobject_cast<QLabel*>(prvek("lblStav"))->text(); }
    void stiskni(Qt::Key klavesa) { QTest::keyClick(&program->okno(), klavesa); }
    void klikni(const QString& jmeno) { QTest::mouseClick(prvek(jmeno), Qt::LeftButton); }
    bool povolen(const QString& jmeno) {
        if (const QAction* polozka = akce(jmeno)) return polozka->isEnabled();
        return prvek(jmeno)->isEnabled();
    }

    MemorySettings nastaveni;
    ZaznamovyShell shell;
    RucniHodiny hodiny;
    ZaznamovaMedia media;
    TvurceProhlizece tvurceProhlizece = jednoduchyProhlizec();
    TabulkovyProgram vestavena{Tabulka::Vestavena, nabidkaVestavene, [this] { return novaTabulka(); }};
    TabulkoveProgramy tabulky{{vestavena}, Tabulka::Vestavena};
    WatchedSpreadsheet* excel = nullptr;
    std::unique_ptr<Program> program;
};

} // namespace zvonika::testing
