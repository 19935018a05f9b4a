// What the program finds in the plug-in.
#include "platform/RuntimeError.h"
#include "spreadsheet/libreoffice/uno/Engine.h"

#include <exception>

extern "C" {

Q_DECL_EXPORT int zvonikaCalcPluginVersion() {
    return zvonika::calcPluginVersion;
}

Q_DECL_EXPORT zvonika::CalcEngine* zvonikaConnectToCalc(const zvonika::CalcAddress& address,
                                                        zvonika::CalcObserver& observer) {
    try {
        auto connection = zvonika::Connection::open(address);
        return connection ? new zvonika::Engine(std::move(connection), observer) : nullptr;
    } catch (const css::uno::Exception& failure) {
        zvonika::logFailure(failure);
        throw zvonika::RuntimeError(
            zvonika::error::cannotCreateObject,
            QStringLiteral(
                "Spojení s LibreOffice se nezdařilo. Zkuste Zvoniku spustit znovu; nepomůže-li to, "
                "přeinstalujte LibreOffice."));
    }
}

} // extern "C"
