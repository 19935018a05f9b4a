#pragma once

#include "platform/RuntimeError.h"
#include "spreadsheet/libreoffice/CalcCalls.h"

#include <QStringList>

namespace zvonika::testing {

/// A Calc that only notes what is asked of it; one of its calls can be made to do something first.
class FakeCalc : public CalcEngine {
public:
    QStringList asked;           ///< without calls that change nothing
    QVector<OpenWorkbook> open_; ///< the first one is the active one
    QStringList others;          ///< documents with unsaved changes that are no workbooks
    CellPosition cursor_{1, 1};  ///< as Calc has it
    CellValue everywhere;        ///< what each cell holds
    bool takesBlocks = true;     ///< of the sheet
    std::function<void(const QString&)> first = [](const QString&) {};

    bool connected() const override { return true; }
    void setVisible(bool) override { note("setVisible"); }
    void toFront() override { note("toFront"); }
    QString folder() const override { return {}; }
    void setFolder(const QString& native) override { note("setFolder " + native); }
    bool quit() override { return note("quit"), true; }
    void add() override { note("add"); }
    void open(const QString& path) override { note("open " + path); }
    QVector<OpenWorkbook> workbooks() override { return open_; }
    OpenWorkbook active() override { return open_.value(0); }
    std::optional<WorkbookImage> image(int) override { return {}; }
    void activate(int id) override { note("activate " + QString::number(id)); }
    void saveAs(const QString& path) override { note("saveAs " + path); }
    void save() override { note("save"); }
    void close() override { note("close"); }
    QStringList otherUnsaved() override { return others; }
    int activeSheet() override { return 1; }
    int activePlace() override { return 1; }
    QStringList sheetNames() override { return {"List1"}; }
    void renameSheet(const QString& name) override { note("renameSheet " + name); }
    void selectSheet(int) override { note("selectSheet"); }
    CellPosition cursor() override { return cursor_; }
    CellRange selection() override { return single(cursor_); }
    void select(const CellRange& range) override {
        note("select " + absoluteAddress(range));
        cursor_ = range.first;
    }
    bool hasFormulas() override { return false; }
    CellPosition used() override { return {1, 1}; }
    CellBlock read(const CellRange& range) override {
        return CellBlock(range.rows(), QVector<CellValue>(range.columns(), everywhere));
    }
    QVector<QStringList> formulas(const CellRange&) override { return {{QString()}}; }
    void write(CellPosition first, const CellBlock&) override { note("write " + absoluteAddress(first)); }
    void clear(const CellRange& range) override { note("clear " + absoluteAddress(range)); }
    void insertRow(int row) override { note("insertRow " + QString::number(row)); }
    void deleteRow(int row) override { note("deleteRow " + QString::number(row)); }
    bool holdSheet() override { return takesBlocks; }
    void writeHeld(const QVector<PlacedBlock>& blocks) override {
        QStringList places;
        for (const auto& [first, cells] : blocks)
            places << absoluteAddress(
                sized(first, static_cast<int>(cells.size()), static_cast<int>(cells.first().size())));
        note("writeHeld " + places.join(' '));
    }
    bool typing() override { return false; }

private:
    void note(const QString& call) {
        first(call);
        asked << call;
    }
};

/// The way to it.
struct FakeCalcWorld {
    explicit FakeCalcWorld(const WaitingCustoms& customs = {[] {}, [] { return true; }, [] {}},
                           const Patience& patience = {})
        : calls(customs, {}, patience) {
        calls.attach(calc, notices, [] { return true; });
    }
    ~FakeCalcWorld() { notices->stop(); }

    std::shared_ptr<FakeCalc> calc = std::make_shared<FakeCalc>();
    CalcCalls calls;
    std::shared_ptr<UserNotices> notices =
        std::make_shared<UserNotices>([this] { return calls.busy(); }, [](const QString&) {});
};

} // namespace zvonika::testing
