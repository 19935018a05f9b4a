#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <array>

namespace zvonika {

/// Background of the two stepping buttons, by what it tells. Two different colours for push, on purpose.
enum class BarvaKroku {
    Neznamy,     ///< system colour 11: direction unknown, or no song
    Tah,         ///< &HFF8080 light blue
    Tlak,        ///< &HC000C0 purple, while stepping
    TlakPoZapisu ///< 8421631 light red, after recording
};

/// The texts of the main window that speak of the open song.
class SongPanel : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    QString titulek = QStringLiteral("Zvonika");     ///< caption of the main window
    QString lblTon = QStringLiteral("1");            ///< grip counter: row number
    QString lblStupnice;                             ///< key of the current row
    QString lblLadeni = QStringLiteral("Tonavox12"); ///< tuning: name of the sheet
    QStringList listy;                               ///< entries of Combo1
    QString Combo1;                                  ///< text of Combo1
    /// Syllables around the current row: two before, the row itself, two after.
    std::array<QString, 5> lblSlabika;
    bool popisyViditelne = false; ///< lblPopisD and lblPopisB
    QString lblTony, lblBasy;
    QString lblStrana; ///< that the grip is shown on the other side than it was recorded on; "" as a rule
    BarvaKroku barvaKroku = BarvaKroku::Neznamy;
    QString nezajisteno;    ///< why unsaved changes would not outlive a crash; lasts until they would
    QString vystraha;       ///< what the last command must not let pass unseen, one sentence
    QString zapsano;        ///< the grip that the last command has recorded, one sentence
    QString upozorneni;     ///< what the last command has to tell besides its boxes
    QString krokZpet;       ///< the step that is taken back next, a label; "" where there is none
    QString krokZnovu;      ///< the step that is done again next
    QString stav;           ///< status line: what to do next, warnings
    QString prstokladCeka;  ///< the fingers that wait for the next grip; "" where none does
    int zapsanychHmatu = 0; ///< grips recorded in this run

    /// What stands first in the status line, emphasised; "" as a rule.
    QString varovani() const { return QStringList{nezajisteno, vystraha}.join(u' ').trimmed(); }

    void oznamZmenu() { Q_EMIT zmeneno(); }

Q_SIGNALS:
    void zmeneno();
};

} // namespace zvonika
