#include "BoundControl.h"
#include "ItemStates.h"
#include "KxListBoxes.h"
#include "LeftBehind.h"

#include <QLabel>
#include <QtTest>

#include <climits>
#include <memory>

namespace {
// "Abc", "b  c", "abc", " two ", of which "b  c" is current and selected.
struct Scene : BoundControl<CListBox, QListWidget>
{
    Scene()
    {
        widget.addItems(
            {QStringLiteral("Abc"), QStringLiteral("b  c"), QStringLiteral("abc"), QStringLiteral(" two ")});
        widget.setCurrentRow(1);
    }
};

class CountedItem : public QListWidgetItem
{
public:
    explicit CountedItem(int &destroyed)
        : QListWidgetItem(QStringLiteral("counted"))
        , m_destroyed(destroyed)
    {
    }
    ~CountedItem() override { ++m_destroyed; }

private:
    int &m_destroyed;
};

QString rowChange()
{
    return QStringLiteral("currentRowChanged(int)");
}
} // namespace

class tst_CListBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void current();
    void setCurSel_data();
    void setCurSel();

    void addString_data();
    void addString();
    void insertString_data();
    void insertString();
    void deleteString_data();
    void deleteString();
    void deletedItemIsDestroyed();
    void resetContent();

    void itemText_data();
    void itemText();
    void itemTextBeyond16Bits();
    void findString_data();
    void findString();
    void selectString_data();
    void selectString();

    void itemData();
    void outOfRange_data();
    void outOfRange();
    void selection();
    void selectionModes_data();
    void selectionModes();
    void selItems();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CListBox::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CListBox::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CListBox::current()
{
    Scene scene;
    QCOMPARE(scene.control.GetCount(), 4);
    QCOMPARE(scene.control.GetCurSel(), 1);
    scene.widget.setCurrentRow(-1);
    QCOMPARE(scene.control.GetCurSel(), -1);
    scene.widget.clear();
    QCOMPARE(scene.control.GetCount(), 0);
    QCOMPARE(scene.control.SetCurSel(0), -1);
}

void tst_CListBox::setCurSel_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("first") << 0 << true;
    QTest::newRow("last") << 3 << true;
    QTest::newRow("-1 refused") << -1 << false;
    QTest::newRow("count refused") << 4 << false;
    QTest::newRow("largest refused") << INT_MAX << false;
    QTest::newRow("smallest refused") << INT_MIN << false;
}

void tst_CListBox::setCurSel()
{
    QFETCH(int, row);
    QFETCH(bool, accepted);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.SetCurSel(row), accepted ? row : -1);
    QCOMPARE(scene.widget.currentRow(), accepted ? row : 1);
    QCOMPARE(watch.emitted().count(rowChange()), int(accepted));
    QCOMPARE(watch.isUntouched(), !accepted);
}

void tst_CListBox::addString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stored");

    QTest::newRow("new") << QStringLiteral("new") << QStringLiteral("new");
    QTest::newRow("duplicate is added") << QStringLiteral("Abc") << QStringLiteral("Abc");
    QTest::newRow("white space") << QStringLiteral(" \t two  words \n") << QStringLiteral("two words");
    QTest::newRow("blank") << QStringLiteral("   ") << QStringLiteral("");
    QTest::newRow("empty") << QStringLiteral("") << QStringLiteral("");
    QTest::newRow("null is empty") << QString() << QStringLiteral("");
}

void tst_CListBox::addString()
{
    QFETCH(QString, text);
    QFETCH(QString, stored);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    QStringList expected = itemsOf(scene.widget);
    expected << stored + QStringLiteral(" | -");
    const std::wstring wide = text.toStdWString();
    QCOMPARE(scene.control.AddString(text.isNull() ? nullptr : wide.c_str()), 4);
    QCOMPARE(itemsOf(scene.widget), expected);
    QCOMPARE(scene.widget.currentRow(), 1);
    QCOMPARE(watch.emitted(), QStringList());
}

