#pragma once

#include <functional>
#include <memory>

namespace zvonika {

class Document;
class SheetCommands;

/// The visible window of the built-in spreadsheet. It shows one document and hands what the user does to
/// SheetCommands.
class SheetView {
public:
    virtual ~SheetView() = default;

    virtual void setVisible(bool visible) = 0;
    /// To the front, with the keyboard.
    virtual void raise() = 0;
    /// Whether the user is typing, in a cell or above the cells, what is not handed over yet.
    virtual bool isTyping() const = 0;
    /// Hands what is being typed, in a cell or above the cells, to the document shown, as if by Enter.
    virtual void commitPending() = 0;
    /// Shows this document from now on, nullptr for none; what is being typed is dropped. The
    /// one shown before may be gone after the return.
    virtual void setDocument(Document* document) = 0;
};

using SheetViewFactory = std::function<std::unique_ptr<SheetView>(SheetCommands&)>;

} // namespace zvonika
