#pragma once

#include "song/Grip.h"
#include "song/Pisen.h"
#include "song/SloupceRadku.h"

#include <QVector>

namespace zvonika {

/// Reads the song's rows in their fixed layout from the application's active sheet. Rows count from 1. Every
/// call may throw AutomationError.
class SongReader {
public:
    explicit SongReader(const Pisen& pisen) : pisen_(pisen) {}

    /// `pocet` consecutive rows from `prvni` in one call to the application; rows beyond the edge of the
    /// sheet are empty grips.
    QVector<Grip> gripy(int prvni, int pocet) const;
    Grip grip(int radek) const { return gripy(radek, 1).constFirst(); }

    SmerMechu smer(int radek) const; ///< the row's direction alone
    int aktualniRadek() const;

private:
    const Pisen& pisen_;
};

} // namespace zvonika
