#pragma once

#include "spreadsheet/libreoffice/CalcEngine.h"
#include "spreadsheet/libreoffice/uno/Keeper.h"

#include <atomic>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/sheet/XActivationEventListener.hpp>
#include <com/sun/star/util/XCloseListener.hpp>
#include <com/sun/star/util/XModifyListener.hpp>
#include <com/sun/star/view/XSelectionChangeListener.hpp>
#include <cppuhelper/implbase4.hxx>
#include <thread>

namespace zvonika {

/// What happens to one workbook. Events that the program's own calls cause arrive within those calls, on the
/// thread of the engine: they are not the user's.
class UserEvents
    : public cppu::WeakImplHelper4<css::view::XSelectionChangeListener, css::util::XModifyListener,
                                   css::sheet::XActivationEventListener, css::util::XCloseListener> {
public:
    UserEvents(CalcObserver& observer, Keeper& keeper)
        : observer_(observer), keeper_(keeper), engineThread_(std::this_thread::get_id()) {}

    void listenTo(const Ref<css::frame::XModel>& model, const Ref<css::frame::XController>& view);
    /// Nothing more reaches the observer.
    void stop() { stopped_ = true; }
    void setWorkbook(int id) { workbook_ = id; } ///< by which the observer knows it
    void markClosed() { closed_ = true; }
    bool closed() const { return closed_; }

    void SAL_CALL selectionChanged(const css::lang::EventObject&) override { moved(); }
    void SAL_CALL activeSpreadsheetChanged(const css::sheet::ActivationEvent& event) override;
    void SAL_CALL modified(const css::lang::EventObject&) override;
    void SAL_CALL queryClosing(const css::lang::EventObject&, sal_Bool) override {}
    void SAL_CALL notifyClosing(const css::lang::EventObject&) override;
    void SAL_CALL disposing(const css::lang::EventObject&) override {}

private:
    bool users() const { return !stopped_ && std::this_thread::get_id() != engineThread_; }
    void moved();

    CalcObserver& observer_;
    Keeper& keeper_;
    std::thread::id engineThread_;
    std::atomic<int> workbook_ = 0;
    std::atomic<bool> stopped_ = false;
    std::atomic<bool> closed_ = false;
};

} // namespace zvonika
