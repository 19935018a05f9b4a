#include "spreadsheet/embedded/TabSeparatedText.h"

namespace zvonika {

namespace {

constexpr QLatin1Char quote('"');

QString written(const QString& cell) {
    const bool plain = !cell.contains(QLatin1Char('\t')) && !cell.contains(QLatin1Char('\n')) &&
                       !cell.contains(QLatin1Char('\r')) && !cell.startsWith(quote);
    if (plain) return cell;
    return quote + QString(cell).replace(quote, QStringLiteral("\"\"")) + quote;
}

/// Reads cell by cell; a quotation mark counts only at a cell's beginning and where a quoted cell ends.
class Reader {
public:
    explicit Reader(const QString& text) : text_(text) {}

    QVector<QStringList> rows() {
        QVector<QStringList> result;
        while (at_ < text_.size())
            result.append(row());
        return result;
    }

private:
    QStringList row() {
        QStringList cells{cell()};
        while (skip(QLatin1Char('\t')))
            cells.append(cell());
        const bool carriageReturn = skip(QLatin1Char('\r'));
        if (!skip(QLatin1Char('\n')) && !carriageReturn) at_ = text_.size();
        return cells;
    }

    QString cell() {
        QString result;
        if (skip(quote)) result = quoted();
        return result += plain();
    }

    QString quoted() {
        QString result;
        while (at_ < text_.size()) {
            if (skip(quote) && !next(quote)) break;
            result.append(text_.at(at_++));
        }
        return result;
    }

    QString plain() {
        const auto start = at_;
        while (at_ < text_.size() && !next(QLatin1Char('\t')) && !next(QLatin1Char('\n')) &&
               !next(QLatin1Char('\r')))
            ++at_;
        return text_.mid(start, at_ - start);
    }

    bool next(QChar c) const { return at_ < text_.size() && text_.at(at_) == c; }
    bool skip(QChar c) {
        if (!next(c)) return false;
        ++at_;
        return true;
    }

    const QString& text_;
    qsizetype at_ = 0;
};

} // namespace

QString tabSeparated(const QVector<QStringList>& rows) {
    QString text;
    for (const auto& row : rows) {
        QStringList cells;
        for (const auto& cell : row)
            cells.append(written(cell));
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

QVector<QStringList> fromTabSeparated(const QString& text) {
    return Reader(text).rows();
}

} // namespace zvonika
