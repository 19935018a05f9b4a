#pragma once

// What a process takes of memory; knows no Qt.

#include <cstddef>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN // the rest has names that are ours, too
#include <malloc.h>
#include <windows.h>
// after windows.h, which it needs
#include <psapi.h>
#else
#include <malloc.h>
#include <sys/resource.h>
#endif

namespace zvonika::testing {

#ifdef _WIN32

/// What really stands behind a block of malloc.
inline std::size_t sizeOf(void* memory) {
    return memory ? ::_msize(memory) : 0;
}

/// Most of the memory that this process has had.
inline long peakKilobytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return long(counters.PeakWorkingSetSize >> 10);
}

#else

inline std::size_t sizeOf(void* memory) {
    return ::malloc_usable_size(memory);
}

inline long peakKilobytes() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

#endif

} // namespace zvonika::testing
