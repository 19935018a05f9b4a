#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/CellValue.h"

#include <QDateTime>
#include <QString>

#include <variant>
#include <vector>

namespace zvonika {

/// What a cell of a sheet became. Sheets, rows and columns count from 1.
struct CellWritten {
    int sheet = 1;
    CellPosition cell;
    CellValue value;
    /// The cell got back what its file holds (a formula, as a rule); `value` is what it shows.
    bool asInFile = false;
    friend bool operator==(const CellWritten&, const CellWritten&) = default;
};

struct RowInserted {
    int sheet = 1;
    int row = 1;
    friend bool operator==(const RowInserted&, const RowInserted&) = default;
};

struct RowDeleted {
    int sheet = 1;
    int row = 1;
    friend bool operator==(const RowDeleted&, const RowDeleted&) = default;
};

struct SheetRenamed {
    int sheet = 1;
    QString name;
    friend bool operator==(const SheetRenamed&, const SheetRenamed&) = default;
};

struct ColumnResized {
    int sheet = 1;
    int column = 1;
    double characters = 0; ///< of the default font
    friend bool operator==(const ColumnResized&, const ColumnResized&) = default;
};

using JournalChange = std::variant<CellWritten, RowInserted, RowDeleted, SheetRenamed, ColumnResized>;

/// What one command did; comes back as a whole or not at all.
struct JournalGroup {
    QDateTime when;
    std::vector<JournalChange> changes;
    friend bool operator==(const JournalGroup&, const JournalGroup&) = default;
};

/// The file that the changes of a journal belong to.
struct JournalBase {
    QString path;    ///< native full name; "" for a workbook that was never saved
    QString name;    ///< what the workbook is called
    QByteArray hash; ///< of the file's contents (`contentHash`); "" for a workbook that was never saved
    friend bool operator==(const JournalBase&, const JournalBase&) = default;
};

/// A save was about to put everything so far into a file of these contents. Whether it did, the file tells.
struct JournalSave {
    QString path;
    QByteArray hash;
    friend bool operator==(const JournalSave&, const JournalSave&) = default;
};

} // namespace zvonika
