#pragma once

#include <QRect>
#include <QString>
#include <QVector>

namespace zvonika {

/// What a button is for; decides its face colour.
enum class DruhTlacitka { Bezne, Tah, Tlak, Hlavni };

/// One command button of the main window.
struct TlacitkoPrikazu {
    QString jmeno;     ///< control name, index in brackets: "cmdTah", "cmdZvuk(0)"
    QString popisek;   ///< caption, to the letter
    QString pristupne; ///< accessible name and tooltip; empty: the caption
    QRect twips;       ///< place in the scene
    DruhTlacitka druh = DruhTlacitka::Bezne;
    QString zkratka = {}; ///< keyboard shortcut, e.g. "F7"
};

/// One entry of a menu; without a name a separator.
struct PolozkaMenu {
    QString jmeno;
    QString popisek;
    QString prikaz; ///< the button whose click it calls, or its own name
    bool zaskrtavaci = false;
    QString zkratka = {}; ///< keyboard shortcuts, separated by "; "
};

struct Menu {
    QString popisek;
    QVector<PolozkaMenu> polozky;
};

/// The tables of the main window, in the order in which they appear; buttons in the order of the work.
const QVector<TlacitkoPrikazu>& tlacitkaPrikazu();
const QVector<Menu>& menuPrikazu();

} // namespace zvonika
