#pragma once

#include "aids/VolbyHmatniku.h"
#include "app/Modely.h"
#include "app/Prostredi.h"
#include "playing/intervals/Intervaly.h"
#include "playing/recording/KlikDiskantu.h"
#include "playing/recording/Uvolneni.h"
#include "playing/recording/ZapisHmatu.h"
#include "playing/recording/ZapisHmatuZNot.h"
#include "playing/recording/ZapisNoty.h"
#include "playing/song/UkonceniExcelu.h"
#include "playing/song/ZivotPisne.h"
#include "playing/stepping/Navigace.h"
#include "playing/stepping/ZobrazeniPrstokladu.h"
#include "theory/VolbaStupnice.h"
#include "theory/clsNotyZapis.h"

#include <functional>

namespace zvonika {

/// All conversations of the main window, built over the models and ports in the order in which they need each
/// other.
class Konverzace {
public:
    /// `otevriVyberStupnice`: shows the key dialog and returns when it is closed.
    Konverzace(Modely& modely, const Prostredi& prostredi, std::function<void()> otevriVyberStupnice);

private:
    Modely& modely_;
    Dialogs& dialogs_;

public:
    clsNotyZapis notyZapis;
    Prstoklad prstoklad;
    ZobrazeniPrstokladu zobrazeniPrstokladu;
    Uvolneni uvolneni;
    ZobrazeniHmatu zobrazeniHmatu;
    PasPisne pasPisne;
    Navigace navigace;
    Zvuk zvuk;
    ZivotPisne zivotPisne;
    KlikDiskantu klikDiskantu;
    ZapisNoty zapisNoty;
    ZapisBasu zapisBasu;
    PoZapisu poZapisu;
    ZapisHmatu zapisHmatu;
    ZapisHmatuZNot zapisHmatuZNot;
    Intervaly intervaly;
    VolbaStupnice volbaStupnice;
    VolbyHmatniku volbyHmatniku;
    UkonceniExcelu ukonceniExcelu;

private:
    OkoliZapisu okoliZapisu();
};

} // namespace zvonika
