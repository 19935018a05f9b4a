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
    QStringList tony;  ///< at most 7, without the empty cells among them; may be foreign text
    QString smer;      ///< "Tah", "Tlak" or whatever stands there
    QStringList basy;  ///< up to the first empty cell, at most 7
    QString prstoklad; ///< fingering entries
    QString tonina;    ///< key in which the row was written
    /// Column B is empty though tones follow: whoever looks for the end of the song finds it here.
    bool bezPrvnihoTonu = false;
    bool basyZaMezerou = false; ///< the cells of the basses hold more behind the first empty one

    bool prazdny() const { return tony.isEmpty() && basy.isEmpty(); }
    friend bool operator==(const Grip&, const Grip&) = default;
};

} // namespace zvonika
