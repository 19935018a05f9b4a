#pragma once

#include "platform/RuntimeError.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/libreoffice/uno/Uno.h"

#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/util/CloseVetoException.hpp>

namespace zvonika {

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
        refuse(QStringLiteral("LibreOffice Calc příkaz odmítl: %1").arg(fromUno(failure.Message)));
    }
}

} // namespace zvonika
