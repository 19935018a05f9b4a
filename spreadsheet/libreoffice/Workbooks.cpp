#include "spreadsheet/libreoffice/Workbooks.h"

#include "spreadsheet/FileRefusals.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/SaveOffers.h"
#include "spreadsheet/SaveSentences.h"
#include "spreadsheet/libreoffice/FileObstacles.h"
#include "spreadsheet/libreoffice/LibreOfficeSurroundings.h"

#include <QFileInfo>

#include <algorithm>

namespace zvonika {

namespace {

bool sameName(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

/// By whatever names.
bool isSameFile(const QString& one, const QString& other) {
    return !one.isEmpty() && !other.isEmpty() && FileLock::lockName(one) == FileLock::lockName(other);
}

} // namespace

void Workbooks::add() {
    calls_.ask(calls_.patience().file, [](CalcEngine& calc) { calc.add(); });
}

void Workbooks::open(const QString& fullName) {
    calls_.requireRunning();
    const QString path = places_.nativeFile(fullName);
    refuseMissing(path);
    if (const auto open = at(path)) {
        if (open->format == WorkbookFormat::Other) refuse(cannotOpen(path, reason::notXls));
        return activate(open->id);
    }
    makeRoom(path);
    files_.lockToOpen(dialogs_, path);
    try {
        calls_.ask(calls_.patience().file, [path](CalcEngine& calc) { calc.open(path); });
    } catch (...) {
        files_.close(path);
        throw;
    }
}

OpenWorkbook Workbooks::active() {
    const OpenWorkbook workbook = calls_.askAside([](CalcEngine& calc) { return calc.active(); });
    if (workbook.id == 0) refuseNoWorkbook();
    return workbook;
}

QString Workbooks::activeName() {
    return calls_.askAside([](CalcEngine& calc) { return calc.active(); }).name;
}

void Workbooks::saveActiveAs(const SaveAsArguments& arguments) {
    active();
    refuseOtherForms(arguments);
    saveUnder(places_.saveName(arguments.filename));
}

void Workbooks::saveUnder(const QString& path) {
    const OpenWorkbook saved = active();
    if (isSameFile(saved.path, path)) return saveInPlace(saved);
    makeRoom(path, saved.id);
    const QFileInfo target(path);
    if (target.isFile() && !mayReplace(dialogs_, jmenoCalcu, target.fileName()))
        refuseNotReplaced(target.fileName());
    storeAs(path);
}

void Workbooks::storeAs(const QString& path) {
    refuseToSave(path);
    const QString before = active().path;
    const bool elsewhere = !isSameFile(before, path);
    FileLock lock = elsewhere ? FileLock::acquire(path) : FileLock();
    explainingSave(
        path, [&] { calls_.ask(calls_.patience().file, [path](CalcEngine& calc) { calc.saveAs(path); }); });
    if (!elsewhere) return;
    if (!before.isEmpty()) files_.close(before);
    files_.hold(path, std::move(lock));
}

void Workbooks::saveActive() {
    const OpenWorkbook saved = active();
    if (saved.path.isEmpty()) return saveUnder(places_.saveName(saved.name));
    saveInPlace(saved);
}

void Workbooks::saveInPlace(const OpenWorkbook& workbook) {
    refuseToSave(workbook.path);
    if (!rewriting_.wanted(workbook)) return;
    explainingSave(workbook.path,
                   [&] { calls_.ask(calls_.patience().file, [](CalcEngine& calc) { calc.save(); }); });
}

void Workbooks::closeActive() {
    calls_.ask(calls_.patience().file, [](CalcEngine& calc) { calc.close(); });
}

QVector<OpenWorkbook> Workbooks::all() {
    auto open = calls_.ask([](CalcEngine& calc) { return calc.workbooks(); });
    QStringList paths;
    for (const OpenWorkbook& workbook : open)
        paths << workbook.path;
    files_.keepOnly(paths);
    return open;
}

std::optional<OpenWorkbook> Workbooks::at(const QString& path) {
    for (const OpenWorkbook& open : all())
        if (isSameFile(open.path, path)) return open;
    return {};
}

std::optional<OpenWorkbook> Workbooks::twin(const QString& path, int exceptId) {
    for (const OpenWorkbook& open : all())
        if (open.id != exceptId && sameName(open.name, QFileInfo(path).fileName())) return open;
    return {};
}

// Calc would have two of a name.
void Workbooks::makeRoom(const QString& path, int exceptId) {
    const auto open = twin(path, exceptId);
    if (!open) return;
    const int before = calls_.ask([](CalcEngine& calc) { return calc.active(); }).id;
    activate(open->id); // the user sees which one it is about
    if (dialogs_.message({jmenoCalcu, twinQuestion(open->name, open->modified), Icon::Exclamation,
                          Buttons::YesNo, Answer::Yes}) == Answer::Yes)
        putAway(*open);
    if (before != 0 && before != open->id) activate(before);
    if (const auto left = twin(path, exceptId)) refuseTwin(left->name);
}

// A workbook of another format, or with a password, would lose what makes it one.
void Workbooks::putAway(const OpenWorkbook& twin) {
    try {
        if (twin.modified) {
            if (twin.format == WorkbookFormat::Other || twin.encrypted) return;
            const auto chosen = askSaveName(dialogs_, twin.path);
            if (!chosen) return;
            storeAs(*chosen);
        }
        closeActive();
    } catch (const AutomationError& refusal) {
        dialogs_.message({jmenoCalcu, refusal.cause(), Icon::Exclamation});
    }
}

void Workbooks::activate(int id) {
    calls_.ask([id](CalcEngine& calc) { calc.activate(id); });
}

bool Workbooks::isActive(const QString& name) {
    const unsigned acts = calls_.acts();
    if (seen_.isActive(name, acts)) return true;
    const OpenWorkbook active = calls_.askAside([](CalcEngine& calc) { return calc.active(); });
    if (active.id == 0 || !sameName(active.name, name)) return false;
    seen_.learnActive(name, acts);
    return true;
}

void Workbooks::activate(const QString& name) {
    calls_.requireRunning();
    if (isActive(name)) return;
    const bool found = calls_.ask([name](CalcEngine& calc) {
        const auto open = calc.workbooks();
        const auto wanted = std::find_if(open.begin(), open.end(),
                                         [&](const OpenWorkbook& one) { return sameName(one.name, name); });
        if (wanted != open.end()) calc.activate(wanted->id);
        return wanted != open.end();
    });
    if (!found) refuseUnknownWorkbook(name);
}

} // namespace zvonika
