#include "spreadsheet/libreoffice/uno/Connection.h"

#include "platform/RuntimeError.h"

#include <chrono>
#include <com/sun/star/bridge/BridgeFactory.hpp>
#include <com/sun/star/connection/Connector.hpp>
#include <com/sun/star/connection/NoConnectException.hpp>
#include <com/sun/star/frame/Desktop.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <cppuhelper/bootstrap.hxx>
#include <cppuhelper/implbase1.hxx>
#include <rtl/bootstrap.hxx>
#include <thread>

namespace zvonika {

namespace {

constexpr auto betweenAttempts = std::chrono::milliseconds(15);

class DeathListener : public cppu::WeakImplHelper1<css::lang::XEventListener> {
public:
    explicit DeathListener(std::shared_ptr<std::atomic<bool>> gone) : gone_(std::move(gone)) {}
    void SAL_CALL disposing(const css::lang::EventObject&) override { *gone_ = true; }

private:
    std::shared_ptr<std::atomic<bool>> gone_;
};

// UNO can be set up once in a process and has no end; its types must be known before.
const Ref<css::uno::XComponentContext>& localContext(const QString& programFolder) {
    static const Ref<css::uno::XComponentContext> context = [&] {
        rtl::Bootstrap::set(rtl::OUString("URE_MORE_TYPES"),
                            fileUrl(programFolder + QStringLiteral("/types/offapi.rdb")));
        return cppu::defaultBootstrap_InitialComponentContext();
    }();
    return context;
}

Ref<css::connection::XConnection> connected(const CalcAddress& address,
                                            const Ref<css::uno::XComponentContext>& local) {
    const auto connector = css::connection::Connector::create(local);
    const rtl::OUString where = toUno(QStringLiteral("pipe,name=") + address.pipe);
    while (address.keepTrying()) {
        try {
            return connector->connect(where);
        } catch (const css::connection::NoConnectException&) {
            std::this_thread::sleep_for(betweenAttempts);
        }
    }
    return {};
}

} // namespace

std::unique_ptr<Connection> Connection::open(const CalcAddress& address) {
    const auto& local = localContext(address.programFolder);
    const auto connection = connected(address, local);
    if (!connection.is()) return nullptr;
    const auto bridge = css::bridge::BridgeFactory::create(local)->createBridge(
        rtl::OUString(), rtl::OUString("urp"), connection, {});
    return std::unique_ptr<Connection>(new Connection(bridge));
}

Connection::Connection(const Ref<css::bridge::XBridge>& bridge) : bridge_(bridge) {
    as<css::lang::XComponent>(bridge_)->addEventListener(new DeathListener(gone_));
    context_ =
        as<css::uno::XComponentContext>(bridge_->getInstance(rtl::OUString("StarOffice.ComponentContext")));
    if (!context_.is()) throw css::uno::RuntimeException(rtl::OUString("no component context"));
    desktop_ = css::frame::Desktop::create(context_);
}

Connection::~Connection() {
    desktop_.clear();
    context_.clear();
    try {
        as<css::lang::XComponent>(bridge_)->dispose();
    } catch (const css::uno::Exception&) { // gone already
    }
}

Ref<css::uno::XInterface> Connection::service(const char* name) const {
    return context_->getServiceManager()->createInstanceWithContext(rtl::OUString::createFromAscii(name),
                                                                    context_);
}

} // namespace zvonika
