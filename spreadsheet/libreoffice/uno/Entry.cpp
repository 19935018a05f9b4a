#include "spreadsheet/libreoffice/uno/Entry.h"

#include <atomic>
#include <com/sun/star/awt/XToolkitExperimental.hpp>
#include <com/sun/star/awt/XWindowPeer.hpp>
#include <com/sun/star/frame/XDispatchProvider.hpp>
#include <com/sun/star/frame/XStatusListener.hpp>
#include <cppuhelper/implbase1.hxx>
#include <rtl/ref.hxx>

namespace zvonika {

namespace {

/// Hears of the state of a command as it is when one begins to listen.
class StateHeard : public cppu::WeakImplHelper1<css::frame::XStatusListener> {
public:
    void SAL_CALL statusChanged(const css::frame::FeatureStateEvent& event) override {
        enabled_ = event.IsEnabled;
    }
    void SAL_CALL disposing(const css::lang::EventObject&) override {}
    bool enabled() const { return enabled_; }

private:
    std::atomic<bool> enabled_ = false;
};

/// Overtyping or not: a matter of text, so Calc offers it while a text is being typed and at no other time.
css::util::URL insertMode() {
    css::util::URL command;
    command.Complete = command.Main = rtl::OUString(".uno:InsertMode");
    command.Protocol = rtl::OUString(".uno:");
    command.Path = rtl::OUString("InsertMode");
    return command;
}

} // namespace

void Entry::awaitKeys() const {
    const Ref<css::awt::XWindowPeer> window(frame_->getContainerWindow(), css::uno::UNO_QUERY);
    if (!window.is()) return;
    const Ref<css::awt::XToolkitExperimental> toolkit(window->getToolkit(), css::uno::UNO_QUERY);
    if (toolkit.is()) toolkit->processEventsToIdle();
}

bool Entry::isOpen() {
    awaitKeys();
    const css::util::URL command = insertMode();
    if (!insertMode_.is())
        insertMode_ = as<css::frame::XDispatchProvider>(frame_)->queryDispatch(command, rtl::OUString(), 0);
    if (!insertMode_.is()) return false;
    const rtl::Reference<StateHeard> state(new StateHeard);
    insertMode_->addStatusListener(state.get(), command);
    insertMode_->removeStatusListener(state.get(), command);
    return state->enabled();
}

} // namespace zvonika
