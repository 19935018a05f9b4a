#include "spreadsheet/embedded/Session.h"

#include "platform/ShownText.h"
#include "spreadsheet/Refusals.h"
#include "spreadsheet/SpreadsheetApplication.h"
#include "spreadsheet/StepKeeper.h"

#include <algorithm>
#include <utility>

namespace zvonika {

Document* Session::find(const QString& name) const {
    const auto same = [&](const auto& document) {
        return document->file().name().compare(name, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::ranges::find_if(documents_, same);
    return found == documents_.end() ? nullptr : found->get();
}

bool Session::isOpen(const Document& document) const {
    return std::ranges::any_of(documents_, [&](const auto& open) { return open.get() == &document; });
}

Document* Session::findFile(const QString& nativePath) const {
    const auto same = [&](const auto& document) { return document->file().isAt(nativePath); };
    const auto found = std::ranges::find_if(documents_, same);
    return found == documents_.end() ? nullptr : found->get();
}

QString Session::nextName() {
    QString name;
    do {
        name = QStringLiteral("Sešit%1").arg(++named_);
    } while (find(name)); // one that a crash has left, for instance
    return name;
}

// Queued: a change that cannot be recorded may be made within a call of the program.
Document& Session::add(std::unique_ptr<Document> document) {
    QObject::connect(
        document.get(), &Document::journalTroubleChanged, &later_,
        [this] {
            if (listener_) listener_->troubleChanged();
        },
        Qt::QueuedConnection);
    document->setFileWork([this](const std::function<void()>& work) { files_.write(work); });
    documents_.push_back(std::move(document));
    activate(*documents_.back());
    return *active_;
}

void Session::activate(Document& document) {
    active_ = &document;
    showActive();
}

void Session::remove(Document& document) {
    const auto found =
        std::ranges::find_if(documents_, [&](const auto& open) { return open.get() == &document; });
    if (found == documents_.end()) return;
    const auto gone = std::move(*found); // lives until the window shows another one
    documents_.erase(found);
    active_ = documents_.empty() ? nullptr : documents_.back().get();
    showActive();
    gone->unlockFile();
}

void Session::refuseTwin(const QString& name, const Document* self) const {
    const Document* open = find(name);
    if (open && open != self) zvonika::refuseTwin(open->file().name());
}

QString Session::trouble() const {
    for (const auto& document : documents_)
        if (QString trouble = document->journal().trouble(); !trouble.isEmpty()) return trouble;
    return {};
}

void Session::end(State state) {
    state_ = state;
    active_ = nullptr;
    visible_ = false;
    if (view_) {
        view_->setDocument(nullptr);
        view_->setVisible(false);
    }
    documents_.clear();
}

// The listener may do anything, so each call asks for it anew.
void Session::reportRenamed(const QString& before, const DocumentFile& file) {
    if (listener_) listener_->workbookRenamed(before, file.name(), file.path());
}

void Session::report(bool edited, bool moved) {
    owesEdited_ |= edited;
    owesMoved_ |= moved;
    if (programCalls_ > 0) return;
    if (std::exchange(owesEdited_, false) && listener_) listener_->cellsEdited();
    if (std::exchange(owesMoved_, false) && listener_) listener_->cursorMoved();
}

void Session::setStepKeeper(StepKeeper* keeper) {
    keeper_ = keeper;
    stepsChanged();
}

StepKeeper* Session::keeperOf(const Document& document) const {
    return keeper_ && keeper_->keeps(document.file().name()) ? keeper_ : nullptr;
}

void Session::stepsChanged() {
    if (active_) Q_EMIT active_->historyChanged();
}

// By the event loop and not here, where the program is still in its own step. A box may run that loop within
// another call of the program; then the end of that call comes here again.
void Session::tellOwed() {
    if (!owesEdited_ && !owesMoved_) return;
    QMetaObject::invokeMethod(
        &later_, [this] { report(false, false); }, Qt::QueuedConnection);
}

Session::ProgramCall::ProgramCall(Session& session) : session_(session) {
    ++session_.programCalls_;
    if (session_.view_ && session_.programCalls_ == 1) session_.view_->commitPending();
}

Session::ProgramCall::~ProgramCall() {
    if (--session_.programCalls_ == 0) session_.tellOwed();
}

void Session::setView(std::unique_ptr<SheetView> view) {
    view_ = std::move(view);
    if (view_) view_->setDocument(active_);
}

void Session::setVisible(bool visible) {
    visible_ = visible;
    if (view_) view_->setVisible(visible);
}

void Session::raise() {
    if (view_ && visible_) view_->raise();
}

void Session::hideUntilNeeded() {
    if (view_) view_->setVisible(false);
}

void Session::showActive() {
    if (!view_) return;
    view_->setDocument(active_);
    if (active_ && visible_) view_->setVisible(true);
}

} // namespace zvonika
