#pragma once

#include "platform/RuntimeError.h"
#include "spreadsheet/CellValue.h"

#include <QRegularExpression>

#include <map>
#include <utility>
#include <vector>

namespace zvonika::testing {

/// A rectangle of cells; rows and columns count from 1, edges included.
struct FakeRange {
    int top = 1, left = 1, bottom = 1, right = 1;

    /// From "B7", "B1:B500" or "$B$1"; error 1004 for anything else and beyond the edge of a sheet.
    static FakeRange parse(const QString& address) {
        static const QRegularExpression form(
            QStringLiteral(R"(^\$?([A-Z]{1,2})\$?(\d{1,6})(?::\$?([A-Z]{1,2})\$?(\d{1,6}))?$)"));
        const auto match = form.match(address.toUpper());
        if (!match.hasMatch()) throw RuntimeError(error::applicationDefined);
        FakeRange range{match.captured(2).toInt(), column(match.captured(1)), 0, 0};
        range.bottom = match.captured(4).isEmpty() ? range.top : match.captured(4).toInt();
        range.right = match.captured(3).isEmpty() ? range.left : column(match.captured(3));
        range.check();
        return range;
    }

    void check() const {
        if (top < 1 || left < 1 || bottom > lastRow || right > lastColumn || bottom < top || right < left)
            throw RuntimeError(error::applicationDefined);
    }

    static QString letters(int column) {
        QString text;
        for (; column > 0; column = (column - 1) / 26)
            text.prepend(QChar(u'A' + (column - 1) % 26));
        return text;
    }

    static constexpr int lastRow = 65536;
    static constexpr int lastColumn = 256;

private:
    static int column(const QString& letters) {
        int column = 0;
        for (const QChar letter : letters)
            column = column * 26 + letter.unicode() - u'A' + 1;
        return column;
    }
};

/// One sheet of a fake workbook: its cells, its selection and its active cell.
struct FakeSheet {
    QString name;
    std::map<std::pair<int, int>, CellValue> cells;
    FakeRange selection;
    int row = 1, column = 1;

    CellValue at(int r, int c) const {
        const auto found = cells.find({r, c});
        return found == cells.end() ? CellValue() : found->second;
    }
    void put(int r, int c, const CellValue& value) {
        if (std::holds_alternative<std::monostate>(value) || value == CellValue(QString()))
            cells.erase({r, c});
        else
            cells[{r, c}] = value;
    }
    void select(const FakeRange& range) {
        range.check();
        selection = range;
        row = range.top;
        column = range.left;
    }
    CellBlock read(const FakeRange& range) const {
        CellBlock block;
        for (int r = range.top; r <= range.bottom; ++r) {
            QVector<CellValue> line;
            for (int c = range.left; c <= range.right; ++c)
                line.append(at(r, c));
            block.append(line);
        }
        return block;
    }
    void write(int top, int left, const CellBlock& block) {
        for (int r = 0; r < block.size(); ++r)
            for (int c = 0; c < block[r].size(); ++c)
                put(top + r, left + c, block[r][c]);
    }
};

/// A workbook as it is open or as it lies on the fake disk.
struct FakeBook {
    QString name;     ///< file name without folder
    QString fullName; ///< "" before the first save
    std::vector<FakeSheet> sheets;
    std::size_t active = 0;

    FakeSheet& sheet() { return sheets.at(active); }
    FakeSheet* find(const QString& sheetName) {
        for (auto& candidate : sheets)
            if (candidate.name == sheetName) return &candidate;
        return nullptr;
    }
};

} // namespace zvonika::testing
