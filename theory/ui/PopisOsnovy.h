#pragma once

#include "theory/ToneName.h"

namespace zvonika {

class NotovaOsnova;
class clsNotyZapis;

/// The entry staff in words: key, the notes by slot, the number of free places.
QString popisOsnovy(const NotovaOsnova& osnova, const clsNotyZapis& zapis);

/// A tone name as it is read: without the comma that ends it wherever it is stored.
QString nazevNoty(const ToneName& nazev);

} // namespace zvonika
