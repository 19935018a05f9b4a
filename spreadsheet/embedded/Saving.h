#pragma once

#include "platform/Dialogs.h"

#include <QString>

#include <functional>

namespace zvonika {

class Document;
class Session;

/// Saves workbooks as the user wishes it, by boxes: names are asked for, refusals are told with their cause.
/// A workbook that the program closes while a box is up counts as not saved.
class Saving {
public:
    explicit Saving(Session& session) : session_(session) {}

    /// Asks before a save turns a workbook of an older format into one of the present format. False when the
    /// user does not want it.
    bool mayConvert(Document& document);
    /// Asks before a save in its place writes over what another program has put into the file. The last
    /// question before the save: others can write while a box is up.
    bool mayOverwrite(Document& document);
    /// Before a workbook takes this file name: when another one of that name is open, as a song whose save
    /// was refused, offers to save it elsewhere and to close it. 1004 when it stays open.
    void makeRoom(const QString& name, const Document* self = nullptr);

    /// Asks for a name before the first save; false when it was not saved.
    bool save(Document& document);
    /// Asks for a name; false when it was not saved.
    bool saveAs(Document& document);
    /// Asks about every workbook with unsaved changes whether to save it. One that cannot be saved in its
    /// place may be saved in another, until it is saved or the user gives it up.
    void offerUnsaved();

private:
    enum class Outcome { Saved, Refused, GivenUp };

    Outcome store(Document& document);
    Outcome storeElsewhere(Document& document);
    void putAway(Document& document);
    bool agreed(const QString& question, Answer proposed);
    Outcome attempt(const std::function<void()>& store);
    bool wanted(Document& document);

    Session& session_;
};

} // namespace zvonika
