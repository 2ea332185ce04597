#include "HiddenAddress.h"
#include "LeftBehind.h"
#include "ListScene.h"
#include "VirtualSlot.h"

#include <QHeaderView>
#include <QtTest>

#include <memory>
#include <utility>
#include <vector>

namespace {
// What the members are given; nothing of it may be written.
struct Arguments
{
    LVITEMW item = record(0, 0, newText, 5, LVIF_PARAM);
    LVCOLUMNW column{};
    RECT rect{1, 2, 3, 4};
    CRect subRect{1, 2, 3, 4};
    POSITION pos = reinterpret_cast<POSITION>(quintptr(0x5000));

    bool unchanged() const
    {
        return item.lParam == 5 && item.mask == LVIF_PARAM && item.pszText == newText && !column.pszText &&
               rect.left == 1 && rect.top == 2 && rect.right == 3 && rect.bottom == 4 && subRect.left == 1 &&
               subRect.top == 2 && subRect.right == 3 && subRect.bottom == 4 &&
               pos == reinterpret_cast<POSITION>(quintptr(0x5000));
    }
};

int neverCalled(LPARAM, LPARAM, LPARAM)
{
    qFatal("the compare function was called");
}

template <typename Value> qint64 number(Value value)
{
    if constexpr (std::is_pointer_v<Value>)
        return reinterpret_cast<qint64>(value);
    else
        return static_cast<qint64>(value);
}

struct Member
{
    const char *name;
    qint64 (*call)(CListCtrl *, Arguments &);
};

#define MEMBER(expression)                                                                                   \
    {                                                                                                        \
#expression, [](CListCtrl *c, Arguments &a) {                                                        \
            static_cast<void>(a);                                                                            \
            return number(c->expression);                                                                    \
        }       \
    }

const std::vector<Member> &members()
{
    static const std::vector<Member> all{
        MEMBER(GetItemCount()),
        MEMBER(GetItemText(0, 0).GetLength()),
        MEMBER(GetItemData(0)),
        MEMBER(GetItem(&a.item)),
        MEMBER(GetItem(nullptr)),
        MEMBER(InsertItem(0, L"new", 0)),
        MEMBER(InsertItem(-1, L"new", 0)),
        MEMBER(InsertItem(0, L"new")),
        MEMBER(InsertItem(-1, L"new")),
        MEMBER(InsertItem(&a.item)),
        MEMBER(InsertItem(static_cast<const LVITEMW *>(nullptr))),
        MEMBER(DeleteItem(0)),
        MEMBER(DeleteAllItems()),
        MEMBER(SetItemText(0, 0, L"new")),
        MEMBER(SetItemData(0, 5)),
        MEMBER(SetItemData(-1, 5)),
        MEMBER(SetItem(&a.item)),
        MEMBER(SetItem(static_cast<const LVITEMW *>(nullptr))),
        MEMBER(SetItem(0, 0, 0, L"new", 0, 1, 0, 5)),
        MEMBER(EditLabel(0)),
        MEMBER(EditLabel(-1)),
        MEMBER(GetItemState(0, 1)),
        MEMBER(GetItemState(-1, 1)),
        MEMBER(SetItemState(0, 1, 1)),
        MEMBER(SetItemState(-1, 1, 1)),
        MEMBER(GetSelectionMark()),
        MEMBER(GetNextItem(-1, LVNI_SELECTED)),
        MEMBER(GetNextItem(-1, LVNI_ALL)),
        MEMBER(GetSelectedCount()),
        MEMBER(GetFirstSelectedItemPosition()),
        MEMBER(GetNextSelectedItem(a.pos)),
        MEMBER(InsertColumn(0, &a.column)),
        MEMBER(InsertColumn(-1, &a.column)),
        MEMBER(InsertColumn(0, static_cast<const LVCOLUMNW *>(nullptr))),
        MEMBER(InsertColumn(0, L"new", 0, 0, 0)),
        MEMBER(InsertColumn(-1, L"new")),
        MEMBER(DeleteColumn(0)),
        MEMBER(GetHeaderCtrl()),
        MEMBER(SetColumnWidth(0, 5)),
        MEMBER(EnsureVisible(0, true)),
        MEMBER(GetItemRect(0, &a.rect, LVIR_BOUNDS)),
        MEMBER(GetSubItemRect(0, 0, 0, a.subRect)),
        MEMBER(GetColumn(0, &a.column)),
        MEMBER(SortItems(neverCalled, 5)),
        MEMBER(GetExtendedStyle()),
        MEMBER(SetExtendedStyle(LVS_EX_GRIDLINES)),
        MEMBER(SetImageList(nullptr, LVSIL_SMALL)),
    };
    return all;
}

