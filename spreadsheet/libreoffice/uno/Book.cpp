#include "spreadsheet/libreoffice/uno/Book.h"

#include "spreadsheet/FileRefusals.h"
#include "spreadsheet/libreoffice/uno/Failures.h"
#include "spreadsheet/libreoffice/uno/Interaction.h"

#include <QFileInfo>

#include <com/sun/star/awt/PosSize.hpp>
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
const QString notWritten =
    QStringLiteral("LibreOffice Calc ho nezapsal; sešit zůstává otevřen v jeho okně, kde "
                   "ho můžete uložit pod jiným jménem");
} // namespace

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
      steps_(model_, keeper), view_(controller_, css::uno::UNO_QUERY_THROW), frame_(controller_->getFrame()),
      values_(as<css::util::XNumberFormatsSupplier>(model)->getNumberFormats(), keeper, steps_),
      entry_(frame_), events_(new UserEvents(observer, keeper)) {
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
    result.format = format();
    result.encrypted = isEncrypted();
    return result;
}

/// How the workbook was opened or last saved.
css::uno::Any Book::argument(const char* name) const {
    const auto arguments = model_->getArgs();
    for (const auto& argument : arguments)
        if (argument.Name.equalsAscii(name)) return argument.Value;
    return {};
}

WorkbookFormat Book::format() const {
    rtl::OUString filter;
    argument("FilterName") >>= filter;
    if (filter.isEmpty() || filter == xlsFilter) return WorkbookFormat::Xls;
    const bool old = filter.match("MS Excel 5.0/95") || filter.match("MS Excel 95");
    return old ? WorkbookFormat::OldXls : WorkbookFormat::Other;
}

bool Book::isReadOnly() const {
    return as<css::frame::XStorable>(model_)->isReadonly();
}

bool Book::isEncrypted() const {
    return argument("EncryptionData").hasValue() || argument("Password").hasValue();
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

void Book::store(const QString& nativePath, const std::function<void(const Properties&)>& steps) {
    const rtl::Reference<Interaction> interaction(new Interaction);
    try {
        steps(properties(
            property("FilterName", xlsFilter),
            property("InteractionHandler", Ref<css::task::XInteractionHandler>(interaction.get()))));
    } catch (const css::lang::DisposedException&) {
        throw;
    } catch (const css::uno::Exception& failure) {
        logFailure(failure);
        refuse(cannotSave(nativePath, interaction->reason().isEmpty() ? notWritten : interaction->reason()));
    }
    observer_.fileOpened(nativePath);
}

void Book::saveAs(const QString& nativePath) {
    commitEntry();
    refuseWhatXlsLoses();
    store(nativePath, [&](const Properties& saving) {
        as<css::frame::XStorable>(model_)->storeAsURL(fileUrl(nativePath), saving);
    });
}

void Book::save() {
    const QString path = nativePath(model_->getURL());
    if (format() == WorkbookFormat::OldXls) return saveAs(path);
    commitEntry();
    if (format() == WorkbookFormat::Xls) refuseWhatXlsLoses();
    store(path, [&](const Properties& saving) {
        as<css::frame::XStorable2>(model_)->storeSelf(properties(saving[1])); // in its own format
    });
}

void Book::close() {
    as<css::util::XCloseable>(model_)->close(false);
}

void Book::setVisible(bool visible) {
    const auto window = frame_->getContainerWindow();
    window->setVisible(visible);
    frame_->getComponentWindow()->setVisible(visible);
}

void Book::standWhere(const Book& other) {
    const css::awt::Rectangle place = other.frame_->getContainerWindow()->getPosSize();
    frame_->getContainerWindow()->setPosSize(place.X, place.Y, place.Width, place.Height,
                                             css::awt::PosSize::POSSIZE);
}

void Book::toFront() {
    const auto window = frame_->getContainerWindow();
    if (const auto top = as<css::awt::XTopWindow>(window); top.is()) top->toFront();
    window->setFocus();
    frame_->activate();
    frame_->getComponentWindow()->setFocus();
}

} // namespace zvonika
