/// @file ListWidgets.h
/// @brief What the list control and its header share for the kinds of widget they are bound to.
#pragma once

#include "windows/KxGuard.h"

#include <QListWidget>
#include <QPersistentModelIndex>
#include <QStandardItemModel>
#include <QTableWidget>

#include <memory>

/// A view's model if it is a standard one, else null.
inline QStandardItemModel *standardModel(const QTableView *view)
{
    return qobject_cast<QStandardItemModel *>(view->model());
}

/// The widget that a list control is bound to, as what it is; null for every kind that it is not.
struct BoundList
{
    // One way up the classes, where a cast for each kind would go all the way whenever it fails.
    explicit BoundList(const CWnd *control)
        : widget(boundWidget(control))
    {
        const QMetaObject *meta = widget ? widget->metaObject() : nullptr;
        for (; meta && !list && !view; meta = meta->superClass()) {
            if (meta == &QListWidget::staticMetaObject)
                list = static_cast<QListWidget *>(widget);
            else if (meta == &QTableWidget::staticMetaObject)
                view = table = static_cast<QTableWidget *>(widget);
            else if (meta == &QTableView::staticMetaObject)
                view = static_cast<QTableView *>(widget);
        }
    }

    QWidget *widget;
    QListWidget *list = nullptr;
    QTableWidget *table = nullptr;
    QTableView *view = nullptr; // A table is a view too.
};

/// The same, but none of the kinds without a selection model, which Qt uses unchecked.
struct BoundSelection : BoundList
{
    explicit BoundSelection(const CWnd *control)
        : BoundList(control)
    {
        const QAbstractItemView *items = list ? static_cast<QAbstractItemView *>(list) : view;
        if (!items || items->selectionModel())
            return;
        list = nullptr;
        table = nullptr;
        view = nullptr;
    }
};

/// Puts an item into a cell. For a column out of range Qt would take a cell of another row, or leak the item.
inline void setCell(QTableWidget *table, int row, int column, std::unique_ptr<QTableWidgetItem> item)
{
    if (table->model()->hasIndex(row, column))
        table->setItem(row, column, item.release());
}

/// A table's cell for operations of several steps: slots that run in between may move it or take it away.
class TableCell
{
public:
    TableCell(QTableWidget *table, int row, int column)
        : m_table(table)
        , m_index(table->model()->index(row, column))
    {
    }

    QTableWidgetItem *item() const
    {
        return m_index.isValid() ? m_table->item(m_index.row(), m_index.column()) : nullptr;
    }
    void setItem(std::unique_ptr<QTableWidgetItem> item) const
    {
        if (m_index.isValid())
            m_table->setItem(m_index.row(), m_index.column(), item.release());
    }
    void setText(const QString &text) const
    {
        if (auto *existing = item())
            existing->setText(text);
    }
    void setData(qulonglong data) const
    {
        if (auto *existing = item())
            existing->setData(Qt::UserRole, data);
    }
    void select() const
    {
        if (!item())
            return;
        m_table->setCurrentCell(m_index.row(), m_index.column());
        if (auto *existing = item())
            existing->setSelected(true);
    }

private:
    QTableWidget *m_table;
    QPersistentModelIndex m_index;
};
