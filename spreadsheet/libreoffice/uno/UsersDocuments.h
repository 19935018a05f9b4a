#pragma once

#include "spreadsheet/libreoffice/CalcEngine.h"
#include "spreadsheet/libreoffice/uno/Keeper.h"

#include <com/sun/star/document/XDocumentEventListener.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <cppuhelper/implbase1.hxx>
#include <vector>

namespace zvonika {

/// Counts the documents that the user has opened in the office himself. The office tells of the program's
/// too, now before and now after it has handed them over.
class UsersDocuments : public cppu::WeakImplHelper1<css::document::XDocumentEventListener> {
public:
    UsersDocuments(CalcObserver& observer, Keeper& keeper) : observer_(observer), keeper_(keeper) {}

    /// The program has opened this document.
    void addPrograms(const Ref<css::uno::XInterface>& document);

    void listenTo(const Ref<css::uno::XComponentContext>& office);
    /// Nothing more reaches the observer.
    void stop();

    void SAL_CALL documentEventOccured(const css::document::DocumentEvent& event) override;
    void SAL_CALL disposing(const css::lang::EventObject&) override {}

private:
    void opened(const Ref<css::uno::XInterface>& document);
    void closed(const Ref<css::uno::XInterface>& document);
    void tell();

    CalcObserver& observer_;
    Keeper& keeper_;
    std::mutex mutex_;
    bool stopped_ = false;
    std::vector<Ref<css::uno::XInterface>> users_, programs_;
    std::size_t told_ = 0;
};

} // namespace zvonika
