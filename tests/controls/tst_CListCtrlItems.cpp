#include "LeftBehind.h"
#include "ListScene.h"

#include <QtTest>

#include <climits>
#include <memory>

namespace {
int inserted(CListCtrl &control, const LVITEMW &item)
{
    return control.InsertItem(&item);
}

constexpr auto noText = static_cast<const wchar_t *>(nullptr);
constexpr auto noItem = static_cast<const LVITEMW *>(nullptr);
} // namespace

class tst_CListCtrlItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void insertItem_data();
    void insertItem();
    void insertRecord_data();
    void insertRecord();
    void deleteItem_data();
    void deleteItem();
    void deleteItemWithWidget();
    void deleteAllItems_data();
    void deleteAllItems();
    void deleteAllItemsBlocks_data();
    void deleteAllItemsBlocks();
    void deleteAllItemsOfStubbornModel();
    void getItemCount_data();
    void getItemCount();
    void getItemText_data();
    void getItemText();
    void setItemText_data();
    void setItemText();
    void setItemData_data();
    void setItemData();
    void getItemData_data();
    void getItemData();
    void itemDataRoundTrip_data();
    void itemDataRoundTrip();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CListCtrlItems::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CListCtrlItems::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CListCtrlItems::insertItem_data()
{
    addListColumns();
    LIST_ROW("list, image", Kind::List, InsertItem(1, L"new", 5), 1, "# / a0:10 / new / a1:11 / a2");
    LIST_ROW("list, image, null text", Kind::List, InsertItem(0, nullptr, 5), 0,
             "# / '' / a0:10 / a1:11 / a2");
    LIST_ROW("list, image, past the end", Kind::List, InsertItem(99, L"new", 5), 99,
             "# / a0:10 / a1:11 / a2 / new");
    LIST_ROW("list, image, largest", Kind::List, InsertItem(INT_MAX, L"new", 0), INT_MAX,
             "# / a0:10 / a1:11 / a2 / new");
    LIST_ROW_NOTHING("list, image, negative", Kind::List, InsertItem(-1, L"new", 5), -1);
    LIST_ROW("table, image", Kind::Table, InsertItem(1, L"new", 5), 1,
             "A B # / a0:10 b0 c0 / new - - / a1:11 b1 - / a2:12 b2:77 c2");
    LIST_ROW("table, image, at the end", Kind::Table, InsertItem(3, L"new", 5), 3,
             "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2 / new - -");
    LIST_ROW_NOTHING("table, image, past the end", Kind::Table, InsertItem(4, L"new", 5), 4);
    LIST_ROW_NOTHING("table, image, negative", Kind::Table, InsertItem(-7, L"new", 5), -7);
    LIST_ROW_NOTHING("standard, image", Kind::Standard, InsertItem(1, L"new", 5), 1);
    LIST_ROW_NOTHING("standard, image, negative", Kind::Standard, InsertItem(-1, L"new", 5), -1);
    LIST_ROW_NOTHING("strings, image", Kind::Strings, InsertItem(1, L"new", 5), 1);
    LIST_ROW_NOTHING("no model, image", Kind::NoModel, InsertItem(1, L"new", 5), 1);
    LIST_ROW_NOTHING("other, image", Kind::Other, InsertItem(1, L"new", 5), 1);
    LIST_ROW_NOTHING("other, image, negative", Kind::Other, InsertItem(-7, L"new", 5), -7);

    LIST_ROW("list", Kind::List, InsertItem(3, L"new"), 3, "# / a0:10 / a1:11 / a2 / new");
    LIST_ROW("list, null text", Kind::List, InsertItem(3, noText), 3, "# / a0:10 / a1:11 / a2 / ''");
    LIST_ROW_NOTHING("list, negative", Kind::List, InsertItem(INT_MIN, L"new"), INT_MIN);
    LIST_ROW("table, all columns", Kind::Table, InsertItem(0, L"new"), 0,
             "A B # / new new new / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    LIST_ROW("table, null text", Kind::Table, InsertItem(0, noText), 0,
             "A B # / '' '' '' / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    LIST_ROW_NOTHING("table, past the end", Kind::Table, InsertItem(4, L"new"), 4);
    LIST_ROW_NOTHING("table, negative", Kind::Table, InsertItem(-1, L"new"), -1);
    LIST_ROW("standard, empty row", Kind::Standard, InsertItem(1, L"new"), 1,
             "A B # / 10 b0 - / - - - / 11 b1 - / x b2 -");
    LIST_ROW_NOTHING("standard, past the end", Kind::Standard, InsertItem(4, L"new"), 4);
    LIST_ROW_NOTHING("standard, negative", Kind::Standard, InsertItem(-7, L"new"), -7);
    LIST_ROW_NOTHING("strings", Kind::Strings, InsertItem(1, L"new"), -1);
    LIST_ROW_NOTHING("strings, negative", Kind::Strings, InsertItem(-7, L"new"), -7);
    LIST_ROW_NOTHING("no model", Kind::NoModel, InsertItem(1, L"new"), -1);
    LIST_ROW_NOTHING("other", Kind::Other, InsertItem(1, L"new"), 1);
    LIST_ROW_NOTHING("other, negative", Kind::Other, InsertItem(-7, L"new"), -7);
}

void tst_CListCtrlItems::insertItem()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlItems::insertRecord_data()
{
    addListColumns();
    RECORD_ROW("table", Kind::Table, inserted, record(1, 0, newText, 5), 1,
               "A B # / a0:10 b0 c0 / new:5 - - / a1:11 b1 - / a2:12 b2:77 c2");
    RECORD_ROW("table, other column", Kind::Table, inserted, record(0, 2, newText, 0), 0,
               "A B # / - - new:0 / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    RECORD_ROW("table, past the end", Kind::Table, inserted, record(99, 0, newText, -1), 3,
               "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2 / new:18446744073709551615 - -");
    RECORD_ROW("table, null text", Kind::Table, inserted, record(0, 0, nullptr, 5), 0,
               "A B # / '':5 - - / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    RECORD_ROW("table, no such column", Kind::Table, inserted, record(0, 3, newText, 5), 0,
               "A B # / - - - / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    RECORD_ROW("table, negative column", Kind::Table, inserted, record(1, -1, newText, 5), 1,
               "A B # / a0:10 b0 c0 / - - - / a1:11 b1 - / a2:12 b2:77 c2");
    RECORD_ROW("table, negative row", Kind::Table, inserted, record(-5, 0, newText, 5), -5, nullptr);
    RECORD_ROW("list", Kind::List, inserted, record(1, 0, newText, 5), -1, nullptr);
    RECORD_ROW("standard", Kind::Standard, inserted, record(1, 0, newText, 5), -1, nullptr);
    RECORD_ROW("strings", Kind::Strings, inserted, record(1, 0, newText, 5), -1, nullptr);
    RECORD_ROW("no model", Kind::NoModel, inserted, record(1, 0, newText, 5), -1, nullptr);
    RECORD_ROW("other", Kind::Other, inserted, record(1, 0, newText, 5), -1, nullptr);
    LIST_ROW_NOTHING("table, null record", Kind::Table, InsertItem(noItem), -1);
    LIST_ROW_NOTHING("list, null record", Kind::List, InsertItem(noItem), -1);
    LIST_ROW_NOTHING("other, null record", Kind::Other, InsertItem(noItem), -1);
}

void tst_CListCtrlItems::insertRecord()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlItems::deleteItem_data()
{
    addListColumns();
    LIST_ROW("list", Kind::List, DeleteItem(1), 1, "# / a0:10 / a2");
    LIST_ROW_NOTHING("list, past the end", Kind::List, DeleteItem(3), 1);
    LIST_ROW_NOTHING("list, negative", Kind::List, DeleteItem(-1), 1);
    LIST_ROW("table", Kind::Table, DeleteItem(2), 1, "A B # / a0:10 b0 c0 / a1:11 b1 -");
    LIST_ROW_NOTHING("table, past the end", Kind::Table, DeleteItem(3), 1);
    LIST_ROW_NOTHING("table, largest", Kind::Table, DeleteItem(INT_MAX), 1);
    LIST_ROW_NOTHING("table, negative", Kind::Table, DeleteItem(-1), 1);
    LIST_ROW("standard", Kind::Standard, DeleteItem(0), 1, "A B # / 11 b1 - / x b2 -");
    LIST_ROW_NOTHING("standard, past the end", Kind::Standard, DeleteItem(3), 1);
    LIST_ROW_NOTHING("standard, largest", Kind::Standard, DeleteItem(INT_MAX), 1);
    LIST_ROW_NOTHING("standard, negative", Kind::Standard, DeleteItem(-1), 1);
    LIST_ROW("strings", Kind::Strings, DeleteItem(0), 1, "# / 11 / x");
    LIST_ROW_NOTHING("strings, past the end", Kind::Strings, DeleteItem(3), 1);
    LIST_ROW_NOTHING("no model", Kind::NoModel, DeleteItem(0), 1);
    LIST_ROW_NOTHING("other", Kind::Other, DeleteItem(0), 1);
}

void tst_CListCtrlItems::deleteItem()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlItems::deleteItemWithWidget()
{
    ListScene scene(Kind::List);
    const QPointer<QLabel> label = new QLabel;
    scene.list()->setItemWidget(scene.list()->item(1), label);
    QCOMPARE(scene.control.DeleteItem(1), TRUE);
    QTRY_VERIFY(!label);
    QCOMPARE(scene.state(), QStringLiteral("# / a0:10 / a2"));
}

void tst_CListCtrlItems::deleteAllItems_data()
{
    addListColumns();
    LIST_ROW("list", Kind::List, DeleteAllItems(), 1, "#");
    LIST_ROW("table", Kind::Table, DeleteAllItems(), 1, "A B #");
    LIST_ROW("standard", Kind::Standard, DeleteAllItems(), 1, "A B #");
    LIST_ROW_NOTHING("strings", Kind::Strings, DeleteAllItems(), 0);
    LIST_ROW_NOTHING("no model", Kind::NoModel, DeleteAllItems(), 0);
    LIST_ROW_NOTHING("other", Kind::Other, DeleteAllItems(), 1);
}

void tst_CListCtrlItems::deleteAllItems()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlItems::deleteAllItemsBlocks_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("blocked");
    QTest::addColumn<int>("rowsRemoved");
    QTest::addColumn<int>("resets");

    QTest::newRow("list") << Kind::List << false << 0 << 1;
    QTest::newRow("list, blocked before") << Kind::List << true << 0 << 1;
    QTest::newRow("table") << Kind::Table << false << 3 << 0;
    QTest::newRow("table, blocked before") << Kind::Table << true << 3 << 0;
    QTest::newRow("standard") << Kind::Standard << false << 3 << 0;
    QTest::newRow("standard, blocked before") << Kind::Standard << true << 3 << 0;
}

