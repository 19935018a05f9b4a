#include "spreadsheet/libreoffice/hlidac/Leftovers.h"

#include "platform/files/RegularDescriptor.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace zvonika {

namespace {

namespace fs = std::filesystem;

const std::string pipePrefix = "/tmp/OSL_PIPE_";
constexpr long long largestLock = 1 << 16; ///< bytes; it is one line

/// Inode numbers of the sockets that a process holds.
std::set<std::string> socketsOf(pid_t process) {
    std::set<std::string> inodes;
    std::error_code ended;
    for (fs::directory_iterator entry("/proc/" + std::to_string(process) + "/fd", ended), end;
         !ended && entry != end; entry.increment(ended)) {
        std::error_code gone;
        const std::string target = fs::read_symlink(entry->path(), gone).string();
        if (!gone && target.starts_with("socket:[")) inodes.insert(target.substr(8, target.size() - 9));
    }
    return inodes;
}

std::string lockOf(const std::string& document) {
    const fs::path path(document);
    return (path.parent_path() / (".~lock." + path.filename().string() + "#")).string();
}

} // namespace

void Leftovers::lookAt(pid_t office) {
    const auto held = socketsOf(office);
    std::ifstream all("/proc/net/unix");
    for (std::string line; std::getline(all, line);) {
        std::istringstream fields(line);
        std::string number, references, protocol, flags, type, state, inode, path;
        fields >> number >> references >> protocol >> flags >> type >> state >> inode >> path;
        if (path.starts_with(pipePrefix) && held.contains(inode)) pipes_.insert(path);
    }
}

bool Leftovers::isOwnLock(const std::string& path) const {
    std::string text;
    return readRegular(path.c_str(), Links::Refuse, largestLock, text) &&
           text.find(profileUrl_) != std::string::npos;
}

void Leftovers::remove() const {
    for (const std::string& document : documents_)
        if (const std::string lock = lockOf(document); isOwnLock(lock)) unlink(lock.c_str());
    for (const std::string& pipe : pipes_)
        unlink(pipe.c_str());
    unlink((profile_ + "/.lock").c_str());
    std::error_code absent;
    fs::remove_all(temporaryFolder(), absent);
}

} // namespace zvonika
