#pragma once

#include "tests/support/System.h"

namespace zvonika::testing {

#ifdef Q_OS_WIN

/// No process can be limited so there; the cases are left out.
struct SmallDisk {
    explicit SmallDisk(quint64) {}
};

#else

/// While it lives, writes of this process beyond `bytes` of a file fail with EFBIG, as on a full disk.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    void (*handler_)(int);
    rlimit before_{};
};

#endif

} // namespace zvonika::testing
