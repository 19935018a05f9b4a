#pragma once

#include "spreadsheet/libreoffice/CalcEngine.h"
#include "spreadsheet/libreoffice/uno/Entry.h"
#include "spreadsheet/libreoffice/uno/UserEvents.h"
#include "spreadsheet/libreoffice/uno/UsersSteps.h"
#include "spreadsheet/libreoffice/uno/Values.h"

#include <chrono>
#include <com/sun/star/awt/XWindow.hpp>
#include <com/sun/star/frame/XDispatchHelper.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/lang/XComponent.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/sheet/XSpreadsheets.hpp>
#include <functional>
#include <memory>
#include <rtl/ref.hxx>
#include <vector>

namespace zvonika {

/// One workbook that is open in Calc, with its view. Failures are UNO's own.
class Book {
public:
    /// nullptr when the document is no spreadsheet.
    static std::unique_ptr<Book> of(const Ref<css::lang::XComponent>& document, CalcObserver& observer,
                                    const Ref<css::frame::XDispatchHelper>& dispatcher, Keeper& keeper);
    ~Book();
    Book(const Book&) = delete;
    Book& operator=(const Book&) = delete;

    int id() const { return id_; }
    void setId(int id);

    // --- the file ---
    bool closed() const { return events_->closed(); }
    void markClosed() { events_->markClosed(); } ///< a call has met nothing any more
    bool is(const Ref<css::uno::XInterface>& document) const { return identity_ == document; }
    OpenWorkbook description() const;
    WorkbookFormat format() const;
    bool isReadOnly() const; ///< Calc lets nobody write to it
    WorkbookImage image();
    void saveAs(const QString& nativePath);
    void save();
    void close();

    // --- its window ---
    void setVisible(bool visible);
    void toFront();
    /// Takes the place that the other workbook's window has on the screen.
    void standWhere(const Book& other);

    // --- sheets: those that are not hidden ---
    int activeSheet() const;
    int activePlace() const; ///< hidden sheets counted too
    QStringList sheetNames() const;
    void rename(const QString& name);
    void selectSheet(int sheet);

    // --- cells of the active sheet ---
    CellPosition cursor() const;
    CellRange selection() const;
    void select(const CellRange& range);
    bool hasFormulas() const;
    CellPosition used() const;
    CellBlock read(const CellRange& range) { return values_.read(sheet(), range); }
    QVector<QStringList> formulas(const CellRange& range) const;
    void write(CellPosition first, const CellBlock& block);
    void clear(const CellRange& range);
    void moveRows(int row, bool down); ///< from this one on, and takes the user's steps away
    bool holdSheet();
    void writeHeld(const QVector<PlacedBlock>& blocks);

    // --- what the user is typing ---
    bool typing();

private:
    SheetImage imageOf(const Ref<css::sheet::XSpreadsheet>& sheet);
    Book(const Ref<css::frame::XModel>& model, const Ref<css::sheet::XSpreadsheets>& sheets,
         CalcObserver& observer, const Ref<css::frame::XDispatchHelper>& dispatcher, Keeper& keeper);
    Ref<css::sheet::XSpreadsheet> sheet() const;
    void refuseWhatXlsLoses() const;
    void store(const QString& nativePath, const std::function<void(const Properties& saving)>& steps);
    css::uno::Any argument(const char* name) const;
    bool isEncrypted() const;
    std::vector<sal_Int32> visibleSheets() const;
    void commitEntry();
    void commitEntryIn(const CellRange& written);
    void takeOver(const CellRange& range);
    QString title() const;

    int id_ = 0;
    CalcObserver& observer_;
    Keeper& keeper_;
    Ref<css::frame::XDispatchHelper> dispatcher_;
    Ref<css::frame::XModel> model_;
    Ref<css::uno::XInterface> identity_;
    Ref<css::sheet::XSpreadsheets> sheets_;
    Ref<css::frame::XController> controller_;
    UsersSteps steps_;
    Ref<css::sheet::XSpreadsheetView> view_;
    Ref<css::frame::XFrame> frame_;
    Ref<css::sheet::XSpreadsheet> held_;
    Values values_;
    Entry entry_;
    std::chrono::steady_clock::time_point noEntry_; ///< when the user was last seen not typing
    rtl::Reference<UserEvents> events_;
};

/// The last row and column that a sheet uses, counted from 1.
CellPosition usedEnd(const Ref<css::sheet::XSpreadsheet>& sheet, Keeper& keeper);
bool containsFormulas(const Ref<css::sheet::XSpreadsheet>& sheet, Keeper& keeper);
/// "" where a cell has none.
QVector<QStringList> formulasIn(const Ref<css::table::XCellRange>& cells);

} // namespace zvonika
