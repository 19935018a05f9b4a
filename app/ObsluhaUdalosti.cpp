#include "app/ObsluhaUdalosti.h"

#include "platform/Hlaseni.h"

#include <QScopedValueRollback>

namespace zvonika {

bool ObsluhaUdalosti::proved(const std::function<void()>& procedura) {
    if (bezi_) return false;
    const QScopedValueRollback stav(bezi_, true);
    try {
        procedura();
        return true;
    } catch (const RuntimeError& chyba) {
        ohlas(chyba);
    } catch (const std::exception& chyba) {
        ohlas(RuntimeError(0, QString::fromUtf8(chyba.what())));
    }
    return false;
}

void ObsluhaUdalosti::ohlas(const RuntimeError& chyba) {
    predHlasenim_(chyba);
    Message zprava = neocekavanaChyba(chyba.number());
    if (!chyba.cause().isEmpty()) zprava.text += QLatin1Char('\n') + chyba.cause();
    dialogs_.message(zprava);
}

void ObsluhaUdalosti::provedBezZachyceni(const std::function<void()>& procedura) {
    if (bezi_) return;
    const QScopedValueRollback stav(bezi_, true);
    try {
        procedura();
    } catch (const RuntimeError& chyba) {
        dialogs_.message(
            {{},
             QStringLiteral("Chyba za běhu programu '%1':\n\nIndex je mimo rozsah.").arg(chyba.number()),
             Icon::Critical});
        shell_.endProcess(1);
    }
}

} // namespace zvonika
