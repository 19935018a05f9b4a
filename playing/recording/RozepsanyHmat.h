#pragma once

#include "board/BassBoard.h"
#include "board/TrebleBoard.h"
#include "playing/recording/Prstoklad.h"
#include "theory/NotovaOsnova.h"

namespace zvonika {

class clsNotyZapis;

/// The grip that is being put together: all that the player has marked and not recorded yet. Two of them are
/// equal when the models that show them look the same.
struct RozepsanyHmat {
    ZnackyDiskantu diskant;
    ZnackyBasu basy;
    Key stupnice; ///< the key that notes and names are spelled in
    NotovaOsnova::Noty noty;
    QString prstoklad;

    friend bool operator==(const RozepsanyHmat&, const RozepsanyHmat&) = default;
};

/// The models that show it. Held by reference.
struct ModelyHmatu {
    TrebleBoard& diskant;
    BassBoard& basy;
    NotovaOsnova& osnova;
    clsNotyZapis& noty; ///< of this staff
    Prstoklad& prstoklad;
};

RozepsanyHmat odecti(const ModelyHmatu& modely);
/// Exchanges what the models show for `hmat`, which may have been read under another key: its tones are then
/// spelled in the current one. A stored grip and an interval that are shown stay. The selected note stays
/// selected where its slot holds one.
void ukaz(const ModelyHmatu& modely, const RozepsanyHmat& hmat);

} // namespace zvonika
