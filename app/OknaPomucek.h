#pragma once

class QWidget;

namespace zvonika {

struct Pisen;
struct Prostredi;
class SongPanel;
class Tonina;
class TrebleBoard;
class VolbaStupnice;

// Dialogs that are about no song, each from opening to closing, over the main window `okno`.

/// The choice of the key.
void cmdStupnice(QWidget& okno, VolbaStupnice& volba, const Tonina& tonina);

/// The row restrictions. The main window hides while the dialog is up and comes back however it ends.
void mnuPrekrytRady(QWidget& okno, TrebleBoard& diskant, const Prostredi& prostredi);

/// The default folder of the spreadsheet application.
void mnuNastavCestu(QWidget& okno, Pisen& pisen, const Prostredi& prostredi);

/// The choice of the spreadsheet program.
void mnuTabulka(QWidget& okno, const Prostredi& prostredi, SongPanel& panel);

} // namespace zvonika
