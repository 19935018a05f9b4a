#pragma once

#include "spreadsheet/libreoffice/CalcEngine.h"
#include "spreadsheet/libreoffice/uno/Keeper.h"

#include <com/sun/star/document/XDocumentEventListener.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <cppuhelper/implbase1.hxx>
#include <thread>
#include <vector>

namespace zvonika {

/// Counts the documents that the user has opened in the office himself. What the program opens is told of
/// within its own call, on the thread of the engine.
class UsersDocuments : public cppu::WeakImplHelper1<css::document::XDocumentEventListener> {
public:
    UsersDocuments(CalcObserver& observer, Keeper& keeper)
        : observer_(observer), keeper_(keeper), engineThread_(std::this_thread::get_id()) {}

    void listenTo(const Ref<css::uno::XComponentContext>& office);
    /// Nothing more reaches the observer.
    void stop();

    void SAL_CALL documentEventOccured(const css::document::DocumentEvent& event) override;
    void SAL_CALL disposing(const css::lang::EventObject&) override {}

private:
    void note(const Ref<css::uno::XInterface>& document, bool opened);

    CalcObserver& observer_;
    Keeper& keeper_;
    std::thread::id engineThread_;
    std::mutex mutex_;
    bool stopped_ = false;
    std::vector<Ref<css::uno::XInterface>> open_;
};

} // namespace zvonika
