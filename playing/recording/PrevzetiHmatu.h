#pragma once

#include "playing/recording/RozepsanyHmat.h"
#include "playing/stepping/OkoliPisne.h"
#include "theory/clsNoty.h"

namespace zvonika {

class BassTable;
class Tonina;

/// Takes the grip of the cursor's row over: it becomes what the player has marked, with its basses and
/// fingers, in place of everything that was marked, so that one thing in it can be put right and the grip
/// recorded again. Asks nothing. The entry staff takes the first five tones.
class PrevzetiHmatu {
public:
    /// `tabulka` and `tonina` outlive this.
    PrevzetiHmatu(const OkoliPisne& okoli, const ModelyHmatu& modely, const BassTable& tabulka,
                  const Tonina& tonina);

    /// Says first in the status line where the row is in another key than the one it will be recorded in, and
    /// last what of the row cannot be taken over. False on a row without a grip, which leaves the marks as
    /// they are. May throw AutomationError.
    bool mnuPrevzitHmat();

private:
    QString prevezmi(const Grip& hmat);
    static std::vector<int> ocislujTony(const QStringList& tony, QStringList& cizi);
    std::vector<int> ocislujBasy(const QStringList& basy, QStringList& cizi) const;
    void oznacTony(const std::vector<int>& tony);
    void oznacBasy(const std::vector<int>& basy);
    void zakresli(CisloTonu ton);

    OkoliPisne okoli_;
    SongSheet list_;
    ModelyHmatu modely_;
    const BassTable& tabulka_;
    const Tonina& tonina_;
    clsNoty polohy_;
};

} // namespace zvonika
