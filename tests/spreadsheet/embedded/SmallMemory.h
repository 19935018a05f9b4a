#pragma once

#include "tests/support/ProcessMemory.h"
#include "tests/support/System.h"

#include <cstdio>

namespace zvonika::testing {

#ifdef Q_OS_WIN

/// What it is for is measured there by the peak of the process: it may take so many more bytes.
class SmallMemory {
public:
    explicit SmallMemory(std::size_t more) : most_(peakKilobytes() + long(more >> 10)) {}
    ~SmallMemory() { EXPECT_LE(peakKilobytes(), most_); }
    SmallMemory(const SmallMemory&) = delete;
    SmallMemory& operator=(const SmallMemory&) = delete;

private:
    long most_;
};

#else

/// While it lives, this process gets about so many more bytes of memory and no more.
class SmallMemory {
public:
    explicit SmallMemory(rlim_t more) {
        ::malloc_trim(0);
        ::getrlimit(RLIMIT_AS, &before_);
        const rlimit small{used() + more, before_.rlim_max};
        ::setrlimit(RLIMIT_AS, &small);
    }
    ~SmallMemory() { ::setrlimit(RLIMIT_AS, &before_); }
    SmallMemory(const SmallMemory&) = delete;
    SmallMemory& operator=(const SmallMemory&) = delete;

private:
    static rlim_t used() {
        unsigned long pages = 0;
        if (FILE* file = std::fopen("/proc/self/statm", "r")) {
            if (std::fscanf(file, "%lu", &pages) != 1) pages = 0;
            std::fclose(file);
        }
        return pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
    }

    rlimit before_{};
};

#endif

} // namespace zvonika::testing