// The result of every member, for the objects that have no widget.
QStringList resultsOtherThan(qint64 expected, CListCtrl *control)
{
    QStringList wrong;
    for (const Member &member : members()) {
        Arguments arguments;
        const qint64 result = member.call(control, arguments);
        const bool isText = qstrncmp(member.name, "GetItemText", 11) == 0;
        if (result != (isText ? 0 : expected) || !arguments.unchanged())
            wrong << QStringLiteral("%1 gave %2").arg(QLatin1String(member.name)).arg(result);
    }
    control->SetSelectionMark(0);
    return wrong;
}
} // namespace

class tst_CListCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nullObject();
    void neverBound();
    void detached();
    void replaced();
    void widgetDestroyed();
    void fixedResults_data();
    void fixedResults();
    void isWindow();
    void reboundKindDecides();

    void slotDeletesWidget_data();
    void slotDeletesWidget();
    void slotRemovesCell_data();
    void slotRemovesCell();
    void sortedTable();
    void insertIntoSortedTable();
    void tableGoesWhileItsRowsGo();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CListCtrl::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CListCtrl::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CListCtrl::nullObject()
{
    for (const qint64 address : {0, 7, 8, 4088, 4095})
        QCOMPARE(resultsOtherThan(address, objectAt<CListCtrl>(quintptr(address))), QStringList());
}

void tst_CListCtrl::neverBound()
{
    CListCtrl control;
    QCOMPARE(resultsOtherThan(0, &control), QStringList());
}

void tst_CListCtrl::detached()
{
    ListScene scene(Kind::Table);
    const QString before = scene.state();
    scene.control.Detach();
    WidgetWatch watch(scene.widget());
    QCOMPARE(resultsOtherThan(0, &scene.control), QStringList());
    QCOMPARE(scene.state(), before);
    QVERIFY(watch.isUntouched());
}

void tst_CListCtrl::replaced()
{
    ListScene scene(Kind::Standard);
    const QString before = scene.state();
    CWnd other;
    other.SetHandle(handleOf(scene.widget()));
    WidgetWatch watch(scene.widget());
    QCOMPARE(resultsOtherThan(0, &scene.control), QStringList());
    QCOMPARE(scene.state(), before);
    QVERIFY(watch.isUntouched());
}

void tst_CListCtrl::widgetDestroyed()
{
    ListScene scene(Kind::List);
    scene.destroyWidget();
    QCOMPARE(resultsOtherThan(0, &scene.control), QStringList());
}

void tst_CListCtrl::fixedResults_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("list") << Kind::List;
    QTest::newRow("table") << Kind::Table;
    QTest::newRow("standard") << Kind::Standard;
    QTest::newRow("strings") << Kind::Strings;
    QTest::newRow("no model") << Kind::NoModel;
    QTest::newRow("other") << Kind::Other;
}

void tst_CListCtrl::fixedResults()
{
    QFETCH(Kind, kind);
    ListScene scene(kind);
    const QString before = scene.state();
    Arguments a;
    WidgetWatch watch(scene.widget());
    QCOMPARE(scene.control.SetColumnWidth(0, 5), 1);
    QCOMPARE(scene.control.EnsureVisible(2, true), 1);
    QCOMPARE(scene.control.GetItemRect(0, &a.rect, 0), 1);
    QCOMPARE(scene.control.GetItemRect(0, nullptr, 0), 1);
    QCOMPARE(scene.control.GetSubItemRect(0, 0, 0, a.subRect), 1);
    QCOMPARE(scene.control.GetColumn(0, &a.column), 0);
    QCOMPARE(scene.control.SortItems(neverCalled, 5), 0);
    QCOMPARE(scene.control.GetExtendedStyle(), 0u);
    QCOMPARE(scene.control.SetExtendedStyle(LVS_EX_GRIDLINES), 0u);
    QCOMPARE(scene.control.SetImageList(objectAt<CImageList>(0x5000), LVSIL_SMALL), nullptr);
    scene.control.SetSelectionMark(0);
    QVERIFY(a.unchanged());
    QVERIFY(watch.isUntouched());
    QCOMPARE(scene.state(), before);
}

