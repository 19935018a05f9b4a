#pragma once

#include <vector>

namespace zvonika {

class Document;
class Saving;
class Session;

/// What the user does with the files of the sheet window, each method one action on the active document
/// (without one, nothing happens). Asks and tells by boxes, nothing is thrown.
class FileCommands {
public:
    explicit FileCommands(Session& session) : session_(session) {}

    bool save();   ///< asks for a name before the first save; false when it was not saved
    bool saveAs(); ///< asks for a name
    /// Asks about unsaved changes; false when the user changed his mind. With the last document the window
    /// hides.
    bool close();
    /// Ends the application, as `close` for every document first.
    bool quit();

private:
    bool store(bool (Saving::*how)(Document& document));
    /// Adds a document whose changes the user does not want to `unwanted`.
    bool mayClose(Document& document, std::vector<Document*>& unwanted);
    void giveUp(const std::vector<Document*>& unwanted);

    Session& session_;
};

} // namespace zvonika