void tst_CListCtrlItems::deleteAllItemsBlocks()
{
    QFETCH(Kind, kind);
    QFETCH(bool, blocked);
    ListScene scene(kind);
    qobject_cast<QAbstractItemView *>(scene.widget())->setCurrentIndex(scene.model()->index(2, 0));
    scene.widget()->blockSignals(blocked);
    QSignalSpy rowsRemoved(scene.model(), &QAbstractItemModel::rowsRemoved);
    QSignalSpy resets(scene.model(), &QAbstractItemModel::modelReset);
    WidgetWatch watch(scene.widget());
    QCOMPARE(scene.control.DeleteAllItems(), TRUE);
    QCOMPARE(watch.emitted(), QStringList());
    QCOMPARE(scene.widget()->signalsBlocked(), blocked);
    QTEST(int(rowsRemoved.count()), "rowsRemoved");
    QTEST(int(resets.count()), "resets");
    for (const QList<QVariant> &arguments : rowsRemoved)
        QCOMPARE(arguments.at(1).toInt() + arguments.at(2).toInt(), 0);
}

void tst_CListCtrlItems::deleteAllItemsOfStubbornModel()
{
    struct Stubborn : QStandardItemModel
    {
        Stubborn()
            : QStandardItemModel(2, 1)
        {
        }
        bool removeRows(int, int, const QModelIndex &) override { return false; }
    } model;
    ListScene scene(Kind::NoModel);
    scene.view()->setModel(&model);
    QCOMPARE(scene.control.DeleteAllItems(), TRUE);
    QCOMPARE(model.rowCount(), 2);
}

