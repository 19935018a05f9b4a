#pragma once

#include "platform/Log.h"
#include "platform/RuntimeError.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/libreoffice/uno/Uno.h"

#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/util/CloseVetoException.hpp>

namespace zvonika {

/// What Calc says of itself is for the log; the user is told what to do.
inline void logFailure(const css::uno::Exception& failure) {
    qCWarning(callsLog).noquote() << "LibreOffice Calc:" << fromUno(failure.Message);
}

/// Runs calls to Calc and turns their failures into errors with a number. What is gone, Calc or a workbook,
/// raises 91; which of them it was is known to the connection.
template <typename Calls>
auto guarded(Calls calls) -> decltype(calls()) {
    try {
        return calls();
    } catch (const css::lang::DisposedException&) {
        throw RuntimeError(error::objectNotSet,
                           QStringLiteral("LibreOffice Calc nebo jeho sešit už není otevřen."));
    } catch (const css::util::CloseVetoException&) {
        refuse(
            QStringLiteral("V LibreOffice Calc je otevřené okno, které čeká na odpověď. Zavřete ho a zkuste "
                           "to znovu."));
    } catch (const css::uno::Exception& failure) {
        logFailure(failure);
        refuse(QStringLiteral("LibreOffice Calc příkaz odmítl. Podívejte se do jeho okna, jestli nečeká na "
                              "odpověď, a zkuste to znovu."));
    }
}

} // namespace zvonika
