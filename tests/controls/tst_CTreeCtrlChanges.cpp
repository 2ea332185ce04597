#include "LeftBehind.h"
#include "TreeScene.h"

#include <QLineEdit>
#include <QtTest>

#include <climits>
#include <memory>

namespace {
QString currentChanged()
{
    return QStringLiteral("currentItemChanged(QTreeWidgetItem*,QTreeWidgetItem*)");
}

QString selectionChanged()
{
    return QStringLiteral("itemSelectionChanged()");
}

// The tree's items with what ends the lines of some of them.
QStringList itemsWith(std::initializer_list<std::pair<int, const char *>> endings)
{
    QStringList lines{QStringLiteral("A | -"), QStringLiteral("  a1 | -"), QStringLiteral("  a2 | -"),
                      QStringLiteral("  a3 | -"), QStringLiteral("B | -")};
    for (const auto &[line, ending] : endings)
        lines[line] += QLatin1String(ending);
    return lines;
}
} // namespace

class tst_CTreeCtrlChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void expand_data();
    void expand();
    void setItemState_data();
    void setItemState();

    void selectOne();
    void selectedItemAgain();
    void selectInATreeOfSeveral();
    void selectTakesAnyCode();
    void itemDeletedOnSelect();
    void itemDeletedOnSelectItem();
    void treeDeletedOnSelectItem();

    void editLabel();
    void itemDeletedOnEditLabel();
    void fixedResults();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CTreeCtrlChanges::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CTreeCtrlChanges::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CTreeCtrlChanges::expand_data()
{
    QTest::addColumn<uint>("code");

    QTest::newRow("TVE_EXPAND") << TVE_EXPAND;
    QTest::newRow("TVE_COLLAPSE") << TVE_COLLAPSE;
    QTest::newRow("TVE_TOGGLE") << TVE_TOGGLE;
    QTest::newRow("TVE_COLLAPSE and reset") << (TVE_COLLAPSE | TVE_COLLAPSERESET);
    QTest::newRow("0") << 0u;
    QTest::newRow("largest") << UINT_MAX;
}

void tst_CTreeCtrlChanges::expand()
{
    QFETCH(uint, code);
    TreeScene scene;
    scene.a->setExpanded(false);
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.Expand(scene.a, code), 1);
    QVERIFY(scene.a->isExpanded());
    QCOMPARE(watch.emitted(), QStringList({QStringLiteral("itemExpanded(QTreeWidgetItem*)"),
                                           QStringLiteral("expanded(QModelIndex)")}));
    QCOMPARE(scene.control.Expand(scene.a, code), 1);
    QVERIFY(scene.a->isExpanded());
    QCOMPARE(watch.emitted().size(), 2);
}

void tst_CTreeCtrlChanges::setItemState_data()
{
    QTest::addColumn<uint>("state");
    QTest::addColumn<uint>("mask");
    QTest::addColumn<bool>("expands");

    const uint both = TVIS_EXPANDED | TVIS_BOLD;
    QTest::newRow("expanded") << TVIS_EXPANDED << TVIS_EXPANDED << true;
    QTest::newRow("masked to expanded") << both << TVIS_EXPANDED << true;
    QTest::newRow("masked by more") << TVIS_EXPANDED << both << true;
    QTest::newRow("expanded and another") << both << both << false;
    QTest::newRow("masked out") << TVIS_EXPANDED << TVIS_BOLD << false;
    QTest::newRow("no mask") << TVIS_EXPANDED << 0u << false;
    QTest::newRow("collapse") << 0u << TVIS_EXPANDED << false;
    QTest::newRow("bold") << TVIS_BOLD << TVIS_BOLD << false;
    QTest::newRow("selected") << TVIS_SELECTED << TVIS_SELECTED << false;
    QTest::newRow("everything") << UINT_MAX << UINT_MAX << false;
}

void tst_CTreeCtrlChanges::setItemState()
{
    QFETCH(uint, state);
    QFETCH(uint, mask);
    QFETCH(bool, expands);
    TreeScene scene;
    scene.a->setExpanded(false);
    {
        const ItemsWatch watch(scene.widget);
        QCOMPARE(scene.control.SetItemState(scene.a, state, mask), 1);
        QCOMPARE(scene.a->isExpanded(), expands);
        QCOMPARE(watch.isUntouched(), !expands);
    }
    // No state collapses.
    scene.a->setExpanded(true);
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.SetItemState(scene.a, state, mask), 1);
    QVERIFY(watch.isUntouched());
}

void tst_CTreeCtrlChanges::selectOne()
{
    TreeScene select;
    const ItemsWatch selectWatch(select.widget);
    QCOMPARE(select.control.Select(select.b, TVGN_CARET), 1);
    QCOMPARE(itemsOf(select.widget), itemsWith({{4, " | selected | current"}}));

    TreeScene selectItem;
    const ItemsWatch itemWatch(selectItem.widget);
    QCOMPARE(selectItem.control.SelectItem(selectItem.b), 1);
    QCOMPARE(itemsOf(selectItem.widget), itemsOf(select.widget));

    QCOMPARE(selectWatch.emitted(), QStringList({selectionChanged(), currentChanged()}));
    QCOMPARE(itemWatch.emitted(), QStringList({selectionChanged(), selectionChanged(), currentChanged()}));
}

