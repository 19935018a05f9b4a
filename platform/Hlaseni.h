#pragma once

#include "platform/Contact.h"
#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"

#include <exception>

namespace zvonika {

/// The box for an error that has no text of its own.
inline Message neocekavanaChyba(int cislo) {
    return {QStringLiteral("Neočekávaná chyba !"),
            QStringLiteral("Kontaktujte firmu ") + kontakt + QStringLiteral(" a sdělte číslo chyby ") +
                QString::number(cislo),
            Icon::Critical};
}

/// What a procedure's error trap has caught, as an error with a number: any exception but a RuntimeError has
/// number 0, which no trap has a text of its own for.
inline RuntimeError chybaSCislem(const std::exception& vyjimka) {
    if (const auto* chyba = dynamic_cast<const RuntimeError*>(&vyjimka)) return *chyba;
    return RuntimeError(
        0, QStringLiteral("Vnitřní chyba programu (%1).").arg(QString::fromUtf8(vyjimka.what())));
}

} // namespace zvonika
