#pragma once

#include <cstdio>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace zvonika::testing {

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

} // namespace zvonika::testing
