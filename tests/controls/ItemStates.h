#ifndef ITEMSTATES_H
#define ITEMSTATES_H

#include "WidgetWatch.h"

#include <QComboBox>
#include <QListWidget>
#include <QStringList>
#include <QTreeWidget>
#include <QVariant>

/// Data of an item with the type it is stored as; "-" when there is none.
inline QString dataText(const QVariant &data)
{
    if (!data.isValid())
        return QStringLiteral("-");
    const qulonglong value = data.userType() == QMetaType::VoidStar
                                 ? qulonglong(reinterpret_cast<quintptr>(data.value<void *>()))
                                 : data.toULongLong();
    return QStringLiteral("%1 %2").arg(QLatin1String(data.typeName())).arg(value);
}

/// The texts of a combo box in order.
inline QStringList textsOf(const QComboBox &combo)
{
    QStringList texts;
    for (int i = 0; i < combo.count(); ++i)
        texts << combo.itemText(i);
    return texts;
}

/// The texts of a list in order.
inline QStringList textsOf(const QListWidget &list)
{
    QStringList texts;
    for (int i = 0; i < list.count(); ++i)
        texts << list.item(i)->text();
    return texts;
}

/// Every item with its text and data, one a line.
inline QStringList itemsOf(const QComboBox &combo)
{
    QStringList lines;
    for (int i = 0; i < combo.count(); ++i)
        lines << combo.itemText(i) + QStringLiteral(" | ") + dataText(combo.itemData(i));
    return lines;
}

/// Every item with its text, data and selection, one a line.
inline QStringList itemsOf(const QListWidget &list)
{
    QStringList lines;
    for (int i = 0; i < list.count(); ++i) {
        const QListWidgetItem *item = list.item(i);
        lines << item->text() + QStringLiteral(" | ") + dataText(item->data(Qt::UserRole)) +
                     (item->isSelected() ? QStringLiteral(" | selected") : QString());
    }
    return lines;
}

/// An item and all below it with everything of them that an operation may change, one a line.
inline QStringList linesOf(const QTreeWidgetItem *item, const QTreeWidgetItem *current, const QString &indent)
{
    QString line = indent + item->text(0) + QStringLiteral(" | ") + dataText(item->data(0, Qt::UserRole));
    if (item->isSelected())
        line += QStringLiteral(" | selected");
    if (item == current)
        line += QStringLiteral(" | current");
    if (item->isExpanded())
        line += QStringLiteral(" | expanded");
    if (item->flags() & Qt::ItemIsEditable)
        line += QStringLiteral(" | editable");
    QStringList lines{line};
    for (int i = 0; i < item->childCount(); ++i)
        lines << linesOf(item->child(i), current, indent + QStringLiteral("  "));
    return lines;
}

/// Every item of a tree, one a line, those below another indented.
inline QStringList itemsOf(const QTreeWidget &tree)
{
    QStringList lines;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        lines << linesOf(tree.topLevelItem(i), tree.currentItem(), QString());
    return lines;
}

/// Watches an item widget: its signals, properties and picture, and all of its items.
template <typename Widget> class ItemsWatch
{
public:
    explicit ItemsWatch(Widget &widget)
        : m_widget(widget)
        , m_items(itemsOf(widget))
        , m_watch(&widget)
    {
    }

    QStringList emitted() const { return m_watch.emitted(); }
    /// No signal, and nothing that differs.
    bool isUntouched() const { return m_watch.isUntouched() && itemsOf(m_widget) == m_items; }

private:
    Widget &m_widget;
    QStringList m_items;
    WidgetWatch m_watch;
};

#endif
