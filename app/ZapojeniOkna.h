#pragma once

#include "app/CastiProgramu.h"

#include <QKeySequence>
#include <QObject>
#include <QRect>

#include <functional>

namespace zvonika {

class CisloTonu;
class RozvodPrikazu;
class ZapisovaciOsnova;

/// What stands in the scene of the main window, and how window, models and conversations hear of each other.
class ZapojeniOkna : public QObject {
    Q_OBJECT
public:
    /// `prikazy` outlives this object.
    ZapojeniOkna(const CastiProgramu& casti, const RozvodPrikazu& prikazy);

private:
    void postavHmatnik();
    void postavBasy();
    void postavOsnovy();
    void postavVolbuIntervalu();
    void pripojOkno();
    void pripojOsnovuZapisu(const ZapisovaciOsnova& osnova);
    void pripojModely();
    void pripojZkratky();
    void zkratka(const QKeySequence& klavesy, const std::function<void()>& akce);
    void nastavPoradiFokusu();
    void umisti(QWidget* prvek, const QRect& twips);
    void klikPrstu(int knoflik, bool pomocny);
    void ukazToninu();
    void ukazPrstoklad();
    void prejdiNaPozici(int pozice);

    CastiProgramu c_;
    const RozvodPrikazu& prikazy_;
};

} // namespace zvonika
