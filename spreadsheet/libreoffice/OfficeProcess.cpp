#include "spreadsheet/libreoffice/OfficeProcess.h"

#include "platform/Log.h"
#include "platform/RuntimeError.h"
#include "spreadsheet/libreoffice/Installation.h"

#include <QFile>
#include <QUrl>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace zvonika {

namespace {

using std::chrono::milliseconds;

constexpr int lockInGuardian = 3;
constexpr milliseconds guardianTakes{4000}; ///< for ending the office and clearing up

QString urlOf(const Profile& profile) {
    return QString::fromLatin1(QUrl::fromLocalFile(profile.path()).toEncoded());
}

std::vector<std::string> commandLine(const Installation& installation, const Profile& profile,
                                     const QString& pipe) {
    const QString url = urlOf(profile);
    const QStringList parts = {
        installation.guardian,
        url,
        profile.path() + QStringLiteral("/vystup.txt"),
        installation.program + QStringLiteral("/soffice.bin"),
        QStringLiteral("--norestore"),
        QStringLiteral("--nologo"),
        QStringLiteral("--nodefault"),
        QStringLiteral("--nolockcheck"),
        QStringLiteral("--accept=pipe,name=%1;urp;StarOffice.ComponentContext").arg(pipe),
        QStringLiteral("-env:UserInstallation=") + url};
    std::vector<std::string> encoded;
    for (const QString& part : parts)
        encoded.push_back(QFile::encodeName(part).toStdString());
    return encoded;
}

bool isUtf8Locale() {
    for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const char* value = getenv(name); value && *value)
            return QByteArray(value).toLower().replace("-", "").contains("utf8");
    return false;
}

/// The program's own surroundings; in a locale without UTF-8 the office could not save to every path.
std::vector<std::string> environment() {
    std::vector<std::string> result;
    const bool utf8 = isUtf8Locale();
    for (char** entry = environ; *entry; ++entry)
        if (utf8 || strncmp(*entry, "LC_ALL=", 7) != 0) result.emplace_back(*entry);
    if (!utf8) result.emplace_back("LC_ALL=C.UTF-8");
    return result;
}

std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (std::string& text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

[[noreturn]] void cannotStart(int reason) {
    qCWarning(callsLog) << "LibreOffice:" << strerror(reason);
    throw RuntimeError(
        error::cannotCreateObject,
        QStringLiteral("LibreOffice Calc nelze spustit. Ukončete některé běžící programy a zkuste to "
                       "znovu; nepomůže-li to, přeinstalujte Zvoniku."));
}

/// The connection writes into a pipe of the office's, which may end at any moment; a failed write tells
/// enough.
void ignoreBrokenPipes() {
    struct sigaction present = {};
    if (sigaction(SIGPIPE, nullptr, &present) == 0 && present.sa_handler == SIG_DFL) signal(SIGPIPE, SIG_IGN);
}

/// How the guardian begins: it reads from `line` and keeps the profile's lock.
class GuardianStart {
public:
    GuardianStart(int line, int profileLock) {
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_adddup2(&files, line, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&files, profileLock, lockInGuardian);
        posix_spawnattr_init(&attributes);
        sigset_t pipes;
        sigemptyset(&pipes);
        sigaddset(&pipes, SIGPIPE);
        posix_spawnattr_setsigdefault(&attributes, &pipes);
        // A group of its own: Ctrl+C in a terminal is for the program alone.
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF);
    }
    ~GuardianStart() {
        posix_spawn_file_actions_destroy(&files);
        posix_spawnattr_destroy(&attributes);
    }
    GuardianStart(const GuardianStart&) = delete;
    GuardianStart& operator=(const GuardianStart&) = delete;

    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
};

pid_t spawn(std::vector<std::string> command, int line, int profileLock) {
    auto surroundings = environment();
    const GuardianStart start(line, profileLock);
    pid_t started = -1;
    const int failure = posix_spawn(&started, command.front().c_str(), &start.files, &start.attributes,
                                    pointers(command).data(), pointers(surroundings).data());
    if (failure != 0) cannotStart(failure);
    return started;
}

} // namespace

OfficeProcess::OfficeProcess(const Installation& installation, const Profile& profile, const QString& pipe)
    : profileUrl_(urlOf(profile)) {
    ignoreBrokenPipes();
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) cannotStart(errno);
    line_ = ends[1];
    try {
        guardian_ = std::make_unique<ChildProcess>(
            spawn(commandLine(installation, profile, pipe), ends[0], profile.lock()));
    } catch (...) {
        close(ends[0]);
        close(ends[1]);
        throw;
    }
    close(ends[0]);
}

OfficeProcess::~OfficeProcess() {
    end();
}

void OfficeProcess::end() {
    {
        const std::scoped_lock lock(mutex_);
        if (line_ >= 0) close(line_);
        line_ = -1;
    }
    if (!guardian_->waitForEnd(guardianTakes)) guardian_->kill(); // the office goes with it
}

void OfficeProcess::tellStarted() {
    tell("started\n");
}

void OfficeProcess::tellDocument(const QString& nativePath) {
    tell("file:" + QFile::encodeName(nativePath) + '\n');
}

void OfficeProcess::tell(const QByteArray& line) {
    const std::scoped_lock lock(mutex_);
    // A guardian that has ended means an office that has ended, which the next call to it tells.
    if (line_ >= 0) send(line_, line.constData(), static_cast<std::size_t>(line.size()), MSG_NOSIGNAL);
}

} // namespace zvonika