void tst_CListCtrlItems::getItemCount_data()
{
    addListColumns();
    LIST_ROW_NOTHING("list", Kind::List, GetItemCount(), 3);
    LIST_ROW_NOTHING("table", Kind::Table, GetItemCount(), 3);
    LIST_ROW_NOTHING("standard", Kind::Standard, GetItemCount(), 3);
    LIST_ROW_NOTHING("strings", Kind::Strings, GetItemCount(), 0);
    LIST_ROW_NOTHING("no model", Kind::NoModel, GetItemCount(), 0);
    LIST_ROW_NOTHING("other", Kind::Other, GetItemCount(), 0);
}

void tst_CListCtrlItems::getItemCount()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlItems::getItemText_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");

    QTest::newRow("list") << Kind::List << 1 << 0 << "a1";
    QTest::newRow("list, sub-item ignored") << Kind::List << 1 << 7 << "a1";
    QTest::newRow("list, past the end") << Kind::List << 3 << 0 << "";
    QTest::newRow("list, negative") << Kind::List << -1 << 0 << "";
    QTest::newRow("table") << Kind::Table << 2 << 1 << "b2";
    QTest::newRow("table, empty cell") << Kind::Table << 1 << 2 << "";
    QTest::newRow("table, past the last column") << Kind::Table << 0 << 3 << "";
    QTest::newRow("table, past the end") << Kind::Table << 3 << 0 << "";
    QTest::newRow("table, negative") << Kind::Table << -1 << 0 << "";
    QTest::newRow("table, negative column") << Kind::Table << 1 << -1 << "";
    QTest::newRow("standard") << Kind::Standard << 0 << 0 << "";
    QTest::newRow("strings") << Kind::Strings << 0 << 0 << "";
    QTest::newRow("no model") << Kind::NoModel << 0 << 0 << "";
    QTest::newRow("other") << Kind::Other << 0 << 0 << "";
}

