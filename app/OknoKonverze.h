#pragma once

class QWidget;

namespace zvonika {

struct Modely;
struct Prostredi;
class ZivotPisne;

/// The conversion dialog from opening to closing, over the main window `okno`: the song of the main window is
/// afterwards the copy, and the status line tells what was lost. Throws AutomationError.
void mnuKonverze(QWidget& okno, Modely& modely, ZivotPisne& zivotPisne, const Prostredi& prostredi);

} // namespace zvonika
