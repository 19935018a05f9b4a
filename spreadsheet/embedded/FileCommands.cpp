#include "spreadsheet/embedded/FileCommands.h"

#include "platform/ShownText.h"
#include "spreadsheet/embedded/Saving.h"
#include "spreadsheet/embedded/Session.h"

namespace zvonika {

bool FileCommands::save() {
    return store(&Saving::save);
}

bool FileCommands::saveAs() {
    return store(&Saving::saveAs);
}

bool FileCommands::store(bool (Saving::*how)(Document& document)) {
    Document* document = session_.active();
    if (!document) return false;
    const QString name = document->file().name(), path = document->file().path();
    Saving saving(session_);
    if (!(saving.*how)(*document)) return false;
    if (session_.isOpen(*document) && document->file().path() != path)
        session_.reportRenamed(name, document->file());
    return true;
}

bool FileCommands::mayClose(Document& document, std::vector<Document*>& unwanted) {
    if (!document.file().isModified()) return true;
    session_.activate(document);
    const Answer answer = session_.dialogs().message(
        {jmenoTabulky,
         QStringLiteral("Chcete uložit změny v souboru „%1“?").arg(shownName(document.file().name())),
         Icon::Exclamation, Buttons::YesNoCancel});
    if (answer == Answer::Yes) return save();
    if (answer == Answer::No) unwanted.push_back(&document);
    return answer == Answer::No;
}

// Not before everything may close: who changes his mind keeps all changes.
void FileCommands::giveUp(const std::vector<Document*>& unwanted) {
    for (Document* document : unwanted)
        if (session_.isOpen(*document)) document->journal().giveUp();
}

bool FileCommands::close() {
    Document* document = session_.active();
    if (!document) {
        session_.hideUntilNeeded();
        return true;
    }
    std::vector<Document*> unwanted;
    if (!mayClose(*document, unwanted)) return false;
    giveUp(unwanted);
    session_.remove(*document); // does nothing if the program closed it while the user was asked
    if (!session_.active()) session_.hideUntilNeeded();
    return true;
}

bool FileCommands::quit() {
    std::vector<Document*> unwanted;
    for (std::size_t i = 0; i < session_.documents().size(); ++i)
        if (!mayClose(*session_.documents()[i], unwanted)) return false;
    giveUp(unwanted);
    session_.end(Session::State::QuitByUser);
    return true;
}

} // namespace zvonika
