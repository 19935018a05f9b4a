#pragma once

#include <QString>
#include <QStringList>

namespace zvonika {

enum class SmerMechu { Neuveden, Tah, Tlak };

/// "Tah", "Tlak" exactly; anything else counts as missing.
SmerMechu smerMechu(const QString& text);
QString textSmeru(SmerMechu smer);

/// One grip as it stands in its row of the sheet; nothing is corrected on the way through.
struct Grip {
    QString slabika; ///< A: syllable
    QStringList
        tony;     ///< B..H: treble tones from B up to the first empty cell, at most 7; may be foreign text
    QString smer; ///< I: "Tah", "Tlak" or whatever stands there
    QStringList basy;           ///< M..S: bass names up to the first empty cell, at most 7
    QString prstoklad;          ///< V: fingering entries
    QString tonina;             ///< W: key in which the row was written
    bool tonyZaMezerou = false; ///< B..H hold more behind that empty cell
    bool basyZaMezerou = false; ///< M..S hold more behind that empty cell

    bool prazdny() const { return tony.isEmpty() && basy.isEmpty(); }
    friend bool operator==(const Grip&, const Grip&) = default;
};

} // namespace zvonika
