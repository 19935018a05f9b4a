#pragma once

#include "song/Grip.h"
#include "song/Pisen.h"
#include "song/SloupceRadku.h"

#include <QVector>

namespace zvonika {

constexpr int sousedu = 2; ///< neighbours whose syllables are shown with a grip, on each side

/// Rows that were read in one block, and which of them has the cursor.
struct VyrezPisne {
    int radek = 1; ///< that of the cursor; it is among `hmaty`
    int prvni = 1; ///< that of the first of `hmaty`
    QVector<Grip> hmaty;

    /// Of any row; one that was not read is an empty grip.
    Grip hmat(int r) const { return hmaty.value(r - prvni); }
    const Grip& hmat() const { return hmaty.at(radek - prvni); }
};

/// Reads the song's rows in their fixed layout from the application's active sheet. Rows count from 1. Every
/// call may throw AutomationError.
class SongReader {
public:
    explicit SongReader(const Pisen& pisen) : pisen_(pisen) {}

    /// `pocet` consecutive rows from `prvni` in one call to the application; rows beyond the edge of the
    /// sheet are empty grips.
    QVector<Grip> gripy(int prvni, int pocet) const;
    Grip grip(int radek) const { return gripy(radek, 1).constFirst(); }
    /// The tones of a row up to the first empty cell.
    QStringList tonyDoMezery(int radek) const;
    /// The whole song of the active sheet for who takes it as one: its rows from the first to the last before
    /// the first without a tone in column B. Not held to the 500 rows in which the last grip is looked for.
    QVector<Grip> vsechnyHmaty() const;
    /// The rows from `prvni` on that hold a tone, a bass or a direction; looked for until a long stretch
    /// holds none.
    QList<int> radkySHmaty(int prvni) const;
    /// The neighbourhood of the cursor, in one block.
    VyrezPisne kolemKurzoru() const;
    /// The neighbourhood of the cursor's row `radek` and rows `prvni` to `posledni` besides, in one block.
    VyrezPisne kolem(int radek, int prvni, int posledni) const;

    SmerMechu smer(int radek) const; ///< the row's direction alone
    int aktualniRadek() const;

private:
    const Pisen& pisen_;
};

} // namespace zvonika
