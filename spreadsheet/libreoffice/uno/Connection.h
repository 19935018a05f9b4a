#pragma once

#include "spreadsheet/libreoffice/CalcEngine.h"
#include "spreadsheet/libreoffice/uno/Uno.h"

#include <atomic>
#include <com/sun/star/bridge/XBridge.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/lang/XMultiComponentFactory.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <memory>

namespace zvonika {

/// The bridge to one running office. Ends with the object; what was got through it is dead then.
class Connection {
public:
    /// Tries until the office answers; nullptr when `address.keepTrying` gave up.
    static std::unique_ptr<Connection> open(const CalcAddress& address);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// False once the bridge has broken; from any thread.
    bool alive() const { return !*gone_; }
    const Ref<css::frame::XDesktop2>& desktop() const { return desktop_; }
    const Ref<css::uno::XComponentContext>& context() const { return context_; } ///< of the office
    /// A service of the office; empty when it does not know it.
    Ref<css::uno::XInterface> service(const char* name) const;

private:
    explicit Connection(const Ref<css::bridge::XBridge>& bridge);

    std::shared_ptr<std::atomic<bool>> gone_ = std::make_shared<std::atomic<bool>>(false);
    Ref<css::bridge::XBridge> bridge_;
    Ref<css::uno::XComponentContext> context_;
    Ref<css::frame::XDesktop2> desktop_;
};

} // namespace zvonika
