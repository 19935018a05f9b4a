#pragma once

#include <QString>

#include <vector>

namespace zvonika {

class BassBoard;
class NotovaOsnova;
class Prstoklad;
class TrebleBoard;
class ZobrazovaciOsnova;

/// One step of a release command.
enum class KrokUvolneni { Diskant = 1, Klavesy, Intervaly, Basy, Noty, Pultony, Odrazky };

/// A release command: its button, its menu entry and what it does, in this order.
struct PrikazUvolneni {
    QString tlacitko;
    QString nabidka;
    std::vector<KrokUvolneni> kroky;
};
const std::vector<PrikazUvolneni>& prikazyUvolneni();

/// Returns parts of the input board to their idle state. Song, bellows direction and the fingers that were
/// typed are not touched.
class Uvolneni {
public:
    Uvolneni(TrebleBoard& diskant, BassBoard& basy, NotovaOsnova& osnova, ZobrazovaciOsnova& zobrazovaci,
             Prstoklad& prstoklad)
        : diskant_(diskant), basy_(basy), osnova_(osnova), zobrazovaci_(zobrazovaci), prstoklad_(prstoklad) {}

    /// Runs the command of this button or menu entry; false when it is no release command.
    bool proved(const QString& prikaz);
    void uvolniVse(); ///< cmdUvolKnofl

    void UvolniDiskant(); ///< buttons with their finger digits and fingers taken over, and the display staff
    void UvolniKlavesy(); ///< piano keys and the names beside them
    void UvolniIntervaly(); ///< the interval that is shown; what it covered on the board is seen again
    void UvolniBasy();
    void UvolniNoty();
    // The signs of the staff only: a note without its sign is another tone there, while the button that was
    // marked with it stays marked on the board.
    void UvolniPultony();
    void UvolniOdrazky();

private:
    TrebleBoard& diskant_;
    BassBoard& basy_;
    NotovaOsnova& osnova_;
    ZobrazovaciOsnova& zobrazovaci_;
    Prstoklad& prstoklad_;
};

} // namespace zvonika
