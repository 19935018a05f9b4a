#pragma once

#include "spreadsheet/libreoffice/uno/Book.h"
#include "spreadsheet/libreoffice/uno/Connection.h"
#include "spreadsheet/libreoffice/uno/Failures.h"
#include "spreadsheet/libreoffice/uno/FileEvents.h"
#include "spreadsheet/libreoffice/uno/UsersDocuments.h"

#include <memory>
#include <vector>

namespace zvonika {

/// Calc behind an open connection. The active workbook is the program's own notion: the one that it has last
/// made, opened or activated, and when that is closed the one opened last of the others.
class Engine : public CalcEngine {
public:
    Engine(std::unique_ptr<Connection> connection, CalcObserver& observer);
    ~Engine() override;

    bool connected() const override { return connection_->alive(); }
    void setVisible(bool visible) override;
    void toFront() override;
    QString folder() const override;
    void setFolder(const QString& native) override;
    bool quit() override;

    void add() override;
    void open(const QString& nativePath) override;
    QVector<OpenWorkbook> workbooks() override;
    OpenWorkbook active() override;
    std::optional<WorkbookImage> image(int id) override;
    void activate(int id) override;
    void saveAs(const QString& nativePath) override;
    void save() override;
    void close() override;
    QStringList otherUnsaved() override;

    int activeSheet() override;
    int activePlace() override;
    QStringList sheetNames() override;
    void renameSheet(const QString& name) override;
    void selectSheet(int sheet) override;

    CellPosition cursor() override;
    CellRange selection() override;
    void select(const CellRange& range) override;
    bool hasFormulas() override;
    CellPosition used() override;
    CellBlock read(const CellRange& range) override;
    QVector<QStringList> formulas(const CellRange& range) override;
    void write(CellPosition first, const CellBlock& block) override;
    void clear(const CellRange& range) override;
    void insertRow(int row) override;
    void deleteRow(int row) override;
    bool holdSheet() override;
    void writeHeld(const QVector<PlacedBlock>& blocks) override;
    bool typing() override;

private:
    Ref<css::lang::XComponent> load(const QString& url, const QString& nativePath);
    void closeStartCenter();
    std::vector<Ref<css::lang::XComponent>> documents();
    std::vector<Ref<css::lang::XComponent>> otherDocuments();
    bool isBook(const Ref<css::lang::XComponent>& document) const;
    void makeActive();
    void adopt(const Ref<css::lang::XComponent>& document);
    void adoptStrangers();
    void dropClosed();
    Book* activeBook();
    Book* find(int id);
    /// Runs calls to the active workbook. One that has been closed in between is forgotten.
    template <typename Calls>
    auto onBook(Calls calls);

    Keeper keeper_; ///< outlives the connection: what comes over it is kept here to the last
    std::unique_ptr<Connection> connection_;
    CalcObserver& observer_;
    Ref<css::frame::XDispatchHelper> dispatcher_;
    rtl::Reference<FileEvents> files_;
    rtl::Reference<UsersDocuments> usersDocuments_;
    std::vector<std::unique_ptr<Book>> books_;
    int activeId_ = 0;
    int lastId_ = 0;
    bool visible_ = false;
};

template <typename Calls>
auto Engine::onBook(Calls calls) {
    return guarded([&] {
        Book* book = activeBook();
        if (!book) refuseNoWorkbook();
        try {
            return calls(*book);
        } catch (const css::lang::DisposedException&) {
            book->markClosed();
            throw;
        } catch (const css::uno::Exception& failure) {
            if (!book->isReadOnly()) throw;
            logFailure(failure);
            refuse(
                QStringLiteral("V LibreOffice Calc je sešit otevřený jen pro čtení. Uložte ho v okně Calcu "
                               "pod jiným jménem (Soubor / Uložit jako) a zkuste to znovu."));
        }
    });
}

} // namespace zvonika
