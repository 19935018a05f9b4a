#include "platform/RuntimeError.h"
#include "song/embedded/Session.h"
#include "song/embedded/SheetCommands.h"

#include <QDir>
#include <QFileInfo>

namespace zvonika {

namespace {

const QString xlsEnding = QStringLiteral(".xls");

QString withEnding(const QString& name) {
    return name.endsWith(xlsEnding, Qt::CaseInsensitive) ? name : name + xlsEnding;
}

} // namespace

template <typename Save>
bool SheetCommands::saved(Save save) {
    try {
        save();
        return true;
    } catch (const RuntimeError& refusal) {
        session_.dialogs().message({jmenoTabulky, refusal.cause(), Icon::Exclamation});
        return false;
    }
}

bool SheetCommands::save() {
    Document* document = session_.active();
    if (!document) return false;
    if (document->path().isEmpty()) return saveAs();
    return saved([&] { document->save(); });
}

bool SheetCommands::saveAs() {
    Document* document = session_.active();
    if (!document) return false;
    const QString suggested = document->path().isEmpty()
                                  ? QDir(session_.folder()).filePath(withEnding(document->name()))
                                  : document->path();
    const auto chosen = session_.dialogs().saveFile(QStringLiteral("Uložit jako"),
                                                    QStringLiteral("Excel Files,*.xls"), suggested);
    if (!chosen || session_.active() != document) return false;
    return saved([&] {
        const QString path = withEnding(*chosen);
        session_.refuseTwin(QFileInfo(path).fileName(), document);
        document->saveAs(path);
    });
}

bool SheetCommands::mayClose(Document& document) {
    if (!document.isModified()) return true;
    session_.activate(document);
    const Answer answer = session_.dialogs().message(
        {jmenoTabulky, QStringLiteral("Chcete uložit změny v souboru „%1“?").arg(document.name()),
         Icon::Exclamation, Buttons::YesNoCancel});
    return answer == Answer::No || (answer == Answer::Yes && save());
}

bool SheetCommands::close() {
    Document* document = session_.active();
    if (!document) {
        session_.hideUntilNeeded();
        return true;
    }
    if (!mayClose(*document)) return false;
    session_.remove(*document); // does nothing if the program closed it while the user was asked
    if (!session_.active()) session_.hideUntilNeeded();
    return true;
}

bool SheetCommands::quit() {
    for (std::size_t i = 0; i < session_.documents().size(); ++i)
        if (!mayClose(*session_.documents()[i])) return false;
    session_.end(Session::State::QuitByUser);
    return true;
}

} // namespace zvonika
