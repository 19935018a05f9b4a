#include "spreadsheet/libreoffice/uno/UsersSteps.h"

#include "spreadsheet/libreoffice/uno/Failures.h"

#include <com/sun/star/document/XUndoManagerSupplier.hpp>

namespace zvonika {

UsersSteps::UsersSteps(const Ref<css::frame::XModel>& model) {
    const auto supplier = as<css::document::XUndoManagerSupplier>(model);
    if (supplier.is()) manager_ = supplier->getUndoManager();
}

UsersSteps::Aside::Aside(const UsersSteps& steps) : steps_(steps) {
    if (steps_.manager_.is()) steps_.manager_->lock();
}

UsersSteps::Aside::~Aside() {
    try {
        if (steps_.manager_.is()) steps_.manager_->unlock();
    } catch (const css::uno::Exception&) { // gone with its workbook
    }
}

void UsersSteps::forget() const {
    try {
        if (manager_.is()) manager_->clear();
    } catch (const css::uno::Exception& failure) {
        logFailure(failure);
    }
}

} // namespace zvonika
