#pragma once

#include "playing/recording/KlikDiskantu.h"
#include "playing/recording/Uvolneni.h"
#include "playing/recording/ZapisHmatu.h"
#include "playing/recording/ZapisHmatuZNot.h"
#include "playing/stepping/PasPisne.h"
#include "playing/stepping/ZobrazeniHmatu.h"
#include "song/ZobrazovaciOsnova.h"
#include "tests/support/SpreadsheetWorld.h"
#include "theory/NotovaOsnova.h"
#include "theory/clsNotyZapis.h"

#include <gtest/gtest.h>

namespace zvonika::testing {

/// The input board with an open song, its cursor on B1.
class Zapisovani : public ::testing::Test, protected SpreadsheetWorld {
protected:
    Zapisovani() {
        auto aplikace = launch();
        excel = aplikace.get();
        excel->addWorkbook();
        pisen.aktualniPisen = excel->activeWorkbookName();
        pisen.aplikaceExcel = std::move(aplikace);
        excel->selectRange(QStringLiteral("B1"));
    }

    void oznacTony(const std::vector<int>& knofliky) {
        for (const int n : knofliky)
            diskant.nastavZnacku(n, true);
    }
    void oznacBasy(const std::vector<int>& knofliky) {
        for (const int bas : knofliky)
            basy.klik(bas);
    }
    void pridejPrst(int n, const QString& prst) { prstoklad.pridej(u'l', n, prst); }
    void zvolToninu(const QString& stupnice) {
        tonina.nastavStupnici(Key(stupnice));
        noty.NastavStupnici(Key(stupnice));
    }
    /// The texts of a row's cells, joined; empty cells are dashes.
    QString bunky(int radek, QChar prvni, QChar posledni) {
        QStringList texty;
        for (QChar sloupec = prvni; sloupec <= posledni; sloupec = QChar(sloupec.unicode() + 1)) {
            const QString text = excel->text(sloupec + QString::number(radek));
            texty << (text.isEmpty() ? QStringLiteral("-") : text);
        }
        return texty.join(u' ');
    }

    Pisen pisen;
    WatchedSpreadsheet* excel = nullptr;
    SongPanel panel;
    CommandStates prikazy;
    TrebleBoard diskant{nastrojZvonika()};
    BassBoard basy{nastrojZvonika()};
    Tonina tonina;
    NotovaOsnova osnova;
    ZobrazovaciOsnova zobrazovaci;
    Pas pas;
    clsNotyZapis noty{osnova, dialogs};
    Prstoklad prstoklad;
    BassTable tabulka{QStringLiteral(ZVONIKA_RESOURCES), 120};
    ZapisBasu zapisBasu{basy, tabulka, dialogs};
    ZobrazeniHmatu zobrazeni{pisen, {diskant, basy, tabulka, zobrazovaci, panel}, [](const QString&) {}};
    PasPisne pasPisne{pisen, pas};
    PoZapisu poZapisu{{pisen, dialogs, panel, prikazy}, zobrazeni, pasPisne};
    SeznamyKroku kroky{pisen, drive};
    OkoliZapisu okoli{pisen, dialogs, prstoklad, zapisBasu, poZapisu, kroky, tonina};
    ZapisHmatu zapis{okoli, diskant};
    ZapisHmatuZNot zapisZNot{okoli, osnova, noty, diskant};
};

inline std::string s(const QString& text) {
    return text.toStdString();
}

} // namespace zvonika::testing
