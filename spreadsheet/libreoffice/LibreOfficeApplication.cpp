#include "spreadsheet/libreoffice/LibreOfficeApplication.h"

#include "spreadsheet/libreoffice/FileObstacles.h"
#include "spreadsheet/libreoffice/Plugin.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QScopeGuard>

#include <algorithm>
#include <utility>

namespace zvonika {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds endTakes{8000}; ///< from the request to the end of the process
const QString xlsEnding = QStringLiteral(".xls");

[[noreturn]] void refuse(const QString& sentence) {
    throw AutomationError(error::applicationDefined, sentence);
}

[[noreturn]] void gone() {
    throw AutomationError(error::objectNotSet, QStringLiteral("LibreOffice Calc už není spuštěn."));
}

QString freshPipe() {
    return QStringLiteral("zvonika-%1-%2")
        .arg(QCoreApplication::applicationPid())
        .arg(QRandomGenerator::global()->generate64(), 16, 16, QLatin1Char('0'));
}

bool sameName(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace

LibreOfficeApplication::LibreOfficeApplication(const LibreOfficeSurroundings& surroundings)
    : surroundings_(surroundings), places_(surroundings.drive, surroundings.settings),
      calls_({[this] {
                  felt_ = true;
                  if (surroundings_.sign) surroundings_.sign();
              },
              [this] { return wantsToWait(); }, [this] { process_->end(); }}) {
    if (!surroundings_.installation.usable())
        throw AutomationError(error::cannotCreateObject, surroundings_.installation.missing);
    untilShown_.setSingleShot(true);
    QObject::connect(&untilShown_, &QTimer::timeout, [this] {
        if (calls_.busy()) return untilShown_.start();
        try {
            showCursor();
        } catch (const AutomationError&) { // the next call tells
        }
    });
    start();
}

void LibreOfficeApplication::start() {
    const QString pipe = freshPipe();
    {
        const Profile profile(surroundings_.profiles);
        profile.seed({places_.folder(), surroundings_.window, surroundings_.installation.version});
        process_ = std::make_shared<OfficeProcess>(surroundings_.installation, profile, pipe);
    }
    notices_ = std::make_shared<UserNotices>(
        [this] { deliverNotices(); },
        [process = process_](const QString& path) { process->tellDocument(path); });
    connectTo(pipe);
    process_->tellStarted();
    calcFolder_ = ask([](CalcEngine& calc) { return calc.folder(); });
}

void LibreOfficeApplication::connectTo(const QString& pipe) {
    const ConnectToCalc connect = loadCalcPlugin(surroundings_.installation);
    const CalcAddress address{surroundings_.installation.program, pipe,
                              [process = process_] { return process->running(); }};
    auto engine = std::make_shared<std::shared_ptr<CalcEngine>>();
    try {
        carryOut(surroundings_.patience.start, [connect, address, engine, notices = notices_] {
            *engine = std::shared_ptr<CalcEngine>(connect(address, *notices),
                                                  [notices](CalcEngine* ended) { delete ended; });
        });
    } catch (const AutomationError& failure) {
        throw AutomationError(error::cannotCreateObject, failure.cause());
    }
    engine_ = *engine;
    if (!engine_)
        throw AutomationError(error::cannotCreateObject,
                              QStringLiteral("LibreOffice Calc se po spuštění hned ukončil."));
}

void LibreOfficeApplication::carryOut(milliseconds patience, const std::function<void()>& calls) const {
    const auto over = qScopeGuard([this] {
        if (std::exchange(felt_, false) && surroundings_.signOver) surroundings_.signOver();
    });
    calls_.run(patience, calls);
}

LibreOfficeApplication::~LibreOfficeApplication() {
    notices_->stop();
    endCalc();
}

bool LibreOfficeApplication::alive() const {
    return engine_ && engine_->connected() && process_->running();
}

void LibreOfficeApplication::requireRunning() const {
    if (state_ == State::Ended || !alive()) gone();
}

bool LibreOfficeApplication::wantsToWait() const {
    const Answer answer = surroundings_.dialogs.message(
        {jmenoCalcu,
         QStringLiteral("LibreOffice Calc neodpovídá.\nChcete na něj ještě počkat?\n\n"
                        "Ne: Calc bude ukončen a změny, které v něm nejsou uloženy, se ztratí."),
         Icon::Exclamation, Buttons::YesNo, Answer::Yes});
    return answer == Answer::Yes;
}

// The listener may do anything, so each call asks for it anew.
void LibreOfficeApplication::deliverNotices() {
    if (calls_.busy()) return; // the end of that call has it delivered again
    const auto acts = notices_->take();
    if (acts.edited && listener_) listener_->cellsEdited();
    if (acts.moved && listener_) listener_->cursorMoved();
}

QString LibreOfficeApplication::defaultFilePath() const {
    if (state_ == State::Running && alive()) keepFolder();
    return places_.defaultFilePath();
}

// The user may have chosen another folder in Calc's own options.
void LibreOfficeApplication::keepFolder() const {
    const QString now = ask([](CalcEngine& calc) { return calc.folder(); });
    if (now == calcFolder_) return;
    calcFolder_ = now;
    places_.setDefaultFilePath(now);
}

void LibreOfficeApplication::setDefaultFilePath(const QString& path) {
    places_.setDefaultFilePath(path);
    const QString native = places_.folder();
    if (state_ == State::Ended || !alive() || native.isEmpty()) return;
    calcFolder_ = ask([native](CalcEngine& calc) {
        calc.setFolder(native);
        return calc.folder();
    });
}

void LibreOfficeApplication::setVisible(bool visible) {
    ask([visible](CalcEngine& calc) { calc.setVisible(visible); });
}

void LibreOfficeApplication::showToUser() {
    requireRunning();
    if (activeWorkbookName().isEmpty()) return;
    ask([](CalcEngine& calc) { calc.toFront(); });
}

void LibreOfficeApplication::quit() {
    if (state_ == State::Ended) return;
    if (!alive()) {
        endCalc();
        gone();
    }
    keepFolder();
    offerUnsaved();
    endCalc();
}

void LibreOfficeApplication::endCalc() {
    if (state_ == State::Ended) return;
    try {
        const bool ended =
            alive() && ask(surroundings_.patience.file, [](CalcEngine& calc) { return calc.quit(); });
        if (ended) process_->waitForEnd(endTakes);
    } catch (const AutomationError&) { // it has gone in between
    }
    state_ = State::Ended;
    process_->end();
    carryOut(surroundings_.patience.cell, [engine = std::exchange(engine_, nullptr)] {});
}

void LibreOfficeApplication::addWorkbook() {
    ask(surroundings_.patience.file, [](CalcEngine& calc) { calc.add(); });
}

void LibreOfficeApplication::openWorkbook(const QString& fullName) {
    requireRunning();
    const QString path = places_.nativeFile(fullName);
    refuseMissing(path);
    ask(surroundings_.patience.file, [path](CalcEngine& calc) {
        for (const OpenWorkbook& open : calc.workbooks())
            refuseTwin(open, path);
        calc.open(path);
    });
}

std::optional<QString> LibreOfficeApplication::getOpenFilename(const QString& filter, const QString& title) {
    requireRunning();
    return surroundings_.dialogs.openFile(title, filter, places_.folder());
}

OpenWorkbook LibreOfficeApplication::active() const {
    const OpenWorkbook workbook = askAside([](CalcEngine& calc) { return calc.active(); });
    if (workbook.id == 0)
        throw AutomationError(error::objectNotSet, QStringLiteral("V tabulce není otevřen žádný sešit."));
    return workbook;
}

void LibreOfficeApplication::saveActiveWorkbookAs(const SaveAsArguments& arguments) {
    active();
    refuseOtherForms(arguments);
    saveUnder(places_.saveName(arguments.filename));
}

void LibreOfficeApplication::saveUnder(const QString& path) {
    const OpenWorkbook saved = active();
    refuseToSave(path);
    const QFileInfo target(path);
    if (target.isFile() && path != saved.path && !mayReplace(target.fileName()))
        refuse(QStringLiteral("Soubor „%1“ zůstal, jaký byl; sešit uložen není.").arg(target.fileName()));
    explainingSave(path, [&] {
        ask(surroundings_.patience.file, [path, id = saved.id](CalcEngine& calc) {
            for (const OpenWorkbook& open : calc.workbooks())
                if (open.id != id) refuseTwin(open, path);
            calc.saveAs(path);
        });
    });
}

bool LibreOfficeApplication::mayReplace(const QString& name) {
    const Answer answer = surroundings_.dialogs.message(
        {jmenoCalcu, QStringLiteral("Soubor „%1“ už existuje. Chcete ho nahradit?").arg(name),
         Icon::Exclamation, Buttons::YesNo, Answer::No});
    return answer == Answer::Yes;
}

void LibreOfficeApplication::saveActiveWorkbook() {
    const OpenWorkbook saved = active();
    if (saved.path.isEmpty()) return saveUnder(places_.saveName(saved.name));
    refuseToSave(saved.path);
    explainingSave(saved.path,
                   [&] { ask(surroundings_.patience.file, [](CalcEngine& calc) { calc.save(); }); });
}

void LibreOfficeApplication::closeActiveWorkbook() {
    ask(surroundings_.patience.file, [](CalcEngine& calc) { calc.close(); });
}

QString LibreOfficeApplication::activeWorkbookName() const {
    return askAside([](CalcEngine& calc) { return calc.active(); }).name;
}

void LibreOfficeApplication::activateWindow(const QString& name) {
    requireRunning();
    const unsigned acts = notices_->acts();
    if (seen_.isActive(name, acts)) return;
    const auto isActive = [name](CalcEngine& calc) {
        const OpenWorkbook active = calc.active();
        return active.id != 0 && sameName(active.name, name);
    };
    if (askAside(isActive)) return seen_.learnActive(name, acts);
    const bool found = ask([name](CalcEngine& calc) {
        const auto open = calc.workbooks();
        const auto wanted = std::find_if(open.begin(), open.end(),
                                         [&](const OpenWorkbook& one) { return sameName(one.name, name); });
        if (wanted != open.end()) calc.activate(wanted->id);
        return wanted != open.end();
    });
    if (!found)
        throw AutomationError(error::subscriptOutOfRange,
                              QStringLiteral("Sešit „%1“ není otevřen.").arg(name));
}

void LibreOfficeApplication::offerUnsaved() {
    const auto open = ask([](CalcEngine& calc) { return calc.workbooks(); });
    for (const OpenWorkbook& workbook : open) {
        if (!workbook.modified || !wantsToSave(workbook)) continue;
        bool done = trySaving(workbook);
        while (!done)
            done = trySavingElsewhere(workbook);
    }
}

bool LibreOfficeApplication::wantsToSave(const OpenWorkbook& workbook) {
    const Answer answer = surroundings_.dialogs.message(
        {jmenoCalcu, QStringLiteral("Sešit „%1“ má neuložené změny. Chcete ho uložit?").arg(workbook.name),
         Icon::Exclamation, Buttons::YesNo});
    return answer == Answer::Yes;
}

// False when it was refused, which has been told.
bool LibreOfficeApplication::trySaving(const OpenWorkbook& workbook) {
    if (workbook.path.isEmpty()) return trySavingElsewhere(workbook);
    try {
        ask([id = workbook.id](CalcEngine& calc) { calc.activate(id); });
        saveActiveWorkbook();
        return true;
    } catch (const AutomationError& refusal) {
        surroundings_.dialogs.message({jmenoCalcu, refusal.cause(), Icon::Exclamation});
        return !alive();
    }
}

bool LibreOfficeApplication::trySavingElsewhere(const OpenWorkbook& workbook) {
    const QString suggested = workbook.path.isEmpty()
                                  ? places_.folder() + QLatin1Char('/') + workbook.name + xlsEnding
                                  : workbook.path;
    const auto chosen = surroundings_.dialogs.saveFile(QStringLiteral("Uložit jako"),
                                                       QStringLiteral("Excel Files,*.xls"), suggested);
    if (!chosen) return true; // given up
    try {
        ask([id = workbook.id](CalcEngine& calc) { calc.activate(id); });
        const QString path = chosen->endsWith(xlsEnding, Qt::CaseInsensitive) ? *chosen : *chosen + xlsEnding;
        refuseToSave(path);
        explainingSave(
            path, [&] { ask(surroundings_.patience.file, [path](CalcEngine& calc) { calc.saveAs(path); }); });
        return true;
    } catch (const AutomationError& refusal) {
        surroundings_.dialogs.message({jmenoCalcu, refusal.cause(), Icon::Exclamation});
        return !alive();
    }
}

} // namespace zvonika
