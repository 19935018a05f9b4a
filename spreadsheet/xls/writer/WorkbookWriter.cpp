#include "spreadsheet/xls/writer/WorkbookWriter.h"

#include "spreadsheet/xls/writer/CellInsertion.h"
#include "spreadsheet/xls/writer/CellReplacement.h"
#include "spreadsheet/xls/writer/RowIndex.h"
#include "spreadsheet/xls/writer/SettingsPatch.h"
#include "spreadsheet/xls/writer/SharedFormulas.h"
#include "spreadsheet/xls/writer/SharedStringsPatch.h"

#include <algorithm>
#include <utility>

namespace zvonika::xls {

namespace {

using Changes = std::vector<CellChange>;

bool isText(const CellChange& change) {
    return change.content.kind == CellContent::Kind::Text;
}

/// Writes one workbook: first what changes lengths, then the offsets that follow.
class WorkbookWriter {
public:
    WorkbookWriter(const WorkbookModel& model, const WorkbookEdits& edits) : model_(model), edits_(edits) {
        for (const SheetEdits& sheet : edits.sheets)
            changes_.push_back(sorted(sheet));
    }

    PatchedStream write() {
        SharedStringsPatch texts(model_, edits_.texts, usedTexts());
        resolveTexts(texts);
        texts.apply(references(), patches_);
        for (std::size_t i = 0; i < changes_.size(); ++i)
            patchSheet(i);
        if (std::ranges::any_of(changes_, [](const Changes& changes) { return !changes.empty(); }))
            markFormulas();
        addUsualFormat();
        if (edits_.activeSheet) patchActiveSheet(model_, *edits_.activeSheet, patches_);
        patches_.finish();
        PatchedStream out(model_.stream, std::move(patches_));
        texts.fix(out);
        for (std::size_t i = 0; i < model_.layouts.size(); ++i)
            fixSheet(out, i);
        out.finish();
        return out;
    }

private:
    struct BlockState {
        bool rebuild = false;
        bool newBlocks = false;
    };

    static Changes sorted(const SheetEdits& sheet) {
        Changes changes;
        changes.reserve(sheet.cells.size());
        for (const auto& [key, content] : sheet.cells)
            changes.push_back({key, content});
        std::ranges::sort(changes, {}, &CellChange::key);
        return changes;
    }

    std::vector<bool> usedTexts() const {
        std::vector<bool> used(edits_.texts.size());
        for (const Changes& changes : changes_)
            for (const CellChange& change : changes)
                if (isText(change)) used[change.content.text] = true;
        return used;
    }

    void resolveTexts(const SharedStringsPatch& texts) {
        for (Changes& changes : changes_)
            for (CellChange& change : changes)
                if (isText(change)) change.content.text = texts.index(change.content.text);
    }

    /// How many cells refer to the shared strings now. Counted, because some writers' counts are wrong.
    std::uint32_t references() const {
        std::int64_t count = 0;
        for (const SheetLayout& layout : model_.layouts)
            count += layout.sharedTexts;
        for (std::size_t i = 0; i < changes_.size(); ++i)
            for (const CellChange& change : changes_[i]) {
                for (const CellSlot& old : model_.layouts[i].recordsOf(change.key))
                    if (recordAt(model_.stream, old.record).is(RecordType::LabelSst)) --count;
                if (isText(change)) ++count;
            }
        return static_cast<std::uint32_t>(count);
    }

    void patchSheet(std::size_t i) {
        const SheetLayout& layout = model_.layouts[i];
        const SheetEdits& edits = edits_.sheets[i];
        blocks_.push_back(patchCells(i));
        if (edits.name) patchSheetName(model_.stream, model_.globals.sheets[i], *edits.name, patches_);
        if (edits.activeCell) patchActiveCell(model_.stream, layout, *edits.activeCell, patches_);
        patchColumnWidths(model_.stream, layout, model_.globals.formats.usual(), edits.widths, patches_);
    }

    BlockState patchCells(std::size_t i) {
        const SheetLayout& layout = model_.layouts[i];
        SheetPatch patch{model_.stream, layout, patches_, model_.globals.formats};
        Changes existing;
        Changes fresh;
        for (const CellChange& change : changes_[i])
            if (layout.findCell(change.key))
                existing.push_back(change);
            else if (change.content.kind != CellContent::Kind::Blank)
                fresh.push_back(change);
        moveSharedFormulas(patch, existing);
        replaceCells(patch, existing);
        CellInsertion(patch).insert(fresh);
        patchRowIndex(patch, fresh);
        return {!patch.changedBlocks.empty() || patch.newBlocks > 0, patch.newBlocks > 0};
    }

    /// Where all formats are of styles, new cells and columns have been given one that is not there yet.
    void addUsualFormat() {
        if (!model_.globals.formats.lackUsual()) return;
        std::vector<std::uint8_t> format;
        appendPlainCellFormat(format);
        patches_.insert(model_.globals.formatsEnd, format);
    }

    /// Stored results may be out of date now. A program that calculates does it anew on opening where a sheet
    /// says so; the formulas themselves keep every byte.
    void markFormulas() {
        std::vector<std::uint8_t> mark;
        appendRecord(mark, RecordType::Uncalced, std::vector<std::uint8_t>(2));
        for (const SheetLayout& layout : model_.layouts)
            if (layout.formulas > 0 && layout.uncalced == absent)
                patches_.insert(recordAt(model_.stream, layout.start).end(), mark);
    }

    void fixSheet(PatchedStream& out, std::size_t i) const {
        const SheetEntry& entry = model_.globals.sheets[i];
        if (!entry.hasSubstream()) return;
        out.set32(out.map(entry.record) + recordHeaderSize, out.map(entry.position));
        fixRowIndex(out, model_.layouts[i], blocks_[i].rebuild, blocks_[i].newBlocks);
    }

    const WorkbookModel& model_;
    const WorkbookEdits& edits_;
    std::vector<Changes> changes_;
    PatchList patches_;
    std::vector<BlockState> blocks_;
};

} // namespace

PatchedStream writeWorkbook(const WorkbookModel& model, const WorkbookEdits& edits) {
    return WorkbookWriter(model, edits).write();
}

} // namespace zvonika::xls
