#include "spreadsheet/embedded/EmbeddedApplication.h"

#include "spreadsheet/Refusals.h"
#include "spreadsheet/SaveOffers.h"
#include "spreadsheet/SaveSentences.h"
#include "spreadsheet/embedded/Opening.h"
#include "spreadsheet/embedded/Saving.h"

#include <QFileInfo>

#include <utility>

namespace zvonika {

EmbeddedApplication::EmbeddedApplication(Drive& drive, Dialogs& dialogs, SettingsStore& settings,
                                         JournalFolder journals, SheetViewFactory makeView)
    : places_(drive, settings), journals_(std::move(journals)), makeView_(std::move(makeView)),
      commands_(session_), session_(dialogs) {
    session_.setFolder([this] { return places_.folder(); });
}

EmbeddedApplication::~EmbeddedApplication() = default;

void EmbeddedApplication::requireRunning() const {
    if (session_.state() != Session::State::Running)
        refuse(error::objectNotSet, QStringLiteral("Tabulka už není spuštěna."));
}

Document& EmbeddedApplication::document() const {
    requireRunning();
    if (!session_.active()) refuseNoWorkbook();
    return *session_.active();
}

QString EmbeddedApplication::defaultFilePath() const {
    return places_.defaultFilePath();
}

void EmbeddedApplication::setDefaultFilePath(const QString& path) {
    places_.setDefaultFilePath(path);
}

void EmbeddedApplication::setVisible(bool visible) {
    requireRunning();
    if (visible && !session_.hasView() && makeView_) session_.setView(makeView_(commands_));
    session_.setVisible(visible);
    if (!visible || std::exchange(shown_, true)) return;
    const Session::ProgramCall call(session_);
    Opening(session_, journals_).recoverUnsaved();
}

void EmbeddedApplication::quit() {
    const Session::ProgramCall call(session_);
    endStep();
    Saving(session_).offerUnsaved();
    const Session::State before = session_.state();
    session_.end(Session::State::Ended);
    if (before == Session::State::QuitByUser)
        refuse(error::objectNotSet, QStringLiteral("Tabulka už není spuštěna."));
}

void EmbeddedApplication::setListener(SpreadsheetListener* listener) {
    session_.setListener(listener);
}

void EmbeddedApplication::showToUser() {
    requireRunning();
    session_.raise();
}

void EmbeddedApplication::addWorkbook() {
    requireRunning();
    const Session::ProgramCall call(session_);
    session_.add(std::make_unique<Document>(session_.nextName(), journals_));
}

void EmbeddedApplication::openWorkbook(const QString& fullName) {
    requireRunning();
    const Session::ProgramCall call(session_);
    const QString path = places_.nativeFile(fullName);
    if (Document* open = session_.findFile(path)) return session_.activate(*open);
    Saving(session_).makeRoom(QFileInfo(path).fileName());
    session_.add(Opening(session_, journals_).open(path));
}

std::optional<QString> EmbeddedApplication::getOpenFilename(const QString& filter, const QString& title) {
    requireRunning();
    return session_.dialogs().openFile(title, filter, session_.folder());
}

void EmbeddedApplication::saveActiveWorkbookAs(const SaveAsArguments& arguments) {
    document();
    const Session::ProgramCall call(session_);
    refuseOtherForms(arguments);
    saveUnder(places_.saveName(arguments.filename));
}

void EmbeddedApplication::saveUnder(const QString& nativePath) {
    Document& saved = document();
    if (session_.findFile(nativePath) == &saved) return saveInPlace(saved, nativePath);
    const QFileInfo target(nativePath);
    Saving saving(session_);
    saving.makeRoom(target.fileName(), &saved);
    bool replaces = false;
    session_.files().write([&] { replaces = target.isFile(); });
    if (replaces && !mayReplace(session_.dialogs(), jmenoTabulky, target.fileName()))
        refuseNotReplaced(target.fileName());
    if (!saving.mayConvert(saved)) refuse(notConverted(nativePath));
    saved.saveAs(nativePath);
}

void EmbeddedApplication::saveActiveWorkbook() {
    const Session::ProgramCall call(session_);
    Document& saved = document();
    saveUnder(saved.file().path().isEmpty() ? places_.saveName(saved.file().name()) : saved.file().path());
}

void EmbeddedApplication::saveInPlace(Document& saved, const QString& nativePath) {
    Saving saving(session_);
    if (!saving.mayConvert(saved)) refuse(notConverted(nativePath));
    if (!saving.mayOverwrite(saved)) refuse(notOverwritten(nativePath));
    saved.saveAs(nativePath);
}

void EmbeddedApplication::closeActiveWorkbook() {
    const Session::ProgramCall call(session_);
    Document& closed = document();
    endStep();
    if (!closed.journal().hasRecovered()) closed.journal().giveUp();
    session_.remove(closed);
}

bool EmbeddedApplication::activeWorkbookModified() const {
    return document().file().isModified();
}

QString EmbeddedApplication::activeWorkbookName() const {
    requireRunning();
    return session_.active() ? session_.active()->file().name() : QString();
}

void EmbeddedApplication::activateWindow(const QString& name) {
    requireRunning();
    Document* found = session_.find(name);
    if (!found) refuseUnknownWorkbook(name);
    if (found == session_.active()) return;
    const Session::ProgramCall call(session_);
    session_.activate(*found);
}

} // namespace zvonika