void tst_CTreeCtrlChanges::selectedItemAgain()
{
    TreeScene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.Select(scene.a2, TVGN_CARET), 1);
    QCOMPARE(scene.control.SelectItem(scene.a2), 1);
    QVERIFY(watch.isUntouched());
}

void tst_CTreeCtrlChanges::selectInATreeOfSeveral()
{
    TreeScene scene;
    scene.widget.setSelectionMode(QAbstractItemView::MultiSelection);
    // Here the order decides: what becomes current is toggled.
    scene.b->setSelected(true);
    QCOMPARE(scene.control.Select(scene.b, TVGN_CARET), 1);
    QVERIFY(scene.b->isSelected());
    QCOMPARE(scene.control.SelectItem(scene.a1), 1);
    QVERIFY(!scene.a1->isSelected());
    QCOMPARE(scene.control.GetSelectedItem(), scene.a1);
}

void tst_CTreeCtrlChanges::selectTakesAnyCode()
{
    for (const UINT code : {TVGN_ROOT, TVGN_FIRSTVISIBLE, TVGN_DROPHILITE, UINT_MAX}) {
        TreeScene scene;
        QCOMPARE(scene.control.Select(scene.b, code), 1);
        QCOMPARE(scene.control.GetSelectedItem(), scene.b);
        QVERIFY(scene.b->isSelected());
    }
}

void tst_CTreeCtrlChanges::itemDeletedOnSelect()
{
    TreeScene scene;
    connect(&scene.widget, &QTreeWidget::currentItemChanged, this,
            [&scene](QTreeWidgetItem *current) { current == scene.b ? delete current : void(); });
    QCOMPARE(scene.control.Select(scene.b, TVGN_CARET), 1);
    QCOMPARE(scene.control.GetCount(), 1u);
}

void tst_CTreeCtrlChanges::itemDeletedOnSelectItem()
{
    TreeScene scene;
    connect(&scene.widget, &QTreeWidget::itemSelectionChanged, this,
            [&scene] { delete std::exchange(scene.b, nullptr); });
    QCOMPARE(scene.control.SelectItem(scene.b), 1);
    QCOMPARE(scene.control.GetCount(), 1u);
}

void tst_CTreeCtrlChanges::treeDeletedOnSelectItem()
{
    auto *widget = new QTreeWidget;
    CTreeCtrl control;
    control.SetHandle(handleOf(widget));
    HTREEITEM item = control.InsertItem(L"item", TVI_ROOT, TVI_LAST);
    connect(widget, &QTreeWidget::itemSelectionChanged, this, [widget] { delete widget; });
    QCOMPARE(control.SelectItem(item), 1);
    QCOMPARE(control.GetCount(), 0u);
}

void tst_CTreeCtrlChanges::editLabel()
{
    TreeScene scene;
    scene.widget.show();
    QVERIFY(!(scene.b->flags() & Qt::ItemIsEditable));
    const Qt::ItemFlags before = scene.b->flags();
    QCOMPARE(scene.control.EditLabel(scene.b), static_cast<CEdit *>(nullptr));
    QCOMPARE(scene.b->flags(), before | Qt::ItemIsEditable);
    auto *editor = scene.widget.findChild<QLineEdit *>();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("B"));
    editor->setText(QStringLiteral("typed"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(scene.b->text(0), QStringLiteral("typed"));
    QTRY_VERIFY(!scene.widget.findChild<QLineEdit *>());
}

void tst_CTreeCtrlChanges::itemDeletedOnEditLabel()
{
    TreeScene scene;
    connect(&scene.widget, &QTreeWidget::itemChanged, this, [](QTreeWidgetItem *item) { delete item; });
    QCOMPARE(scene.control.EditLabel(scene.b), static_cast<CEdit *>(nullptr));
    QCOMPARE(scene.control.GetCount(), 1u);
}

void tst_CTreeCtrlChanges::fixedResults()
{
    TreeScene scene;
    CTreeCtrl &tree = scene.control;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(tree.SetItemImage(scene.b, 1, 2), 1);
    QCOMPARE(tree.EnsureVisible(scene.b), 0);
    QCOMPARE(tree.EndEditLabelNow(true), 0);
    QCOMPARE(tree.EndEditLabelNow(false), 0);
    QCOMPARE(tree.GetImageList(TVSIL_NORMAL), static_cast<CImageList *>(nullptr));
    QCOMPARE(tree.SetImageList(nullptr, TVSIL_STATE), static_cast<CImageList *>(nullptr));
    QCOMPARE(tree.GetEditControl(), static_cast<CEdit *>(nullptr));
    for (const short height : {short(0), short(20), short(-1), short(SHRT_MIN), short(SHRT_MAX)})
        QCOMPARE(tree.SetItemHeight(height), height);
    QVERIFY(watch.isUntouched());
}

QTEST_MAIN(tst_CTreeCtrlChanges)
#include "tst_CTreeCtrlChanges.moc"
