#pragma once

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
    Outcome attempt(const std::function<void()>& store);
    bool wanted(Document& document);

    Session& session_;
};

} // namespace zvonika
