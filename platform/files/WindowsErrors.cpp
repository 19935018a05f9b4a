#include "platform/files/WindowsErrors.h"

#include <algorithm>

namespace zvonika {

namespace {

// The numbers stand here, not their names: the table is tested on every system.
constexpr struct {
    unsigned long number;
    std::errc meaning;
} meanings[] = {
    {2, std::errc::no_such_file_or_directory},
    {3, std::errc::no_such_file_or_directory},
    {4, std::errc::too_many_files_open},
    {5, std::errc::permission_denied},
    {8, std::errc::not_enough_memory},
    {14, std::errc::not_enough_memory},
    {15, std::errc::no_such_file_or_directory}, // a drive that is not there
    {19, std::errc::read_only_file_system},     // write protected
    {21, std::errc::io_error},                  // a drive that is not ready
    {23, std::errc::io_error},                  // a checksum of the disk
    {29, std::errc::io_error},                  // a write that failed
    {30, std::errc::io_error},                  // a read that failed
    {32, std::errc::text_file_busy},            // shared otherwise
    {33, std::errc::text_file_busy},            // a locked part
    {39, std::errc::no_space_on_device},
    {53, std::errc::no_such_file_or_directory}, // a computer that is not there
    {65, std::errc::permission_denied},         // of a network
    {67, std::errc::no_such_file_or_directory}, // a share that is not there
    {80, std::errc::file_exists},
    {82, std::errc::permission_denied},
    {110, std::errc::permission_denied},
    {111, std::errc::filename_too_long},
    {112, std::errc::no_space_on_device},
    {123, std::errc::illegal_byte_sequence}, // a sign that no name has
    {161, std::errc::illegal_byte_sequence},
    {183, std::errc::file_exists},
    {206, std::errc::filename_too_long},
    {223, std::errc::file_too_large}, // for this file system
    {267, std::errc::not_a_directory},
    {1175, std::errc::text_file_busy},        // the old file could not be taken away
    {1176, std::errc::text_file_busy},        // the new one not be moved
    {1177, std::errc::state_not_recoverable}, // nor the old one be given its name back
    {1224, std::errc::text_file_busy},        // mapped into a program's memory
    {1295, std::errc::no_space_on_device},    // the user's share of it
    {1920, std::errc::permission_denied},     // a link or a cloud file that the system cannot reach
    {1921, std::errc::too_many_symbolic_link_levels},
};

constexpr unsigned long passing[] = {5, 32, 33, 1175, 1176, 1224};
constexpr unsigned long unknown[] = {1, 50, 87};

} // namespace

std::error_code windowsError(unsigned long number) {
    const auto* known = std::ranges::find(meanings, number, [](const auto& one) { return one.number; });
    if (known != std::end(meanings)) return std::make_error_code(known->meaning);
    return {static_cast<int>(number), std::system_category()};
}

bool isPassing(unsigned long number) {
    return std::ranges::count(passing, number) != 0;
}

bool isUnknownToDisk(unsigned long number) {
    return std::ranges::count(unknown, number) != 0;
}

} // namespace zvonika
