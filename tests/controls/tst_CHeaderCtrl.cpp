#include "HiddenAddress.h"
#include "KxWindowPrivate.h"
#include "LeftBehind.h"
#include "ListScene.h"

#include <QHeaderView>
#include <QtTest>

#include <climits>
#include <memory>

namespace {
wchar_t column[] = L"column";

int insertedColumn(CListCtrl &control, int nCol, wchar_t *text)
{
    LVCOLUMNW record{};
    record.pszText = text;
    record.cx = 5;
    record.fmt = LVCFMT_RIGHT;
    record.mask = LVCF_WIDTH | LVCF_FMT;
    return control.InsertColumn(nCol, &record);
}

constexpr auto noColumn = static_cast<const LVCOLUMNW *>(nullptr);

// A header control bound to a scene's header, which it takes back from the registry.
struct BoundHeader
{
    explicit BoundHeader(const ListScene &scene, Qt::Orientation orientation = Qt::Horizontal)
    {
        auto *view = scene.view();
        header = orientation == Qt::Horizontal ? view->horizontalHeader() : view->verticalHeader();
        control.SetHandle(handleOf(header));
    }

    QHeaderView *header;
    CHeaderCtrl control;
};

HDITEMW untouchedRecord()
{
    HDITEMW item{};
    item.mask = HDI_WIDTH;
    item.pszText = column;
    item.cchTextMax = 3;
    item.fmt = 4;
    return item;
}
} // namespace

class tst_CHeaderCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void insertColumnRecord_data();
    void insertColumnRecord();
    void insertColumn_data();
    void insertColumn();
    void deleteColumn_data();
    void deleteColumn();
    void getHeaderCtrl_data();
    void getHeaderCtrl();
    void manyHeaderCtrls();
    void headerCtrlBesidesApplicationObject();

    void getItemCount_data();
    void getItemCount();
    void getItem_data();
    void getItem();
    void getItemKeepsText();
    void setItem_data();
    void setItem();
    void otherParents();
    void verticalHeader();
    void guard();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CHeaderCtrl::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CHeaderCtrl::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CHeaderCtrl::insertColumnRecord_data()
{
    addListColumns();
#define COLUMN_ROW(name, kind, nCol, text, result, after)                                                    \
    QTest::newRow(name) << (kind)                                                                            \
                        << ListCall([](CListCtrl &c) { return qint64(insertedColumn(c, nCol, text)); })      \
                        << qint64(result) << QString::fromLatin1(after)
    COLUMN_ROW("table", Kind::Table, 1, column, 1,
               "A column B # / a0:10 - b0 c0 / a1:11 - b1 - / a2:12 - b2:77 c2");
    COLUMN_ROW("table, at the end", Kind::Table, 3, column, 3,
               "A B # column / a0:10 b0 c0 - / a1:11 b1 - - / a2:12 b2:77 c2 -");
    COLUMN_ROW("table, null text", Kind::Table, 0, nullptr, 0,
               "'' A B # / - a0:10 b0 c0 / - a1:11 b1 - / - a2:12 b2:77 c2");
    COLUMN_ROW("table, past the end", Kind::Table, 4, column, 4, nullptr);
    COLUMN_ROW("table, largest", Kind::Table, INT_MAX, column, INT_MAX, nullptr);
    COLUMN_ROW("table, negative", Kind::Table, -7, column, -1, nullptr);
    COLUMN_ROW("list", Kind::List, 0, column, 0, nullptr);
    COLUMN_ROW("list, negative", Kind::List, -7, column, -1, nullptr);
    COLUMN_ROW("standard", Kind::Standard, 1, column, 1, nullptr);
    COLUMN_ROW("strings", Kind::Strings, 1, column, 1, nullptr);
    COLUMN_ROW("no model", Kind::NoModel, 1, column, 1, nullptr);
    COLUMN_ROW("other", Kind::Other, 1, column, 1, nullptr);
    COLUMN_ROW("other, negative", Kind::Other, -7, column, -1, nullptr);
#undef COLUMN_ROW
    LIST_ROW_NOTHING("table, null record", Kind::Table, InsertColumn(1, noColumn), -1);
}

void tst_CHeaderCtrl::insertColumnRecord()
{
    VERIFY_LIST_ROW();
}

