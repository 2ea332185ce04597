#include "LeftBehind.h"
#include "ListScene.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QtTest>

#include <climits>
#include <memory>

namespace {
BOOL set(CListCtrl &control, const LVITEMW &item)
{
    return control.SetItem(&item);
}

// The record that a call was given shows what it did: -1 is what lParam was before.
qint64 got(CListCtrl &control, LVITEMW item)
{
    LVITEMW given = item;
    const BOOL result = control.GetItem(&given);
    const bool restIsKept = given.mask == item.mask && given.iItem == item.iItem &&
                            given.iSubItem == item.iSubItem && given.pszText == item.pszText &&
                            given.state == item.state && given.cchTextMax == item.cchTextMax;
    return restIsKept ? given.lParam * 10 + result : LLONG_MIN;
}

constexpr auto noItem = static_cast<const LVITEMW *>(nullptr);

// Everything that is ignored has a value that would show.
BOOL setArguments(CListCtrl &control, int row, int column, const wchar_t *text, unsigned state, long data)
{
    return control.SetItem(row, column, 0, text, 9, state, 0, data);
}
} // namespace

class tst_CListCtrlCells : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void setItem_data();
    void setItem();
    void setItemArguments_data();
    void setItemArguments();
    void setItemArgumentsIgnored();
    void getItem_data();
    void getItem();
    void editLabel_data();
    void editLabel();
    void editLabelBlocks_data();
    void editLabelBlocks();
    void editLabelOfViewWithOneColumn();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CListCtrlCells::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CListCtrlCells::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CListCtrlCells::setItem_data()
{
    addListColumns();
    RECORD_ROW("table", Kind::Table, set, record(2, 1, newText, 5), 1,
               "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 new:5 c2");
    RECORD_ROW("table, null text, no data", Kind::Table, set, record(2, 1, nullptr, 0), 1,
               "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 '':0 c2");
    RECORD_ROW("table, all bits", Kind::Table, set, record(0, 0, newText, -1, LVIF_IMAGE), 1,
               "A B # / new:18446744073709551615 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    RECORD_ROW("table, empty cell", Kind::Table, set, record(1, 2, newText, 0), 1,
               "A B # / a0:10 b0 c0 / a1:11 b1 new:0 / a2:12 b2:77 c2");
    RECORD_ROW("table, past the end", Kind::Table, set, record(3, 0, newText, 5), 1, nullptr);
    RECORD_ROW("table, past the last column", Kind::Table, set, record(0, 3, newText, 5), 1, nullptr);
    RECORD_ROW("table, negative", Kind::Table, set, record(-1, 0, newText, 5), 1, nullptr);
    RECORD_ROW("table, negative column", Kind::Table, set, record(1, -1, newText, 5), 1, nullptr);
    RECORD_ROW("list", Kind::List, set, record(0, 0, newText, 5), 1, nullptr);
    RECORD_ROW("standard", Kind::Standard, set, record(0, 0, newText, 5), 1, nullptr);
    RECORD_ROW("strings", Kind::Strings, set, record(0, 0, newText, 5), 1, nullptr);
    RECORD_ROW("no model", Kind::NoModel, set, record(0, 0, newText, 5), 1, nullptr);
    RECORD_ROW("other", Kind::Other, set, record(0, 0, newText, 5), 1, nullptr);
    LIST_ROW_NOTHING("table, null record", Kind::Table, SetItem(noItem), 0);
    LIST_ROW_NOTHING("list, null record", Kind::List, SetItem(noItem), 0);
    LIST_ROW_NOTHING("other, null record", Kind::Other, SetItem(noItem), 0);
}

void tst_CListCtrlCells::setItem()
{
    VERIFY_LIST_ROW();
}

#define ARGUMENTS_ROW(name, kind, row, column, text, state, data, after)                                     \
    QTest::newRow(name) << (kind) << ListCall([](CListCtrl &c) {                                             \
        return qint64(setArguments(c, row, column, text, state, data));                                      \
    }) << qint64(TRUE) << QString::fromLatin1(after)

