#pragma once

#include "playing/stepping/Navigace.h"
#include "playing/undo/ProvedeniKroku.h"
#include "playing/undo/SeznamyKroku.h"

#include <functional>
#include <utility>

namespace zvonika {

/// Takes steps of the open song back and does them again, whether they were the program's or the player's in
/// the sheet, and keeps the list for a spreadsheet that leaves it to the program. The cursor goes to the row
/// of the step and the window shows what is there.
class Vraceni : public StepKeeper {
public:
    Vraceni(const OkoliPisne& okoli, SeznamyKroku& kroky, Navigace& navigace)
        : okoli_(okoli), list_(okoli.pisen), kroky_(kroky), navigace_(navigace) {}

    /// How a command that comes from the sheet's window is run; at once until it is set.
    void nastavUdalost(std::function<void(const std::function<void()>&)> udalost) {
        udalost_ = std::move(udalost);
    }

    /// Take back, do again. Cells that hold something else by now are asked about first. May throw
    /// AutomationError: what was carried out till then can go the other way, the rest still this way.
    void mnuZpet() { proved(SmerKroku::Zpet); }
    void mnuZnovu() { proved(SmerKroku::Znovu); }
    /// Panel and commands say what comes next, and the spreadsheet is told that it may ask.
    void obnovPopisy();

    bool keeps(const QString& workbook) const override;
    void done(WorkStep step) override;
    QString undoLabel() const override { return kroky_.popis(SmerKroku::Zpet); }
    QString redoLabel() const override { return kroky_.popis(SmerKroku::Znovu); }
    void undo() override;
    void redo() override;

private:
    void proved(SmerKroku smer);
    void proved(SmerKroku smer, SeznamKroku& seznam, const KrokSeznamu& krok);
    void zapis(SmerKroku smer, SeznamKroku& seznam, ProvedeniKroku& provedeni);
    void prejdi(const KrokSeznamu& krok, const ProvedeniKroku& provedeni);
    void oznam(const QString& veta);

    OkoliPisne okoli_;
    SongSheet list_;
    SeznamyKroku& kroky_;
    Navigace& navigace_;
    QString ohlaseny_; ///< the workbook that the spreadsheet was told of last
    std::function<void(const std::function<void()>&)> udalost_ = [](const auto& procedura) { procedura(); };
};

} // namespace zvonika
