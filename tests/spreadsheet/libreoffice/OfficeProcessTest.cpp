// The office's process and its guardian, with a shell script for an office.
#include "spreadsheet/libreoffice/OfficeProcess.h"

#include "spreadsheet/libreoffice/Installation.h"
#include "spreadsheet/libreoffice/hlidac/Leftovers.h"
#include "tests/support/Neighbours.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include <csignal>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <unistd.h>

namespace zvonika::testing {

namespace {

void store(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

/// A program folder whose office tells on a pipe what it was given, and then waits to be ended.
class FakeOffice {
public:
    FakeOffice() {
        EXPECT_EQ(mkfifo(QFile::encodeName(told()).constData(), 0600), 0);
        // The first start ends as that on a fresh profile does.
        store(program(),
              "#!/bin/sh\ncd \"$(dirname \"$0\")\"\n[ -e once ] || { touch once; exit 81; }\n"
              "{ echo $$; echo \"$LC_ALL\"; echo \"$TMPDIR\"; echo \"$*\"; } > told\nexec sleep 100\n");
        QFile::setPermissions(program(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    Installation installation() const {
        Installation found;
        found.program = folder_.path();
        found.guardian = QStringLiteral(PLUGIN_FOLDER "/zvonika-hlidac");
        return found;
    }
    /// Waits until the office is up.
    QStringList wordsOfOffice() const {
        QFile pipe(told());
        EXPECT_TRUE(pipe.open(QIODevice::ReadOnly));
        return QString::fromUtf8(pipe.readAll()).split('\n');
    }

private:
    QString program() const { return folder_.filePath("soffice.bin"); }
    QString told() const { return folder_.filePath("told"); }
    QTemporaryDir folder_;
};

pid_t parentOf(pid_t process) {
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(3).toInt() : -1;
}

/// Whether a process that is no child of this one ends within this time.
bool ends(pid_t process, int milliseconds) {
    const int handle = static_cast<int>(syscall(SYS_pidfd_open, process, 0));
    if (handle < 0) return true;
    pollfd end = {handle, POLLIN, 0};
    const bool ended = poll(&end, 1, milliseconds) == 1;
    close(handle);
    return ended;
}

} // namespace

TEST(ChildProcess, OneProcessIsSignalledAndNeverAGroup) {
    EXPECT_TRUE(signalOne(getpid(), 0));
    for (const pid_t id : {-1, 0, 1, -getpid()})
        EXPECT_FALSE(signalOne(id, 0)) << id;
    for (const bool byItself : {true, false}) {
        const pid_t id = fork();
        if (id == 0) pause();
        ChildProcess child(id);
        EXPECT_TRUE(child.running());
        EXPECT_FALSE(child.waitForEnd(std::chrono::milliseconds(0)));
        const bool ended = byItself && signalOne(id, SIGTERM) && child.waitForEnd(std::chrono::seconds(60));
        EXPECT_EQ(ended, byItself);
        child.kill();
        EXPECT_FALSE(child.running());
        EXPECT_FALSE(signalOne(id, 0)) << "gone, and waited for";
    }
}

TEST(OfficeProcess, RunsUnderItsGuardianAndEndsWithIt) {
    qputenv("LC_ALL", "C");
    const FakeOffice office;
    QTemporaryDir profiles;
    std::optional<Profile> profile(profiles.path());
    const QString path = profile->path();
    OfficeProcess process(office.installation(), *profile, "roura");
    profile.reset();
    const QStringList told = office.wordsOfOffice();
    qunsetenv("LC_ALL");
    const pid_t id = told.value(0).toInt();
    EXPECT_EQ(told.value(1), "C.UTF-8");
    EXPECT_EQ(told.value(2), path + "/docasne");
    EXPECT_TRUE(told.value(3).contains("--accept=pipe,name=roura;urp;"));
    EXPECT_TRUE(told.value(3).contains("-env:UserInstallation=file://" + path));
    EXPECT_TRUE(process.running() && signalOne(id, 0));
    EXPECT_NE(Profile(profiles.path()).path(), path) << "the guardian keeps the profile";

    const QByteArray url = QUrl::fromLocalFile(path).toEncoded();
    store(profiles.filePath(".~lock.moje.xls#"), ",root,pc,01.01.2026," + url + ";");
    process.tellStarted();
    process.tellDocument(profiles.filePath("moje.xls"));
    process.end();
    EXPECT_FALSE(process.running() || signalOne(id, 0));
    EXPECT_FALSE(QFile::exists(profiles.filePath(".~lock.moje.xls#")));
    EXPECT_EQ(Profile(profiles.path()).path(), path);
    EXPECT_NO_THROW(process.tellStarted());
}

TEST(OfficeProcess, OutlivesAKilledProgramOnlyWithDocumentsOfTheUsers) {
    for (const int documents : {0, 2}) {
        const FakeOffice office;
        QTemporaryDir profiles;
        int told[2];
        ASSERT_EQ(pipe(told), 0);
        const pid_t program = fork();
        if (program == 0) {
            const Profile profile(profiles.path());
            OfficeProcess process(office.installation(), profile, "roura");
            process.tellUsersDocuments(documents);
            close(told[1]);
            pause();
        }
        close(told[1]);
        char nothing = 0;
        EXPECT_EQ(read(told[0], &nothing, 1), 0);
        close(told[0]);
        const pid_t id = office.wordsOfOffice().value(0).toInt();
        const pid_t guardian = parentOf(id);
        ChildProcess(program).kill();
        if (documents > 0) {
            for (const int number : {SIGTERM, SIGHUP, SIGINT}) // the session ends
                signalOne(guardian, number);
            EXPECT_FALSE(ends(guardian, 300));
            EXPECT_TRUE(signalOne(id, SIGKILL)) << "by itself, for the guardian";
        }
        EXPECT_TRUE(ends(guardian, 60000)) << documents;
        EXPECT_FALSE(signalOne(id, 0)) << documents;
    }
}

TEST(Leftovers, ALockThatIsNoFileStaysAndIsNotWaitedFor) {
    for (const Neighbour& neighbour : neighbours) {
        QTemporaryDir folder;
        Leftovers leftovers("file:///profil", folder.path().toStdString());
        const QString lock = folder.filePath(".~lock.moje.xls#");
        ASSERT_TRUE(neighbour.put(lock)) << neighbour.what;
        leftovers.addDocument(folder.filePath("moje.xls").toStdString());
        leftovers.remove();
        EXPECT_TRUE(QFile::exists(lock) || QFileInfo(lock).isSymLink()) << neighbour.what;
    }
}

TEST(Leftovers, AreRemovedAndThoseOfOthersStay) {
    QTemporaryDir folder;
    const auto file = [&](const QString& name) { return folder.filePath(name); };
    Leftovers leftovers("file:///profil", folder.path().toStdString());
    for (const auto& [document, profile] :
         {std::pair("moje.xls", "file:///profil"), {"cizi.xls", "file:///jiny"}}) {
        store(file(QStringLiteral(".~lock.%1#").arg(document)), QByteArray(",root,") + profile + ";");
        leftovers.addDocument(file(document).toStdString());
    }
    store(file(".~lock.neznama.xls#"), ",root,file:///profil;");
    store(file(".lock"), "");
    QDir(folder.path()).mkpath("docasne/pod");

    const int listening = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    snprintf(address.sun_path, sizeof address.sun_path, "/tmp/OSL_PIPE_test_%d", getpid());
    ASSERT_EQ(bind(listening, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    Leftovers ofAnother("file:///jiny", folder.filePath("jiny").toStdString());
    ofAnother.lookAt(getppid());
    leftovers.lookAt(getpid());
    close(listening);
    ofAnother.remove();
    EXPECT_TRUE(QFile::exists(address.sun_path));

    leftovers.remove();
    EXPECT_FALSE(QFile::exists(address.sun_path));
    EXPECT_EQ(
        QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name),
        (QStringList{".~lock.cizi.xls#", ".~lock.neznama.xls#"}));
}

} // namespace zvonika::testing
