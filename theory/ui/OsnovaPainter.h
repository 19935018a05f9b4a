#pragma once

#include "theory/Predznamenani.h"
#include "theory/ui/MirkaOsnovy.h"
#include "theory/ui/RozvrzeniAkordu.h"

#include <QColor>

class QPainter;
class QPainterPath;
class QRectF;

namespace zvonika {

namespace barvyOsnovy {
inline constexpr QColor papir{255, 254, 250};
inline constexpr QColor okraj{212, 206, 194};
inline constexpr QColor linka{146, 142, 134};
inline constexpr QColor inkoust{32, 30, 34};
inline constexpr QColor mimoStupnici{206, 32, 32};
} // namespace barvyOsnovy

/// Draws a treble staff: lines, clef, key signature and chords with their ledger lines.
class OsnovaPainter {
public:
    /// Widths in staff spaces.
    static constexpr double sirkaKlice = 2.6;
    static double sirkaPredznamenani(const Predznamenani& predznamenani);

    OsnovaPainter(QPainter& painter, const MirkaOsnovy& mirka);

    void linky(double vlevo, double vpravo);
    void klic(double vlevo);
    void predznamenani(double vlevo, const Predznamenani& predznamenani);
    /// `x`: middle of the first column of heads. `zmenseni`: size of heads and signs, 1 in full; places stay.
    /// The note of an interval is a square in its own colour, as on the board.
    void akord(double x, const RozvrzeniAkordu& akord, const QColor& barva, double zmenseni = 1);
    /// In the middle of the room from `vlevo` to `vpravo`, made smaller where it would not fit.
    void akordDoMista(double vlevo, double vpravo, const RozvrzeniAkordu& akord, const QColor& barva);

    /// The white sheet of paper that a staff is drawn on.
    static void papir(QPainter& painter, const QRectF& misto);

private:
    void znacka(const QPainterPath& znacka, double x, double y, const QColor& barva, double zmenseni = 1);
    void vodorovna(double vlevo, double vpravo, int jednotky, const QColor& barva, double tloustka);
    void pomocneLinky(double x, const RozvrzeniAkordu& akord, const QColor& barva, double zmenseni);

    QPainter& painter_;
    MirkaOsnovy mirka_;
    double dpr_;
};

/// The outline of a sign; nullptr for Zadne.
const QPainterPath* znackaZnamenka(Znamenko znamenko);

} // namespace zvonika
