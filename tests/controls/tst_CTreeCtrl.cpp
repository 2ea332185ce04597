#include "LeftBehind.h"
#include "TreeScene.h"

#include <QtTest>

#include <climits>
#include <cwchar>
#include <memory>

class tst_CTreeCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void constants();
    void countAndRoot();
    void relations();
    void nextItemCodes_data();
    void nextItemCodes();
    void siblingsAfterChanges();
    void siblingsInASortedTree();

    void insertRecord_data();
    void insertRecord();
    void insertText_data();
    void insertText();
    void insertTextWithoutParent();
    void insertNothing();
    void deleteItem();
    void deleteAllItems();

    void itemText();
    void itemData();
    void getItem_data();
    void getItem();
    void getItemWithoutItem();
    void nullItems();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CTreeCtrl::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CTreeCtrl::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CTreeCtrl::constants()
{
    QCOMPARE(reinterpret_cast<std::intptr_t>(TVI_ROOT), std::intptr_t(-0x10000));
    QCOMPARE(reinterpret_cast<std::intptr_t>(TVI_FIRST), std::intptr_t(-0x0FFFF));
    QCOMPARE(reinterpret_cast<std::intptr_t>(TVI_LAST), std::intptr_t(-0x0FFFE));
    QCOMPARE(reinterpret_cast<std::intptr_t>(TVI_SORT), std::intptr_t(-0x0FFFD));
    QCOMPARE(TVGN_NEXT, 1u);
    QCOMPARE(TVIS_EXPANDED, 0x20u);
}

void tst_CTreeCtrl::countAndRoot()
{
    TreeScene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.GetCount(), 2u);
    QCOMPARE(scene.control.GetRootItem(), scene.a);
    QCOMPARE(scene.control.GetSelectedItem(), scene.a2);
    QVERIFY(watch.isUntouched());

    BoundControl<CTreeCtrl, QTreeWidget> empty;
    QCOMPARE(empty.control.GetCount(), 0u);
    QCOMPARE(empty.control.GetRootItem(), noItem);
    QCOMPARE(empty.control.GetSelectedItem(), noItem);
}

void tst_CTreeCtrl::relations()
{
    TreeScene scene;
    const CTreeCtrl &tree = scene.control;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(tree.GetParentItem(scene.a2), scene.a);
    QCOMPARE(tree.GetParentItem(scene.a), noItem);
    QCOMPARE(tree.GetChildItem(scene.a), scene.a1);
    QCOMPARE(tree.GetChildItem(scene.b), noItem);
    QCOMPARE(tree.ItemHasChildren(scene.a), 1);
    QCOMPARE(tree.ItemHasChildren(scene.b), 0);

    QCOMPARE(tree.GetNextSiblingItem(scene.a1), scene.a2);
    QCOMPARE(tree.GetNextSiblingItem(scene.a3), noItem);
    QCOMPARE(tree.GetPrevSiblingItem(scene.a3), scene.a2);
    QCOMPARE(tree.GetPrevSiblingItem(scene.a1), noItem);
    // Only GetNextItem knows the siblings of a top-level item.
    QCOMPARE(tree.GetNextSiblingItem(scene.a), noItem);
    QCOMPARE(tree.GetPrevSiblingItem(scene.b), noItem);
    QCOMPARE(tree.GetNextItem(scene.a, TVGN_NEXT), scene.b);
    QCOMPARE(tree.GetNextItem(scene.b, TVGN_NEXT), noItem);
    QCOMPARE(tree.GetNextItem(scene.a2, TVGN_NEXT), scene.a3);
    QCOMPARE(tree.GetNextItem(scene.a3, TVGN_NEXT), noItem);
    QVERIFY(watch.isUntouched());
}

void tst_CTreeCtrl::nextItemCodes_data()
{
    QTest::addColumn<uint>("code");

    QTest::newRow("TVGN_ROOT") << TVGN_ROOT;
    QTest::newRow("TVGN_PREVIOUS") << TVGN_PREVIOUS;
    QTest::newRow("TVGN_PARENT") << TVGN_PARENT;
    QTest::newRow("TVGN_CHILD") << TVGN_CHILD;
    QTest::newRow("TVGN_FIRSTVISIBLE") << TVGN_FIRSTVISIBLE;
    QTest::newRow("TVGN_NEXTVISIBLE") << TVGN_NEXTVISIBLE;
    QTest::newRow("TVGN_CARET") << TVGN_CARET;
    QTest::newRow("next with another bit") << (TVGN_NEXT | 0x100u);
    QTest::newRow("largest") << UINT_MAX;
}

