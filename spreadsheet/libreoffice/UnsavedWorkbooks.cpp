#include "spreadsheet/libreoffice/UnsavedWorkbooks.h"

#include "spreadsheet/SaveOffers.h"
#include "spreadsheet/libreoffice/LibreOfficeSurroundings.h"

namespace zvonika {

void UnsavedWorkbooks::offer() {
    for (const OpenWorkbook& workbook : workbooks_.all())
        if (workbook.modified && (!wantsToSave(dialogs_, jmenoCalcu, workbook.name) || save(workbook)))
            settled_(workbook.id);
    for (const QString& title : otherUnsaved())
        leaveToOwner(title, [&] { return otherUnsaved().contains(title); });
}

QStringList UnsavedWorkbooks::otherUnsaved() {
    return calls_.alive() ? calls_.ask([](CalcEngine& calc) { return calc.otherUnsaved(); }) : QStringList();
}

bool UnsavedWorkbooks::save(const OpenWorkbook& workbook) {
    if (savedInPlace(workbook)) return true;
    if (workbook.format == WorkbookFormat::Other || workbook.encrypted) {
        leaveToOwner(workbook.name, [&] { return isUnsaved(workbook.id); });
        return calls_.alive();
    }
    Outcome outcome = Outcome::Refused;
    while (outcome == Outcome::Refused && calls_.alive())
        outcome = savedElsewhere(workbook);
    return outcome == Outcome::Saved;
}

/// Calc's own window can be used while the box is up.
void UnsavedWorkbooks::leaveToOwner(const QString& name, const std::function<bool()>& isUnsaved) {
    const QString question =
        QStringLiteral("„%1“ má v LibreOffice neuložené změny. Uložte ho prosím v jeho okně a pak "
                       "zvolte Ano.\n\nNe: bude zavřen a změny v něm se ztratí.")
            .arg(name);
    while (isUnsaved() && dialogs_.message({jmenoCalcu, question, Icon::Exclamation, Buttons::YesNo,
                                            Answer::Yes}) == Answer::Yes) {
    }
}

bool UnsavedWorkbooks::isUnsaved(int id) {
    if (!calls_.alive()) return false;
    for (const OpenWorkbook& workbook : workbooks_.all())
        if (workbook.id == id) return workbook.modified;
    return false;
}

bool UnsavedWorkbooks::savedInPlace(const OpenWorkbook& workbook) {
    if (workbook.path.isEmpty()) return false;
    return done([&] {
        workbooks_.activate(workbook.id);
        workbooks_.saveActive();
    });
}

UnsavedWorkbooks::Outcome UnsavedWorkbooks::savedElsewhere(const OpenWorkbook& workbook) {
    const auto chosen = askSaveName(dialogs_, suggestedFile(workbook));
    if (!chosen) return Outcome::GivenUp;
    const bool saved = done([&] {
        workbooks_.activate(workbook.id);
        workbooks_.storeAs(*chosen);
    });
    return saved ? Outcome::Saved : Outcome::Refused;
}

QString UnsavedWorkbooks::suggestedFile(const OpenWorkbook& workbook) const {
    return workbook.path.isEmpty() ? withXlsEnding(places_.folder() + QLatin1Char('/') + workbook.name)
                                   : workbook.path;
}

// A refusal is told.
bool UnsavedWorkbooks::done(const std::function<void()>& save) {
    try {
        save();
        return true;
    } catch (const AutomationError& refusal) {
        dialogs_.message({jmenoCalcu, refusal.cause(), Icon::Exclamation});
        return false;
    }
}

} // namespace zvonika
