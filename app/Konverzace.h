#pragma once

#include "aids/VolbyHmatniku.h"
#include "app/Modely.h"
#include "app/Prostredi.h"
#include "playing/intervals/Intervaly.h"
#include "playing/recording/KlikDiskantu.h"
#include "playing/recording/PrevzetiHmatu.h"
#include "playing/recording/RadkyHmatu.h"
#include "playing/recording/Uvolneni.h"
#include "playing/recording/ZadaniPrstu.h"
#include "playing/recording/ZapisHmatu.h"
#include "playing/recording/ZapisHmatuZNot.h"
#include "playing/recording/ZapisNoty.h"
#include "playing/song/NeulozenePisne.h"
#include "playing/song/UkonceniExcelu.h"
#include "playing/song/ZivotPisne.h"
#include "playing/stepping/Navigace.h"
#include "playing/stepping/ZobrazeniPrstokladu.h"
#include "playing/undo/Vraceni.h"
#include "theory/VolbaStupnice.h"
#include "theory/clsNotyZapis.h"

#include <functional>

namespace zvonika {

/// What a song is opened, walked through and ended by.
struct KonverzacePisne {
    Navigace& navigace;
    Zvuk& zvuk;
    ZivotPisne& zivotPisne;
    UkonceniExcelu& ukonceniExcelu;
    NeulozenePisne& neulozenePisne;
};

/// What a grip is put together and recorded by.
struct KonverzaceZapisu {
    clsNotyZapis& notyZapis;
    Prstoklad& prstoklad;
    ZadaniPrstu& zadaniPrstu;
    Uvolneni& uvolneni;
    KlikDiskantu& klikDiskantu;
    ZapisNoty& zapisNoty;
    ZapisHmatu& zapisHmatu;
    ZapisHmatuZNot& zapisHmatuZNot;
    PrevzetiHmatu& prevzeti;
    RadkyHmatu& radky;
};

struct KonverzacePomucek {
    Intervaly& intervaly;
    VolbaStupnice& volbaStupnice;
    VolbyHmatniku& volbyHmatniku;
};

/// All conversations of the main window, built over the models and ports in the order in which they need each
/// other. It owns them; what it hands out is good as long as it lives.
class Konverzace {
public:
    /// No song is open then, and the commands say so. `otevriVyberStupnice`: shows the key dialog and returns
    /// when it is closed.
    Konverzace(Modely& modely, const Prostredi& prostredi, std::function<void()> otevriVyberStupnice);

    KonverzacePisne pisen() { return {navigace_, zvuk_, zivotPisne_, ukonceniExcelu_, neulozenePisne_}; }
    KonverzaceZapisu zapis() {
        return {notyZapis_, modely_.prstoklad, zadaniPrstu_,    uvolneni_, klikDiskantu_,
                zapisNoty_, zapisHmatu_,       zapisHmatuZNot_, prevzeti_, radky_};
    }
    Vraceni& vraceni() { return vraceni_; }
    KonverzacePomucek pomucky() { return {intervaly_, volbaStupnice_, volbyHmatniku_}; }

private:
    OkoliZapisu okoliZapisu();

    Modely& modely_;
    Dialogs& dialogs_;
    clsNotyZapis notyZapis_;
    ZobrazeniPrstokladu zobrazeniPrstokladu_;
    Uvolneni uvolneni_;
    ZobrazeniHmatu zobrazeniHmatu_;
    PasPisne pasPisne_;
    Navigace navigace_;
    SeznamyKroku kroky_;
    Vraceni vraceni_;
    Zvuk zvuk_;
    ZivotPisne zivotPisne_;
    NeulozenePisne neulozenePisne_;
    KlikDiskantu klikDiskantu_;
    ZadaniPrstu zadaniPrstu_;
    ZapisNoty zapisNoty_;
    ZapisBasu zapisBasu_;
    PoZapisu poZapisu_;
    ZapisHmatu zapisHmatu_;
    ZapisHmatuZNot zapisHmatuZNot_;
    PrevzetiHmatu prevzeti_;
    RadkyHmatu radky_;
    Intervaly intervaly_;
    VolbaStupnice volbaStupnice_;
    VolbyHmatniku volbyHmatniku_;
    UkonceniExcelu ukonceniExcelu_;
};

} // namespace zvonika
