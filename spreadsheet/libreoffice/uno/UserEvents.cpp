#include "spreadsheet/libreoffice/uno/UserEvents.h"

#include <com/sun/star/sheet/XActivationBroadcaster.hpp>
#include <com/sun/star/util/XCloseBroadcaster.hpp>
#include <com/sun/star/util/XModifyBroadcaster.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

namespace zvonika {

void UserEvents::listenTo(const Ref<css::frame::XModel>& model, const Ref<css::frame::XController>& view) {
    if (const auto closing = as<css::util::XCloseBroadcaster>(model); closing.is())
        closing->addCloseListener(this);
    if (const auto changes = as<css::util::XModifyBroadcaster>(model); changes.is())
        changes->addModifyListener(this);
    if (const auto selection = as<css::view::XSelectionSupplier>(view); selection.is())
        selection->addSelectionChangeListener(this);
    if (const auto sheets = as<css::sheet::XActivationBroadcaster>(view); sheets.is())
        sheets->addActivationEventListener(this);
}

void UserEvents::activeSpreadsheetChanged(const css::sheet::ActivationEvent& event) {
    keeper_.keep(event.ActiveSheet);
    moved();
}

void UserEvents::modified(const css::lang::EventObject&) {
    if (users()) observer_.cellsEdited();
}

void UserEvents::notifyClosing(const css::lang::EventObject&) {
    closed_ = true;
    if (stopped_) return;
    observer_.workbookCloses();
    if (users()) observer_.userCloses(workbook_);
}

void UserEvents::moved() {
    if (users()) observer_.cursorMoved();
}

} // namespace zvonika
