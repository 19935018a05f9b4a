#pragma once

#include "platform/Dialogs.h"
#include "song/embedded/Document.h"
#include "song/embedded/SheetView.h"

#include <memory>
#include <vector>

namespace zvonika {

class SpreadsheetListener;

/// What the built-in application calls itself in its own boxes.
inline const QString jmenoTabulky = QStringLiteral("Tabulka Zvoniky");

/// The running built-in application: its open workbooks, the active one, its window. Shared by the program's
/// side (EmbeddedApplication) and the user's side (SheetCommands).
class Session {
public:
    enum class State { Running, QuitByUser, Ended };

    explicit Session(Dialogs& dialogs) : dialogs_(dialogs) {}

    // --- workbooks ---
    Document* active() const { return active_; } ///< nullptr without a workbook
    Document* find(const QString& name) const; ///< by file name, case does not matter; nullptr when not open
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
    const QString& folder() const { return folder_; }
    void setFolder(const QString& native) { folder_ = native; }
    State state() const { return state_; }
    /// Drops every workbook, saved or not, without asking and hides the window.
    void end(State state);

    // --- the window ---
    void setView(std::unique_ptr<SheetView> view);
    bool hasView() const { return view_ != nullptr; }
    void setVisible(bool visible);
    void raise();
    /// Hides the window until a workbook is shown again.
    void hideUntilNeeded();

    // --- others ---
    Dialogs& dialogs() const { return dialogs_; }
    SpreadsheetListener* listener() const { return listener_; }
    void setListener(SpreadsheetListener* listener) { listener_ = listener; }

private:
    void showActive();

    Dialogs& dialogs_;
    SpreadsheetListener* listener_ = nullptr;
    std::vector<std::unique_ptr<Document>> documents_;
    Document* active_ = nullptr;
    State state_ = State::Running;
    QString folder_;
    int named_ = 0; ///< new workbooks named so far
    bool visible_ = false;
    std::unique_ptr<SheetView> view_; ///< last, so that it goes before what it shows
};

} // namespace zvonika
