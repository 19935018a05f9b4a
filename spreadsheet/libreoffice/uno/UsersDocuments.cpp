#include "spreadsheet/libreoffice/uno/UsersDocuments.h"

#include <algorithm>
#include <com/sun/star/frame/theGlobalEventBroadcaster.hpp>

namespace zvonika {

void UsersDocuments::listenTo(const Ref<css::uno::XComponentContext>& office) {
    css::frame::theGlobalEventBroadcaster::get(office)->addDocumentEventListener(this);
}

void UsersDocuments::stop() {
    const std::scoped_lock lock(mutex_);
    stopped_ = true;
    open_.clear();
}

void UsersDocuments::documentEventOccured(const css::document::DocumentEvent& event) {
    const bool opened = event.EventName.equalsAscii("OnNew") || event.EventName.equalsAscii("OnLoad");
    if (!opened && !event.EventName.equalsAscii("OnUnload")) return;
    if (opened && std::this_thread::get_id() == engineThread_) return;
    note(keeper_.keep(as<css::uno::XInterface>(event.Source)), opened);
}

void UsersDocuments::note(const Ref<css::uno::XInterface>& document, bool opened) {
    const std::scoped_lock lock(mutex_);
    const auto before = open_.size();
    std::erase(open_, document);
    if (opened) open_.push_back(document);
    if (!stopped_ && open_.size() != before) observer_.usersDocuments(static_cast<int>(open_.size()));
}

} // namespace zvonika
