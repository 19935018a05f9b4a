#include "spreadsheet/libreoffice/uno/FileEvents.h"

#include <com/sun/star/frame/XModel.hpp>

namespace zvonika {

namespace {

enum class Happened { Opened, Closed, SomethingElse };

Happened meaning(const rtl::OUString& event) {
    if (event == "OnLoad" || event == "OnSaveDone" || event == "OnSaveAsDone") return Happened::Opened;
    return event == "OnUnload" ? Happened::Closed : Happened::SomethingElse;
}

} // namespace

void FileEvents::documentEventOccured(const css::document::DocumentEvent& event) {
    keeper_.keep(event.Source);
    keeper_.keep(event.ViewController);
    const Happened happened = meaning(event.EventName);
    if (stopped_ || happened == Happened::SomethingElse) return;
    const auto model = as<css::frame::XModel>(event.Source);
    const QString path = model.is() ? nativePath(keeper_.keep(model)->getURL()) : QString();
    if (path.isEmpty() || path == QStringLiteral(".")) return;
    happened == Happened::Opened ? observer_.fileOpened(path) : observer_.fileClosed(path);
    // A workbook under a new name is looked at as one whose cells have changed.
    if (event.EventName == "OnSaveAsDone" && std::this_thread::get_id() != engineThread_)
        observer_.cellsEdited();
}

} // namespace zvonika
