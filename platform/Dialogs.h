#pragma once

#include <QString>

#include <optional>

namespace zvonika {

enum class Icon { None, Critical, Exclamation, Information, Question };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

/// One modal message box.
struct Message {
    QString title; ///< empty: the box carries the program's name
    QString text;  ///< plain text; line breaks are kept
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    /// The button chosen by Enter; the first one where nothing is set.
    std::optional<Answer> defaultAnswer = {};
    /// A page-turner pedal chooses that button too: PageDown or PageUp, pressed afresh and not repeated by a
    /// key that is held.
    bool pedal = false;
};

/// Every box and every file choice that the user meets. Calls return when the user has answered.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Closing the box by its close box answers Cancel where there is such a button, otherwise Ok for a
    /// single button and No for a Yes/No question.
    virtual Answer message(const Message& message) = 0;

    /// Asks for one line of text; the empty text on Cancel.
    virtual QString input(const QString& title, const QString& prompt) = 0;

    /// Asks for an existing file. `filter` is "name,pattern" ("Excel Files,*.xls"), `folder` a native folder
    /// to start in (need not exist). The native full name, or nothing on Cancel.
    virtual std::optional<QString> openFile(const QString& title, const QString& filter,
                                            const QString& folder) = 0;

    /// Asks for a name to save under, ends it in ".xls", confirms overwriting by itself. As `openFile`.
    virtual std::optional<QString> saveFile(const QString& title, const QString& filter,
                                            const QString& suggested) = 0;
};

} // namespace zvonika
