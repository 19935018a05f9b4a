#pragma once

#include <QString>
#include <QVector>

namespace zvonika {

/// One grip of the demonstration, as a player enters it.
struct HmatUkazky {
    QString slabika;
    int knoflik; ///< treble button
    int bas;     ///< bass button
    int prst;    ///< finger of the right hand
    bool tlak;   ///< push; otherwise pull
    QString ton; ///< what the row must hold in column B afterwards
};

/// The Czech folk song "Kočka leze dírou" in C dur: 30 grips, the bellows turning with each phrase.
QVector<HmatUkazky> kockaLezeDirou();

} // namespace zvonika
