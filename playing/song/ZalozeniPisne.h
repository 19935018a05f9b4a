#pragma once

#include "platform/Drive.h"
#include "playing/song/SlozkaPisni.h"
#include "playing/stepping/OkoliPisne.h"

namespace zvonika {

class PisenVOkne;

/// Creating a new song in the working folder.
class ZalozeniPisne {
public:
    ZalozeniPisne(const OkoliPisne& okoli, Drive& drive, PisenVOkne& vOkne)
        : okoli_(okoli), drive_(drive), vOkne_(vOkne) {}

    /// Asks for a name. Failures of the spreadsheet application are reported here; their cause stands in
    /// `panel.vystraha`, no song is open then, and one that was to be replaced is as it was. RuntimeError 70
    /// when that one cannot be deleted.
    void cmdNovaSkladba();

private:
    void zalozPisen(const QString& plneJmeno, const PuvodniPisne& puvodni);
    void zalozSesit(const QString& plneJmeno, bool& ulozen);
    void vratPuvodni(const PuvodniPisne& puvodni);

    OkoliPisne okoli_;
    Drive& drive_;
    PisenVOkne& vOkne_;
};

} // namespace zvonika
