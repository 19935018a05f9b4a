#pragma once

#include "song/Grip.h"

#include <QObject>
#include <QVector>

#include <array>

namespace zvonika {

constexpr int delkaPasu = 16;

/// The strip of 16 consecutive grips with syllables and notes, and the highlight that steps through it.
class Pas : public QObject {
    Q_OBJECT
public:
    struct Pozice {
        QString slabika;  ///< caption of lblSlabika2(i)
        QStringList tony; ///< tone names to be drawn; empty after the first grip that yields nothing
        SmerMechu smer = SmerMechu::Neuveden;
    };

    using QObject::QObject;

    std::array<Pozice, delkaPasu> pozice; ///< position 1 of the strip is element 0
    int poziceVPasu = 1;                  ///< 1..16: the current grip
    int prvniRadekPasu = 1;               ///< sheet row at position 1
    bool viditelny = false;               ///< a song is open

    void oznamZmenu() { Q_EMIT zmeneno(); }
    void oznamPosun() { Q_EMIT posunuto(); }

Q_SIGNALS:
    void zmeneno();  ///< contents redrawn
    void posunuto(); ///< only the highlight moved
};

} // namespace zvonika
