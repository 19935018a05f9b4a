#include "spreadsheet/journal/JournalledSpreadsheet.h"

#include "platform/Log.h"
#include "spreadsheet/journal/ContentHash.h"
#include "spreadsheet/journal/ImageChanges.h"
#include "spreadsheet/journal/Restoring.h"

#include <algorithm>
#include <utility>

namespace zvonika {

JournalledSpreadsheet::JournalledSpreadsheet(std::unique_ptr<LiveSpreadsheet> live, Dialogs& dialogs,
                                             const QString& title, JournalFolder journals)
    : live_(std::move(live)), journals_(std::move(journals)), offers_(dialogs, title, journals_) {
    live_->setListener(this);
    live_->setWatcher(this);
}

JournalledSpreadsheet::~JournalledSpreadsheet() {
    live_->setListener(nullptr);
    live_->setWatcher(nullptr);
}

// --- the application ---

void JournalledSpreadsheet::setVisible(bool visible) {
    live_->setVisible(visible);
    if (visible && !std::exchange(shown_, true)) recoverUnsaved();
}

// What is not settled by then stays in its journal.
void JournalledSpreadsheet::quit() {
    endStep();
    look();
    live_->quit();
    forgetPlace();
    workbooks_.clear();
}

QString JournalledSpreadsheet::trouble() const {
    for (const auto& workbook : workbooks_)
        if (QString trouble = workbook->journal().trouble(); !trouble.isEmpty()) return trouble;
    return {};
}

// --- workbooks ---

void JournalledSpreadsheet::addWorkbook() {
    forgetPlace();
    live_->addWorkbook();
    active();
}

void JournalledSpreadsheet::openWorkbook(const QString& fullName) {
    forgetPlace();
    live_->openWorkbook(fullName);
    const bool known = find(place().workbook) != nullptr;
    RecordedWorkbook* opened = active();
    if (opened && !known) offer(*opened, opened->image().path);
}

void JournalledSpreadsheet::saveActiveWorkbookAs(const SaveAsArguments& arguments) {
    active();
    endStep();
    live_->saveActiveWorkbookAs(arguments);
    noteSave();
}

void JournalledSpreadsheet::saveActiveWorkbook() {
    active();
    endStep();
    live_->saveActiveWorkbook();
    noteSave();
}

// The save is done and cannot fail any more. A spreadsheet that goes at this moment leaves a journal of what
// is in the file, and making those changes once more changes nothing.
void JournalledSpreadsheet::noteSave() {
    try {
        forgetPlace();
        RecordedWorkbook* saved = find(place().workbook);
        if (!saved) return;
        if (auto image = live_->image(saved->id())) saved->saved(std::move(*image));
    } catch (const AutomationError& failure) {
        qCInfo(recoveryLog) << "po uložení" << failure.number();
    }
}

void JournalledSpreadsheet::closeActiveWorkbook() {
    const int closed = place().workbook;
    endStep();
    live_->closeActiveWorkbook();
    forgetPlace();
    RecordedWorkbook* workbook = find(closed);
    if (workbook && !workbook->journal().hasRecovered()) workbook->journal().giveUp();
    drop(closed);
}

// A run says for every cell which workbook it means; asking for the place each time would part its writes.
void JournalledSpreadsheet::activateWindow(const QString& name) {
    const RecordedWorkbook* here = isPlaceKnown() ? find(place_.workbook) : nullptr;
    live_->activateWindow(name);
    if (!here || here->image().name != name) forgetPlace();
}

// --- the records ---

LiveSpreadsheet::Place JournalledSpreadsheet::place() {
    if (isPlaceKnown()) return place_;
    const unsigned acts = live_->acts();
    place_ = live_->place();
    sheetName_.clear();
    placeActs_ = acts;
    placeKnown_ = true;
    return place_;
}

RecordedWorkbook* JournalledSpreadsheet::find(int workbook) {
    const auto found =
        std::ranges::find_if(workbooks_, [&](const auto& one) { return one->id() == workbook; });
    return found == workbooks_.end() ? nullptr : found->get();
}

RecordedWorkbook* JournalledSpreadsheet::active() {
    const int workbook = place().workbook;
    if (RecordedWorkbook* known = find(workbook)) return known;
    auto image = workbook == 0 ? std::nullopt : live_->image(workbook);
    return image ? record(std::move(*image)) : nullptr;
}

RecordedWorkbook* JournalledSpreadsheet::record(WorkbookImage image) {
    workbooks_.push_back(std::make_unique<RecordedWorkbook>(std::move(image), journals_));
    QObject::connect(
        &workbooks_.back()->journal(), &WorkbookJournal::troubleChanged, &later_,
        [this] {
            if (listener_) listener_->troubleChanged();
        },
        Qt::QueuedConnection);
    return workbooks_.back().get();
}

void JournalledSpreadsheet::drop(int workbook) {
    std::erase_if(workbooks_, [&](const auto& one) { return one->id() == workbook; });
}

// --- what the user does ---

void JournalledSpreadsheet::cursorMoved() {
    if (lookDue_) look();
    if (listener_) listener_->cursorMoved();
}

void JournalledSpreadsheet::cellsEdited() {
    lookDue_ = true;
    look();
    if (listener_) listener_->cellsEdited();
}

// A spreadsheet that does not answer now is asked again; one that is gone has nothing more to show.
void JournalledSpreadsheet::look() {
    if (!std::exchange(lookDue_, false)) return;
    try {
        for (const auto& workbook : workbooks_)
            if (auto image = live_->image(workbook->id())) see(*workbook, std::move(*image));
    } catch (const AutomationError& failure) {
        lookDue_ = failure.number() != error::objectNotSet;
    }
}

void JournalledSpreadsheet::see(RecordedWorkbook& workbook, WorkbookImage image) {
    const QString name = workbook.image().name, path = workbook.image().path;
    workbook.seen(std::move(image));
    const WorkbookImage& now = workbook.image();
    if (now.path != path && listener_) listener_->workbookRenamed(name, now.name, now.path);
}

void JournalledSpreadsheet::workbookSettled(int workbook) {
    forgetPlace();
    if (RecordedWorkbook* settled = find(workbook)) settled->journal().giveUp();
    drop(workbook);
}

// --- recovery ---

// Changes that have reached the file are all there already: the spreadsheet went after its save.
void JournalledSpreadsheet::offer(RecordedWorkbook& workbook, const QString& song) {
    for (auto& pending : offers_.pending(song)) {
        WorkbookImage wanted = workbook.image();
        const bool whole = replay(wanted, pending.contents.groups) == 0;
        if (whole && differences(workbook.image(), wanted).empty())
            pending.file.remove();
        else if (offers_.wanted(pending, workbook.image().name, contentHashOfFile(song)))
            restore(workbook, std::move(pending));
    }
}

void JournalledSpreadsheet::recoverUnsaved() {
    for (auto& pending : offers_.pending({})) {
        if (!offers_.wanted(pending, pending.contents.base.name, {})) continue;
        addWorkbook();
        if (RecordedWorkbook* added = active()) restore(*added, std::move(pending));
    }
}

void JournalledSpreadsheet::restore(RecordedWorkbook& workbook, PendingJournal pending) {
    WorkbookImage wanted = workbook.image();
    int refused = replay(wanted, pending.contents.groups);
    Restoring restoring(*live_);
    refused += restoring.write(workbook.image(), differences(workbook.image(), wanted));
    const auto last = lastWritten(pending.contents.groups);
    forgetPlace();
    auto image = live_->image(workbook.id());
    if (!image) return;
    if (last) restoring.showRow(*image, *last);
    workbook.restored(std::move(pending), std::move(*image));
    offers_.tellRefused(workbook.image().name, refused);
}

} // namespace zvonika
