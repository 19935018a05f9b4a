#pragma once

namespace zvonika {

/// Whether the web engine can put its render processes into their sandbox. Where it cannot it ends the
/// whole process instead of refusing, so this is asked before it is loaded.
enum class WebSandbox {
    Usable,
    SwitchedOff,      ///< QTWEBENGINE_DISABLE_SANDBOX is set; for test environments
    NotForRoot,       ///< the program runs as root, which the sandbox does not accept
    NoUserNamespaces, ///< the system does not let the user make namespaces
};

/// May start a short-lived child process.
WebSandbox webSandbox();

} // namespace zvonika
