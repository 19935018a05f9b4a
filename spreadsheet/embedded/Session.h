#pragma once

#include "platform/Dialogs.h"
#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/embedded/SheetView.h"
#include "spreadsheet/embedded/SlowFiles.h"

#include <functional>
#include <memory>
#include <vector>

namespace zvonika {

class SpreadsheetListener;
class StepKeeper;

/// What the built-in application calls itself in its own boxes.
inline const QString jmenoTabulky = QStringLiteral("Tabulka Zvoniky");

/// The running built-in application: its open workbooks, the active one, its window. Shared by the program's
/// side (EmbeddedApplication) and the user's side (SheetCommands).
class Session {
public:
    enum class State { Running, QuitByUser, Ended };

    explicit Session(Dialogs& dialogs) : dialogs_(dialogs), files_(dialogs) {}

    // --- workbooks ---
    Document* active() const { return active_; } ///< nullptr without a workbook
    Document* find(const QString& name) const; ///< by file name, case does not matter; nullptr when not open
    Document* findFile(const QString& nativePath) const; ///< opened from there; nullptr when not open
    const std::vector<std::unique_ptr<Document>>& documents() const { return documents_; }
    bool isOpen(const Document& document) const;
    /// Name of the next new workbook: "Sešit1", "Sešit2" ...
    QString nextName();
    /// Takes the workbook over and makes it the active one.
    Document& add(std::unique_ptr<Document> document);
    void activate(Document& document);
    /// The workbook opened last of the remaining ones becomes the active one.
    void remove(Document& document);
    /// 1004 when another workbook of that file name is open.
    void refuseTwin(const QString& name, const Document* self = nullptr) const;

    // --- the application ---
    /// Native folder for workbooks that were not given any; where file choices start.
    QString folder() const { return folder_ ? folder_() : QString(); }
    void setFolder(std::function<QString()> native) { folder_ = std::move(native); }
    State state() const { return state_; }
    /// Drops every workbook, saved or not, without asking and hides the window. The journals of changes that
    /// were not given up stay.
    void end(State state);

    /// Why changes of an open workbook are not in its journal; "" when all are.
    QString trouble() const;

    // --- the window ---
    void setView(std::unique_ptr<SheetView> view);
    bool hasView() const { return view_ != nullptr; }
    void setVisible(bool visible);
    /// To the front, also the empty window that was hidden with its last workbook.
    void raise();
    bool userIsTyping() const { return view_ && view_->isTyping(); }
    /// Hides the window until a workbook is shown again or the user is sent to it.
    void hideUntilNeeded();

    // --- others ---
    Dialogs& dialogs() const { return dialogs_; }
    SlowFiles& files() { return files_; }
    void setListener(SpreadsheetListener* listener) { listener_ = listener; }
    /// Tells the listener what the user has done: at once, or after the program's call if one is under way.
    void report(bool edited, bool moved);
    /// ... that he has given a workbook of this name another one, or another folder.
    void reportRenamed(const QString& before, const DocumentFile& file);
    void setStepKeeper(StepKeeper* keeper);
    /// Who takes back what is done in this workbook; nullptr: its own history.
    StepKeeper* keeperOf(const Document& document) const;
    void stepsChanged(); ///< of the keeper
    bool inProgramCall() const { return programCalls_ > 0; }

    /// A call of the program that leaves what is shown, writes to it or reads all of it: begins by taking
    /// what the user is just typing. The listener hears of that when the call is over.
    class ProgramCall {
    public:
        explicit ProgramCall(Session& session);
        ~ProgramCall();
        ProgramCall(const ProgramCall&) = delete;
        ProgramCall& operator=(const ProgramCall&) = delete;

    private:
        Session& session_;
    };

private:
    void showActive();
    void tellOwed();

    Dialogs& dialogs_;
    SlowFiles files_;
    SpreadsheetListener* listener_ = nullptr;
    StepKeeper* keeper_ = nullptr;
    int programCalls_ = 0;
    bool owesEdited_ = false; ///< the listener is still to be told
    bool owesMoved_ = false;
    QObject later_; ///< with it goes what is still to be told
    std::vector<std::unique_ptr<Document>> documents_;
    Document* active_ = nullptr;
    State state_ = State::Running;
    std::function<QString()> folder_;
    int named_ = 0; ///< new workbooks named so far
    bool visible_ = false;
    std::unique_ptr<SheetView> view_; ///< last, so that it goes before what it shows
};

} // namespace zvonika
