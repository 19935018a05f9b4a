#pragma once

#include "spreadsheet/libreoffice/CalcEngine.h"
#include "spreadsheet/libreoffice/uno/Keeper.h"

#include <atomic>
#include <com/sun/star/document/XDocumentEventListener.hpp>
#include <cppuhelper/implbase1.hxx>
#include <thread>

namespace zvonika {

/// Tells of the files that the office opens, saves and closes, whoever has asked it to; and of a workbook
/// that gets another file otherwise than by the program's calls, which come on the thread where this was
/// made.
class FileEvents : public cppu::WeakImplHelper1<css::document::XDocumentEventListener> {
public:
    FileEvents(CalcObserver& observer, Keeper& keeper)
        : observer_(observer), keeper_(keeper), engineThread_(std::this_thread::get_id()) {}

    /// Nothing more reaches the observer.
    void stop() { stopped_ = true; }

    void SAL_CALL documentEventOccured(const css::document::DocumentEvent& event) override;
    void SAL_CALL disposing(const css::lang::EventObject&) override {}

private:
    CalcObserver& observer_;
    Keeper& keeper_;
    std::thread::id engineThread_;
    std::atomic<bool> stopped_ = false;
};

} // namespace zvonika
