#pragma once

#include "spreadsheet/Address.h"
#include "spreadsheet/SheetColumns.h"

#include <QAbstractTableModel>

namespace zvonika {

class Document;
class SheetCommands;

/// The active sheet of a document as a table, all its rows and columns; nothing is kept here. What the user
/// enters goes to the commands.
class SheetModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// Of a column's header, beside the usual roles: its word and the width that suits it (px).
    enum Role { LabelRole = Qt::UserRole, WidthRole };

    SheetModel(SheetCommands& commands, SheetColumns columns, QObject* parent = nullptr);

    /// The document to show; nullptr for none.
    void setDocument(Document* document);
    /// Another sheet is active.
    void refresh();

    static CellPosition cellOf(const QModelIndex& index) { return {index.row() + 1, index.column() + 1}; }
    QModelIndex indexOf(CellPosition cell) const { return index(cell.row - 1, cell.column - 1); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void showChange(int sheet, const CellRange& range);
    QVariant columnHeader(int column, int role) const;
    QString spokenText(CellPosition cell) const;

    SheetCommands& commands_;
    SheetColumns columns_;
    Document* document_ = nullptr;
};

} // namespace zvonika