void tst_CListCtrlCells::setItemArguments_data()
{
    addListColumns();
    ARGUMENTS_ROW("text and data", Kind::Table, 2, 1, L"new", 0, 5,
                  "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 new:5 c2");
    ARGUMENTS_ROW("null text keeps the text", Kind::Table, 2, 1, nullptr, 0, 5,
                  "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:5 c2");
    ARGUMENTS_ROW("no data keeps the data", Kind::Table, 2, 1, L"new", 0, 0,
                  "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 new:77 c2");
    ARGUMENTS_ROW("neither", Kind::Table, 2, 1, nullptr, 0, 0, nullptr);
    ARGUMENTS_ROW("64 bits of data", Kind::Table, 0, 0, nullptr, 0, -1,
                  "A B # / a0:18446744073709551615 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2");
    ARGUMENTS_ROW("empty text", Kind::Table, 2, 2, L"", 0, 0,
                  "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 ''");
    ARGUMENTS_ROW("state 1 selects", Kind::Table, 2, 1, L"new", 1, 0,
                  "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 new:77*@ c2");
    ARGUMENTS_ROW("state 2 does not", Kind::Table, 2, 1, nullptr, 2, 0, nullptr);
    ARGUMENTS_ROW("state 3 does not", Kind::Table, 2, 1, nullptr, 3, 0, nullptr);
    ARGUMENTS_ROW("new cell", Kind::Table, 1, 2, L"new", 0, 5,
                  "A B # / a0:10 b0 c0 / a1:11 b1 new:5 / a2:12 b2:77 c2");
    ARGUMENTS_ROW("new cell without data", Kind::Table, 1, 2, L"new", 0, 0,
                  "A B # / a0:10 b0 c0 / a1:11 b1 new / a2:12 b2:77 c2");
    ARGUMENTS_ROW("new cell without text", Kind::Table, 1, 2, nullptr, 0, 0,
                  "A B # / a0:10 b0 c0 / a1:11 b1 '' / a2:12 b2:77 c2");
    ARGUMENTS_ROW("new cell is not selected", Kind::Table, 1, 2, L"new", 1, 0,
                  "A B # / a0:10 b0 c0 / a1:11 b1 new / a2:12 b2:77 c2");
    ARGUMENTS_ROW("past the end", Kind::Table, 3, 0, L"new", 1, 5, nullptr);
    ARGUMENTS_ROW("past the last column", Kind::Table, 0, 3, L"new", 1, 5, nullptr);
    ARGUMENTS_ROW("negative", Kind::Table, -1, 0, L"new", 1, 5, nullptr);
    ARGUMENTS_ROW("negative column", Kind::Table, 1, -1, L"new", 1, 5, nullptr);
    ARGUMENTS_ROW("list", Kind::List, 0, 0, L"new", 1, 5, nullptr);
    ARGUMENTS_ROW("standard", Kind::Standard, 0, 0, L"new", 1, 5, nullptr);
    ARGUMENTS_ROW("strings", Kind::Strings, 0, 0, L"new", 1, 5, nullptr);
    ARGUMENTS_ROW("no model", Kind::NoModel, 0, 0, L"new", 1, 5, nullptr);
    ARGUMENTS_ROW("other", Kind::Other, 0, 0, L"new", 1, 5, nullptr);
}

void tst_CListCtrlCells::setItemArguments()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlCells::setItemArgumentsIgnored()
{
    ListScene scene(Kind::Table);
    QCOMPARE(scene.control.SetItem(2, 1, LVIF_STATE, L"new", 3, 0, ~0u, 5), TRUE);
    QCOMPARE(scene.state(), QStringLiteral("A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 new:5 c2"));
    // An icon would be what an image could set.
    QVERIFY(scene.table()->item(2, 1)->icon().isNull());
    // A cell is selected besides those of the current selection mode.
    scene.table()->setSelectionMode(QAbstractItemView::NoSelection);
    QCOMPARE(scene.control.SetItem(0, 1, 0, nullptr, 0, 1, 0, 0), TRUE);
    QCOMPARE(scene.state(), QStringLiteral("A B # / a0:10 b0*@ c0 / a1:11 b1 - / a2:12 new:5 c2"));
}

