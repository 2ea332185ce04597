#include "LeftBehind.h"
#include "ListScene.h"

#include <QtTest>

#include <climits>
#include <memory>

class tst_CListCtrlSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void setItemState_data();
    void setItemState();
    void setItemStatePastTheEnd_data();
    void setItemStatePastTheEnd();
    void getItemState_data();
    void getItemState();
    void currentRow_data();
    void currentRow();
    void selectedCount_data();
    void selectedCount();
    void withoutSelectionModel_data();
    void withoutSelectionModel();
    void rowsBelowARoot();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CListCtrlSelection::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CListCtrlSelection::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CListCtrlSelection::setItemState_data()
{
    addListColumns();
    LIST_ROW("list", Kind::List, SetItemState(1, 1, 0), 1, "# / a0:10 / a1:11*@ / a2");
    LIST_ROW("list, among others", Kind::List, SetItemState(2, ~0u, 0), 1, "# / a0:10 / a1:11 / a2*@");
    LIST_ROW_NOTHING("list, LVIS_SELECTED", Kind::List, SetItemState(1, LVIS_SELECTED, LVIS_SELECTED), 1);
    LIST_ROW_NOTHING("list, mask alone", Kind::List, SetItemState(1, 0, 1), 1);
    LIST_ROW_NOTHING("list, negative", Kind::List, SetItemState(-1, 1, 1), -1);
    LIST_ROW("table", Kind::Table, SetItemState(1, 1, 0), 1,
             "A B # / a0:10 b0 c0 / a1:11*@ b1 - / a2:12 b2:77 c2");
    LIST_ROW_NOTHING("table, LVIS_SELECTED", Kind::Table, SetItemState(1, LVIS_SELECTED, LVIS_SELECTED), 1);
    LIST_ROW_NOTHING("table, mask alone", Kind::Table, SetItemState(1, 0, 1), 1);
    LIST_ROW_NOTHING("table, negative", Kind::Table, SetItemState(-7, 1, 1), -7);
    LIST_ROW("standard, mask", Kind::Standard, SetItemState(1, 0, 1), 1,
             "A B # / 10 b0 - / 11*@ b1* -* / x b2 -");
    LIST_ROW("standard, mask among others", Kind::Standard, SetItemState(1, 0, ~0u), 1,
             "A B # / 10 b0 - / 11*@ b1* -* / x b2 -");
    LIST_ROW_NOTHING("standard, state alone", Kind::Standard, SetItemState(1, 1, 0), 1);
    LIST_ROW_NOTHING("standard, LVIS_SELECTED", Kind::Standard, SetItemState(1, 2, 2), 1);
    LIST_ROW_NOTHING("standard, past the end", Kind::Standard, SetItemState(3, 1, 1), 1);
    LIST_ROW_NOTHING("standard, negative", Kind::Standard, SetItemState(-1, 1, 1), -1);
    LIST_ROW("strings", Kind::Strings, SetItemState(2, 0, 1), 1, "# / 10 / 11 / x*@");
    LIST_ROW_NOTHING("no model", Kind::NoModel, SetItemState(0, 1, 1), 1);
    LIST_ROW_NOTHING("other", Kind::Other, SetItemState(0, 1, 1), 1);
    LIST_ROW_NOTHING("other, negative", Kind::Other, SetItemState(INT_MIN, 1, 1), INT_MIN);
}

void tst_CListCtrlSelection::setItemState()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlSelection::setItemStatePastTheEnd_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("list") << Kind::List;
    QTest::newRow("table") << Kind::Table;
}

// Qt takes it for no row at all.
void tst_CListCtrlSelection::setItemStatePastTheEnd()
{
    QFETCH(Kind, kind);
    ListScene scene(kind);
    const QString before = scene.state();
    scene.control.SetItemState(1, 1, 0);
    QVERIFY(scene.state() != before);
    QCOMPARE(scene.control.SetItemState(3, 1, 0), TRUE);
    QVERIFY(!scene.state().contains(QLatin1Char('@')));
    // A missing bit deselects nothing.
    scene.control.SetItemState(1, 1, 0);
    const QString selected = scene.state();
    QCOMPARE(scene.control.SetItemState(1, 0, ~0u), TRUE);
    QCOMPARE(scene.state(), selected);
}

