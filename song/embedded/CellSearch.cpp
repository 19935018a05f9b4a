#include "song/embedded/CellSearch.h"

#include "song/embedded/CellEntry.h"

#include <algorithm>

namespace zvonika {

namespace {

namespace find {
constexpr int formulas = -4123;
constexpr int whole = 1;
constexpr int byColumns = 2;
constexpr int previous = 2;
} // namespace find

constexpr CellRange wholeSheet{{1, 1}, {lastRow, lastColumn}};

class Matcher {
public:
    Matcher(const Document& document, const FindArguments& arguments)
        : document_(document), arguments_(arguments),
          sensitivity_(arguments.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive) {}

    bool operator()(CellPosition cell) const {
        const int sheet = document_.activeSheet();
        const CellValue value = document_.value(sheet, cell);
        if (!arguments_.what.isEmpty()) return matches(displayText(value));
        return isEmpty(value) && (arguments_.lookIn != find::formulas || !document_.isFormula(sheet, cell));
    }

private:
    bool matches(const QString& text) const {
        return arguments_.lookAt == find::whole ? text.compare(arguments_.what, sensitivity_) == 0
                                                : text.contains(arguments_.what, sensitivity_);
    }

    const Document& document_;
    const FindArguments& arguments_;
    Qt::CaseSensitivity sensitivity_;
};

/// Beyond the used part of the sheet every cell is as empty as the first one there.
CellRange worthSearching(const Document& document) {
    const auto [range, active] = document.selection();
    const CellRange all = range.first == range.last ? wholeSheet : range;
    const int sheet = document.activeSheet();
    const int row = std::max({document.usedRows(sheet) + 1, active.row, all.first.row});
    const int column = std::max({document.usedColumns(sheet) + 1, active.column, all.first.column});
    return {all.first, {std::min(all.last.row, row), std::min(all.last.column, column)}};
}

/// The cells of a range in the order of a search, numbered from 0.
struct SearchOrder {
    CellRange range;
    bool byColumns;

    qint64 count() const { return qint64{range.rows()} * range.columns(); }
    CellPosition at(qint64 index) const {
        const int line = byColumns ? range.rows() : range.columns();
        const int across = static_cast<int>(index / line), along = static_cast<int>(index % line);
        return {range.first.row + (byColumns ? along : across),
                range.first.column + (byColumns ? across : along)};
    }
    qint64 indexOf(CellPosition cell) const {
        const qint64 row = cell.row - range.first.row, column = cell.column - range.first.column;
        return byColumns ? column * range.rows() + row : row * range.columns() + column;
    }
};

} // namespace

std::optional<CellPosition> findCell(const Document& document, const FindArguments& arguments) {
    const Matcher matches(document, arguments);
    const SearchOrder order{worthSearching(document), arguments.searchOrder == find::byColumns};
    const qint64 start = order.indexOf(document.selection().active), count = order.count();
    const qint64 step = arguments.searchDirection == find::previous ? count - 1 : 1;
    for (qint64 done = 1, index = start; done <= count; ++done) {
        index = (index + step) % count;
        if (const CellPosition cell = order.at(index); matches(cell)) return cell;
    }
    return {};
}

} // namespace zvonika
