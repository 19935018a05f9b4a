#include "spreadsheet/libreoffice/UnsavedWorkbooks.h"

#include "spreadsheet/SaveOffers.h"
#include "spreadsheet/libreoffice/LibreOfficeSurroundings.h"

namespace zvonika {

void UnsavedWorkbooks::offer() {
    for (const OpenWorkbook& workbook : workbooks_.all())
        if (workbook.modified && wantsToSave(dialogs_, jmenoCalcu, workbook.name)) save(workbook);
}

void UnsavedWorkbooks::save(const OpenWorkbook& workbook) {
    if (savedInPlace(workbook)) return;
    while (!savedElsewhere(workbook)) {
    }
}

bool UnsavedWorkbooks::savedInPlace(const OpenWorkbook& workbook) {
    if (workbook.path.isEmpty()) return false;
    return done([&] {
        workbooks_.activate(workbook.id);
        workbooks_.saveActive();
    });
}

bool UnsavedWorkbooks::savedElsewhere(const OpenWorkbook& workbook) {
    const auto chosen = askSaveName(dialogs_, suggestedFile(workbook));
    if (!chosen) return true; // given up
    return done([&] {
        workbooks_.activate(workbook.id);
        workbooks_.storeAs(*chosen);
    });
}

QString UnsavedWorkbooks::suggestedFile(const OpenWorkbook& workbook) const {
    return workbook.path.isEmpty() ? withXlsEnding(places_.folder() + QLatin1Char('/') + workbook.name)
                                   : workbook.path;
}

// A refusal is told; with a Calc that is gone there is nothing left to save.
bool UnsavedWorkbooks::done(const std::function<void()>& save) {
    try {
        save();
        return true;
    } catch (const AutomationError& refusal) {
        dialogs_.message({jmenoCalcu, refusal.cause(), Icon::Exclamation});
        return !calls_.alive();
    }
}

} // namespace zvonika
