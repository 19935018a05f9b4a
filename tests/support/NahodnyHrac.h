#pragma once

#include "board/BassTable.h"
#include "playing/recording/PrevzetiHmatu.h"
#include "playing/recording/RadkyHmatu.h"
#include "playing/recording/ZapisHmatuZNot.h"
#include "playing/stepping/PasPisne.h"
#include "playing/undo/Vraceni.h"
#include "song/ZobrazovaciOsnova.h"
#include "theory/clsNotyZapis.h"

#include <functional>
#include <random>

namespace zvonika::testing {

/// What the player does in the window of the spreadsheet, where he does anything there.
struct RukaVTabulce {
    std::function<void(const QString& bunka, const QString& text)> pis;
    std::function<void(const QString& bunka)> vlozRadek;
    std::function<void(const QString& bunka)> smazRadek;
    explicit operator bool() const { return bool(pis); }
};

/// A player who marks, records, empties, puts rows in and out, types into the sheet, takes back and does
/// again, all at random, in the song that is open.
class NahodnyHrac {
public:
    NahodnyHrac(Pisen& pisen, Dialogs& dialogs, const Drive& drive, RukaVTabulce ruka, unsigned seminko)
        : pisen_(pisen), dialogs_(dialogs), kroky_(pisen, drive), ruka_(std::move(ruka)), nahoda_(seminko) {
        pisen.excel().setStepKeeper(&vraceni_);
    }
    ~NahodnyHrac() { pisen_.excel().setStepKeeper(nullptr); }

    void akce() {
        if (cislo(4) == 0) prejdi();
        switch (cislo(ruka_ ? 16 : 13)) {
        case 0:
        case 1:
            return vraceni_.mnuZpet();
        case 2:
            return vraceni_.mnuZnovu();
        case 3:
            return radky_.mnuVlozitHmat();
        case 4:
            return radky_.mnuSmazatHmat();
        case 5:
            prevzeti_.mnuPrevzitHmat();
            return;
        case 6:
            return vyprazdni();
        case 7:
        case 8:
            return zapisNoty();
        case 13:
        case 14:
            return ruka_.pis(bunka(), cislo(3) ? QStringLiteral("s%1").arg(cislo(99)) : QString());
        case 15:
            return cislo(2) ? ruka_.vlozRadek(bunka()) : ruka_.smazRadek(bunka());
        default:
            return zapisHmat();
        }
    }

    /// Every cell of every sheet, as far as anything ever gets.
    QVector<CellBlock> obraz() {
        SpreadsheetApplication& excel = pisen_.excel();
        const QString aktivni = excel.activeSheetName();
        QVector<CellBlock> listy;
        for (int list = 1; list <= excel.sheetCount(); ++list) {
            excel.selectSheet(list);
            listy.append(excel.readBlock(QStringLiteral("A1:Z250")));
            for (auto& radek : listy.last())
                for (CellValue& hodnota : radek)
                    if (isEmpty(hodnota)) hodnota = CellValue();
        }
        excel.selectSheet(aktivni);
        return listy;
    }
    /// What was done till now cannot be taken back any more.
    void zapomen() { kroky_.zapomen(pisen_.plneJmeno); }
    /// Takes all back (does all again): so many steps.
    int vse(SmerKroku smer) {
        int kroku = 0;
        for (; !kroky_.popis(smer).isEmpty(); ++kroku)
            smer == SmerKroku::Zpet ? vraceni_.mnuZpet() : vraceni_.mnuZnovu();
        return kroku;
    }

private:
    int cislo(int pocet) { return std::uniform_int_distribution(0, pocet - 1)(nahoda_); }
    QString bunka() { return adresa(1 + cislo(24), 1 + cislo(20)); }

    void prejdi() {
        SpreadsheetApplication& excel = pisen_.excel();
        if (cislo(5) == 0) excel.selectSheet(1 + cislo(excel.sheetCount()));
        excel.selectRange(adresa(sloupce::tony.prvni, 1 + cislo(20)));
    }
    void oznac() {
        for (int i = cislo(4); i >= 0; --i) {
            const int n = 1 + cislo(49);
            diskant_.nastavZnacku(n, !diskant_.oznacen(n));
        }
        if (cislo(3) == 0) basy_.klik(1 + cislo(120));
        if (cislo(4) == 0) prstoklad_.nastav(QStringLiteral("l%1;%2\\").arg(1 + cislo(49)).arg(1 + cislo(5)));
        if (diskant_.oznacene().size() > 6) diskant_.uvolniDiskant();
        if (basy_.oznacene().size() > 6) basy_.uvolniBasy();
    }
    void zapisHmat() {
        oznac();
        cislo(2) ? zapis_.cmdTah() : zapis_.cmdTlak();
    }
    void vyprazdni() {
        diskant_.uvolniDiskant();
        basy_.uvolniBasy();
        zapis_.cmdTah();
    }
    void zapisNoty() {
        osnova_.odeberNoty();
        for (int i = cislo(5); i > 0; --i)
            noty_.pridejNotu(60 * cislo(12));
        cislo(2) ? zapisZNot_.cmdTahNoty() : zapisZNot_.cmdTlakNoty();
    }

    Pisen& pisen_;
    Dialogs& dialogs_;
    SeznamyKroku kroky_;
    RukaVTabulce ruka_;
    std::mt19937 nahoda_;
    SongPanel panel_;
    CommandStates prikazy_;
    TrebleBoard diskant_{nastrojZvonika()};
    BassBoard basy_{nastrojZvonika()};
    Tonina tonina_;
    NotovaOsnova osnova_;
    ZobrazovaciOsnova zobrazovaci_;
    Pas pas_;
    clsNotyZapis noty_{osnova_, dialogs_};
    Prstoklad prstoklad_;
    BassTable tabulka_{QStringLiteral(ZVONIKA_RESOURCES), 120};
    ZapisBasu zapisBasu_{basy_, tabulka_, dialogs_};
    ZobrazeniHmatu zobrazeni_{
        pisen_, {diskant_, basy_, tabulka_, zobrazovaci_, panel_}, [](const QString&) {}};
    PasPisne pasPisne_{pisen_, pas_};
    OkoliPisne okoliPisne_{pisen_, dialogs_, panel_, prikazy_};
    PoZapisu poZapisu_{okoliPisne_, zobrazeni_, pasPisne_};
    OkoliZapisu okoli_{pisen_, dialogs_, prstoklad_, zapisBasu_, poZapisu_, kroky_, tonina_};
    ZapisHmatu zapis_{okoli_, diskant_};
    ZapisHmatuZNot zapisZNot_{okoli_, osnova_, noty_, diskant_};
    Navigace navigace_{okoliPisne_, zobrazeni_, pasPisne_, diskant_, [] {}};
    Vraceni vraceni_{okoliPisne_, kroky_, navigace_};
    RadkyHmatu radky_{okoliPisne_, kroky_, navigace_};
    PrevzetiHmatu prevzeti_{okoliPisne_, {diskant_, basy_, osnova_, noty_, prstoklad_}, tabulka_, tonina_};
};

} // namespace zvonika::testing
