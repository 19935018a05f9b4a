#pragma once

#include <QString>
#include <QStringList>

namespace zvonika {

enum class SmerMechu { Neuveden, Tah, Tlak };

/// "Tah", "Tlak" exactly; anything else counts as missing.
SmerMechu smerMechu(const QString& text);
QString textSmeru(SmerMechu smer);

/// One grip as it stands in its row of the sheet, column by column; nothing is corrected on the way through.
struct Grip {
    QString slabika;
    QStringList tony;           ///< up to the first empty cell, at most 7; may be foreign text
    QString smer;               ///< "Tah", "Tlak" or whatever stands there
    QStringList basy;           ///< up to the first empty cell, at most 7
    QString prstoklad;          ///< fingering entries
    QString tonina;             ///< key in which the row was written
    bool tonyZaMezerou = false; ///< the cells of the tones hold more behind that empty cell
    bool basyZaMezerou = false; ///< those of the basses do

    bool prazdny() const { return tony.isEmpty() && basy.isEmpty(); }
    friend bool operator==(const Grip&, const Grip&) = default;
};

} // namespace zvonika
