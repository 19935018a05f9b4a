#include "spreadsheet/embedded/Saving.h"
#include "spreadsheet/embedded/Session.h"
#include "spreadsheet/embedded/SheetCommands.h"

namespace zvonika {

bool SheetCommands::save() {
    Document* document = session_.active();
    return document && Saving(session_).save(*document);
}

bool SheetCommands::saveAs() {
    Document* document = session_.active();
    return document && Saving(session_).saveAs(*document);
}

bool SheetCommands::mayClose(Document& document, std::vector<Document*>& unwanted) {
    if (!document.isModified()) return true;
    session_.activate(document);
    const Answer answer = session_.dialogs().message(
        {jmenoTabulky, QStringLiteral("Chcete uložit změny v souboru „%1“?").arg(document.name()),
         Icon::Exclamation, Buttons::YesNoCancel});
    if (answer == Answer::Yes) return save();
    if (answer == Answer::No) unwanted.push_back(&document);
    return answer == Answer::No;
}

// Not before everything may close: who changes his mind keeps all changes.
void SheetCommands::giveUp(const std::vector<Document*>& unwanted) {
    for (Document* document : unwanted)
        if (session_.isOpen(*document)) document->giveUpChanges();
}

bool SheetCommands::close() {
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

bool SheetCommands::quit() {
    std::vector<Document*> unwanted;
    for (std::size_t i = 0; i < session_.documents().size(); ++i)
        if (!mayClose(*session_.documents()[i], unwanted)) return false;
    giveUp(unwanted);
    session_.end(Session::State::QuitByUser);
    return true;
}

} // namespace zvonika
