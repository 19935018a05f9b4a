#include "spreadsheet/journal/JournalFormat.h"

#include "platform/files/Checksum.h"

#include <QDataStream>
#include <QIODevice>

#include <cmath>

namespace zvonika::journalformat {

namespace {

enum class EntryType : quint8 { Base = 1, Group, Save };
enum class ChangeKind : quint8 {
    CellWritten = 1,
    CellAsInFile,
    RowInserted,
    RowDeleted,
    SheetRenamed,
    ColumnResized
};
enum class ValueTag : quint8 { Nothing, Number, Truth, Error, Text };

constexpr qsizetype frameHead = 8;

void prepare(QDataStream& stream) {
    stream.setVersion(QDataStream::Qt_6_0);
}

template <typename Write>
QByteArray frame(quint32 number, EntryType type, Write write) {
    QByteArray payload;
    QDataStream body(&payload, QIODevice::WriteOnly);
    prepare(body);
    body << number << quint8(type);
    write(body);
    QByteArray result;
    QDataStream head(&result, QIODevice::WriteOnly);
    head << quint32(payload.size()) << crc32(payload);
    return result + payload;
}

struct PutValue {
    QDataStream& out;
    void operator()(std::monostate) const { out << quint8(ValueTag::Nothing); }
    void operator()(double number) const { out << quint8(ValueTag::Number) << number; }
    void operator()(bool truth) const { out << quint8(ValueTag::Truth) << quint8(truth); }
    void operator()(const CellError& error) const { out << quint8(ValueTag::Error) << error.text; }
    void operator()(const QString& text) const { out << quint8(ValueTag::Text) << text; }
};

struct PutChange {
    QDataStream& out;

    void operator()(const CellWritten& change) const {
        head(change.asInFile ? ChangeKind::CellAsInFile : ChangeKind::CellWritten, change.sheet);
        out << quint32(change.cell.row) << quint16(change.cell.column);
        std::visit(PutValue{out}, change.value);
    }
    void operator()(const RowInserted& change) const {
        head(ChangeKind::RowInserted, change.sheet);
        out << quint32(change.row);
    }
    void operator()(const RowDeleted& change) const {
        head(ChangeKind::RowDeleted, change.sheet);
        out << quint32(change.row);
    }
    void operator()(const SheetRenamed& change) const {
        head(ChangeKind::SheetRenamed, change.sheet);
        out << change.name;
    }
    void operator()(const ColumnResized& change) const {
        head(ChangeKind::ColumnResized, change.sheet);
        out << quint16(change.column) << change.characters;
    }

private:
    void head(ChangeKind kind, int sheet) const { out << quint8(kind) << quint16(sheet); }
};

template <typename T>
T get(QDataStream& in) {
    T value{};
    in >> value;
    return value;
}

void spoil(QDataStream& in) {
    in.setStatus(QDataStream::ReadCorruptData);
}

CellValue getValue(QDataStream& in) {
    switch (ValueTag(get<quint8>(in))) {
    case ValueTag::Nothing:
        return {};
    case ValueTag::Number:
        return get<double>(in);
    case ValueTag::Truth:
        return get<quint8>(in) != 0;
    case ValueTag::Error:
        return CellError{get<QString>(in)};
    case ValueTag::Text:
        return get<QString>(in);
    }
    spoil(in);
    return {};
}

CellWritten getCell(QDataStream& in, int sheet, bool asInFile) {
    CellPosition cell;
    cell.row = int(get<quint32>(in));
    cell.column = get<quint16>(in);
    if (!isOnSheet(cell)) spoil(in);
    return {sheet, cell, getValue(in), asInFile};
}

int getRow(QDataStream& in) {
    const int row = int(get<quint32>(in));
    if (!isOnSheet({row, 1})) spoil(in);
    return row;
}

ColumnResized getWidth(QDataStream& in, int sheet) {
    const int column = get<quint16>(in);
    const auto characters = get<double>(in);
    if (!isOnSheet({1, column}) || !std::isfinite(characters)) spoil(in);
    return {sheet, column, characters};
}

JournalChange getChange(QDataStream& in) {
    const auto kind = ChangeKind(get<quint8>(in));
    const int sheet = get<quint16>(in);
    switch (kind) {
    case ChangeKind::CellWritten:
    case ChangeKind::CellAsInFile:
        return getCell(in, sheet, kind == ChangeKind::CellAsInFile);
    case ChangeKind::RowInserted:
        return RowInserted{sheet, getRow(in)};
    case ChangeKind::RowDeleted:
        return RowDeleted{sheet, getRow(in)};
    case ChangeKind::SheetRenamed:
        return SheetRenamed{sheet, get<QString>(in)};
    case ChangeKind::ColumnResized:
        return getWidth(in, sheet);
    }
    spoil(in);
    return {};
}

JournalGroup getGroup(QDataStream& in) {
    JournalGroup group;
    group.when = QDateTime::fromMSecsSinceEpoch(get<qint64>(in));
    const auto count = get<quint32>(in);
    for (quint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i)
        group.changes.push_back(getChange(in));
    return group;
}

JournalBase getBase(QDataStream& in) {
    JournalBase base;
    in >> base.path >> base.name >> base.hash;
    return base;
}

JournalSave getSave(QDataStream& in) {
    JournalSave save;
    in >> save.path >> save.hash;
    return save;
}

Entry getEntry(QDataStream& in) {
    switch (EntryType(get<quint8>(in))) {
    case EntryType::Base:
        return getBase(in);
    case EntryType::Group:
        return getGroup(in);
    case EntryType::Save:
        return getSave(in);
    }
    spoil(in);
    return {};
}

std::optional<Entry> fromPayload(const QByteArray& payload, quint32 number) {
    QDataStream in(payload);
    prepare(in);
    if (get<quint32>(in) != number) return {};
    Entry entry = getEntry(in);
    if (in.status() != QDataStream::Ok || !in.atEnd()) return {};
    return entry;
}

} // namespace

QByteArray signature() {
    return QByteArrayLiteral("ZVJ1\r\n\x1a\n");
}

QByteArray encoded(quint32 number, const JournalBase& base) {
    return frame(number, EntryType::Base,
                 [&](QDataStream& out) { out << base.path << base.name << base.hash; });
}

QByteArray encoded(quint32 number, const JournalGroup& group) {
    return frame(number, EntryType::Group, [&](QDataStream& out) {
        out << qint64(group.when.toMSecsSinceEpoch()) << quint32(group.changes.size());
        for (const auto& change : group.changes)
            std::visit(PutChange{out}, change);
    });
}

QByteArray encoded(quint32 number, const JournalSave& save) {
    return frame(number, EntryType::Save, [&](QDataStream& out) { out << save.path << save.hash; });
}

std::optional<Entry> decoded(const QByteArray& file, qsizetype& offset, quint32 number) {
    if (file.size() - offset < frameHead) return {};
    QDataStream head(file.mid(offset, frameHead));
    const auto length = get<quint32>(head);
    const auto checksum = get<quint32>(head);
    if (length > quint64(file.size() - offset - frameHead)) return {};
    const QByteArray payload = file.mid(offset + frameHead, qsizetype(length));
    if (crc32(payload) != checksum) return {};
    auto entry = fromPayload(payload, number);
    if (entry) offset += frameHead + payload.size();
    return entry;
}

} // namespace zvonika::journalformat