void tst_CListCtrlSelection::getItemState_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Cells>("selected");
    QTest::addColumn<int>("row");
    QTest::addColumn<uint>("mask");
    QTest::addColumn<uint>("state");

    const Cells first{QPoint(0, 1)};
    const Cells second{QPoint(1, 1)};
    const Cells whole = wholeRows({1});
    QTest::newRow("list") << Kind::List << first << 1 << 1u << 1u;
    QTest::newRow("list, all bits") << Kind::List << first << 1 << ~0u << 1u;
    QTest::newRow("list, not selected") << Kind::List << first << 0 << 1u << 0u;
    QTest::newRow("list, LVIS_SELECTED") << Kind::List << first << 1 << 2u << 0u;
    QTest::newRow("list, past the end") << Kind::List << first << 3 << 1u << 0u;
    QTest::newRow("list, negative") << Kind::List << first << -2 << 1u << uint(-2);
    QTest::newRow("table") << Kind::Table << first << 1 << 1u << 1u;
    QTest::newRow("table, all bits") << Kind::Table << first << 1 << ~0u << 1u;
    QTest::newRow("table, not selected") << Kind::Table << first << 0 << 1u << 0u;
    QTest::newRow("table, other column") << Kind::Table << second << 1 << 1u << 0u;
    QTest::newRow("table, LVIS_SELECTED") << Kind::Table << whole << 1 << 2u << 0u;
    QTest::newRow("table, past the end") << Kind::Table << whole << 3 << 1u << 0u;
    QTest::newRow("table, negative") << Kind::Table << whole << -1 << 1u << ~0u;
    QTest::newRow("standard") << Kind::Standard << whole << 1 << 1u << 1u;
    QTest::newRow("standard, all bits") << Kind::Standard << whole << 1 << ~0u << 1u;
    QTest::newRow("standard, not selected") << Kind::Standard << whole << 2 << 1u << 0u;
    QTest::newRow("standard, not the whole row") << Kind::Standard << first << 1 << 1u << 0u;
    QTest::newRow("standard, LVIS_SELECTED") << Kind::Standard << whole << 1 << 2u << 0u;
    QTest::newRow("standard, past the end") << Kind::Standard << whole << 3 << 1u << 0u;
    QTest::newRow("standard, negative") << Kind::Standard << whole << -1 << 1u << ~0u;
    QTest::newRow("strings") << Kind::Strings << first << 1 << 1u << 1u;
    QTest::newRow("no model") << Kind::NoModel << Cells() << 0 << 1u << 0u;
    QTest::newRow("other") << Kind::Other << Cells() << 0 << 1u << 0u;
    QTest::newRow("other, negative") << Kind::Other << Cells() << -1 << 1u << ~0u;
}

void tst_CListCtrlSelection::getItemState()
{
    QFETCH(Kind, kind);
    QFETCH(Cells, selected);
    QFETCH(int, row);
    QFETCH(uint, mask);
    ListScene scene(kind);
    if (!selected.isEmpty())
        select(scene, selected);
    const QString before = scene.state();
    QTEST(scene.control.GetItemState(row, mask), "state");
    QCOMPARE(scene.state(), before);
}

void tst_CListCtrlSelection::currentRow_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("next");
    QTest::addColumn<int>("mark");

    QTest::newRow("list") << Kind::List << 1 << 1 << LVNI_FOCUSED << 1 << 1;
    QTest::newRow("list, selected") << Kind::List << 1 << -1 << LVNI_SELECTED << 1 << 1;
    QTest::newRow("list, both flags") << Kind::List << 1 << -1 << 3 << -1 << 1;
    QTest::newRow("list, all") << Kind::List << 1 << -1 << LVNI_ALL << -1 << 1;
    QTest::newRow("list, below") << Kind::List << 1 << -1 << (LVNI_BELOW | LVNI_SELECTED) << -1 << 1;
    QTest::newRow("list, none") << Kind::List << -1 << 0 << LVNI_SELECTED << -1 << -1;
    QTest::newRow("table") << Kind::Table << 1 << -1 << LVNI_FOCUSED << 1 << -1;
    QTest::newRow("table, selected") << Kind::Table << 1 << 0 << LVNI_SELECTED << 1 << -1;
    QTest::newRow("table, the same") << Kind::Table << 1 << 1 << LVNI_SELECTED << -1 << -1;
    QTest::newRow("table, both flags") << Kind::Table << 1 << -1 << 3 << -1 << -1;
    QTest::newRow("table, all") << Kind::Table << 1 << -1 << LVNI_ALL << -1 << -1;
    QTest::newRow("table, none") << Kind::Table << -1 << 5 << LVNI_SELECTED << -1 << -1;
    QTest::newRow("standard") << Kind::Standard << 1 << -1 << LVNI_SELECTED << -1 << -1;
    QTest::newRow("strings") << Kind::Strings << 1 << -1 << LVNI_FOCUSED << -1 << -1;
    QTest::newRow("no model") << Kind::NoModel << -1 << -1 << LVNI_SELECTED << -1 << -1;
    QTest::newRow("other") << Kind::Other << -1 << -1 << LVNI_SELECTED << -1 << -1;
    QTest::newRow("other, all") << Kind::Other << -1 << -1 << LVNI_ALL << -1 << -1;
}

