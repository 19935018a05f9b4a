#pragma once

#include <memory>

namespace zvonika {

/// While it lives, dialogs of the programs that this one has started (Calc's boxes) stand above its own
/// windows, which are kept above all others. Where the window manager does not raise such a dialog, the
/// windows of this program stay on top no longer than until it has gone. Does nothing without an X screen.
class RaisedDialogs {
public:
    RaisedDialogs();
    ~RaisedDialogs();
    RaisedDialogs(const RaisedDialogs&) = delete;
    RaisedDialogs& operator=(const RaisedDialogs&) = delete;

private:
    class Screen;
    std::unique_ptr<Screen> screen_; ///< null: there is none
};

} // namespace zvonika
