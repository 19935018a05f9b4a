#pragma once

#include "platform/SettingsStore.h"

namespace zvonika {

/// The user's own default folder of a spreadsheet. As long as a run lasts, the spreadsheet has the program's
/// working folder; another start meanwhile, or one after a run that was killed, finds that one there and is
/// told here what the user's own is.
class PuvodniCesta {
public:
    /// `nastaveni`: the program's; `tabulka`: number of the spreadsheet program, each has its own folder.
    PuvodniCesta(SettingsStore& nastaveni, int tabulka);

    /// Of the folder that the spreadsheet was found with: the user's own.
    QString zjisti(const QString& nalezena) const;
    /// Keeps a folder as the user's own: what the spreadsheet is given back at the end of the run.
    void zapamatuj(const QString& cesta) const;

private:
    SettingsStore& nastaveni_;
    QString klic_;
};

} // namespace zvonika
