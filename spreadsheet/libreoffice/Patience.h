#pragma once

#include <chrono>

namespace zvonika {

/// How long Calc may take to answer before the user is asked, by what it is asked for.
struct Patience {
    std::chrono::milliseconds start{30000};
    std::chrono::milliseconds file{30000};
    std::chrono::milliseconds cell{8000};
};

} // namespace zvonika