void tst_CHeaderCtrl::insertColumn_data()
{
    addListColumns();
    LIST_ROW("table, has a heading", Kind::Table, InsertColumn(1, L"new", LVCFMT_RIGHT, 50, 2), 1,
             "A new # / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    LIST_ROW("table, without a heading", Kind::Table, InsertColumn(2, L"new", LVCFMT_RIGHT, 50, 2), 2,
             "A B new # / a0:10 b0 - c0 / a1:11 b1 - - / a2:12 b2:77 - c2");
    LIST_ROW("table, at the end", Kind::Table, InsertColumn(3, L"new"), 3,
             "A B # new / a0:10 b0 c0 - / a1:11 b1 - - / a2:12 b2:77 c2 -");
    LIST_ROW("table, null text", Kind::Table, InsertColumn(0, nullptr, 0, 0, 0), 0,
             "'' B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    LIST_ROW_NOTHING("table, past the end", Kind::Table, InsertColumn(4, L"new"), 4);
    LIST_ROW_NOTHING("table, largest", Kind::Table, InsertColumn(INT_MAX, L"new"), INT_MAX);
    LIST_ROW_NOTHING("table, negative", Kind::Table, InsertColumn(-7, L"new"), -7);
    LIST_ROW("standard, has a heading", Kind::Standard, InsertColumn(1, L"new", LVCFMT_RIGHT, 50, 2), 1,
             "A new # / 10 b0 - / 11 b1 - / x b2 -");
    LIST_ROW("standard, without a heading", Kind::Standard, InsertColumn(2, L"new", LVCFMT_RIGHT, 50, 1), 2,
             "A B new # / 10 b0 - - / 11 b1 - - / x b2 - -");
    LIST_ROW("standard, at the end", Kind::Standard, InsertColumn(3, L"new"), 3,
             "A B # new / 10 b0 - - / 11 b1 - - / x b2 - -");
    LIST_ROW("standard, null text", Kind::Standard, InsertColumn(0, nullptr, 0, 0, 0), 0,
             "'' B # / 10 b0 - / 11 b1 - / x b2 -");
    LIST_ROW_NOTHING("standard, past the end", Kind::Standard, InsertColumn(4, L"new"), 4);
    LIST_ROW_NOTHING("standard, largest", Kind::Standard, InsertColumn(INT_MAX, L"new"), INT_MAX);
    LIST_ROW_NOTHING("standard, negative", Kind::Standard, InsertColumn(-1, L"new"), -1);
    LIST_ROW_NOTHING("strings", Kind::Strings, InsertColumn(1, L"new"), -1);
    LIST_ROW_NOTHING("strings, negative", Kind::Strings, InsertColumn(-7, L"new"), -7);
    LIST_ROW_NOTHING("no model", Kind::NoModel, InsertColumn(0, L"new"), -1);
    LIST_ROW_NOTHING("list", Kind::List, InsertColumn(0, L"new"), 0);
    LIST_ROW_NOTHING("list, negative", Kind::List, InsertColumn(-7, L"new"), -7);
    LIST_ROW_NOTHING("other", Kind::Other, InsertColumn(0, L"new"), 0);
}

void tst_CHeaderCtrl::insertColumn()
{
    VERIFY_LIST_ROW();
}

void tst_CHeaderCtrl::deleteColumn_data()
{
    addListColumns();
    LIST_ROW("table", Kind::Table, DeleteColumn(0), 1, "B # / b0 c0 / b1 - / b2:77 c2");
    LIST_ROW_NOTHING("table, past the end", Kind::Table, DeleteColumn(3), 1);
    LIST_ROW_NOTHING("table, largest", Kind::Table, DeleteColumn(INT_MAX), 1);
    LIST_ROW_NOTHING("table, negative", Kind::Table, DeleteColumn(-1), 1);
    LIST_ROW("standard", Kind::Standard, DeleteColumn(1), 1, "A # / 10 - / 11 - / x -");
    LIST_ROW_NOTHING("standard, largest", Kind::Standard, DeleteColumn(INT_MAX), 1);
    LIST_ROW_NOTHING("strings, whose model refuses", Kind::Strings, DeleteColumn(0), 1);
    LIST_ROW_NOTHING("no model", Kind::NoModel, DeleteColumn(0), 0);
    LIST_ROW_NOTHING("list", Kind::List, DeleteColumn(0), 0);
    LIST_ROW_NOTHING("other", Kind::Other, DeleteColumn(0), 0);
}

void tst_CHeaderCtrl::deleteColumn()
{
    VERIFY_LIST_ROW();
}

void tst_CHeaderCtrl::getHeaderCtrl_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<bool>("found");
    QTest::newRow("table") << Kind::Table << true;
    QTest::newRow("standard") << Kind::Standard << true;
    QTest::newRow("strings") << Kind::Strings << true;
    QTest::newRow("no model") << Kind::NoModel << true;
    QTest::newRow("list") << Kind::List << false;
    QTest::newRow("other") << Kind::Other << false;
}

