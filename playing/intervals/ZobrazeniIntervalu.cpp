#include "playing/intervals/ZobrazeniIntervalu.h"

#include "board/TrebleBoard.h"
#include "platform/Dialogs.h"
#include "song/ZobrazovaciOsnova.h"
#include "theory/NazvyTonu.h"

namespace zvonika {

bool ZobrazeniIntervalu::ukaz(const ToneName& nota, const QString& poloha) {
    if (poloha.isEmpty()) return false;
    const auto misto = PolohaNoty::zTextu(poloha);
    if (!misto) {
        dialogs_.message({{}, QStringLiteral("Neznámý půltón")});
        return false;
    }
    const CisloTonu ton = cisloTonu(nota);
    if (!ton.jeVRozsahu()) return false;
    diskant_.ukazInterval(ton.hodnota());
    osnova_.ukazInterval({nota.text(), *misto});
    return true;
}

void ZobrazeniIntervalu::odeber() {
    diskant_.odeberInterval();
    osnova_.odeberInterval();
}

} // namespace zvonika