void tst_CListCtrl::isWindow()
{
    // The table of virtual functions is CWnd's: one pointer more is all that is added.
    QCOMPARE(sizeof(CListCtrl), sizeof(CWnd) + sizeof(void *));
    QCOMPARE(sizeof(CHeaderCtrl), sizeof(CWnd));
    QCOMPARE(slotOf(&CListCtrl::SetFocus), slotOf(&CWnd::SetFocus));
    ListScene scene(Kind::Table);
    QCOMPARE(CWnd::FromHandle(handleOf(scene.widget())), static_cast<CWnd *>(&scene.control));
    QVERIFY(!CListCtrl().GetParent());
    QVERIFY(!CHeaderCtrl().GetParent());
}

void tst_CListCtrl::reboundKindDecides()
{
    // Nothing about the model is remembered.
    ListScene scene(Kind::Standard);
    QCOMPARE(scene.control.GetItemCount(), 3);
    QStringListModel strings({QStringLiteral("7")});
    scene.view()->setModel(&strings);
    QCOMPARE(scene.control.GetItemCount(), 0);
    QCOMPARE(scene.control.GetItemData(0), 7ul);
    scene.view()->setModel(nullptr);
    QCOMPARE(scene.control.GetItemData(0), 0ul);
}

void tst_CListCtrl::slotDeletesWidget_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<ListCall>("call");
#define DELETING_ROW(kind, expression)                                                                       \
    QTest::newRow(#kind " " #expression) << Kind::kind << ListCall([](CListCtrl &c) {                        \
        static LVITEMW item = record(0, 0, newText, 5);                                                      \
        static LVCOLUMNW column{};                                                                           \
        static_cast<void>(item);                                                                             \
        static_cast<void>(column);                                                                           \
        return number(c.expression);                                                                         \
    })
    DELETING_ROW(List, InsertItem(0, L"new"));
    DELETING_ROW(List, DeleteItem(0));
    DELETING_ROW(List, DeleteAllItems());
    DELETING_ROW(List, SetItemData(0, 5));
    DELETING_ROW(List, EditLabel(0));
    DELETING_ROW(Table, InsertItem(0, L"new", 0));
    DELETING_ROW(Table, InsertItem(0, L"new"));
    DELETING_ROW(Table, InsertItem(&item));
    DELETING_ROW(Table, DeleteItem(0));
    DELETING_ROW(Table, DeleteAllItems());
    DELETING_ROW(Table, SetItemData(0, 5));
    DELETING_ROW(Table, SetItem(&item));
    DELETING_ROW(Table, SetItem(0, 0, 0, L"new", 0, 0, 0, 5));
    DELETING_ROW(Table, InsertColumn(0, &column));
    DELETING_ROW(Table, InsertColumn(2, L"new"));
    DELETING_ROW(Table, DeleteColumn(0));
    DELETING_ROW(Standard, InsertItem(0, L"new"));
    DELETING_ROW(Standard, DeleteItem(0));
    DELETING_ROW(Standard, DeleteAllItems());
    DELETING_ROW(Standard, InsertColumn(2, L"new"));
    DELETING_ROW(Standard, DeleteColumn(0));
#undef DELETING_ROW
}