void tst_CHeaderCtrl::getHeaderCtrl()
{
    QFETCH(Kind, kind);
    QFETCH(bool, found);
    ListScene scene(kind);
    const std::unique_ptr<CHeaderCtrl> header(scene.control.GetHeaderCtrl());
    QCOMPARE(header != nullptr, found);
    if (!header)
        return;
    const HWND handle = handleOf(scene.view()->horizontalHeader());
    QCOMPARE(HWND(*header), handle);
    QCOMPARE(CWnd::FromHandle(handle), static_cast<CWnd *>(header.get()));
    QVERIFY(!CWndPrivate::of(header.get())->m_bPermanent);
    QCOMPARE(header->GetParent(), nullptr);
}

void tst_CHeaderCtrl::manyHeaderCtrls()
{
    ListScene scene(Kind::Table);
    const std::size_t registered = CWndHandleTable.size();
    for (int i = 0; i < 1000; ++i) {
        CHeaderCtrl *header = scene.control.GetHeaderCtrl();
        QCOMPARE(header->GetItemCount(), 3);
        QCOMPARE(CWnd::FromHandle(handleOf(scene.table()->horizontalHeader())), static_cast<CWnd *>(header));
        QCOMPARE(CWndHandleTable.size(), registered + 1);
    }
    delete scene.control.GetHeaderCtrl();
    QCOMPARE(CWndHandleTable.size(), registered);
}

void tst_CHeaderCtrl::headerCtrlBesidesApplicationObject()
{
    ListScene scene(Kind::Table);
    const HWND handle = handleOf(scene.table()->horizontalHeader());
    CHeaderCtrl own;
    own.SetHandle(handle);
    std::unique_ptr<CHeaderCtrl> first(scene.control.GetHeaderCtrl());
    std::unique_ptr<CHeaderCtrl> second(scene.control.GetHeaderCtrl());
    QCOMPARE(CWnd::FromHandle(handle), static_cast<CWnd *>(&own));
    QCOMPARE(own.GetItemCount(), 0);
    QCOMPARE(first->GetItemCount(), 3);
    QCOMPARE(second->GetItemCount(), 3);
    // Left alone, as ported code does.
    QVERIFY(scene.control.GetHeaderCtrl());
}

void tst_CHeaderCtrl::getItemCount_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("count");
    QTest::newRow("table") << Kind::Table << 3;
    QTest::newRow("standard") << Kind::Standard << 3;
    QTest::newRow("strings") << Kind::Strings << 1;
    QTest::newRow("no model") << Kind::NoModel << 0;
}

void tst_CHeaderCtrl::getItemCount()
{
    QFETCH(Kind, kind);
    ListScene scene(kind);
    BoundHeader bound(scene);
    QTEST(bound.control.GetItemCount(), "count");
}

void tst_CHeaderCtrl::getItem_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("text");
    QTest::newRow("table") << Kind::Table << 1 << "B";
    QTest::newRow("table, no heading") << Kind::Table << 2 << QString();
    QTest::newRow("table, past the end") << Kind::Table << 3 << QString();
    QTest::newRow("table, negative") << Kind::Table << -1 << QString();
    QTest::newRow("standard") << Kind::Standard << 0 << "A";
    QTest::newRow("standard, no heading") << Kind::Standard << 2 << QString();
    QTest::newRow("standard, past the end") << Kind::Standard << 3 << QString();
    QTest::newRow("standard, negative") << Kind::Standard << -1 << QString();
    QTest::newRow("strings") << Kind::Strings << 0 << QString();
    QTest::newRow("no model") << Kind::NoModel << 0 << QString();
}

void tst_CHeaderCtrl::getItem()
{
    QFETCH(Kind, kind);
    QFETCH(int, position);
    QFETCH(QString, text);
    ListScene scene(kind);
    BoundHeader bound(scene);
    WidgetWatch watch(scene.widget());
    HDITEMW item = untouchedRecord();
    QCOMPARE(bound.control.GetItem(position, &item), BOOL(!text.isNull()));
    QCOMPARE(item.mask, text.isNull() ? HDI_WIDTH : HDI_TEXT);
    QCOMPARE(QString::fromWCharArray(item.pszText), text.isNull() ? QStringLiteral("column") : text);
    QCOMPARE(item.cchTextMax, 3);
    QCOMPARE(item.fmt, 4);
    QCOMPARE(bound.control.GetItem(position, nullptr), FALSE);
    QVERIFY(watch.isUntouched());
}

void tst_CHeaderCtrl::getItemKeepsText()
{
    ListScene scene(Kind::Table);
    BoundHeader bound(scene);
    CHeaderCtrl *other = scene.control.GetHeaderCtrl();
    HDITEMW first{};
    HDITEMW second{};
    QCOMPARE(other->GetItem(0, &first), TRUE);
    QCOMPARE(other->GetItem(5, &second), FALSE);
    scene.table()->setColumnCount(0);
    // Each object keeps its own text, also when the heading is gone.
    QCOMPARE(QString::fromWCharArray(first.pszText), QStringLiteral("A"));
    delete other;
}

