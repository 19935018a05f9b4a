#include "spreadsheet/libreoffice/Workbooks.h"

#include "spreadsheet/Refusals.h"
#include "spreadsheet/SaveOffers.h"
#include "spreadsheet/libreoffice/FileObstacles.h"
#include "spreadsheet/libreoffice/LibreOfficeSurroundings.h"

#include <QFileInfo>

#include <algorithm>

namespace zvonika {

namespace {

bool sameName(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace

void Workbooks::add() {
    calls_.ask(calls_.patience().file, [](CalcEngine& calc) { calc.add(); });
}

void Workbooks::open(const QString& fullName) {
    calls_.requireRunning();
    const QString path = places_.nativeFile(fullName);
    refuseMissing(path);
    calls_.ask(calls_.patience().file, [path](CalcEngine& calc) {
        for (const OpenWorkbook& open : calc.workbooks())
            refuseTwin(open, path);
        calc.open(path);
    });
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
    const QFileInfo target(path);
    if (target.isFile() && path != saved.path && !mayReplace(dialogs_, jmenoCalcu, target.fileName()))
        refuseNotReplaced(target.fileName());
    refuseTwins(path, saved.id);
    storeAs(path);
}

void Workbooks::refuseTwins(const QString& path, int exceptId) {
    for (const OpenWorkbook& open : all())
        if (open.id != exceptId) refuseTwin(open, path);
}

void Workbooks::storeAs(const QString& path) {
    refuseToSave(path);
    explainingSave(
        path, [&] { calls_.ask(calls_.patience().file, [path](CalcEngine& calc) { calc.saveAs(path); }); });
}

void Workbooks::saveActive() {
    const OpenWorkbook saved = active();
    if (saved.path.isEmpty()) return saveUnder(places_.saveName(saved.name));
    refuseToSave(saved.path);
    explainingSave(saved.path,
                   [&] { calls_.ask(calls_.patience().file, [](CalcEngine& calc) { calc.save(); }); });
}

void Workbooks::closeActive() {
    calls_.ask(calls_.patience().file, [](CalcEngine& calc) { calc.close(); });
}

QVector<OpenWorkbook> Workbooks::all() {
    return calls_.ask([](CalcEngine& calc) { return calc.workbooks(); });
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
