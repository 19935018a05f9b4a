#pragma once

#include "conversion/Konverze.h"
#include "tests/support/FakeDrive.h"
#include "tests/support/FakeSpreadsheet.h"
#include "tests/support/PrintQt.h"
#include "tests/support/ScriptedDialogs.h"
#include "theory/Toniny.h"

#include <gtest/gtest.h>

namespace zvonika::testing {

/// A conversion over an application in memory, whose folder is the working folder.
class KonverzeFixture : public ::testing::Test {
protected:
    KonverzeFixture() {
        auto application = std::make_unique<FakeSpreadsheet>(disk);
        excel = application.get();
        excel->setDefaultFilePath(pracovniAdresar);
        pisen.aplikaceExcel = std::move(application);
        drive.programFolderPath = QStringLiteral(ZVONIKA_RESOURCES);
    }

    /// A file on the disk with these rows on its sheet "Tonavox XII". A row is written "B=c1,|I=Tah|W=C dur".
    QString soubor(const QString& jmeno, const QStringList& radky) {
        FakeBook kniha{
            jmeno, pracovniAdresar + u'\\' + jmeno, {{QStringLiteral("Tonavox XII"), {}, {}, 1, 1}}, 0};
        for (int i = 0; i < radky.size(); ++i)
            for (const QString& bunka : radky[i].split(u'|', Qt::SkipEmptyParts)) {
                const auto misto = FakeRange::parse(bunka.left(1) + QString::number(i + 1));
                kniha.sheets.front().put(misto.top, misto.left, bunka.mid(2));
            }
        disk[kniha.fullName] = kniha;
        return kniha.fullName;
    }
    /// The song of the main window, in place of what was open.
    void otevri(const QStringList& radky, const QString& jmeno = QStringLiteral("Polka.xls")) {
        while (!excel->activeWorkbookName().isEmpty())
            excel->userClosesWorkbook();
        excel->openWorkbook(soubor(jmeno, radky));
        pisen.aktualniPisen = jmeno;
    }
    void vyber(const char* stupnice) {
        for (int i = 0; i < static_cast<int>(toniny.size()); ++i)
            if (toniny[static_cast<std::size_t>(i)].nazev == QString::fromUtf8(stupnice))
                stav.optStupnice = i;
    }
    /// Loads the dialog, chooses the key and starts the run.
    void preved(const char* stupnice) {
        konverze.Form_Load();
        vyber(stupnice);
        konverze.cmdGo();
    }
    void ocekavejHotovo() { dialogs.expect("Hotovo", "a uložena do souboru \n"); }
    /// A row of the active sheet, written as for `soubor`; empty cells are left out.
    QString radek(int cislo) {
        QStringList bunky;
        for (const auto& [misto, hodnota] : excel->book().sheet().cells)
            if (misto.first == cislo) bunky << FakeRange::letters(misto.second) + u'=' + cellText(hodnota);
        return bunky.join(u'|');
    }
    QString list() { return excel->book().sheet().name; }

    FakeDisk disk;
    FakeSpreadsheet* excel = nullptr;
    FakeDrive drive;
    ScriptedDialogs dialogs;
    Pisen pisen;
    StavKonverze stav;
    std::function<void()> zpravy = [] {};
    Konverze konverze{pisen, dialogs, drive, stav, [this] { zpravy(); }};
};

} // namespace zvonika::testing