void tst_CListCtrlItems::getItemText()
{
    QFETCH(Kind, kind);
    QFETCH(int, row);
    QFETCH(int, column);
    ListScene scene(kind);
    WidgetWatch watch(scene.widget());
    QTEST(QString::fromStdWString(scene.control.GetItemText(row, column)), "text");
    QVERIFY(watch.isUntouched());
}

void tst_CListCtrlItems::setItemText_data()
{
    addListColumns();
    LIST_ROW("table, data is lost", Kind::Table, SetItemText(2, 1, L"new"), 1,
             "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 new c2");
    LIST_ROW("table, empty cell", Kind::Table, SetItemText(1, 2, L"new"), 1,
             "A B # / a0:10 b0 c0 / a1:11 b1 new / a2:12 b2:77 c2");
    LIST_ROW("table, null text", Kind::Table, SetItemText(0, 0, nullptr), 1,
             "A B # / '' b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    LIST_ROW_NOTHING("table, past the end", Kind::Table, SetItemText(3, 0, L"new"), 1);
    LIST_ROW_NOTHING("table, past the last column", Kind::Table, SetItemText(0, 3, L"new"), 1);
    LIST_ROW_NOTHING("table, negative", Kind::Table, SetItemText(-1, 0, L"new"), 1);
    LIST_ROW_NOTHING("table, negative column", Kind::Table, SetItemText(1, -1, L"new"), 1);
    LIST_ROW_NOTHING("list", Kind::List, SetItemText(0, 0, L"new"), 0);
    LIST_ROW_NOTHING("standard", Kind::Standard, SetItemText(0, 0, L"new"), 0);
    LIST_ROW_NOTHING("strings", Kind::Strings, SetItemText(0, 0, L"new"), 0);
    LIST_ROW_NOTHING("no model", Kind::NoModel, SetItemText(0, 0, L"new"), 0);
    LIST_ROW_NOTHING("other", Kind::Other, SetItemText(0, 0, L"new"), 0);
}

void tst_CListCtrlItems::setItemText()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlItems::setItemData_data()
{
    addListColumns();
    LIST_ROW("list", Kind::List, SetItemData(2, ULONG_MAX), 1, "# / a0:10 / a1:11 / a2:18446744073709551615");
    LIST_ROW("list, 0", Kind::List, SetItemData(0, 0), 1, "# / a0:0 / a1:11 / a2");
    LIST_ROW_NOTHING("list, past the end", Kind::List, SetItemData(3, 5), 1);
    LIST_ROW_NOTHING("list, negative", Kind::List, SetItemData(-1, 5), 0);
    LIST_ROW("table", Kind::Table, SetItemData(2, 5), 1, "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:5 b2:77 c2");
    LIST_ROW_NOTHING("table, past the end", Kind::Table, SetItemData(3, 5), 1);
    LIST_ROW_NOTHING("table, negative", Kind::Table, SetItemData(-1, 5), 0);
    LIST_ROW("standard, the text shown", Kind::Standard, SetItemData(0, 5), 1,
             "A B # / 5(qulonglong) b0 - / 11 b1 - / x b2 -");
    LIST_ROW_NOTHING("standard, past the end", Kind::Standard, SetItemData(3, 5), 1);
    LIST_ROW_NOTHING("standard, negative", Kind::Standard, SetItemData(-1, 5), 0);
    LIST_ROW("strings", Kind::Strings, SetItemData(2, 5), 1, "# / 10 / 11 / 5");
    LIST_ROW_NOTHING("strings, past the end", Kind::Strings, SetItemData(3, 5), 1);
    LIST_ROW_NOTHING("no model", Kind::NoModel, SetItemData(0, 5), 0);
    LIST_ROW_NOTHING("other", Kind::Other, SetItemData(0, 5), 1);
    LIST_ROW_NOTHING("other, negative", Kind::Other, SetItemData(-1, 5), 0);
}

void tst_CListCtrlItems::setItemData()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlItems::getItemData_data()
{
    addListColumns();
    LIST_ROW_NOTHING("list", Kind::List, GetItemData(1), 11);
    LIST_ROW_NOTHING("list, without data", Kind::List, GetItemData(2), 0);
    LIST_ROW_NOTHING("list, past the end", Kind::List, GetItemData(3), 0);
    LIST_ROW_NOTHING("list, negative", Kind::List, GetItemData(-1), 0);
    LIST_ROW_NOTHING("table", Kind::Table, GetItemData(2), 12);
    LIST_ROW_NOTHING("table, past the end", Kind::Table, GetItemData(3), 0);
    LIST_ROW_NOTHING("table, negative", Kind::Table, GetItemData(-1), 0);
    LIST_ROW_NOTHING("standard", Kind::Standard, GetItemData(1), 11);
    LIST_ROW_NOTHING("standard, no number", Kind::Standard, GetItemData(2), 0);
    LIST_ROW_NOTHING("standard, past the end", Kind::Standard, GetItemData(3), 0);
    LIST_ROW_NOTHING("standard, negative", Kind::Standard, GetItemData(-1), 0);
    LIST_ROW_NOTHING("strings", Kind::Strings, GetItemData(1), 11);
    LIST_ROW_NOTHING("no model", Kind::NoModel, GetItemData(0), 0);
    LIST_ROW_NOTHING("other", Kind::Other, GetItemData(0), 0);
}

void tst_CListCtrlItems::getItemData()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlItems::itemDataRoundTrip_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::newRow("list") << Kind::List;
    QTest::newRow("table") << Kind::Table;
    QTest::newRow("standard") << Kind::Standard;
    QTest::newRow("strings") << Kind::Strings;
}

void tst_CListCtrlItems::itemDataRoundTrip()
{
    QFETCH(Kind, kind);
    ListScene scene(kind);
    for (const unsigned long data : {0UL, 1UL, 0xFFFFFFFFUL, 0x123456789ABCDEFUL, ULONG_MAX}) {
        QCOMPARE(scene.control.SetItemData(1, data), TRUE);
        QCOMPARE(scene.control.GetItemData(1), data);
    }
}

QTEST_MAIN(tst_CListCtrlItems)
#include "tst_CListCtrlItems.moc"
