#pragma once

#include "board/BassBoard.h"
#include "board/BassTable.h"
#include "board/TrebleBoard.h"
#include "playing/song/ZivotPisne.h"
#include "playing/stepping/Navigace.h"
#include "playing/stepping/PrikazyPisne.h"
#include "playing/stepping/ZobrazeniPrstokladu.h"
#include "song/ZobrazovaciOsnova.h"
#include "tests/support/SpreadsheetWorld.h"
#include "tests/support/ZaznamovaMedia.h"

#include <gtest/gtest.h>

namespace zvonika::testing {

inline const QString slozkaPisni = pracovniAdresar + u'\\';
inline const QString polka = slozkaPisni + QStringLiteral("Polka.xls");

/// The song part of the program over a spreadsheet without a window, without a song.
class SongFixture : public ::testing::Test, protected SpreadsheetWorld {
protected:
    SongFixture() {
        auto application = launch();
        excel = application.get();
        pisen.aplikaceExcel = std::move(application);
        navigace.nastavZastaveniCasovace([this] { ++zastavenoKrokovani; });
        zivot.stavBezPisne();
    }

    /// Opens "Polka.xls" with `pocet` grips on its sheet "Tonavox XII": "c1,", "Tah" and "Tlak" in turns,
    /// syllables "s1", "s2" ... `druhyList`: the rows of a sheet "G dur" behind it; none where empty.
    void otevriPolku(int pocet, const CellBlock& druhyList = {}) {
        CellBlock radky;
        for (int radek = 1; radek <= pocet; ++radek)
            radky.append({QStringLiteral("s%1").arg(radek),
                          QStringLiteral("c1,"),
                          {},
                          {},
                          {},
                          {},
                          {},
                          {},
                          radek % 2 ? QStringLiteral("Tah") : QStringLiteral("Tlak")});
        QVector<SheetContents> listy{{QStringLiteral("Tonavox XII"), radky, QStringLiteral("B1")}};
        if (!druhyList.isEmpty()) listy.append({QStringLiteral("G dur"), druhyList});
        store(polka, listy);
        otevri(polka);
    }
    void otevri(const QString& plneJmeno) {
        vyber(plneJmeno);
        zivot.cmdEdit();
    }
    /// The answer to the next file choice.
    void vyber(const std::optional<QString>& plneJmeno) {
        dialogs.expectFile("Vyberte písničku, kterou chcete zkoušet !", plneJmeno);
    }

    bool zpetPovoleno() const {
        int povolenych = 0;
        for (const char* prikaz : {"cmdPredchozi", "cmdPredTlak", "cmdPredTah", "cmdJakDalZpet"})
            povolenych += prikazy.povolen(QString::fromLatin1(prikaz));
        EXPECT_TRUE(povolenych == 0 || povolenych == 4) << povolenych;
        return povolenych == 4;
    }

    WatchedSpreadsheet* excel = nullptr; ///< lives as long as `pisen.aplikaceExcel`
    ZaznamovaMedia media;
    Pisen pisen;
    SongPanel panel;
    CommandStates prikazy;
    Pas pas;
    TrebleBoard diskant{nastrojZvonika()};
    BassBoard basy{nastrojZvonika()};
    ZobrazovaciOsnova osnova;
    Tonina tonina;
    BassTable tabulka{QStringLiteral(ZVONIKA_RESOURCES), 120};
    int uvolneno = 0; ///< how often the board was released
    int zastavenoKrokovani = 0;

    OkoliPisne okoli{pisen, dialogs, panel, prikazy};
    std::function<void()> uvolniVse = [this] {
        ++uvolneno;
        diskant.uvolniDiskant();
        basy.uvolniBasy();
    };
    ZobrazeniHmatu zobrazeni{pisen, {diskant, basy, tabulka, osnova, panel}, [this](const QString& zaznam) {
                                 ZobrazeniPrstokladu(diskant, dialogs).ZobrazPrstoklad(zaznam);
                             }};
    PasPisne pasPisne{pisen, pas};
    Navigace navigace{okoli, zobrazeni, pasPisne, diskant, uvolniVse};
    Zvuk zvuk{okoli, drive, media};
    SeznamyKroku kroky{pisen, drive};
    ZivotPisne zivot{okoli, drive, {zobrazeni, pasPisne, navigace, zvuk, kroky, tonina, uvolniVse}};
};

} // namespace zvonika::testing
