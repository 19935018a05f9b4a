#include "spreadsheet/journal/JournalContents.h"

#include "spreadsheet/journal/JournalFormat.h"

#include <set>
#include <tuple>

namespace zvonika {

namespace {

void take(JournalContents& contents, journalformat::Entry entry) {
    if (auto* group = std::get_if<JournalGroup>(&entry))
        contents.groups.push_back(std::move(*group));
    else if (auto* save = std::get_if<JournalSave>(&entry))
        contents.saves.push_back({std::move(*save), contents.groups.size()});
}

/// What a change changes: kind, sheet, row or column, column.
using Target = std::tuple<std::size_t, int, int, int>;

struct TargetOf {
    Target operator()(const CellWritten& change) const {
        return {0, change.sheet, change.cell.row, change.cell.column};
    }
    Target operator()(const SheetRenamed& change) const { return {1, change.sheet, 0, 0}; }
    Target operator()(const ColumnResized& change) const { return {2, change.sheet, change.column, 0}; }
    Target operator()(const RowInserted& change) const { return {3, change.sheet, change.row, 0}; }
    Target operator()(const RowDeleted& change) const { return {4, change.sheet, change.row, 0}; }
};

} // namespace

std::optional<JournalContents> readJournal(const QByteArray& file) {
    if (!file.startsWith(journalformat::signature())) return {};
    JournalContents contents;
    qsizetype offset = journalformat::signature().size();
    auto first = journalformat::decoded(file, offset, 0);
    if (!first || !std::holds_alternative<JournalBase>(*first)) return {};
    contents.base = std::get<JournalBase>(*first);
    for (contents.entries = 1; auto entry = journalformat::decoded(file, offset, contents.entries);
         ++contents.entries)
        take(contents, std::move(*entry));
    contents.validSize = offset;
    return contents;
}

void JournalContents::dropSaved(const std::function<QByteArray(const QString& path)>& hashOf) {
    for (auto last = saves.rbegin(); last != saves.rend(); ++last) {
        const JournalSave& save = last->save;
        const bool inPlace = save.path == base.path;
        // Later changes go on from the journal's own base, not from what was put elsewhere.
        if (!inPlace && last->groupsBefore < groups.size()) continue;
        if (save.hash.isEmpty() || hashOf(save.path) != save.hash) continue;
        if (inPlace) base.hash = save.hash;
        groups.erase(groups.begin(), groups.begin() + std::ptrdiff_t(last->groupsBefore));
        saves.clear();
        return;
    }
}

int JournalContents::changeCount() const {
    std::set<Target> targets;
    for (const auto& group : groups)
        for (const auto& change : group.changes)
            targets.insert(std::visit(TargetOf(), change));
    return int(targets.size());
}

QDateTime JournalContents::lastChange() const {
    return groups.back().when;
}

} // namespace zvonika
