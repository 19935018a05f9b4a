#pragma once

#include "spreadsheet/libreoffice/uno/Uno.h"

#include <com/sun/star/frame/XDispatch.hpp>
#include <com/sun/star/frame/XFrame.hpp>

namespace zvonika {

/// What the user is typing in the window of a workbook and has not ended yet. Failures are UNO's own.
class Entry {
public:
    explicit Entry(const Ref<css::frame::XFrame>& frame) : frame_(frame) {}

    /// Keys that Calc has not come to yet belong to it too; it comes to them here.
    bool isOpen();

private:
    void awaitKeys() const;

    Ref<css::frame::XFrame> frame_;
    Ref<css::frame::XDispatch> insertMode_;
};

} // namespace zvonika