void tst_CListBox::insertString_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("place");

    const QString spaced = QStringLiteral("  two  words ");
    QTest::newRow("front, text unchanged") << 0 << spaced << 0;
    QTest::newRow("middle, duplicate") << 2 << QStringLiteral("Abc") << 2;
    QTest::newRow("count") << 4 << spaced << 4;
    QTest::newRow("past the end") << 99 << spaced << 4;
    QTest::newRow("largest") << INT_MAX << spaced << 4;
    QTest::newRow("-1 is the front") << -1 << spaced << 0;
    QTest::newRow("smallest") << INT_MIN << spaced << 0;
    QTest::newRow("null is empty") << 1 << QString() << 1;
}

void tst_CListBox::insertString()
{
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(int, place);
    Scene scene;
    QStringList expected = itemsOf(scene.widget);
    expected.insert(place, text + QStringLiteral(" | -"));
    const std::wstring wide = text.toStdWString();
    QCOMPARE(scene.control.InsertString(index, text.isNull() ? nullptr : wide.c_str()), index);
    QCOMPARE(itemsOf(scene.widget), expected);
}

void tst_CListBox::deleteString_data()
{
    QTest::addColumn<uint>("index");
    QTest::addColumn<int>("removed");

    QTest::newRow("first") << 0u << 0;
    QTest::newRow("current") << 1u << 1;
    QTest::newRow("last") << 3u << 3;
    QTest::newRow("count, nothing") << 4u << -1;
    QTest::newRow("largest, nothing") << UINT_MAX << -1;
    QTest::newRow("negative as unsigned, nothing") << unsigned(INT_MIN) << -1;
}

void tst_CListBox::deleteString()
{
    QFETCH(uint, index);
    QFETCH(int, removed);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    QStringList expected = textsOf(scene.widget);
    if (removed >= 0)
        expected.removeAt(removed);
    QCOMPARE(scene.control.DeleteString(index), int(index));
    QCOMPARE(textsOf(scene.widget), expected);
    QCOMPARE(watch.isUntouched(), removed < 0);
    QCOMPARE(watch.emitted().contains(rowChange()), removed == 1);
}

void tst_CListBox::deletedItemIsDestroyed()
{
    Scene scene;
    int destroyed = 0;
    auto *item = new CountedItem(destroyed);
    scene.widget.insertItem(2, item);
    const QPointer<QWidget> label = new QLabel(QStringLiteral("inside"));
    scene.widget.setItemWidget(item, label);
    QCOMPARE(scene.control.DeleteString(2), 2);
    QCOMPARE(destroyed, 1);
    QTRY_VERIFY(!label);
}

void tst_CListBox::resetContent()
{
    Scene scene;
    const ItemsWatch watch(scene.widget);
    scene.control.ResetContent();
    QCOMPARE(scene.widget.count(), 0);
    QVERIFY(watch.emitted().contains(rowChange()));
}

void tst_CListBox::itemText_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("length");

    QTest::newRow("first") << 0 << QStringLiteral("Abc") << 3;
    QTest::newRow("last, with blanks") << 3 << QStringLiteral(" two ") << 5;
    QTest::newRow("count") << 4 << QString() << -1;
    QTest::newRow("negative") << -1 << QString() << -1;
    QTest::newRow("largest") << INT_MAX << QString() << -1;
    QTest::newRow("smallest") << INT_MIN << QString() << -1;
}

void tst_CListBox::itemText()
{
    QFETCH(int, index);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    CString text = L"before";
    scene.control.GetText(index, text);
    QTEST(QString::fromStdWString(text), "text");
    QTEST(scene.control.GetTextLen(index), "length");
    QVERIFY(watch.isUntouched());
}

