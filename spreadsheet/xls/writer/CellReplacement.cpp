#include "spreadsheet/xls/writer/CellReplacement.h"

#include "spreadsheet/xls/records/Rk.h"

#include <map>
#include <vector>

namespace zvonika::xls {

namespace {

bool isRun(const Record& record) {
    return record.is(RecordType::MulRk) || record.is(RecordType::MulBlank);
}

/// Writes a run of cells anew, in as few records as the changed cells allow.
class RunSplitter {
public:
    explicit RunSplitter(const Record& run)
        : run_(run), isRk_(run.is(RecordType::MulRk)), step_(isRk_ ? 6 : 2), next_(run.u16(2)) {}

    void change(const CellChange& change) {
        const std::uint32_t column = columnOf(change.key);
        keepUpTo(column);
        const std::uint16_t format = cellFormat(run_, column);
        if (!joinRun(change.content, format)) {
            flush();
            const SmallRecord record = encodeCell(change.key, format, change.content);
            out_.insert(out_.end(), record.bytes.begin(), record.bytes.begin() + record.size);
        }
        next_ = column + 1;
    }

    void drop(CellKey key) {
        keepUpTo(columnOf(key));
        flush();
        next_ = columnOf(key) + 1;
    }

    std::vector<std::uint8_t> finish() {
        keepUpTo(run_.u16(2) + checkedColumns(run_).count);
        flush();
        return std::move(out_);
    }

private:
    void keepUpTo(std::uint32_t column) {
        if (pending_.empty()) pendingFirst_ = next_;
        const ByteView kept =
            run_.payload.subspan(4 + (next_ - run_.u16(2)) * step_, (column - next_) * step_);
        pending_.insert(pending_.end(), kept.begin(), kept.end());
    }

    bool joinRun(const CellContent& content, std::uint16_t format) {
        const bool number = content.kind == CellContent::Kind::Number;
        const auto rk = isRk_ && number ? encodeRk(content.number) : std::nullopt;
        if (!rk && (isRk_ || content.kind != CellContent::Kind::Blank)) return false;
        append16(pending_, format);
        if (rk) append32(pending_, *rk);
        return true;
    }

    void flush() {
        if (pending_.empty()) return;
        const std::size_t count = pending_.size() / step_;
        std::vector<std::uint8_t> payload;
        append16(payload, run_.u16(0));
        append16(payload, pendingFirst_);
        payload.insert(payload.end(), pending_.begin(), pending_.end());
        if (count > 1) append16(payload, static_cast<std::uint32_t>(pendingFirst_ + count - 1));
        const RecordType one = isRk_ ? RecordType::Rk : RecordType::Blank;
        appendRecord(out_, count > 1 ? run_.type() : one, payload);
        pending_.clear();
    }

    Record run_;
    bool isRk_;
    std::size_t step_;
    std::uint32_t next_;             ///< first column not dealt with yet
    std::uint32_t pendingFirst_ = 0; ///< column of the first cell in pending_
    std::vector<std::uint8_t> pending_;
    std::vector<std::uint8_t> out_;
};

void put(SheetPatch& patch, std::uint32_t begin, std::uint32_t end, ByteView fresh) {
    // Row blocks hold distances: a record of the same length leaves them as they are.
    if (fresh.size() != end - begin) patch.touch(begin);
    patch.patches.replace(begin, end - begin, fresh);
}

void replaceSingle(SheetPatch& patch, const Record& record, const CellChange& change) {
    const std::uint16_t format = cellFormat(record, columnOf(change.key));
    put(patch, record.offset, endOfCell(patch.stream, record.offset),
        encodeCell(change.key, format, change.content).view());
}

/// True for a cell with more behind it than its text: other cells may depend on that.
bool isShared(ByteView stream, const Record& record) {
    const std::uint32_t end = endOfCell(stream, record.offset);
    for (std::uint32_t at = record.end(); at < end;) {
        const Record attached = recordAt(stream, at);
        if (!attached.is(RecordType::String) && !attached.is(RecordType::Continue)) return true;
        at = attached.end();
    }
    return false;
}

using Runs = std::map<std::uint32_t, RunSplitter>;

RunSplitter& splitter(Runs& runs, const Record& record) {
    return runs.try_emplace(record.offset, record).first->second;
}

/// Where a cell has several records, programs differ in which of them counts once the last one is blank.
void removeEarlier(SheetPatch& patch, Runs& runs, CellKey key) {
    const std::span<const CellSlot> slots = patch.layout.recordsOf(key);
    for (const CellSlot& slot : slots.first(slots.size() - 1)) {
        const Record record = recordAt(patch.stream, slot.record);
        if (isRun(record))
            splitter(runs, record).drop(key);
        else if (!isShared(patch.stream, record))
            put(patch, slot.record, endOfCell(patch.stream, slot.record), {});
    }
}

} // namespace

void replaceCells(SheetPatch& patch, std::span<const CellChange> changes) {
    Runs runs;
    for (const CellChange& change : changes) {
        removeEarlier(patch, runs, change.key);
        const Record record = recordAt(patch.stream, patch.layout.findCell(change.key)->record);
        if (isRun(record))
            splitter(runs, record).change(change);
        else
            replaceSingle(patch, record, change);
    }
    for (auto& [offset, splitter] : runs)
        put(patch, offset, recordAt(patch.stream, offset).end(), splitter.finish());
}

} // namespace zvonika::xls