void tst_CTreeCtrl::nextItemCodes()
{
    QFETCH(uint, code);
    TreeScene scene;
    QCOMPARE(scene.control.GetNextItem(scene.a, code), noItem);
    QCOMPARE(scene.control.GetNextItem(scene.a2, code), noItem);
    QCOMPARE(scene.control.GetNextItem(nullptr, code), noItem);
}

void tst_CTreeCtrl::siblingsAfterChanges()
{
    TreeScene scene;
    QCOMPARE(scene.control.GetNextItem(scene.a3, TVGN_NEXT), noItem);
    auto *first = TreeScene::named(QStringLiteral("first"));
    scene.a->insertChild(0, first);
    QCOMPARE(scene.control.GetNextItem(first, TVGN_NEXT), scene.a1);
    QCOMPARE(scene.control.GetPrevSiblingItem(scene.a1), first);
    QCOMPARE(scene.control.GetNextSiblingItem(scene.a2), scene.a3);
    delete scene.a1;
    QCOMPARE(scene.control.GetNextSiblingItem(first), scene.a2);
    QCOMPARE(scene.control.GetPrevSiblingItem(scene.a3), scene.a2);
    scene.widget.insertTopLevelItem(0, scene.widget.takeTopLevelItem(1));
    QCOMPARE(scene.control.GetNextItem(scene.b, TVGN_NEXT), scene.a);
}

void tst_CTreeCtrl::siblingsInASortedTree()
{
    TreeScene scene;
    scene.widget.sortItems(0, Qt::DescendingOrder);
    QCOMPARE(scene.control.GetRootItem(), scene.b);
    QCOMPARE(scene.control.GetNextItem(scene.b, TVGN_NEXT), scene.a);
    QCOMPARE(scene.control.GetNextSiblingItem(scene.a3), scene.a2);
    QCOMPARE(scene.control.GetPrevSiblingItem(scene.a1), scene.a2);
}

void tst_CTreeCtrl::insertRecord_data()
{
    QTest::addColumn<qint64>("after");

    QTest::newRow("last") << qint64(TVI_LAST);
    QTest::newRow("first") << qint64(TVI_FIRST);
    QTest::newRow("sorted") << qint64(TVI_SORT);
    QTest::newRow("null") << qint64(0);
}

void tst_CTreeCtrl::insertRecord()
{
    QFETCH(qint64, after);
    TreeScene scene;
    const ItemsWatch watch(scene.widget);
    wchar_t text[] = L" 0 new ";
    TVINSERTSTRUCTW record{};
    record.hInsertAfter = reinterpret_cast<HTREEITEM>(after);
    record.item.pszText = text;
    record.item.lParam = -2;

    HTREEITEM top = scene.control.InsertItem(&record);
    QCOMPARE(scene.widget.indexOfTopLevelItem(top), 2);
    record.hParent = scene.a;
    HTREEITEM child = scene.control.InsertItem(&record);
    QCOMPARE(scene.a->indexOfChild(child), 3);
    for (const HTREEITEM item : {top, child}) {
        QCOMPARE(item->text(0), QStringLiteral(" 0 new "));
        QCOMPARE(item->data(0, Qt::UserRole).userType(), int(QMetaType::ULongLong));
        QCOMPARE(item->data(0, Qt::UserRole).toULongLong(), ULLONG_MAX - 1);
    }
    // Text and data of each item are set in the tree, those of an insertion by text before.
    QCOMPARE(watch.emitted().count(QStringLiteral("itemChanged(QTreeWidgetItem*,int)")), 4);
    QCOMPARE(watch.emitted().count(), 4);
    record.item.pszText = nullptr;
    QCOMPARE(scene.control.InsertItem(&record)->text(0), QString());
}

void tst_CTreeCtrl::insertText_data()
{
    insertRecord_data();
}

