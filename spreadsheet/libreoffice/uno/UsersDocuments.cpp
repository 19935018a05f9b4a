#include "spreadsheet/libreoffice/uno/UsersDocuments.h"

#include <algorithm>
#include <com/sun/star/frame/theGlobalEventBroadcaster.hpp>
#include <utility>

namespace zvonika {

void UsersDocuments::listenTo(const Ref<css::uno::XComponentContext>& office) {
    css::frame::theGlobalEventBroadcaster::get(office)->addDocumentEventListener(this);
}

void UsersDocuments::stop() {
    const std::scoped_lock lock(mutex_);
    stopped_ = true;
    users_.clear();
    programs_.clear();
}

void UsersDocuments::documentEventOccured(const css::document::DocumentEvent& event) {
    const bool opening = event.EventName.equalsAscii("OnNew") || event.EventName.equalsAscii("OnLoad");
    if (!opening && !event.EventName.equalsAscii("OnUnload")) return;
    const auto document = keeper_.keep(as<css::uno::XInterface>(event.Source));
    const std::scoped_lock lock(mutex_);
    opening ? opened(document) : closed(document);
    tell();
}

void UsersDocuments::addPrograms(const Ref<css::uno::XInterface>& document) {
    const std::scoped_lock lock(mutex_);
    programs_.push_back(document);
    std::erase(users_, document);
    tell();
}

void UsersDocuments::opened(const Ref<css::uno::XInterface>& document) {
    if (std::ranges::find(users_, document) == users_.end() &&
        std::ranges::find(programs_, document) == programs_.end())
        users_.push_back(document);
}

void UsersDocuments::closed(const Ref<css::uno::XInterface>& document) {
    std::erase(users_, document);
    std::erase(programs_, document);
}

void UsersDocuments::tell() {
    if (!stopped_ && users_.size() != std::exchange(told_, users_.size()))
        observer_.usersDocuments(static_cast<int>(users_.size()));
}

} // namespace zvonika
