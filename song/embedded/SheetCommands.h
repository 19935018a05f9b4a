#pragma once

#include "song/CellValue.h"
#include "song/embedded/Document.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace zvonika {

class Session;

/// What the user does in the sheet window, each method one action on the active document (without one,
/// nothing happens). Tells the program's listener; refusals are shown in a box, nothing is thrown. The window
/// calls these only for the user's own actions, never while it follows a signal of the document.
class SheetCommands {
public:
    explicit SheetCommands(Session& session) : session_(session) {}

    Document* document() const;
    QStringList documentNames() const; ///< all open workbooks, in the order of opening
    void showDocument(const QString& name);

    // --- cursor ---
    void select(const CellRange& range, CellPosition active);
    void selectSheet(int sheet); ///< from 1

    // --- cells ---
    /// Enters what was typed: "3,5", "3.5" and "15" are numbers, "'15" is the text "15", everything else is
    /// text. Text that is what `Document::editText` gave changes nothing.
    void type(CellPosition cell, const QString& text);
    void clear(); ///< empties the selection
    /// The selection as texts, row by row, for the clipboard; `cut` empties it too.
    QVector<QStringList> copy();
    QVector<QStringList> cut();
    /// Puts texts, as if typed, at the selection; a single one fills the selection. What was last copied here
    /// keeps its types. Selects what was pasted. Rows may differ in length.
    void paste(const QVector<QStringList>& rows);
    void insertRow(); ///< above the active cell
    void deleteRow(); ///< of the active cell
    void undo();
    void redo();

    void renameSheet(int sheet, const QString& name);
    /// Not reported to the program.
    void setColumnWidth(int column, double characters);

    // --- files ---
    bool save();   ///< asks for a name before the first save; false when it was not saved
    bool saveAs(); ///< asks for a name
    /// Asks about unsaved changes; false when the user changed his mind. With the last document the window
    /// hides.
    bool close();
    /// Ends the application, as `close` for every document first.
    bool quit();

private:
    template <typename Action>
    bool attempt(Action action);
    void edited();
    bool saveUnder(const QString& path);
    bool mayClose(Document& document);

    Session& session_;
    QVector<QStringList> copiedTexts_; ///< as they went to the clipboard
    CellBlock copied_;
};

} // namespace zvonika
