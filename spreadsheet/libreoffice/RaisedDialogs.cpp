#include "spreadsheet/libreoffice/RaisedDialogs.h"

#include <QFile>
#include <QSet>
#include <QSocketNotifier>
#include <QTimer>
#include <QVector>

#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <unistd.h>
#include <xcb/xcb.h>

namespace zvonika {

namespace {

constexpr std::chrono::milliseconds managerTakes{400}; ///< to raise a window that it is asked to
constexpr std::uint32_t mostWindows = 4096;
constexpr int longestDescent = 4; ///< guardian, office and what either may start

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply>
Owned<Reply> owned(Reply* reply) {
    return {reply, &std::free};
}

qint64 parentOf(qint64 process) {
    QFile stat(QStringLiteral("/proc/%1/stat").arg(process));
    if (!stat.open(QIODevice::ReadOnly)) return 0;
    const QByteArray line = stat.readAll();
    // "123 (name) S 45 ...": the name may hold anything.
    return line.mid(line.lastIndexOf(')') + 2).split(' ').value(1).toLongLong();
}

bool isStartedHere(qint64 process) {
    for (int i = 0; i < longestDescent && process > 1; ++i)
        if ((process = parentOf(process)) == getpid()) return true;
    return false;
}

} // namespace

class RaisedDialogs::Screen {
public:
    Screen() : connection_(xcb_connect(nullptr, nullptr), &xcb_disconnect) {
        if (!works()) return;
        root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_.get(), root_, XCB_CW_EVENT_MASK, &events);
        look();
        notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_.get()),
                                                      QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { listen(); });
    }
    ~Screen() { keepOnTop(); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    bool works() const { return xcb_connection_has_error(connection_.get()) == 0; }

private:
    xcb_atom_t atom(const char* name) const {
        const auto cookie =
            xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(std::strlen(name)), name);
        const auto reply = owned(xcb_intern_atom_reply(connection_.get(), cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    /// Numbers of a property; none where the window has no such property, or is gone.
    QVector<std::uint32_t> property(xcb_window_t window, xcb_atom_t name) const {
        const auto cookie =
            xcb_get_property(connection_.get(), 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, mostWindows);
        const auto reply = owned(xcb_get_property_reply(connection_.get(), cookie, nullptr));
        if (!reply || reply->format != 32) return {};
        const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
        return {values, values + reply->value_len};
    }

    qint64 processOf(xcb_window_t window) const { return property(window, process_).value(0); }
    bool isAbove(xcb_window_t window) const { return property(window, state_).contains(above_); }
    bool isDialog(xcb_window_t window) const {
        return !property(window, XCB_ATOM_WM_TRANSIENT_FOR).isEmpty() && isStartedHere(processOf(window));
    }

    /// Asks the window manager.
    void ask(xcb_window_t window, xcb_atom_t what, const std::array<std::uint32_t, 5>& data) const {
        xcb_client_message_event_t event = {};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = window;
        event.type = what;
        std::copy(data.begin(), data.end(), event.data.data32);
        xcb_send_event(connection_.get(), 0, root_,
                       XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                       reinterpret_cast<const char*>(&event));
    }
    void askAbove(xcb_window_t window, bool above) const {
        constexpr std::uint32_t ofAPager = 2;
        ask(window, state_, {above ? 1U : 0U, above_, 0, ofAPager, 0});
        if (above) ask(window, restack_, {ofAPager, XCB_NONE, XCB_STACK_MODE_ABOVE, 0, 0});
    }

    void listen() {
        bool changed = false;
        while (const auto event = owned(xcb_poll_for_event(connection_.get()))) {
            if ((event->response_type & 0x7F) != XCB_PROPERTY_NOTIFY) continue;
            const auto* notice = reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
            changed = changed || (notice->window == root_ && notice->atom == clients_);
        }
        if (!works()) return notifier_->setEnabled(false);
        if (changed) look();
    }

    void look() {
        const QVector<std::uint32_t> windows = property(root_, clients_);
        const QSet<std::uint32_t> present(windows.begin(), windows.end());
        for (const std::uint32_t window : windows)
            if (!seen_.contains(window) && isDialog(window)) raise(window);
        seen_ = present;
        if (!stubborn_.isEmpty() && !stubborn_.intersect(present).isEmpty()) return flush();
        keepOnTop();
    }

    void raise(xcb_window_t window) {
        askAbove(window, true);
        flush();
        QTimer::singleShot(managerTakes, notifier_.get(), [this, window] {
            if (!seen_.contains(window) || isAbove(window)) return;
            stubborn_.insert(window);
            giveUpTop();
        });
    }

    /// The windows of this program that are kept above all others.
    void giveUpTop() {
        for (const std::uint32_t window : seen_)
            if (processOf(window) == getpid() && isAbove(window)) {
                lowered_.insert(window);
                askAbove(window, false);
            }
        flush();
    }

    void keepOnTop() {
        for (const std::uint32_t window : std::exchange(lowered_, {}))
            askAbove(window, true);
        stubborn_.clear();
        flush();
    }

    void flush() const { xcb_flush(connection_.get()); }

    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection_;
    xcb_window_t root_ = XCB_NONE;
    xcb_atom_t clients_ = atom("_NET_CLIENT_LIST"), state_ = atom("_NET_WM_STATE"),
               above_ = atom("_NET_WM_STATE_ABOVE"), process_ = atom("_NET_WM_PID"),
               restack_ = atom("_NET_RESTACK_WINDOW");
    QSet<std::uint32_t> seen_;     ///< all windows of the screen, as they were looked at last
    QSet<std::uint32_t> stubborn_; ///< dialogs that the manager does not raise
    QSet<std::uint32_t> lowered_;  ///< windows that give up their place for them
    std::unique_ptr<QSocketNotifier> notifier_;
};

RaisedDialogs::RaisedDialogs() : screen_(std::make_unique<Screen>()) {
    if (!screen_->works()) screen_.reset();
}

RaisedDialogs::~RaisedDialogs() = default;

} // namespace zvonika
