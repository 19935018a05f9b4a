#pragma once

#include "platform/Contact.h"
#include "platform/Dialogs.h"

namespace zvonika {

/// The box for an error that has no text of its own.
inline Message neocekavanaChyba(int cislo) {
    return {QStringLiteral("Neočekávaná chyba !"),
            QStringLiteral("Kontaktujte firmu ") + kontakt + QStringLiteral(" a sdělte číslo chyby ") +
                QString::number(cislo),
            Icon::Critical};
}

} // namespace zvonika