void tst_CListBox::itemTextBeyond16Bits()
{
    BoundControl<CListBox, QListWidget> list;
    list.control.InsertString(0, L"a\U0001F600b");
    list.control.AddString(L"");
    QCOMPARE(list.control.GetTextLen(0), 3);
    QCOMPARE(list.control.GetTextLen(1), 0);
    CString text;
    list.control.GetText(0, text);
    QVERIFY(text == L"a\U0001F600b");
}

void tst_CListBox::findString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("found");
    QTest::addColumn<int>("exact");

    QTest::newRow("first row, start before") << QStringLiteral("Abc") << -1 << 0 << 0;
    QTest::newRow("any case") << QStringLiteral("ABC") << -1 << 0 << 0;
    QTest::newRow("only the first match counts") << QStringLiteral("abc") << 0 << 0 << -1;
    QTest::newRow("row after start") << QStringLiteral("B  C") << 0 << 1 << 1;
    QTest::newRow("row is start") << QStringLiteral("b  c") << 1 << 1 << -1;
    QTest::newRow("row before start") << QStringLiteral("b  c") << 2 << 1 << -1;
    QTest::newRow("blanks count") << QStringLiteral("two") << -1 << -1 << -1;
    QTest::newRow("with blanks") << QStringLiteral(" TWO ") << 2 << 3 << 3;
    QTest::newRow("prefix") << QStringLiteral("ab") << -1 << -1 << -1;
    QTest::newRow("no wildcards") << QStringLiteral("a*") << -1 << -1 << -1;
    QTest::newRow("unknown, small start") << QStringLiteral("six") << -7 << -1 << -1;
    QTest::newRow("smallest start") << QStringLiteral("abc") << INT_MIN << 0 << 0;
    QTest::newRow("largest start") << QStringLiteral(" two ") << INT_MAX << 3 << -1;
}

void tst_CListBox::findString()
{
    QFETCH(QString, text);
    QFETCH(int, start);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    const std::wstring wide = text.toStdWString();
    QTEST(scene.control.FindString(start, wide.c_str()), "found");
    QTEST(scene.control.FindStringExact(start, wide.c_str()), "exact");
    QCOMPARE(scene.control.FindString(start, nullptr), -1);
    QVERIFY(watch.isUntouched());
}

void tst_CListBox::selectString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("changes");

    // Row 0 is current before.
    QTest::newRow("two matches, the last stays") << QStringLiteral("twin") << 5 << 2;
    QTest::newRow("one match") << QStringLiteral("abc") << 2 << 1;
    QTest::newRow("the current row") << QStringLiteral("Abc") << 0 << 0;
    QTest::newRow("item with blanks around") << QStringLiteral("two") << 3 << 1;
    QTest::newRow("text with blanks around") << QStringLiteral("\tabc  ") << 2 << 1;
    QTest::newRow("blanks inside count") << QStringLiteral("b c") << 0 << 0;
    QTest::newRow("case counts") << QStringLiteral("ABC") << 0 << 0;
    QTest::newRow("prefix") << QStringLiteral("ab") << 0 << 0;
    QTest::newRow("null") << QString() << 0 << 0;
}

void tst_CListBox::selectString()
{
    QFETCH(QString, text);
    QFETCH(int, changes);
    Scene scene;
    scene.widget.addItems({QStringLiteral("twin"), QStringLiteral(" twin")});
    scene.widget.setCurrentRow(0);
    const std::wstring wide = text.toStdWString();
    for (const int start : {-1, 0, 5, 99}) {
        scene.widget.setCurrentRow(0);
        const ItemsWatch watch(scene.widget);
        QCOMPARE(scene.control.SelectString(start, text.isNull() ? nullptr : wide.c_str()), 0);
        QTEST(scene.widget.currentRow(), "current");
        QCOMPARE(watch.emitted().count(rowChange()), changes);
        QCOMPARE(watch.isUntouched(), changes == 0);
    }
}