void tst_CListCtrl::slotDeletesWidget()
{
    QFETCH(Kind, kind);
    QFETCH(ListCall, call);
    ListScene scene(kind);
    const QPointer<QWidget> widget = scene.releaseWidget();
    auto *model = qobject_cast<QAbstractItemView *>(widget)->model();
    // The model outlives a slot that runs within it.
    model->setParent(nullptr);
    const auto deleteWidget = [&] { delete widget.data(); };
    QObject context;
    QObject::connect(model, &QAbstractItemModel::rowsInserted, &context, deleteWidget);
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, &context, deleteWidget);
    QObject::connect(model, &QAbstractItemModel::columnsInserted, &context, deleteWidget);
    QObject::connect(model, &QAbstractItemModel::columnsRemoved, &context, deleteWidget);
    QObject::connect(model, &QAbstractItemModel::modelReset, &context, deleteWidget);
    QObject::connect(model, &QAbstractItemModel::dataChanged, &context, deleteWidget);
    call(scene.control);
    QVERIFY(!widget);
    QCOMPARE(scene.control.GetItemCount(), 0);
    delete model;
}

void tst_CListCtrl::slotRemovesCell_data()
{
    QTest::addColumn<ListCall>("call");
    QTest::newRow("record") << ListCall([](CListCtrl &c) {
        const LVITEMW item = record(0, 0, newText, 5);
        return qint64(c.SetItem(&item));
    });
    QTest::newRow("arguments") << ListCall(
        [](CListCtrl &c) { return qint64(c.SetItem(0, 0, 0, L"new", 0, 0, 0, 5)); });
    QTest::newRow("selecting arguments")
        << ListCall([](CListCtrl &c) { return qint64(c.SetItem(0, 0, 0, L"new", 0, 1, 0, 5)); });
}

void tst_CListCtrl::slotRemovesCell()
{
    QFETCH(ListCall, call);
    ListScene scene(Kind::Table);
    bool removed = false;
    const auto removeRow = [&] {
        if (!std::exchange(removed, true))
            scene.table()->removeRow(0);
    };
    connect(scene.table(), &QTableWidget::itemChanged, removeRow);
    connect(scene.table(), &QTableWidget::itemSelectionChanged, removeRow);
    QCOMPARE(call(scene.control), qint64(TRUE));
    scene.table()->setCurrentItem(nullptr);
    QVERIFY(removed);
    QCOMPARE(scene.state(), QStringLiteral("A B # / a1:11 b1 - / a2:12 b2:77 c2"));
}

void tst_CListCtrl::sortedTable()
{
    ListScene scene(Kind::Table);
    scene.table()->setSortingEnabled(true);
    scene.table()->sortItems(0, Qt::AscendingOrder);
    LVITEMW item = record(0, 0, newText, 5);
    // The new text moves the row to the end; the data follows it.
    QCOMPARE(scene.control.SetItem(&item), TRUE);
    QCOMPARE(scene.state(), QStringLiteral("A B # / a1:11 b1 - / a2:12 b2:77 c2 / new:5 b0 c0"));
    QCOMPARE(scene.control.SetItem(0, 0, 0, L"next", 0, 0, 0, 6), TRUE);
    QCOMPARE(scene.state(), QStringLiteral("A B # / a2:12 b2:77 c2 / new:5 b0 c0 / next:6 b1 -"));
}

void tst_CListCtrl::insertIntoSortedTable()
{
    ListScene scene(Kind::Table);
    scene.table()->setSortingEnabled(true);
    scene.table()->sortItems(0, Qt::AscendingOrder);
    QCOMPARE(scene.control.InsertItem(0, L"z"), 0);
    QCOMPARE(scene.table()->rowCount(), 4);
    for (int column = 0; column < 3; ++column)
        QCOMPARE(scene.table()->item(3, column)->text(), QStringLiteral("z"));
    QCOMPARE(scene.table()->item(0, 1)->text(), QStringLiteral("b0"));
}

void tst_CListCtrl::tableGoesWhileItsRowsGo()
{
    auto *table = new QTableWidget(2, 1);
    CListCtrl control;
    control.SetHandle(handleOf(table));
    connect(table->model(), &QAbstractItemModel::rowsRemoved, this, [table] { delete table; });
    QCOMPARE(control.DeleteAllItems(), TRUE);
    QCOMPARE(control.GetItemCount(), 0);
}

QTEST_MAIN(tst_CListCtrl)
#include "tst_CListCtrl.moc"
