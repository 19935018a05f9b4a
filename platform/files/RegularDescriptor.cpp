#include "platform/files/RegularDescriptor.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace zvonika {

namespace {

constexpr int leaseAttempts = 50;
constexpr timespec leasePause{0, 20'000'000};
constexpr long long chunk = 1 << 16;

/// Asking for the file makes the system take it back from a server that has it lent; that takes a moment.
int openAtOnce(const char* path, int flags) {
    int file = ::open(path, flags);
    for (int i = 0; file < 0 && (errno == EWOULDBLOCK || errno == EINTR) && i < leaseAttempts; ++i) {
        ::nanosleep(&leasePause, nullptr);
        file = ::open(path, flags);
    }
    return file;
}

/// 0 where such a file will do.
int objection(const struct stat& info, long long largest) {
    if (S_ISDIR(info.st_mode)) return EISDIR;
    if (S_ISLNK(info.st_mode)) return ELOOP;
    if (!S_ISREG(info.st_mode)) return ENODEV;
    return info.st_size > largest ? EFBIG : 0;
}

int failed(int reason) {
    errno = reason;
    return -1;
}

/// Files of the system have no size before they are read. 0, or why it failed.
int readUpTo(int file, long long largest, std::string& text) {
    std::vector<char> bytes(std::size_t(std::min(chunk, largest + 1)));
    for (;;) {
        const auto count = ::read(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        if (count == 0) return 0;
        text.append(bytes.data(), std::size_t(count));
        if (static_cast<long long>(text.size()) > largest) return EFBIG;
    }
}

} // namespace

// The name is looked at first, because opening alone makes some devices act; then what was opened, because
// the name may stand for something else by then.
int openRegular(const char* path, Links links, long long largest, int access) {
    const bool follow = links == Links::Follow;
    struct stat info {};
    if ((follow ? ::stat(path, &info) : ::lstat(path, &info)) < 0) return -1;
    if (const int reason = objection(info, largest); reason != 0) return failed(reason);
    const int file = openAtOnce(path, access | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | (follow ? 0 : O_NOFOLLOW));
    if (file < 0) return failed(errno == ENXIO ? ENODEV : errno);
    const int reason = ::fstat(file, &info) < 0 ? errno : objection(info, largest);
    if (reason == 0) return file;
    ::close(file);
    return failed(reason);
}

bool readRegular(const char* path, Links links, long long largest, std::string& text) {
    text.clear();
    const int file = openRegular(path, links, largest, O_RDONLY);
    if (file < 0) return false;
    const int reason = readUpTo(file, largest, text);
    ::close(file);
    if (reason != 0) text.clear();
    errno = reason;
    return reason == 0;
}

} // namespace zvonika