void tst_CListBox::itemData()
{
    Scene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.GetItemData(0), 0ul);
    QCOMPARE(scene.control.GetItemDataPtr(0), static_cast<void *>(nullptr));
    QVERIFY(watch.isUntouched());

    QCOMPARE(scene.control.SetItemData(0, ULONG_MAX), 0);
    QCOMPARE(scene.control.SetItemDataPtr(3, &scene), 3);
    QCOMPARE(scene.widget.item(0)->data(Qt::UserRole).userType(), int(QMetaType::ULongLong));
    QCOMPARE(scene.widget.item(3)->data(Qt::UserRole).userType(), int(QMetaType::VoidStar));
    QCOMPARE(watch.emitted(), QStringList({QStringLiteral("itemChanged(QListWidgetItem*)"),
                                           QStringLiteral("itemChanged(QListWidgetItem*)")}));

    // Each form reads what its own setter stored.
    QCOMPARE(scene.control.GetItemData(0), ULONG_MAX);
    QCOMPARE(scene.control.GetItemDataPtr(0), static_cast<void *>(nullptr));
    QCOMPARE(scene.control.GetItemDataPtr(3), static_cast<void *>(&scene));
    QCOMPARE(scene.control.GetItemData(3), 0ul);
}

void tst_CListBox::outOfRange_data()
{
    QTest::addColumn<int>("row");

    QTest::newRow("-1") << -1;
    QTest::newRow("count") << 4;
    QTest::newRow("largest") << INT_MAX;
    QTest::newRow("smallest") << INT_MIN;
}

void tst_CListBox::outOfRange()
{
    QFETCH(int, row);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.SetItemData(row, 5), row);
    QCOMPARE(scene.control.SetItemDataPtr(row, &scene), row);
    QCOMPARE(scene.control.GetItemData(row), 0ul);
    QCOMPARE(scene.control.GetItemDataPtr(row), static_cast<void *>(nullptr));
    QCOMPARE(scene.control.GetSel(row), -1);
    QCOMPARE(scene.control.SetSel(row, true), -1);
    QCOMPARE(scene.control.SetSel(row, false), -1);
    QVERIFY(watch.isUntouched());
}

void tst_CListBox::selection()
{
    Scene scene;
    scene.widget.setSelectionMode(QAbstractItemView::MultiSelection);
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.SetSel(3, true), 0);
    QCOMPARE(scene.control.GetSelCount(), 2);
    QCOMPARE(scene.control.GetSel(3), 1);
    QCOMPARE(scene.control.GetSel(0), 0);
    QCOMPARE(scene.control.SetSel(1, false), 0);
    QCOMPARE(scene.control.GetSelCount(), 1);
    QCOMPARE(scene.control.SetSel(3, false), 0);
    QCOMPARE(scene.control.GetSelCount(), 0);
    QCOMPARE(scene.control.GetCurSel(), 1);
    QCOMPARE(watch.emitted().count(QStringLiteral("itemSelectionChanged()")), 3);
}

void tst_CListBox::selectionModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("selected");

    QTest::newRow("single") << int(QAbstractItemView::SingleSelection) << 1;
    QTest::newRow("several") << int(QAbstractItemView::ExtendedSelection) << 2;
}

void tst_CListBox::selectionModes()
{
    QFETCH(int, mode);
    Scene scene;
    scene.widget.setSelectionMode(QAbstractItemView::SelectionMode(mode));
    QCOMPARE(scene.control.SetSel(2, true), 0);
    QCOMPARE(scene.control.GetSel(2), 1);
    QTEST(scene.control.GetSelCount(), "selected");
}

void tst_CListBox::selItems()
{
    Scene scene;
    const ItemsWatch watch(scene.widget);
    int rows[2] = {7, 8};
    QCOMPARE(scene.control.GetSelItems(2, rows), 0);
    QCOMPARE(rows[0], 7);
    QCOMPARE(rows[1], 8);
    QVERIFY(watch.isUntouched());
}

QTEST_MAIN(tst_CListBox)
#include "tst_CListBox.moc"
