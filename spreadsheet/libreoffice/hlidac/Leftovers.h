#pragma once

#include <set>
#include <string>
#include <sys/types.h>

namespace zvonika {

/// What an office that is killed leaves behind: lock files beside its documents and the files of its pipes.
/// Plain POSIX: this runs in the guardian process, which knows no Qt.
class Leftovers {
public:
    /// `profileUrl`: as the office was given it, lock files carry it; `profile`: the same as a native folder.
    Leftovers(std::string profileUrl, std::string profile)
        : profileUrl_(std::move(profileUrl)), profile_(std::move(profile)) {}

    /// Where the office is to put its temporary files.
    std::string temporaryFolder() const { return profile_ + "/docasne"; }

    /// The office has this document open; native full name.
    void addDocument(const std::string& path) { documents_.insert(path); }
    /// Notes the pipes that the running office listens on.
    void lookAt(pid_t office);
    /// Removes what is there, after the end of the office. Lock files of others stay.
    void remove() const;

private:
    bool isOwnLock(const std::string& path) const;

    std::string profileUrl_, profile_;
    std::set<std::string> documents_;
    std::set<std::string> pipes_;
};

} // namespace zvonika
