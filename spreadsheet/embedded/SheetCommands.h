#pragma once

#include "spreadsheet/CellValue.h"
#include "spreadsheet/embedded/Document.h"
#include "spreadsheet/embedded/FileCommands.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace zvonika {

class Session;
class StepKeeper;

/// What the user does in the sheet window, each method one action on the active document (without one,
/// nothing happens). Tells the program's listener; refusals and failures of every kind are shown in a box,
/// nothing is thrown. The window calls these only for the user's own actions, never while it follows a signal
/// of the document.
class SheetCommands {
public:
    explicit SheetCommands(Session& session) : session_(session), files_(session) {}

    FileCommands& files() { return files_; }
    Document* document() const;
    QStringList documentNames() const; ///< all open workbooks, in the order of opening
    void showDocument(const QString& name);

    // --- cursor ---
    void select(const CellRange& range, CellPosition active);
    void selectSheet(int sheet); ///< from 1

    // --- cells ---
    /// Enters what was typed: "3,5", "3.5" and "15" are numbers, "'15" is the text "15", everything else is
    /// text. Text that is what `SheetCells::editText` gave changes nothing.
    void type(CellPosition cell, const QString& text);
    void clear(); ///< empties the selection
    /// The selection as lines of tabbed text, for the clipboard.
    QString copy();
    QString cut();
    /// Puts tabbed text at the selection; a single value fills the selection. What was last copied here keeps
    /// its types. Selects what was pasted.
    void paste(const QString& tabbedText);
    void insertRow(); ///< above the active cell
    void deleteRow(); ///< of the active cell
    /// The last step of the workbook's own history, or of who keeps its steps.
    void undo();
    void redo();
    QString undoLabel() const; ///< "" when there is nothing to take back
    QString redoLabel() const;

    void renameSheet(int sheet, const QString& name);
    /// Not reported to the program.
    void setColumnWidth(int column, double characters);

private:
    /// Where the cursor stands.
    struct Place {
        const Document* document = nullptr;
        int sheet = 0;
        CellPosition cell;
        friend bool operator==(const Place&, const Place&) = default;
    };

    template <typename Action>
    bool attempt(Action action);
    template <typename Action>
    bool keepSteps(Document& document, Action action);
    Place place() const;
    StepKeeper* keeper() const; ///< of the active document; nullptr: its own history
    void exchangeKept(const std::function<void()>& exchange);

    Session& session_;
    FileCommands files_;
    QString copiedText_; ///< as it went to the clipboard
    CellBlock copied_;
};

} // namespace zvonika
