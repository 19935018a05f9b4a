#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/libreoffice/uno/Keeper.h"

#include <com/sun/star/document/XUndoManager.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/util/XChangesListener.hpp>
#include <cppuhelper/implbase1.hxx>
#include <rtl/ref.hxx>
#include <vector>

namespace zvonika {

/// The cells that the user has changed in a workbook, on whichever sheet; what the program writes is not
/// told by Calc.
class UsersCells : public cppu::WeakImplHelper1<css::util::XChangesListener> {
public:
    explicit UsersCells(Keeper& keeper) : keeper_(keeper) {}

    bool reach(const CellRange& range) const;
    void forget();

    void SAL_CALL changesOccurred(const css::util::ChangesEvent& event) override;
    void SAL_CALL disposing(const css::lang::EventObject&) override {}

private:
    Keeper& keeper_;
    mutable std::mutex mutex_;
    std::vector<CellRange> ranges_;
};

/// What the user has done in a workbook and can take back in Calc. Failures are UNO's own.
class UsersSteps {
public:
    UsersSteps(const Ref<css::frame::XModel>& model, Keeper& keeper);

    /// One call of the program's that changes the workbook is no step of his. Calc ends this with the call: a
    /// further one needs another.
    class Aside {
    public:
        explicit Aside(const UsersSteps& steps);
        ~Aside();
        Aside(const Aside&) = delete;
        Aside& operator=(const Aside&) = delete;

    private:
        const UsersSteps& steps_;
    };

    /// The program is about to write there: steps that would take that away again are forgotten, and with
    /// them all others.
    void makeWay(const CellRange& range);
    /// Nothing of what he did so far can be taken back or done again. Throws nothing.
    void forget();

private:
    Ref<css::document::XUndoManager> manager_; ///< none: Calc keeps no steps of this workbook
    rtl::Reference<UsersCells> cells_;
};

} // namespace zvonika
