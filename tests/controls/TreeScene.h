#ifndef TREESCENE_H
#define TREESCENE_H

#include "BoundControl.h"
#include "ItemStates.h"
#include "KxTreeControl.h"

/// A tree of "A" with "a1", "a2", "a3" below it, and of "B". "a2" is current and selected.
struct TreeScene : BoundControl<CTreeCtrl, QTreeWidget>
{
    TreeScene()
    {
        a->addChildren({a1, a2, a3});
        widget.addTopLevelItems({a, b});
        widget.setCurrentItem(a2);
    }

    static QTreeWidgetItem *named(const QString &text) { return new QTreeWidgetItem(QStringList{text}); }

    QTreeWidgetItem *a = named(QStringLiteral("A"));
    QTreeWidgetItem *a1 = named(QStringLiteral("a1"));
    QTreeWidgetItem *a2 = named(QStringLiteral("a2"));
    QTreeWidgetItem *a3 = named(QStringLiteral("a3"));
    QTreeWidgetItem *b = named(QStringLiteral("B"));
};

constexpr HTREEITEM noItem = nullptr;

#endif
