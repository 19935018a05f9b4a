#pragma once

#include "spreadsheet/libreoffice/uno/Uno.h"

#include <com/sun/star/document/XUndoManager.hpp>
#include <com/sun/star/frame/XModel.hpp>

namespace zvonika {

/// What the user has done in a workbook and can take back in Calc. Failures are UNO's own.
class UsersSteps {
public:
    explicit UsersSteps(const Ref<css::frame::XModel>& model);

    /// What is done as long as this lives is no step of his.
    class Aside {
    public:
        explicit Aside(const UsersSteps& steps);
        ~Aside();
        Aside(const Aside&) = delete;
        Aside& operator=(const Aside&) = delete;

    private:
        const UsersSteps& steps_;
    };

    /// Nothing of what he did so far can be taken back or done again. Throws nothing.
    void forget() const;

private:
    Ref<css::document::XUndoManager> manager_; ///< none: Calc keeps no steps of this workbook
};

} // namespace zvonika