void tst_CTreeCtrl::insertText()
{
    QFETCH(qint64, after);
    TreeScene scene;
    const ItemsWatch watch(scene.widget);
    const auto position = reinterpret_cast<HTREEITEM>(after);
    HTREEITEM top = scene.control.InsertItem(L" 0 new ", TVI_ROOT, position);
    QCOMPARE(scene.widget.indexOfTopLevelItem(top), 2);
    HTREEITEM child = scene.control.InsertItem(L" 0 new ", scene.a, position);
    QCOMPARE(scene.a->indexOfChild(child), 3);
    for (const HTREEITEM item : {top, child}) {
        QCOMPARE(item->text(0), QStringLiteral(" 0 new "));
        QVERIFY(!item->data(0, Qt::UserRole).isValid());
        QCOMPARE(scene.control.GetItemData(item), 0ul);
    }
    QCOMPARE(watch.emitted(), QStringList());
    const wchar_t *nothing = nullptr;
    QCOMPARE(scene.widget.indexOfTopLevelItem(scene.control.InsertItem(nothing)), 3);
}

void tst_CTreeCtrl::insertTextWithoutParent()
{
    TreeScene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.InsertItem(L"new", nullptr, nullptr), noItem);
    QCOMPARE(scene.control.InsertItem(L"new", nullptr, TVI_LAST), noItem);
    QVERIFY(watch.isUntouched());
}

void tst_CTreeCtrl::insertNothing()
{
    TreeScene scene;
    const ItemsWatch watch(scene.widget);
    TVINSERTSTRUCTW *noRecord = nullptr;
    QCOMPARE(scene.control.InsertItem(noRecord), noItem);
    QCOMPARE(scene.control.InsertItem(L"new", 0, 0, TVI_ROOT, TVI_LAST), noItem);
    QCOMPARE(scene.control.InsertItem(L"new", 0, 0), noItem);
    QCOMPARE(scene.control.InsertItem(TVIF_TEXT, L"new", 0, 0, 0, 0, 5, scene.a, TVI_LAST), noItem);
    QVERIFY(watch.isUntouched());
}

void tst_CTreeCtrl::deleteItem()
{
    TreeScene scene;
    QCOMPARE(scene.control.DeleteItem(scene.a2), 1);
    QCOMPARE(scene.a->childCount(), 2);
    QCOMPARE(scene.control.DeleteItem(scene.a), 1);
    QCOMPARE(scene.widget.topLevelItemCount(), 1);
    QCOMPARE(scene.widget.topLevelItem(0), scene.b);
}

void tst_CTreeCtrl::deleteAllItems()
{
    TreeScene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.DeleteAllItems(), 1);
    QCOMPARE(scene.widget.topLevelItemCount(), 0);
    QVERIFY(!watch.isUntouched());
    QCOMPARE(scene.control.DeleteAllItems(), 1);
}

void tst_CTreeCtrl::itemText()
{
    TreeScene scene;
    scene.widget.setColumnCount(2);
    scene.b->setText(1, QStringLiteral("second"));
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.SetItemText(scene.b, L" a\U0001F600b "), 1);
    QVERIFY(scene.control.GetItemText(scene.b) == L" a\U0001F600b ");
    QCOMPARE(scene.control.SetItemText(scene.b, nullptr), 1);
    QVERIFY(scene.control.GetItemText(scene.b).IsEmpty());
    QCOMPARE(scene.b->text(1), QStringLiteral("second"));
    QCOMPARE(watch.emitted(), QStringList({QStringLiteral("itemChanged(QTreeWidgetItem*,int)"),
                                           QStringLiteral("itemChanged(QTreeWidgetItem*,int)")}));
}

void tst_CTreeCtrl::itemData()
{
    TreeScene scene;
    QCOMPARE(scene.control.GetItemData(scene.b), 0ul);
    QCOMPARE(scene.control.SetItemData(scene.b, ULONG_MAX), 1);
    QCOMPARE(scene.b->data(0, Qt::UserRole).userType(), int(QMetaType::ULongLong));
    QCOMPARE(scene.control.GetItemData(scene.b), ULONG_MAX);
    QCOMPARE(scene.control.SetItemData(scene.b, 0), 1);
    QCOMPARE(scene.control.GetItemData(scene.b), 0ul);
}

