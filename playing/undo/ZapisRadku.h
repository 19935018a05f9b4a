#pragma once

#include "playing/undo/ProvedeniKroku.h"
#include "playing/undo/SeznamyKroku.h"

namespace zvonika {

/// What the program records into one row of the active sheet, as one step of the open song's list: from the
/// construction to `dokonci` or, where a failure has come between, to the end of this object, so that what
/// was written till then can be taken back. May throw AutomationError, but for the destructor.
class ZapisRadku {
public:
    ZapisRadku(Pisen& pisen, SeznamyKroku& kroky, int radek);
    ~ZapisRadku();
    ZapisRadku(const ZapisRadku&) = delete;
    ZapisRadku& operator=(const ZapisRadku&) = delete;

    /// The step is over: it gets its label and goes to the list. True when cells of a grip that were full are
    /// empty now.
    bool dokonci(const QString& popis);

private:
    WorkStep zmeny(const QString& popis) const;

    Pisen& pisen_;
    SeznamyKroku& kroky_;
    int radek_;
    QString list_;
    CellBlock predtim_;
    std::optional<JedenKrok> krok_;
};

/// "Zápis hmatu 2"
QString popisZapisu(int radek);
/// "Smazání hmatu 2"
QString popisSmazani(int radek);

} // namespace zvonika
