#pragma once

#include "song/SongSheet.h"

#include <QStringList>

namespace zvonika {

/// The cells of one grip row as recording fills them; columns that no grip uses stay untouched. Every call is
/// one call to the application and may throw AutomationError.
class RadekZapisu {
public:
    /// The row of the active cell of the song's window, which is brought to the front; column B is selected.
    explicit RadekZapisu(const Pisen& pisen);

    void zapisTony(const QStringList& tony);  ///< B..H, at most 7; what is left over, and I, becomes empty
    void prepisTony(const QStringList& tony); ///< from B on, as many cells as there are tones
    QStringList tony() const;                 ///< B..H up to the first empty cell
    void zapisSmer(SmerMechu smer);           ///< I
    void zapisBasy(const QStringList& basy);  ///< M..S, at most 7; what is left over, and T, becomes empty
    void zapisPrstoklad(const QString& prstoklad); ///< V
    /// W: the caption of the key button, nothing for "Vyberte stupnici".
    void zapisToninu(const QString& cmdStupnice);
    void vyberBunkuB() const;

private:
    void zapis(const QString& oblast, const QStringList& texty, qsizetype bunek);

    const Pisen& pisen_;
    int radek_ = 0;
};

} // namespace zvonika