void tst_CHeaderCtrl::setItem_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("after");
    const QString inTable = QStringLiteral(" / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    const QString inModel = QStringLiteral(" / 10 b0 - / 11 b1 - / x b2 -");
    QTest::newRow("table") << Kind::Table << 1 << QStringLiteral("A column #") + inTable;
    QTest::newRow("table, no heading") << Kind::Table << 2 << QString();
    QTest::newRow("table, past the end") << Kind::Table << 3 << QString();
    QTest::newRow("table, negative") << Kind::Table << -1 << QString();
    QTest::newRow("standard") << Kind::Standard << 0 << QStringLiteral("column B #") + inModel;
    QTest::newRow("standard, no heading") << Kind::Standard << 2 << QString();
    QTest::newRow("strings") << Kind::Strings << 0 << QString();
    QTest::newRow("no model") << Kind::NoModel << 0 << QString();
}

void tst_CHeaderCtrl::setItem()
{
    QFETCH(Kind, kind);
    QFETCH(int, position);
    QFETCH(QString, after);
    ListScene scene(kind);
    BoundHeader bound(scene);
    const QString before = scene.state();
    HDITEMW item = untouchedRecord();
    QCOMPARE(bound.control.SetItem(position, nullptr), FALSE);
    QCOMPARE(scene.state(), before);
    QCOMPARE(bound.control.SetItem(position, &item), BOOL(!after.isNull()));
    QCOMPARE(scene.state(), after.isNull() ? before : after);
    QCOMPARE(item.mask, HDI_WIDTH);
    QCOMPARE(item.pszText, column);
    item.pszText = nullptr;
    bound.control.SetItem(position, &item);
    QCOMPARE(scene.state(), after.isNull()
                                ? before
                                : QString(after).replace(QStringLiteral("column"), QStringLiteral("''")));
}

void tst_CHeaderCtrl::otherParents()
{
    QStandardItemModel model(1, 2);
    model.setHorizontalHeaderItem(0, new QStandardItem(QStringLiteral("A")));
    QWidget window;
    auto *header = new QHeaderView(Qt::Horizontal, &window);
    header->setModel(&model);
    CHeaderCtrl control;
    control.SetHandle(handleOf(header));
    QCOMPARE(control.GetItemCount(), 2);
    HDITEMW item = untouchedRecord();
    QCOMPARE(control.GetItem(0, &item), FALSE);
    QCOMPARE(control.SetItem(0, &item), FALSE);
    QCOMPARE(item.mask, HDI_WIDTH);
    QCOMPARE(model.horizontalHeaderItem(0)->text(), QStringLiteral("A"));
}

void tst_CHeaderCtrl::verticalHeader()
{
    ListScene scene(Kind::Table);
    BoundHeader bound(scene, Qt::Vertical);
    HDITEMW item{};
    // The headings are the table's, thus always the horizontal ones.
    QCOMPARE(bound.control.GetItem(1, &item), TRUE);
    QCOMPARE(QString::fromWCharArray(item.pszText), QStringLiteral("B"));
    QCOMPARE(bound.control.GetItemCount(), 3);
}

void tst_CHeaderCtrl::guard()
{
    const auto givesNothing = [](CHeaderCtrl *control, quintptr result) {
        HDITEMW item = untouchedRecord();
        return control->GetItemCount() == int(result) && control->GetItem(0, &item) == BOOL(result) &&
               control->GetItem(0, nullptr) == BOOL(result) && control->SetItem(0, &item) == BOOL(result) &&
               control->SetItem(0, nullptr) == BOOL(result) && item.mask == HDI_WIDTH &&
               item.pszText == column;
    };
    for (const quintptr address : {0, 7, 8, 4088, 4095})
        QVERIFY(givesNothing(objectAt<CHeaderCtrl>(address), address));

    CHeaderCtrl unbound;
    QVERIFY(givesNothing(&unbound, 0));

    auto scene = std::make_unique<ListScene>(Kind::Table);
    BoundHeader replaced(*scene);
    BoundHeader destroyed(*scene);
    QVERIFY(givesNothing(&replaced.control, 0));
    QCOMPARE(destroyed.control.GetItemCount(), 3);
    scene.reset();
    QVERIFY(givesNothing(&destroyed.control, 0));

    QLabel label;
    CHeaderCtrl other;
    other.SetHandle(handleOf(&label));
    QVERIFY(givesNothing(&other, 0));
}

QTEST_MAIN(tst_CHeaderCtrl)
#include "tst_CHeaderCtrl.moc"
