#pragma once

#include "platform/RuntimeError.h"

namespace zvonika::testing {

/// The number that `call` raises; 0 when it succeeds.
template <typename Call>
int raised(Call call) {
    try {
        call();
        return 0;
    } catch (const RuntimeError& failure) {
        return failure.number();
    }
}

} // namespace zvonika::testing
