#pragma once

#include "playing/recording/ZapisHmatu.h"

#include <vector>

namespace zvonika {

class NotovaOsnova;
class clsNotyZapis;

/// Records the grip that stands on the entry staff into the current row. May throw AutomationError: what was
/// written so far then stays.
class ZapisHmatuZNot {
public:
    /// `diskant`: whose marks may be more than the staff has places for.
    ZapisHmatuZNot(OkoliZapisu okoli, const NotovaOsnova& osnova, const clsNotyZapis& noty,
                   const TrebleBoard& diskant)
        : okoli_(okoli), osnova_(osnova), noty_(noty), diskant_(diskant) {}

    void cmdTahNoty() { ZapisHmatZNot(SmerMechu::Tah); }
    void cmdTlakNoty() { ZapisHmatZNot(SmerMechu::Tlak); }

    /// Sorts the tones of the row by their number; names that are no tones are not written back.
    static void SeradTonyHmatu(SongSheet& list, int radek);

private:
    void ZapisHmatZNot(SmerMechu smer);
    /// False after a note that is no tone.
    bool zapisTony(SongSheet& list, int radek, Grip& hmat);
    bool pridejTon(QStringList& tony, int slot);
    std::vector<int> tonyOsnovy() const;
    QString vetaONevejitych() const;

    OkoliZapisu okoli_;
    const NotovaOsnova& osnova_;
    const clsNotyZapis& noty_;
    const TrebleBoard& diskant_;
};

} // namespace zvonika
