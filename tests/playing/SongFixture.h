#pragma once

#include "board/BassBoard.h"
#include "board/BassTable.h"
#include "board/TrebleBoard.h"
#include "playing/song/ZivotPisne.h"
#include "playing/stepping/Navigace.h"
#include "playing/stepping/PrikazyPisne.h"
#include "playing/stepping/ZobrazeniPrstokladu.h"
#include "song/ZobrazovaciOsnova.h"
#include "tests/support/FakeDrive.h"
#include "tests/support/FakeSpreadsheet.h"
#include "tests/support/ScriptedDialogs.h"
#include "tests/support/ZaznamovaMedia.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zvonika::testing {

inline const QString slozkaPisni = pracovniAdresar + u'\\';

/// An application whose refusals carry a cause.
class ExplainingSpreadsheet : public FakeSpreadsheet {
public:
    using FakeSpreadsheet::FakeSpreadsheet;
    using FakeSpreadsheet::put;
    void put(const QString& address, const char* text) { put(address, QString::fromUtf8(text)); }
    QString refusal; ///< cause of every refused save under a new name; "" where none is refused
    /// The next call of this operation fails with an exception that has no number.
    QString withoutNumber;

    void saveActiveWorkbookAs(const SaveAsArguments& arguments) override {
        if (!refusal.isEmpty()) throw AutomationError(error::applicationDefined, refusal);
        tripWithoutNumber("saveActiveWorkbookAs");
        FakeSpreadsheet::saveActiveWorkbookAs(arguments);
    }
    void activateWindow(const QString& name) override {
        tripWithoutNumber("activateWindow");
        FakeSpreadsheet::activateWindow(name);
    }
    void saveActiveWorkbook() override {
        tripWithoutNumber("saveActiveWorkbook");
        FakeSpreadsheet::saveActiveWorkbook();
    }
    QString activeSheetName() const override {
        const_cast<ExplainingSpreadsheet*>(this)->tripWithoutNumber("activeSheetName");
        return FakeSpreadsheet::activeSheetName();
    }

private:
    void tripWithoutNumber(const char* operation) {
        if (withoutNumber != QLatin1String(operation)) return;
        withoutNumber.clear();
        throw std::out_of_range(operation);
    }
};

/// The song part of the program over an application in memory, without a song.
class SongFixture : public ::testing::Test {
protected:
    SongFixture() {
        auto application = std::make_unique<ExplainingSpreadsheet>(disk);
        excel = application.get();
        pisen.aplikaceExcel = std::move(application);
        navigace.nastavZastaveniCasovace([this] { ++zastavenoKrokovani; });
        zivot.stavBezPisne();
    }

    /// Opens "Polka.xls" with one sheet of `pocet` grips: "c1,", "Tah" and "Tlak" in turns, syllables "s1",
    /// "s2" ...
    void otevriPolku(int pocet) {
        FakeBook polka{QStringLiteral("Polka.xls"), slozkaPisni + "Polka.xls", {}, 0};
        polka.sheets.push_back({QStringLiteral("Tonavox XII"), {}, {}, 1, 2});
        for (int radek = 1; radek <= pocet; ++radek) {
            FakeSheet& list = polka.sheets.front();
            list.put(radek, 1, QStringLiteral("s%1").arg(radek));
            list.put(radek, 2, QStringLiteral("c1,"));
            list.put(radek, 9, radek % 2 ? QStringLiteral("Tah") : QStringLiteral("Tlak"));
        }
        disk[polka.fullName] = polka;
        excel->fileChoice = polka.fullName;
        zivot.cmdEdit();
    }

    bool zpetPovoleno() const {
        int povolenych = 0;
        for (const char* prikaz : {"cmdPredchozi", "cmdPredTlak", "cmdPredTah", "cmdJakDalZpet"})
            povolenych += prikazy.povolen(QString::fromLatin1(prikaz));
        EXPECT_TRUE(povolenych == 0 || povolenych == 4) << povolenych;
        return povolenych == 4;
    }

    static QString tabulkaBasu(const QString& slozka) {
        QFile soubor(slozka + "/tonavox.xml");
        if (soubor.open(QIODevice::WriteOnly))
            soubor.write("<t><knoflik><bas>C</bas><cislo>30</cislo></knoflik>"
                         "<knoflik><bas>Gd</bas><cislo>51</cislo></knoflik></t>");
        return slozka;
    }

    FakeDisk disk;
    ExplainingSpreadsheet* excel = nullptr; ///< lives as long as `pisen.aplikaceExcel`
    FakeDrive drive;
    ZaznamovaMedia media;
    ScriptedDialogs dialogs;
    Pisen pisen;
    SongPanel panel;
    CommandStates prikazy;
    Pas pas;
    TrebleBoard diskant{nastrojZvonika()};
    BassBoard basy{nastrojZvonika()};
    ZobrazovaciOsnova osnova;
    QTemporaryDir slozkaProgramu;
    BassTable tabulka{tabulkaBasu(slozkaProgramu.path()), 120};
    QStringList prstoklady; ///< fingerings that were shown
    int uvolneno = 0;       ///< how often the board was released
    int zastavenoKrokovani = 0;

    OkoliPisne okoli{pisen, dialogs, panel, prikazy};
    std::function<void()> uvolniVse = [this] {
        ++uvolneno;
        diskant.uvolniDiskant();
        basy.uvolniBasy();
    };
    ZobrazeniHmatu zobrazeni{pisen, {diskant, basy, tabulka, osnova, panel}, [this](const QString& zaznam) {
                                 prstoklady.append(zaznam);
                                 ZobrazeniPrstokladu(diskant, dialogs).ZobrazPrstoklad(zaznam);
                             }};
    PasPisne pasPisne{pisen, pas};
    Navigace navigace{okoli, zobrazeni, pasPisne, diskant, uvolniVse};
    Zvuk zvuk{okoli, drive, media};
    ZivotPisne zivot{okoli, drive, {zobrazeni, pasPisne, navigace, zvuk, uvolniVse}};
};

/// Runs `co`, which must fail with this number.
template <typename Co>
void ocekavejChybu(int cislo, const Co& co) {
    try {
        co();
        ADD_FAILURE() << "no error " << cislo;
    } catch (const RuntimeError& chyba) {
        EXPECT_EQ(chyba.number(), cislo);
    }
}

} // namespace zvonika::testing
