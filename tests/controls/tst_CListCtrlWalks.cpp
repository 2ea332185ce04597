#include "LeftBehind.h"
#include "ListScene.h"

#include <QtTest>

#include <memory>

namespace {
QList<int> walk(const CListCtrl &control)
{
    QList<int> rows;
    POSITION pos = control.GetFirstSelectedItemPosition();
    while (pos && rows.size() < 99)
        rows << control.GetNextSelectedItem(pos);
    return rows;
}

using Rows = QList<int>;
} // namespace

class tst_CListCtrlWalks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void walks_data();
    void walks();
    void positionOfTableIsItem();
    void positionOfViewIsRecord();
    void nextOfNullPosition_data();
    void nextOfNullPosition();
    void tableChangesDuringWalk();
    void viewChangesDuringWalk();
    void viewLosesModelDuringWalk_data();
    void viewLosesModelDuringWalk();
    void longWalk();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CListCtrlWalks::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CListCtrlWalks::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CListCtrlWalks::walks_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<Cells>("selected");
    QTest::addColumn<Rows>("rows");

    QTest::newRow("list, nothing to walk") << Kind::List << Cells{QPoint(0, 0)} << Rows();
    QTest::newRow("table") << Kind::Table << Cells{QPoint(0, 0), QPoint(0, 2)} << Rows{0, 2};
    QTest::newRow("table, cells of one row once") << Kind::Table << wholeRows({0, 1, 2}) << Rows{0, 1, 2};
    QTest::newRow("table, cell without an item") << Kind::Table << Cells{QPoint(2, 1)} << Rows();
    // Only cells of the row given last are skipped.
    QTest::newRow("table, in Qt's order")
        << Kind::Table << Cells{QPoint(0, 2), QPoint(1, 0), QPoint(2, 2)} << Rows{2, 0, 2};
    QTest::newRow("table, none") << Kind::Table << Cells() << Rows();
    QTest::newRow("standard") << Kind::Standard << wholeRows({0, 2}) << Rows{0, 2};
    QTest::newRow("standard, in Qt's order") << Kind::Standard << wholeRows({2, 0, 1}) << Rows{2, 0, 1};
    QTest::newRow("standard, part of a row")
        << Kind::Standard << Cells{QPoint(0, 0)} + wholeRows({1}) << Rows{1};
    QTest::newRow("standard, none") << Kind::Standard << Cells() << Rows();
    QTest::newRow("strings") << Kind::Strings << Cells{QPoint(0, 1), QPoint(0, 0)} << Rows{1, 0};
    QTest::newRow("no model") << Kind::NoModel << Cells() << Rows();
    QTest::newRow("other") << Kind::Other << Cells() << Rows();
}

void tst_CListCtrlWalks::walks()
{
    QFETCH(Kind, kind);
    QFETCH(Cells, selected);
    QFETCH(Rows, rows);
    ListScene scene(kind);
    if (!selected.isEmpty())
        select(scene, selected);
    const QString before = scene.state();
    // A view's rows are those that Qt gives, in the same order.
    if (scene.view() && !scene.table() && scene.model()) {
        Rows ofQt;
        for (const QModelIndex &index : scene.view()->selectionModel()->selectedRows(0))
            ofQt << index.row();
        QCOMPARE(ofQt, rows);
    }
    QCOMPARE(walk(scene.control), rows);
    QCOMPARE(scene.state(), before);
}

void tst_CListCtrlWalks::positionOfTableIsItem()
{
    ListScene scene(Kind::Table);
    select(scene, wholeRows({0, 2}));
    POSITION pos = scene.control.GetFirstSelectedItemPosition();
    QCOMPARE(reinterpret_cast<QTableWidgetItem *>(pos), scene.table()->item(0, 0));
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 0);
    QCOMPARE(reinterpret_cast<QTableWidgetItem *>(pos), scene.table()->item(2, 0));
    // Any selected cell will do.
    pos = reinterpret_cast<POSITION>(scene.table()->item(0, 2));
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 0);
    QCOMPARE(reinterpret_cast<QTableWidgetItem *>(pos), scene.table()->item(2, 0));
}

