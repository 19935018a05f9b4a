#include "aids/WebSandbox.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace zvonika {

#ifdef Q_OS_LINUX
namespace {

/// A child tries, because the attempt cannot be taken back.
bool userNamespacesAllowed() {
    const pid_t child = fork();
    if (child < 0) return false;
    if (child == 0) _exit(unshare(CLONE_NEWUSER | CLONE_NEWPID) == 0 ? 0 : 1);
    int status = 0;
    while (waitpid(child, &status, 0) < 0)
        if (errno != EINTR) return false;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

WebSandbox webSandbox() {
    if (qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") == 1) return WebSandbox::SwitchedOff;
    if (geteuid() == 0) return WebSandbox::NotForRoot;
    return userNamespacesAllowed() ? WebSandbox::Usable : WebSandbox::NoUserNamespaces;
}
#else
WebSandbox webSandbox() {
    return WebSandbox::Usable;
}
#endif

} // namespace zvonika
