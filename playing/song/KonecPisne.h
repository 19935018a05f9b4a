#pragma once

#include "playing/stepping/OkoliPisne.h"

namespace zvonika {

class PisenVOkne;

/// The end of the work on a song.
class KonecPisne {
public:
    KonecPisne(const OkoliPisne& okoli, PisenVOkne& vOkne) : okoli_(okoli), vOkne_(vOkne) {}

    /// Saves and closes the song, which is forgotten in any case; failures of saving are reported here.
    void cmdEndEdit();

private:
    void ulozAZavri();

    OkoliPisne okoli_;
    PisenVOkne& vOkne_;
};

} // namespace zvonika
