#pragma once

#include "ItemColumns.h"
#include "Symbols.h"

#include <QAbstractTableModel>

/// The found items for a table view, which asks for the texts that it shows: any number of items is there at
/// once.
class ItemModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    ItemModel(const CStock &stock, const CSymbols &symbols);

    /// Shows other items.
    void setItems(const CPtrArray &items);
    const CPtrArray &items() const { return m_items; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const CStock &m_stock;
    const CSymbols &m_symbols;
    CPtrArray m_items; // CStockItem
};
