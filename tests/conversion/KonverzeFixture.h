#pragma once

#include "conversion/Konverze.h"
#include "tests/support/SpreadsheetWorld.h"
#include "theory/Toniny.h"

#include <gtest/gtest.h>

namespace zvonika::testing {

/// A conversion over a spreadsheet without a window.
class KonverzeFixture : public ::testing::Test, protected SpreadsheetWorld {
protected:
    KonverzeFixture() {
        auto application = launch();
        excel = application.get();
        excel->app().setDefaultFilePath(pracovniAdresar);
        pisen.aplikaceExcel = std::move(application);
        drive.programFolderPath = QStringLiteral(ZVONIKA_RESOURCES);
    }

    static QString cesta(const QString& jmeno) { return pracovniAdresar + u'\\' + jmeno; }
    /// Rows written "B=c1,|I=Tah|W=C dur" each.
    static CellBlock bunky(const QStringList& radky) {
        CellBlock blok(radky.size(), QVector<CellValue>(26));
        for (qsizetype i = 0; i < radky.size(); ++i)
            for (const QString& bunka : radky[i].split(u'|', Qt::SkipEmptyParts))
                blok[i][bunka.front().unicode() - u'A'] = bunka.mid(2);
        return blok;
    }
    /// A file in the working folder with these rows on its sheet "Tonavox XII"; its full name.
    QString soubor(const QString& jmeno, const QStringList& radky) {
        store(cesta(jmeno), {{QStringLiteral("Tonavox XII"), bunky(radky)}});
        return cesta(jmeno);
    }
    /// The song of the main window, alone in the working folder and in place of what was open.
    void otevri(const QStringList& radky, const QString& jmeno = QStringLiteral("Polka.xls")) {
        while (excel->workbooks() > 0)
            excel->app().closeActiveWorkbook();
        for (const QString& soubor : drive.files(pracovniAdresar))
            drive.deleteFile(cesta(soubor));
        excel->app().openWorkbook(soubor(jmeno, radky));
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
        const CellBlock blok = excel->app().readBlock(QStringLiteral("A%1:Z%1").arg(cislo));
        QStringList texty;
        for (int i = 0; i < blok.first().size(); ++i)
            if (!isEmpty(blok.first()[i])) texty << QChar(u'A' + i) + (u'=' + cellText(blok.first()[i]));
        return texty.join(u'|');
    }
    QString list() { return excel->app().activeSheetName(); }

    WatchedSpreadsheet* excel = nullptr;
    Pisen pisen;
    StavKonverze stav;
    std::function<void()> zpravy = [] {};
    Konverze konverze{pisen, dialogs, drive, stav, [this] { zpravy(); }};
};

} // namespace zvonika::testing