void tst_CListCtrlWalks::positionOfViewIsRecord()
{
    ListScene scene(Kind::Standard);
    select(scene, wholeRows({0, 1, 2}));
    POSITION pos = scene.control.GetFirstSelectedItemPosition();
    const auto *record = reinterpret_cast<const LIST_POSITION *>(pos);
    QCOMPARE(record->m_nRow, 0);
    QCOMPARE(record->m_listReturned, Rows());
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 0);
    QCOMPARE(reinterpret_cast<const LIST_POSITION *>(pos), record);
    QCOMPARE(record->m_nRow, 1);
    QCOMPARE(record->m_listReturned, Rows{0});
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 1);
    QCOMPARE(record->m_listReturned, (Rows{0, 1}));
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 2);
    QCOMPARE(pos, POSITION());

    // An abandoned walk stays allocated, and its owner may take it away.
    delete reinterpret_cast<LIST_POSITION *>(scene.control.GetFirstSelectedItemPosition());
}

void tst_CListCtrlWalks::nextOfNullPosition_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("list") << Kind::List;
    QTest::newRow("table") << Kind::Table;
    QTest::newRow("standard") << Kind::Standard;
    QTest::newRow("no model") << Kind::NoModel;
    QTest::newRow("other") << Kind::Other;
}

void tst_CListCtrlWalks::nextOfNullPosition()
{
    QFETCH(Kind, kind);
    ListScene scene(kind);
    POSITION pos = nullptr;
    QCOMPARE(scene.control.GetNextSelectedItem(pos), -1);
    QCOMPARE(pos, POSITION());
    if (kind != Kind::List && kind != Kind::Other)
        return;
    // These have no positions of their own and leave any other one alone.
    const auto kept = reinterpret_cast<POSITION>(quintptr(0x5000));
    pos = kept;
    QCOMPARE(scene.control.GetNextSelectedItem(pos), -1);
    QCOMPARE(pos, kept);
}

void tst_CListCtrlWalks::tableChangesDuringWalk()
{
    ListScene scene(Kind::Table);
    select(scene, wholeRows({0, 1, 2}));
    POSITION pos = scene.control.GetFirstSelectedItemPosition();
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 0);
    POSITION inSecond = pos;
    scene.table()->item(1, 0)->setSelected(false);
    QCOMPARE(scene.control.GetNextSelectedItem(pos), -1);
    QCOMPARE(pos, POSITION());

    scene.table()->removeRow(1);
    QCOMPARE(scene.control.GetNextSelectedItem(inSecond), -1);
    QCOMPARE(inSecond, POSITION());
}

void tst_CListCtrlWalks::viewChangesDuringWalk()
{
    ListScene scene(Kind::Standard);
    select(scene, wholeRows({0, 2}));
    POSITION pos = scene.control.GetFirstSelectedItemPosition();
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 0);
    // The row found last is given even if it went; a row selected since is found, one given is not again.
    scene.view()->selectionModel()->clear();
    select(scene, wholeRows({1, 0}));
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 2);
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 1);
    QCOMPARE(pos, POSITION());
}

void tst_CListCtrlWalks::viewLosesModelDuringWalk_data()
{
    QTest::addColumn<int>("loss");
    QTest::newRow("other model") << 0;
    QTest::newRow("no model") << 1;
    QTest::newRow("model destroyed") << 2;
    QTest::newRow("selection model destroyed") << 3;
}

void tst_CListCtrlWalks::viewLosesModelDuringWalk()
{
    QFETCH(int, loss);
    ListScene scene(Kind::Standard);
    QStandardItemModel other(5, 3);
    select(scene, wholeRows({1, 2}));
    POSITION pos = scene.control.GetFirstSelectedItemPosition();
    if (loss < 2)
        scene.view()->setModel(loss == 0 ? &other : nullptr);
    else if (loss == 2)
        delete scene.model();
    else
        delete scene.view()->selectionModel();
    QCOMPARE(scene.control.GetNextSelectedItem(pos), 1);
    QCOMPARE(pos, POSITION());
    QCOMPARE(scene.control.GetSelectedCount(), 0u);
    QCOMPARE(scene.control.GetFirstSelectedItemPosition(), POSITION());
    QCOMPARE(scene.control.GetItemState(1, 1), 0u);
}

void tst_CListCtrlWalks::longWalk()
{
    constexpr int count = 3000;
    QStandardItemModel model(count, 1);
    ListScene scene(Kind::NoModel);
    scene.view()->setModel(&model);
    scene.view()->selectAll();
    POSITION pos = scene.control.GetFirstSelectedItemPosition();
    for (int row = 0; row < count; ++row)
        QCOMPARE(scene.control.GetNextSelectedItem(pos), row);
    QCOMPARE(pos, POSITION());
}

QTEST_MAIN(tst_CListCtrlWalks)
#include "tst_CListCtrlWalks.moc"