void tst_CListCtrlSelection::currentRow()
{
    QFETCH(Kind, kind);
    QFETCH(int, current);
    QFETCH(int, item);
    QFETCH(int, flags);
    ListScene scene(kind);
    if (current >= 0)
        qobject_cast<QAbstractItemView *>(scene.widget())->setCurrentIndex(scene.model()->index(current, 0));
    const QString before = scene.state();
    QTEST(scene.control.GetNextItem(item, flags), "next");
    QTEST(scene.control.GetSelectionMark(), "mark");
    scene.control.SetSelectionMark(0);
    QCOMPARE(scene.state(), before);
}

void tst_CListCtrlSelection::selectedCount_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Cells>("selected");
    QTest::addColumn<uint>("count");

    QTest::newRow("list") << Kind::List << Cells{QPoint(0, 0), QPoint(0, 2)} << 2u;
    QTest::newRow("list, none") << Kind::List << Cells() << 0u;
    QTest::newRow("table, two rows") << Kind::Table << wholeRows({0, 2}) << 1u;
    QTest::newRow("table, one cell") << Kind::Table << Cells{QPoint(1, 2)} << 1u;
    QTest::newRow("table, none") << Kind::Table << Cells() << 0u;
    QTest::newRow("table, cell without an item") << Kind::Table << Cells{QPoint(2, 1)} << 0u;
    QTest::newRow("standard, two rows") << Kind::Standard << wholeRows({0, 2}) << 2u;
    QTest::newRow("standard, part of a row") << Kind::Standard << wholeRows({2}) + Cells{QPoint(0, 1)} << 1u;
    QTest::newRow("standard, none") << Kind::Standard << Cells() << 0u;
    QTest::newRow("strings") << Kind::Strings << Cells{QPoint(0, 0), QPoint(0, 1)} << 2u;
    QTest::newRow("no model") << Kind::NoModel << Cells() << 0u;
    QTest::newRow("other") << Kind::Other << Cells() << 0u;
}

void tst_CListCtrlSelection::selectedCount()
{
    QFETCH(Kind, kind);
    QFETCH(Cells, selected);
    ListScene scene(kind);
    if (!selected.isEmpty())
        select(scene, selected);
    QTEST(scene.control.GetSelectedCount(), "count");
}

void tst_CListCtrlSelection::withoutSelectionModel_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("list") << Kind::List;
    QTest::newRow("table") << Kind::Table;
    QTest::newRow("standard") << Kind::Standard;
}

void tst_CListCtrlSelection::withoutSelectionModel()
{
    QFETCH(Kind, kind);
    ListScene scene(kind);
    delete qobject_cast<QAbstractItemView *>(scene.widget())->selectionModel();
    const QString before = scene.state();
    QCOMPARE(scene.control.SetItemState(1, 1, 1), TRUE);
    QCOMPARE(scene.control.GetItemState(1, 1), 0u);
    QCOMPARE(scene.control.GetSelectedCount(), 0u);
    QCOMPARE(scene.control.GetSelectionMark(), -1);
    QCOMPARE(scene.control.GetNextItem(-1, LVNI_SELECTED), -1);
    QCOMPARE(scene.control.GetFirstSelectedItemPosition(), POSITION());
    if (kind == Kind::Table) {
        auto pos = reinterpret_cast<POSITION>(scene.table()->item(0, 0));
        QCOMPARE(scene.control.GetNextSelectedItem(pos), -1);
        QCOMPARE(pos, POSITION());
        QCOMPARE(scene.control.SetItem(0, 0, 0, nullptr, 0, 1, 0, 0), TRUE);
    }
    QCOMPARE(scene.state(), before);
    QCOMPARE(scene.control.DeleteAllItems(), TRUE);
    QCOMPARE(scene.model()->rowCount(), 0);
}

void tst_CListCtrlSelection::rowsBelowARoot()
{
    QStandardItemModel model(3, 1);
    for (int row = 0; row < 3; ++row)
        model.setItem(row, new QStandardItem);
    QStandardItem *root = model.item(1);
    for (int row = 0; row < 4; ++row)
        root->appendRow(new QStandardItem);
    QTableView view;
    view.setModel(&model);
    view.setRootIndex(root->index());
    CListCtrl control;
    control.SetHandle(handleOf(&view));

    view.selectRow(3);
    QCOMPARE(control.GetItemState(3, 1), 1u);
    QCOMPARE(control.GetItemState(2, 1), 0u);
    QCOMPARE(control.GetSelectedCount(), 1u);
    POSITION pos = control.GetFirstSelectedItemPosition();
    QCOMPARE(control.GetNextSelectedItem(pos), 3);
    QCOMPARE(pos, POSITION());
    // Selected by the program, as no user can: the rows are told whatever their parent.
    view.selectionModel()->select(model.index(2, 0), QItemSelectionModel::ClearAndSelect);
    QCOMPARE(control.GetItemState(2, 1), 1u);
    QCOMPARE(control.GetItemState(3, 1), 0u);
    QCOMPARE(control.GetSelectedCount(), 1u);
}

QTEST_MAIN(tst_CListCtrlSelection)
#include "tst_CListCtrlSelection.moc"
