#include "song/embedded/EmbeddedApplication.h"

#include "song/embedded/FileSentences.h"
#include "song/embedded/Saving.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

const QString section = QStringLiteral("Tabulka");
const QString folderKey = QStringLiteral("DefaultFilePath");
const QString documentsFolder = QStringLiteral("C:\\Dokumenty");
const QString xlsEnding = QStringLiteral(".xls");

[[noreturn]] void refuse(const QString& sentence) {
    throw AutomationError(error::applicationDefined, sentence);
}

bool hasDrive(const QString& path) {
    return path.size() >= 2 && path.at(1) == QLatin1Char(':') && path.at(0).isLetter();
}

bool isSlash(QChar c) {
    return c == QLatin1Char('/') || c == QLatin1Char('\\');
}

bool isBareName(const QString& name) {
    return !hasDrive(name) && std::none_of(name.begin(), name.end(), isSlash);
}

bool isFullName(const QString& name) {
    return hasDrive(name) || (!name.isEmpty() && isSlash(name.front()));
}

/// The one form of saving that this application knows.
void refuseOtherForms(const SaveAsArguments& arguments) {
    const SaveAsArguments known;
    if (arguments.fileFormat != known.fileFormat)
        refuse(QStringLiteral("Sešit lze uložit jen v běžném formátu .xls."));
    if (!arguments.password.isEmpty() || !arguments.writeResPassword.isEmpty())
        refuse(QStringLiteral("Sešit nelze uložit s heslem."));
    if (arguments.readOnlyRecommended || arguments.createBackup)
        refuse(QStringLiteral("Sešit nelze uložit se záložní kopií ani s doporučením jen ke čtení."));
}

} // namespace

EmbeddedApplication::EmbeddedApplication(Drive& drive, Dialogs& dialogs, SettingsStore& settings,
                                         SheetViewFactory makeView)
    : drive_(drive), settings_(settings), makeView_(std::move(makeView)),
      defaultFilePath_(settings.getOr(section, folderKey, documentsFolder)), commands_(session_),
      session_(dialogs) {
    session_.setFolder([this] { return drive_.nativePath(defaultFilePath()); });
}

EmbeddedApplication::~EmbeddedApplication() = default;

void EmbeddedApplication::requireRunning() const {
    if (session_.state() != Session::State::Running)
        throw AutomationError(error::objectNotSet, QStringLiteral("Tabulka už není spuštěna."));
}

Document& EmbeddedApplication::document() const {
    requireRunning();
    if (!session_.active())
        throw AutomationError(error::objectNotSet, QStringLiteral("V tabulce není otevřen žádný sešit."));
    return *session_.active();
}

QString EmbeddedApplication::defaultFilePath() const {
    // Looked at each time: the folder may come into being while the application runs.
    const bool lost = defaultFilePath_.isEmpty() || !drive_.folderExists(defaultFilePath_);
    return inherited_ && lost ? documentsFolder : defaultFilePath_;
}

void EmbeddedApplication::setDefaultFilePath(const QString& path) {
    defaultFilePath_ = path;
    inherited_ = false;
    settings_.save(section, folderKey, path);
}

void EmbeddedApplication::setVisible(bool visible) {
    requireRunning();
    if (visible && !session_.hasView() && makeView_) session_.setView(makeView_(commands_));
    session_.setVisible(visible);
}

void EmbeddedApplication::quit() {
    const Session::ProgramCall call(session_);
    Saving(session_).offerUnsaved();
    const Session::State before = session_.state();
    session_.end(Session::State::Ended);
    if (before == Session::State::QuitByUser)
        throw AutomationError(error::objectNotSet, QStringLiteral("Tabulka už není spuštěna."));
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
    session_.add(std::make_unique<Document>(session_.nextName()));
}

QString EmbeddedApplication::nativeFile(const QString& fullName) const {
    if (fullName.isEmpty()) refuse(QStringLiteral("Chybí jméno souboru."));
    const bool full = isFullName(fullName);
    const QString native = full ? drive_.nativePath(fullName) : session_.folder();
    if (native.isEmpty()) refuse(driveMissing(full ? fullName : defaultFilePath()));
    return full ? native : native + QLatin1Char('/') + fullName;
}

void EmbeddedApplication::openWorkbook(const QString& fullName) {
    requireRunning();
    const Session::ProgramCall call(session_);
    const QString path = nativeFile(fullName);
    session_.refuseTwin(QFileInfo(path).fileName());
    session_.add(Document::open(path));
}

std::optional<QString> EmbeddedApplication::getOpenFilename(const QString& filter, const QString& title) {
    requireRunning();
    return session_.dialogs().openFile(title, filter, session_.folder());
}

QString EmbeddedApplication::saveName(const QString& filename) const {
    const bool complete =
        !isBareName(filename) || filename.isEmpty() || filename.endsWith(xlsEnding, Qt::CaseInsensitive);
    return nativeFile(complete ? filename : filename + xlsEnding);
}

void EmbeddedApplication::saveActiveWorkbookAs(const SaveAsArguments& arguments) {
    document();
    const Session::ProgramCall call(session_);
    refuseOtherForms(arguments);
    saveUnder(saveName(arguments.filename));
}

void EmbeddedApplication::saveUnder(const QString& nativePath) {
    Document& saved = document();
    const QFileInfo target(nativePath);
    session_.refuseTwin(target.fileName(), &saved);
    if (target.isFile() && nativePath != saved.path() && !mayReplace(target.fileName()))
        refuse(QStringLiteral("Soubor „%1“ zůstal, jaký byl; sešit uložen není.").arg(target.fileName()));
    saved.saveAs(nativePath);
}

bool EmbeddedApplication::mayReplace(const QString& name) {
    const Answer answer = session_.dialogs().message(
        {jmenoTabulky, QStringLiteral("Soubor „%1“ už existuje. Chcete ho nahradit?").arg(name),
         Icon::Exclamation, Buttons::YesNo, Answer::No});
    return answer == Answer::Yes;
}

void EmbeddedApplication::saveActiveWorkbook() {
    const Session::ProgramCall call(session_);
    Document& saved = document();
    if (saved.path().isEmpty())
        saveUnder(saveName(saved.name()));
    else
        saved.save();
}

void EmbeddedApplication::closeActiveWorkbook() {
    const Session::ProgramCall call(session_);
    session_.remove(document());
}

QString EmbeddedApplication::activeWorkbookName() const {
    requireRunning();
    return session_.active() ? session_.active()->name() : QString();
}

void EmbeddedApplication::activateWindow(const QString& name) {
    requireRunning();
    Document* found = session_.find(name);
    if (!found)
        throw AutomationError(error::subscriptOutOfRange,
                              QStringLiteral("Sešit „%1“ není otevřen.").arg(name));
    if (found == session_.active()) return;
    const Session::ProgramCall call(session_);
    session_.activate(*found);
}

} // namespace zvonika
