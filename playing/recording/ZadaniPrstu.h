#pragma once

#include "platform/Dialogs.h"

#include <QChar>

namespace zvonika {

class KlikDiskantu;
class Prstoklad;

/// Asks for the finger of a treble button that was double-clicked. The button is marked then: a free one is
/// marked first, with its note check, and where that leaves it free no finger is asked for.
class ZadaniPrstu {
public:
    ZadaniPrstu(KlikDiskantu& diskant, Prstoklad& prstoklad, Dialogs& dialogs)
        : diskant_(diskant), prstoklad_(prstoklad), dialogs_(dialogs) {}

    void dvojklikLbl(int n) { zadej(u'l', n); }
    void dvojklikLblSynchro(int n) { zadej(u's', n); }

private:
    void zadej(QChar druh, int n);

    KlikDiskantu& diskant_;
    Prstoklad& prstoklad_;
    Dialogs& dialogs_;
};

} // namespace zvonika
