#pragma once

#include "platform/Drive.h"
#include "playing/stepping/OkoliPisne.h"

namespace zvonika {

class PisenVOkne;

/// Creating a new song in the working folder.
class ZalozeniPisne {
public:
    ZalozeniPisne(const OkoliPisne& okoli, Drive& drive, PisenVOkne& vOkne)
        : okoli_(okoli), drive_(drive), vOkne_(vOkne) {}

    /// Asks for a name. Failures of the spreadsheet application are reported here; their cause stands in
    /// `panel.upozorneni`, and no song is open then.
    void cmdNovaSkladba();

private:
    void zalozPisen(const QString& plneJmeno);
    void zalozSesit(const QString& plneJmeno);

    OkoliPisne okoli_;
    Drive& drive_;
    PisenVOkne& vOkne_;
};

} // namespace zvonika
