// zvonika-hlidac PROFILE_URL LOG PROGRAM ARGUMENT...: runs an office for Zvonika and sees to it that nothing
// of it stays behind. LOG lies in the folder of the profile.
//
// Standard input is the line from Zvonika: "file:PATH" names a document that the office has open, "users:N"
// tells how many documents the user has opened in it himself, "end" orders its end, anything else only wakes.
// When the line breaks, Zvonika has ended, however it did, and the office is ended too; but not without that
// order while it has documents of the user's own: then its end is waited for.
// Descriptor 3 holds the lock of the office's profile for as long as this process lives. The exit code is the
// office's.
#include "spreadsheet/libreoffice/hlidac/Leftovers.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int profileLock = 3;
constexpr int restartWanted = 81; // what the office ends with after it has set up a fresh profile
constexpr int mostStarts = 4;

// The session that ends tells everybody, the office too, which then ends by itself; what it holds is not for
// the guardian to throw away.
void onSignal(int) {}

/// Signals interrupt nothing but the wait, and end nothing. Returns the mask to wait with.
sigset_t catchSignals() {
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigset_t blocked, before;
    sigemptyset(&blocked);
    for (const int number : {SIGCHLD, SIGTERM, SIGINT, SIGHUP}) {
        sigaction(number, &action, nullptr);
        sigaddset(&blocked, number);
    }
    sigprocmask(SIG_BLOCK, &blocked, &before);
    return before;
}

[[noreturn]] void becomeOffice(char** command, const char* log, pid_t guard, const sigset_t& mask) {
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != guard) _exit(1);
    const int nothing = open("/dev/null", O_RDONLY);
    const int out = open(log, O_WRONLY | O_CREAT | O_TRUNC | O_APPEND, 0600);
    dup2(nothing, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(out, STDERR_FILENO);
    closefrom(profileLock);
    sigprocmask(SIG_SETMASK, &mask, nullptr);
    execv(command[0], command);
    _exit(127);
}

pid_t start(char** command, const char* log, const sigset_t& mask) {
    const pid_t guard = getpid();
    const pid_t office = fork();
    if (office == 0) becomeOffice(command, log, guard, mask);
    if (office > 0) setpgid(office, office); // by whoever comes first
    return office;
}

/// What Zvonika has said so far.
class Line {
public:
    explicit Line(zvonika::Leftovers& leftovers) : leftovers_(leftovers) {}

    bool open() const { return open_; }
    bool wantsEnd() const { return !open_ && (ordered_ || users_ == 0); }
    void listen() {
        char bytes[4096];
        const ssize_t count = read(STDIN_FILENO, bytes, sizeof bytes);
        if (count < 0 && (errno == EINTR || errno == EAGAIN)) return;
        if (count <= 0) {
            open_ = false;
            return;
        }
        pending_.append(bytes, static_cast<std::size_t>(count));
        for (std::size_t end; (end = pending_.find('\n')) != std::string::npos; pending_.erase(0, end + 1))
            take(pending_.substr(0, end));
    }

private:
    void take(const std::string& word) {
        if (word.starts_with("file:")) leftovers_.addDocument(word.substr(5));
        if (word.starts_with("users:")) users_ = std::atoi(word.c_str() + 6);
        if (word == "end") ordered_ = true;
    }

    zvonika::Leftovers& leftovers_;
    std::string pending_;
    bool open_ = true, ordered_ = false;
    int users_ = 0;
};

/// Waits until the office has ended or has to; its exit code in the first case, -1 in the second.
int watch(pid_t office, Line& line, zvonika::Leftovers& leftovers, const sigset_t& mask) {
    while (!line.wantsEnd()) {
        int status = 0;
        if (waitpid(office, &status, WNOHANG) == office)
            return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        pollfd input = {STDIN_FILENO, POLLIN, 0};
        if (ppoll(&input, line.open() ? 1 : 0, nullptr, &mask) <= 0) continue;
        line.listen();
        leftovers.lookAt(office);
    }
    return -1;
}

int run(char** command, const char* log, zvonika::Leftovers& leftovers) {
    const sigset_t mask = catchSignals();
    Line line(leftovers);
    int result = restartWanted;
    for (int i = 0; i < mostStarts && result == restartWanted; ++i) {
        const pid_t office = start(command, log, mask);
        if (office < 0) return 127;
        result = watch(office, line, leftovers, mask);
        leftovers.lookAt(office);
        kill(-office, SIGKILL); // with what it has started itself
        if (result < 0) waitpid(office, nullptr, 0);
    }
    leftovers.remove();
    return result < 0 ? 128 + SIGKILL : result;
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc < 4) return 2;
    closefrom(profileLock + 1);
    setenv("SAL_ENABLE_FILE_LOCKING", "1", 1);
    const std::string log = argv[2];
    zvonika::Leftovers leftovers(argv[1], log.substr(0, log.rfind('/')));
    if (const std::string folder = leftovers.temporaryFolder();
        mkdir(folder.c_str(), 0700) == 0 || errno == EEXIST)
        setenv("TMPDIR", folder.c_str(), 1);
    return run(argv + 3, argv[2], leftovers);
}
