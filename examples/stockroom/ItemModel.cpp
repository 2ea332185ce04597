#include "ItemModel.h"

ItemModel::ItemModel(const CStock &stock, const CSymbols &symbols)
    : m_stock(stock)
    , m_symbols(symbols)
{
}

void ItemModel::setItems(const CPtrArray &items)
{
    beginResetModel();
    m_items.Copy(items);
    endResetModel();
}

int ItemModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_items.GetSize());
}

int ItemModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

QVariant ItemModel::data(const QModelIndex &index, int role) const
{
    const auto *item = static_cast<const CStockItem *>(m_items[index.row()]);
    if (role == Qt::DisplayRole)
        return QString::fromWCharArray(GetColumnText(*item, m_stock, index.column()));
    if (role == Qt::DecorationRole && index.column() == COLUMN_NUMBER)
        return m_symbols.GetIcon(GetItemSymbol(*item));
    return {};
}

QVariant ItemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return QString::fromWCharArray(GetColumnHeading(section));
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole && IsNumberColumn(section))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return QAbstractTableModel::headerData(section, orientation, role);
}