void tst_CTreeCtrl::getItem_data()
{
    QTest::addColumn<int>("max");
    QTest::addColumn<QString>("text");

    QTest::newRow("fits") << 8 << QStringLiteral("five");
    QTest::newRow("fits exactly") << 5 << QStringLiteral("five");
    QTest::newRow("cut") << 4 << QStringLiteral("fiv");
    QTest::newRow("terminator only") << 1 << QString();
    QTest::newRow("no room, not written") << 0 << QStringLiteral("xxxxxxxxx");
    QTest::newRow("negative, not written") << -1 << QStringLiteral("xxxxxxxxx");
}

void tst_CTreeCtrl::getItem()
{
    QFETCH(int, max);
    TreeScene scene;
    scene.control.SetItemText(scene.b, L"five");
    scene.control.SetItemData(scene.b, 77);
    const ItemsWatch watch(scene.widget);
    wchar_t buffer[] = L"xxxxxxxxx";
    TVITEMW record{};
    record.hItem = scene.b;
    record.pszText = buffer;
    record.cchTextMax = max;
    QCOMPARE(scene.control.GetItem(&record), 1);
    QTEST(QString::fromWCharArray(buffer), "text");
    QCOMPARE(record.lParam, LPARAM(77));
    // The rest of the buffer is filled with nulls, and nothing behind it is written.
    for (int i = int(std::wcslen(buffer)); i < max; ++i)
        QCOMPARE(int(buffer[i]), 0);
    for (int i = std::max(max, 0); i < 9; ++i)
        QCOMPARE(buffer[i], L'x');

    record.pszText = nullptr;
    record.lParam = 0;
    QCOMPARE(scene.control.GetItem(&record), 1);
    QCOMPARE(record.lParam, LPARAM(77));
    QVERIFY(watch.isUntouched());
}

void tst_CTreeCtrl::getItemWithoutItem()
{
    TreeScene scene;
    wchar_t buffer[] = L"kept";
    TVITEMW record{};
    record.mask = TVIF_TEXT | TVIF_PARAM;
    record.pszText = buffer;
    record.cchTextMax = 5;
    record.lParam = 9;
    QCOMPARE(scene.control.GetItem(&record), 0);
    QCOMPARE(std::wcscmp(buffer, L"kept"), 0);
    QCOMPARE(record.lParam, LPARAM(9));
    QCOMPARE(scene.control.GetItem(nullptr), 0);
}

void tst_CTreeCtrl::nullItems()
{
    TreeScene scene;
    CTreeCtrl &tree = scene.control;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(tree.GetParentItem(nullptr), noItem);
    QCOMPARE(tree.GetChildItem(nullptr), noItem);
    QCOMPARE(tree.GetNextSiblingItem(nullptr), noItem);
    QCOMPARE(tree.GetPrevSiblingItem(nullptr), noItem);
    QCOMPARE(tree.GetNextItem(nullptr, TVGN_NEXT), noItem);
    QCOMPARE(tree.ItemHasChildren(nullptr), 0);
    QVERIFY(tree.GetItemText(nullptr).IsEmpty());
    QCOMPARE(tree.GetItemData(nullptr), 0ul);
    QCOMPARE(tree.DeleteItem(nullptr), 1);
    QCOMPARE(tree.SetItemText(nullptr, L"new"), 1);
    QCOMPARE(tree.SetItemData(nullptr, 5), 1);
    QCOMPARE(tree.Expand(nullptr, TVE_EXPAND), 1);
    QCOMPARE(tree.SetItemState(nullptr, TVIS_EXPANDED, TVIS_EXPANDED), 1);
    QCOMPARE(tree.Select(nullptr, TVGN_CARET), 1);
    QCOMPARE(tree.SelectItem(nullptr), 1);
    QCOMPARE(tree.EditLabel(nullptr), static_cast<CEdit *>(nullptr));
    QCOMPARE(tree.SetItemImage(nullptr, 0, 0), 1);
    QVERIFY(watch.isUntouched());
}

QTEST_MAIN(tst_CTreeCtrl)
#include "tst_CTreeCtrl.moc"
