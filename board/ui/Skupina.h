#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace zvonika {

class StiskaciPrvek;

/// Control name of an element of a control array: "lbl(12)".
QString jmenoPrvku(const char* pole, int index);

/// Name, tooltip and, where there is a handler, the click of a pressable part.
void popis(StiskaciPrvek* prvek, const char* pole, const QString& druh, const QString& nazev);
void pripojKlik(StiskaciPrvek* prvek, const std::function<void(int)>& klik);

} // namespace zvonika
