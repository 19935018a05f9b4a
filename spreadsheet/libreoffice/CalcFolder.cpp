#include "spreadsheet/libreoffice/CalcFolder.h"

namespace zvonika {

CalcFolder::CalcFolder(CalcCalls& calls, WorkbookPlaces& places)
    : calls_(calls), places_(places), known_(calls_.ask([](CalcEngine& calc) { return calc.folder(); })) {}

QString CalcFolder::path() {
    if (calls_.alive()) keep();
    return places_.defaultFilePath();
}

void CalcFolder::keep() {
    const QString now = calls_.ask([](CalcEngine& calc) { return calc.folder(); });
    if (now == known_) return;
    known_ = now;
    places_.setDefaultFilePath(now);
}

void CalcFolder::setPath(const QString& path) {
    places_.setDefaultFilePath(path);
    const QString native = places_.folder();
    if (!calls_.alive() || native.isEmpty()) return;
    known_ = calls_.ask([native](CalcEngine& calc) {
        calc.setFolder(native);
        return calc.folder();
    });
}

} // namespace zvonika
