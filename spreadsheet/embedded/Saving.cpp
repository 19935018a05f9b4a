#include "spreadsheet/embedded/Saving.h"

#include "spreadsheet/SaveOffers.h"
#include "spreadsheet/SaveSentences.h"
#include "spreadsheet/embedded/Failures.h"
#include "spreadsheet/embedded/Session.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

QString suggestedName(const Session& session, const Document& document) {
    return document.file().path().isEmpty()
               ? QDir(session.folder()).filePath(withXlsEnding(document.file().name()))
               : document.file().path();
}

} // namespace

bool Saving::save(Document& document) {
    return store(document) == Outcome::Saved;
}

bool Saving::saveAs(Document& document) {
    return storeElsewhere(document) == Outcome::Saved;
}

bool Saving::agreed(const QString& question, Answer proposed) {
    return session_.dialogs().message(
               {jmenoTabulky, question, Icon::Exclamation, Buttons::YesNo, proposed}) == Answer::Yes;
}

bool Saving::mayConvert(Document& document) {
    if (!document.file().isOldFormat() || !document.file().isModified()) return true;
    return agreed(conversionQuestion(document.file().name()), Answer::Yes) && session_.isOpen(document);
}

bool Saving::mayOverwrite(Document& document) {
    if (!document.file().isChangedOnDisk()) return true;
    return zvonika::mayOverwrite(session_.dialogs(), jmenoTabulky, document.file().path()) &&
           session_.isOpen(document);
}

void Saving::makeRoom(const QString& name, const Document* self) {
    Document* twin = session_.find(name);
    if (!twin || twin == self) return;
    Document* before = session_.active();
    session_.activate(*twin); // the user sees which one it is about
    if (agreed(twinQuestion(twin->file().name(), twin->file().isModified()), Answer::Yes)) putAway(*twin);
    if (before && session_.isOpen(*before)) session_.activate(*before);
    session_.refuseTwin(name, self);
}

void Saving::putAway(Document& document) {
    if (session_.isOpen(document) && document.file().isModified()) storeElsewhere(document);
    if (session_.isOpen(document) && !document.file().isModified()) session_.remove(document);
}

Saving::Outcome Saving::store(Document& document) {
    if (document.file().path().isEmpty()) return storeElsewhere(document);
    if (!mayConvert(document) || !mayOverwrite(document)) return Outcome::Refused;
    return attempt([&] { document.save(); });
}

Saving::Outcome Saving::storeElsewhere(Document& document) {
    const auto chosen = askSaveName(session_.dialogs(), suggestedName(session_, document));
    if (!chosen || !session_.isOpen(document) || !mayConvert(document)) return Outcome::GivenUp;
    return attempt([&] {
        session_.refuseTwin(QFileInfo(*chosen).fileName(), &document);
        document.saveAs(*chosen);
    });
}

Saving::Outcome Saving::attempt(const std::function<void()>& store) {
    return runForUser(session_.dialogs(), store) ? Outcome::Saved : Outcome::Refused;
}

// Boxes let other things happen, so the list is not walked while they are up.
void Saving::offerUnsaved() {
    std::vector<Document*> open;
    for (const auto& document : session_.documents())
        open.push_back(document.get());
    for (Document* document : open) {
        if (!session_.isOpen(*document) || !document->file().isModified() || !wanted(*document)) continue;
        Outcome outcome = store(*document);
        while (outcome == Outcome::Refused && session_.isOpen(*document))
            outcome = storeElsewhere(*document);
    }
}

bool Saving::wanted(Document& document) {
    session_.activate(document);
    const bool save = wantsToSave(session_.dialogs(), jmenoTabulky, document.file().name());
    if (!session_.isOpen(document)) return false;
    if (!save) document.journal().giveUp();
    return save;
}

} // namespace zvonika
