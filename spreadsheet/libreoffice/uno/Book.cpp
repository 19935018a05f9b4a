#include "spreadsheet/libreoffice/uno/Book.h"

#include "spreadsheet/libreoffice/uno/Failures.h"
#include "spreadsheet/libreoffice/uno/Interaction.h"

#include <QFileInfo>

#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/frame/XStorable2.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <com/sun/star/util/XModifiable.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>

namespace zvonika {

namespace {
const rtl::OUString xlsFilter("MS Excel 97");
}

std::unique_ptr<Book> Book::of(const Ref<css::lang::XComponent>& document, CalcObserver& observer,
                               const Ref<css::frame::XDispatchHelper>& dispatcher, Keeper& keeper) {
    const auto spreadsheet = as<css::sheet::XSpreadsheetDocument>(document);
    const auto model = as<css::frame::XModel>(document);
    if (!spreadsheet.is() || !model.is() || !model->getCurrentController().is()) return nullptr;
    std::unique_ptr<Book> book(new Book(model, spreadsheet->getSheets(), observer, dispatcher, keeper));
    if (const QString path = book->description().path; !path.isEmpty()) observer.fileOpened(path);
    return book;
}

Book::Book(const Ref<css::frame::XModel>& model, const Ref<css::sheet::XSpreadsheets>& sheets,
           CalcObserver& observer, const Ref<css::frame::XDispatchHelper>& dispatcher, Keeper& keeper)
    : observer_(observer), keeper_(keeper), dispatcher_(dispatcher), model_(model),
      identity_(model, css::uno::UNO_QUERY), sheets_(sheets), controller_(model->getCurrentController()),
      view_(controller_, css::uno::UNO_QUERY_THROW), frame_(controller_->getFrame()),
      values_(as<css::util::XNumberFormatsSupplier>(model)->getNumberFormats(), keeper), entry_(frame_),
      events_(new UserEvents(observer, keeper)) {
    events_->listenTo(model_, controller_);
}

Book::~Book() {
    events_->stop();
}

void Book::setId(int id) {
    id_ = id;
    events_->setWorkbook(id);
}

QString Book::title() const {
    const auto titled = as<css::frame::XTitle>(model_);
    return titled.is() ? fromUno(titled->getTitle()) : QString();
}

OpenWorkbook Book::description() const {
    OpenWorkbook result;
    result.id = id_;
    result.path = nativePath(model_->getURL());
    result.name = result.path.isEmpty() ? title() : QFileInfo(result.path).fileName();
    result.modified = as<css::util::XModifiable>(model_)->isModified();
    return result;
}

bool Book::isXls() const {
    const auto arguments = model_->getArgs();
    for (const auto& argument : arguments)
        if (argument.Name.equalsAscii("FilterName")) return argument.Value == css::uno::Any(xlsFilter);
    return false;
}

// Calc holds more rows, columns and longer names than the format and drops what does not fit without a word.
void Book::refuseWhatXlsLoses() const {
    const auto all = as<css::container::XIndexAccess>(sheets_);
    for (sal_Int32 i = 0; i < all->getCount(); ++i) {
        const auto sheet =
            keeper_.keep(Ref<css::sheet::XSpreadsheet>(all->getByIndex(i), css::uno::UNO_QUERY_THROW));
        const CellPosition end = usedEnd(sheet, keeper_);
        if (end.row > lastRow || end.column > lastColumn)
            refuse(QStringLiteral("Sešit nelze uložit: formát .xls končí řádkem %1 a sloupcem %2.")
                       .arg(lastRow)
                       .arg(columnLetters(lastColumn)));
    }
}

void Book::saveAs(const QString& nativePath) {
    commitEntry();
    refuseWhatXlsLoses();
    const rtl::Reference<Interaction> interaction(new Interaction);
    as<css::frame::XStorable>(model_)->storeAsURL(
        fileUrl(nativePath),
        properties(property("FilterName", xlsFilter),
                   property("InteractionHandler", Ref<css::task::XInteractionHandler>(interaction.get()))));
    observer_.fileOpened(nativePath);
}

void Book::save() {
    if (!isXls()) return saveAs(nativePath(model_->getURL()));
    commitEntry();
    refuseWhatXlsLoses();
    const rtl::Reference<Interaction> interaction(new Interaction);
    as<css::frame::XStorable2>(model_)->storeSelf(
        properties(property("InteractionHandler", Ref<css::task::XInteractionHandler>(interaction.get()))));
}

void Book::close() {
    as<css::util::XCloseable>(model_)->close(false);
}

void Book::setVisible(bool visible) {
    const auto window = frame_->getContainerWindow();
    window->setVisible(visible);
    frame_->getComponentWindow()->setVisible(visible);
}

void Book::toFront() {
    const auto window = frame_->getContainerWindow();
    if (const auto top = as<css::awt::XTopWindow>(window); top.is()) top->toFront();
    window->setFocus();
    frame_->activate();
    frame_->getComponentWindow()->setFocus();
}

} // namespace zvonika