void tst_CListCtrlCells::getItem_data()
{
    addListColumns();
    const auto wanted = [](int row, int column, UINT mask) {
        LVITEMW item = record(row, column, newText, -1, mask);
        item.cchTextMax = 3;
        item.state = 8;
        return item;
    };
    const auto add = [&](const char *name, Kind kind, const LVITEMW &item, qint64 lParam, BOOL result) {
        QTest::newRow(name) << kind << ListCall([=](CListCtrl &c) { return got(c, item); })
                            << lParam * 10 + result << QString();
    };
    add("data", Kind::Table, wanted(1, 0, LVIF_PARAM), 11, TRUE);
    add("data of a sub-item", Kind::Table, wanted(2, 1, LVIF_PARAM), 77, TRUE);
    add("among other fields", Kind::Table, wanted(2, 1, ~0u), 77, TRUE);
    add("cell without data", Kind::Table, wanted(0, 1, LVIF_PARAM), 0, TRUE);
    add("not asked for", Kind::Table, wanted(1, 0, LVIF_TEXT | LVIF_STATE), -1, TRUE);
    add("not asked for, no such cell", Kind::Table, wanted(1, 2, LVIF_TEXT), -1, TRUE);
    add("empty cell", Kind::Table, wanted(1, 2, LVIF_PARAM), -1, FALSE);
    add("past the end", Kind::Table, wanted(3, 0, LVIF_PARAM), -1, FALSE);
    add("past the last column", Kind::Table, wanted(0, 3, LVIF_PARAM), -1, FALSE);
    add("negative", Kind::Table, wanted(-1, 0, LVIF_PARAM), -1, FALSE);
    add("list", Kind::List, wanted(0, 0, LVIF_PARAM), -1, FALSE);
    add("list, not asked for", Kind::List, wanted(0, 0, 0), -1, FALSE);
    add("standard", Kind::Standard, wanted(0, 0, LVIF_PARAM), -1, FALSE);
    add("strings", Kind::Strings, wanted(0, 0, LVIF_PARAM), -1, FALSE);
    add("no model", Kind::NoModel, wanted(0, 0, LVIF_PARAM), -1, FALSE);
    add("other", Kind::Other, wanted(0, 0, LVIF_PARAM), -1, FALSE);
    LIST_ROW_NOTHING("table, null record", Kind::Table, GetItem(nullptr), 0);
    LIST_ROW_NOTHING("list, null record", Kind::List, GetItem(nullptr), 0);
}

void tst_CListCtrlCells::getItem()
{
    VERIFY_LIST_ROW();
}

void tst_CListCtrlCells::editLabel_data()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("edited");

    QTest::newRow("list") << Kind::List << 1 << "# / a0:10 / a1:11e / a2"
                          << "a1";
    QTest::newRow("list, past the end") << Kind::List << 3 << "# / a0:10 / a1:11 / a2"
                                        << "";
    QTest::newRow("list, negative") << Kind::List << -1 << "# / a0:10 / a1:11 / a2"
                                    << "";
    QTest::newRow("table") << Kind::Table << 1 << "A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2"
                           << "";
    QTest::newRow("standard") << Kind::Standard << 1 << "A B # / 10 b0 - / 11*@ b1* -* / x b2 -"
                              << "b1";
    QTest::newRow("standard, past the end") << Kind::Standard << 3 << "A B # / 10 b0 - / 11 b1 - / x b2 -"
                                            << "";
    QTest::newRow("standard, negative") << Kind::Standard << -1 << "A B # / 10 b0 - / 11 b1 - / x b2 -"
                                        << "";
    QTest::newRow("no model") << Kind::NoModel << 0 << "no model"
                              << "";
    QTest::newRow("other") << Kind::Other << 0 << "label"
                           << "";
}

void tst_CListCtrlCells::editLabel()
{
    QFETCH(Kind, kind);
    QFETCH(int, row);
    QFETCH(QString, edited);
    ListScene scene(kind);
    QCOMPARE(scene.control.EditLabel(row), nullptr);
    QTEST(scene.state(), "after");
    const auto editors = scene.widget()->findChildren<QLineEdit *>();
    QCOMPARE(editors.size(), edited.isEmpty() ? 0 : 1);
    if (!edited.isEmpty())
        QCOMPARE(editors.first()->text(), edited);
}

void tst_CListCtrlCells::editLabelBlocks_data()
{
    QTest::addColumn<bool>("blocked");
    QTest::newRow("not blocked before") << false;
    QTest::newRow("blocked before") << true;
}

void tst_CListCtrlCells::editLabelBlocks()
{
    QFETCH(bool, blocked);
    ListScene scene(Kind::List);
    scene.widget()->blockSignals(blocked);
    WidgetWatch watch(scene.widget());
    QCOMPARE(scene.control.EditLabel(0), nullptr);
    QCOMPARE(watch.emitted(), QStringList());
    QCOMPARE(scene.widget()->signalsBlocked(), blocked);
    // The other flags stay.
    QCOMPARE(scene.list()->item(0)->flags(), scene.list()->item(1)->flags() | Qt::ItemIsEditable);
}

void tst_CListCtrlCells::editLabelOfViewWithOneColumn()
{
    ListScene scene(Kind::Strings);
    QCOMPARE(scene.control.EditLabel(1), nullptr);
    QCOMPARE(scene.state(), QStringLiteral("# / 10 / 11*@ / x"));
    QVERIFY(scene.widget()->findChildren<QLineEdit *>().isEmpty());
}

QTEST_MAIN(tst_CListCtrlCells)
#include "tst_CListCtrlCells.moc"
