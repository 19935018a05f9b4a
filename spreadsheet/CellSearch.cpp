#include "spreadsheet/CellSearch.h"

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
    Matcher(const SearchedSheet& sheet, const FindArguments& arguments)
        : sheet_(sheet), arguments_(arguments),
          sensitivity_(arguments.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive) {}

    bool operator()(CellPosition cell) const {
        if (!arguments_.what.isEmpty()) return matches(sheet_.shown(cell));
        return isEmpty(sheet_.value(cell)) &&
               (arguments_.lookIn != find::formulas || !sheet_.isFormula(cell));
    }

private:
    bool matches(const QString& text) const {
        return arguments_.lookAt == find::whole ? text.compare(arguments_.what, sensitivity_) == 0
                                                : text.contains(arguments_.what, sensitivity_);
    }

    const SearchedSheet& sheet_;
    const FindArguments& arguments_;
    Qt::CaseSensitivity sensitivity_;
};

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

// Beyond the used part of the sheet every cell is as empty as the first one there.
CellRange searchedPart(const SearchedSheet& sheet) {
    const CellRange all = sheet.selection.first == sheet.selection.last ? wholeSheet : sheet.selection;
    const int row = std::max({sheet.used.row + 1, sheet.active.row, all.first.row});
    const int column = std::max({sheet.used.column + 1, sheet.active.column, all.first.column});
    return {all.first, {std::min(all.last.row, row), std::min(all.last.column, column)}};
}

std::optional<CellPosition> findCell(const SearchedSheet& sheet, const FindArguments& arguments) {
    const Matcher matches(sheet, arguments);
    const SearchOrder order{searchedPart(sheet), arguments.searchOrder == find::byColumns};
    const qint64 start = order.indexOf(sheet.active), count = order.count();
    const qint64 step = arguments.searchDirection == find::previous ? count - 1 : 1;
    for (qint64 done = 1, index = start; done <= count; ++done) {
        index = (index + step) % count;
        if (const CellPosition cell = order.at(index); matches(cell)) return cell;
    }
    return {};
}

} // namespace zvonika
