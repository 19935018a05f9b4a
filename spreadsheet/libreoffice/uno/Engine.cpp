#include "spreadsheet/libreoffice/uno/Engine.h"

#include "spreadsheet/FileRefusals.h"
#include "spreadsheet/libreoffice/uno/Interaction.h"

#include <algorithm>
#include <com/sun/star/document/MacroExecMode.hpp>
#include <com/sun/star/document/UpdateDocMode.hpp>
#include <com/sun/star/frame/DispatchHelper.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/frame/theGlobalEventBroadcaster.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <com/sun/star/util/thePathSettings.hpp>

namespace zvonika {

namespace {

[[noreturn]] void refuseToOpen(const QString& nativePath, QStringView reason) {
    refuse(cannotOpen(nativePath, reason));
}

Properties loading(bool hidden, const rtl::Reference<Interaction>& interaction) {
    return properties(property("Hidden", hidden),
                      property("MacroExecutionMode", css::document::MacroExecMode::NEVER_EXECUTE),
                      property("UpdateDocMode", css::document::UpdateDocMode::NO_UPDATE),
                      property("InteractionHandler", Ref<css::task::XInteractionHandler>(interaction.get())));
}

} // namespace

Engine::Engine(std::unique_ptr<Connection> connection, CalcObserver& observer)
    : connection_(std::move(connection)), observer_(observer),
      dispatcher_(css::frame::DispatchHelper::create(connection_->context())),
      files_(new FileEvents(observer, keeper_)), usersDocuments_(new UsersDocuments(observer, keeper_)) {
    css::frame::theGlobalEventBroadcaster::get(connection_->context())
        ->addDocumentEventListener(files_.get());
    usersDocuments_->listenTo(connection_->context());
}

Engine::~Engine() {
    files_->stop();
    usersDocuments_->stop();
}

// The window that Calc shows when its last workbook has been closed would keep the place of the next one.
void Engine::closeStartCenter() {
    const auto frames = as<css::container::XIndexAccess>(keeper_.keep(connection_->desktop()->getFrames()));
    for (sal_Int32 i = frames->getCount(); i-- > 0;) {
        const Ref<css::frame::XFrame> frame(frames->getByIndex(i), css::uno::UNO_QUERY);
        const auto shown = as<css::lang::XServiceInfo>(keeper_.keep(frame)->getController());
        if (keeper_.keep(shown).is() &&
            shown->supportsService(rtl::OUString("com.sun.star.frame.StartModule")))
            as<css::util::XCloseable>(frame)->close(true);
    }
}

Ref<css::lang::XComponent> Engine::load(const QString& url, const QString& nativePath) {
    const rtl::Reference<Interaction> interaction(new Interaction);
    if (visible_) closeStartCenter();
    Ref<css::lang::XComponent> document;
    try {
        document = connection_->desktop()->loadComponentFromURL(toUno(url), rtl::OUString("_blank"), 0,
                                                                loading(!visible_, interaction));
    } catch (const css::lang::DisposedException&) {
        throw;
    } catch (const css::uno::Exception&) { // the reason is known from what was asked
    }
    if (document.is()) {
        usersDocuments_->addPrograms(as<css::uno::XInterface>(document));
        return document;
    }
    refuseToOpen(nativePath, interaction->reason().isEmpty() ? QStringLiteral("LibreOffice Calc ho odmítl")
                                                             : interaction->reason());
}

void Engine::adopt(const Ref<css::lang::XComponent>& document) {
    auto book = Book::of(document, observer_, dispatcher_, keeper_);
    if (!book) return;
    book->setId(++lastId_);
    books_.push_back(std::move(book));
}

std::vector<Ref<css::lang::XComponent>> Engine::documents() {
    const auto all = keeper_.keep(keeper_.keep(connection_->desktop()->getComponents())->createEnumeration());
    std::vector<Ref<css::lang::XComponent>> result;
    while (all->hasMoreElements()) {
        const Ref<css::lang::XComponent> document(all->nextElement(), css::uno::UNO_QUERY);
        if (document.is()) result.push_back(keeper_.keep(document));
    }
    return result;
}

bool Engine::isBook(const Ref<css::lang::XComponent>& document) const {
    const Ref<css::uno::XInterface> identity = as<css::uno::XInterface>(document);
    return std::ranges::any_of(books_, [&](const auto& book) { return book->is(identity); });
}

// Workbooks that the user has opened from Calc's own menus.
void Engine::adoptStrangers() {
    for (const auto& document : documents())
        if (!isBook(document)) adopt(document);
}

std::vector<Ref<css::lang::XComponent>> Engine::otherDocuments() {
    auto all = documents();
    std::erase_if(all, [&](const auto& document) { return isBook(document); });
    return all;
}

QStringList Engine::otherUnsaved() {
    return guarded([&] {
        adoptStrangers();
        QStringList result;
        for (const auto& document : otherDocuments()) {
            const auto changes = as<css::util::XModifiable>(document);
            const auto titled = as<css::frame::XTitle>(document);
            if (changes.is() && changes->isModified())
                result << (titled.is() ? fromUno(titled->getTitle()) : QString());
        }
        return result;
    });
}

void Engine::dropClosed() {
    std::erase_if(books_, [](const auto& book) { return book->closed(); });
    if (!find(activeId_)) activeId_ = books_.empty() ? 0 : books_.back()->id();
}

Book* Engine::find(int id) {
    const auto found = std::ranges::find_if(books_, [&](const auto& book) { return book->id() == id; });
    return found == books_.end() ? nullptr : found->get();
}

Book* Engine::activeBook() {
    if (!connected()) throw css::lang::DisposedException();
    dropClosed();
    return find(activeId_);
}

void Engine::setVisible(bool visible) {
    guarded([&] {
        visible_ = visible;
        dropClosed();
        for (const auto& book : books_)
            book->setVisible(visible);
    });
}

void Engine::toFront() {
    onBook([](Book& book) { book.toFront(); });
}

QString Engine::folder() const {
    return guarded(
        [&] { return nativePath(css::util::thePathSettings::get(connection_->context())->getWork()); });
}

void Engine::setFolder(const QString& native) {
    guarded([&] { css::util::thePathSettings::get(connection_->context())->setWork(fileUrl(native)); });
}

bool Engine::quit() {
    return guarded([&] {
        adoptStrangers();
        dropClosed();
        for (const auto& book : books_)
            book->close();
        for (const auto& document : otherDocuments())
            if (const auto closing = as<css::util::XCloseable>(document); closing.is()) closing->close(false);
        books_.clear();
        return connection_->desktop()->terminate();
    });
}

// Calc sets the window of a further workbook off from the last one, under the main window for instance, and
// that of a first one that may only be read off the screen.
void Engine::makeActive() {
    dropClosed();
    const Book* before = find(activeId_);
    activeId_ = lastId_;
    Book* now = find(activeId_);
    if (!visible_ || !now || before == now) return;
    try {
        now->standWhere(before ? *before : *now);
    } catch (const css::uno::Exception& failure) { // its place is not worth the workbook
        logFailure(failure);
    }
}

void Engine::add() {
    guarded([&] {
        adopt(load(QStringLiteral("private:factory/scalc"), {}));
        makeActive();
    });
}

void Engine::open(const QString& nativePath) {
    guarded([&] {
        const auto document = load(fromUno(fileUrl(nativePath)), nativePath);
        const std::size_t before = books_.size();
        adopt(document);
        if (books_.size() > before && books_.back()->format() != WorkbookFormat::Other) {
            return makeActive();
        }
        if (books_.size() > before) books_.pop_back();
        as<css::util::XCloseable>(document)->close(true);
        refuseToOpen(nativePath, reason::notXls);
    });
}

QVector<OpenWorkbook> Engine::workbooks() {
    return guarded([&] {
        dropClosed();
        adoptStrangers();
        QVector<OpenWorkbook> result;
        for (const auto& book : books_)
            result.push_back(book->description());
        return result;
    });
}

OpenWorkbook Engine::active() {
    while (guarded([&] { return activeBook() != nullptr; })) {
        try {
            return onBook([](Book& book) { return book.description(); });
        } catch (const RuntimeError&) {
            // It may have been closed, and dropped, since it was looked for.
            const Book* book = find(activeId_);
            if (!connected() || (book && !book->closed())) throw;
        }
    }
    return {};
}

void Engine::activate(int id) {
    guarded([&] {
        Book* wanted = find(id);
        if (!wanted || wanted->closed()) throw css::lang::DisposedException();
        activeId_ = id;
        wanted->toFront();
    });
}

void Engine::saveAs(const QString& nativePath) {
    onBook([&](Book& book) { book.saveAs(nativePath); });
}

void Engine::save() {
    onBook([](Book& book) { book.save(); });
}

void Engine::close() {
    onBook([](Book& book) {
        book.close();
        book.markClosed();
    });
}

} // namespace zvonika
