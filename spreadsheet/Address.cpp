#include "spreadsheet/Address.h"

#include <algorithm>
#include <utility>

namespace zvonika {

namespace {

/// One corner of an address; a part that is not written is 0.
struct Corner {
    int column = 0;
    int row = 0;
};

/// Reads from the front of `text` what it can; nothing where it is out of the sheet or no corner at all.
class CornerReader {
public:
    explicit CornerReader(QStringView text) : text_(text) {}

    std::optional<Corner> corner() {
        Corner corner;
        if (!number(corner.column, lastColumn, letterValue, 26)) return {};
        if (!number(corner.row, lastRow, digitValue, 10)) return {};
        if (pendingDollar_ || (corner.column == 0 && corner.row == 0)) return {};
        return corner;
    }

    bool skip(char16_t c) {
        if (text_.isEmpty() || text_.front() != QChar(c)) return false;
        text_ = text_.mid(1);
        return true;
    }
    bool atEnd() const { return text_.isEmpty(); }

private:
    static int letterValue(QChar c) {
        const char16_t upper = c.toUpper().unicode();
        return upper >= u'A' && upper <= u'Z' ? upper - u'A' + 1 : -1;
    }
    static int digitValue(QChar c) { return c >= u'0' && c <= u'9' ? c.unicode() - u'0' : -1; }

    /// A "$" belongs to the number after it; without one it waits for the next number.
    bool number(int& result, int limit, int (*valueOf)(QChar), int base) {
        if (skip(u'$') && std::exchange(pendingDollar_, true)) return false;
        while (!text_.isEmpty()) {
            const int digit = valueOf(text_.front());
            if (digit < 0) break;
            if (result == 0 && digit == 0) return false;
            result = result * base + digit;
            if (result > limit) return false;
            text_ = text_.mid(1);
            pendingDollar_ = false;
        }
        return true;
    }

    QStringView text_;
    bool pendingDollar_ = false;
};

bool sameForm(const Corner& one, const Corner& other) {
    return (one.row == 0) == (other.row == 0) && (one.column == 0) == (other.column == 0);
}

CellRange rangeOf(const Corner& from, const Corner& to) {
    const CellPosition first{from.row == 0 ? 1 : from.row, from.column == 0 ? 1 : from.column};
    const CellPosition last{to.row == 0 ? lastRow : to.row, to.column == 0 ? lastColumn : to.column};
    return spanning(first, last);
}

} // namespace

bool CellRange::contains(CellPosition cell) const {
    return cell.row >= first.row && cell.row <= last.row && cell.column >= first.column &&
           cell.column <= last.column;
}

bool isOnSheet(CellPosition cell) {
    return cell.row >= 1 && cell.row <= lastRow && cell.column >= 1 && cell.column <= lastColumn;
}

CellRange spanning(CellPosition one, CellPosition other) {
    const auto [top, bottom] = std::minmax(one.row, other.row);
    const auto [left, right] = std::minmax(one.column, other.column);
    return {{top, left}, {bottom, right}};
}

CellRange sized(CellPosition first, int rows, int columns) {
    return {first,
            {std::min(first.row + rows - 1, lastRow), std::min(first.column + columns - 1, lastColumn)}};
}

std::optional<CellRange> parseAddress(QStringView address) {
    CornerReader reader(address);
    const auto from = reader.corner();
    if (!from) return {};
    if (reader.atEnd()) {
        if (from->row == 0 || from->column == 0) return {};
        return single({from->row, from->column});
    }
    if (!reader.skip(u':')) return {};
    const auto to = reader.corner();
    if (!to || !reader.atEnd() || !sameForm(*from, *to)) return {};
    return rangeOf(*from, *to);
}

QString columnLetters(int column) {
    QString letters;
    for (; column > 0; column = (column - 1) / 26)
        letters.prepend(QChar(static_cast<char16_t>(u'A' + (column - 1) % 26)));
    return letters;
}

QString absoluteAddress(CellPosition cell) {
    return QLatin1Char('$') + columnLetters(cell.column) + QLatin1Char('$') + QString::number(cell.row);
}

QString absoluteAddress(const CellRange& range) {
    if (range.first == range.last) return absoluteAddress(range.first);
    return absoluteAddress(range.first) + QLatin1Char(':') + absoluteAddress(range.last);
}

} // namespace zvonika
