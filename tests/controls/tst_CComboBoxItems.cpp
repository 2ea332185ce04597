#include "BoundControl.h"
#include "ItemStates.h"
#include "KxListBoxes.h"
#include "LeftBehind.h"
#include "SilentOffscreen.h"
#include "VirtualSlot.h"

#include <QAbstractItemView>
#include <QStandardItemModel>
#include <QtTest>

#include <climits>
#include <cwchar>
#include <memory>

namespace {
class OtherText : public CComboBox
{
public:
    using CComboBox::GetWindowTextW;
    void GetWindowTextW(CString &text) override { text = L"other"; }
};

// Has data where there is no item.
class LoudModel : public QStandardItemModel
{
public:
    QVariant data(const QModelIndex &index, int role) const override
    {
        static int something = 0;
        return index.isValid() ? QStandardItemModel::data(index, role)
                               : QVariant::fromValue<void *>(&something);
    }
};

// "abc", "AB", "ab ", "", "five", of which "AB" is current.
struct Scene : BoundControl<CComboBox, QComboBox>
{
    Scene()
    {
        widget.addItems({QStringLiteral("abc"), QStringLiteral("AB"), QStringLiteral("ab "), QString(),
                         QStringLiteral("five")});
        widget.setCurrentIndex(1);
    }
};
} // namespace

class tst_CComboBoxItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void find_data();
    void find();

    void itemTextIntoBuffer_data();
    void itemTextIntoBuffer();
    void itemTextBeyond16Bits();
    void itemText_data();
    void itemText();

    void itemData();
    void itemDataRange_data();
    void itemDataRange();
    void itemDataOfNoItem();
    void itemDataOfOthers();

    void dropDown();
    void dropDownOfEmpty();
    void windowText();
    void windowTextIntoBuffer_data();
    void windowTextIntoBuffer();
    void windowTextIsVirtual();
    void fixedResults();
    void virtualMembers();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CComboBoxItems::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CComboBoxItems::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CComboBoxItems::find_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");

    QTest::newRow("whole text") << -1 << QStringLiteral("abc") << 0;
    QTest::newRow("start is ignored") << 0 << QStringLiteral("abc") << 0;
    QTest::newRow("start past the end") << INT_MAX << QStringLiteral("abc") << 0;
    QTest::newRow("smallest start") << INT_MIN << QStringLiteral("five") << 4;
    QTest::newRow("neither prefix nor other case") << -1 << QStringLiteral("ab") << -1;
    QTest::newRow("case") << -1 << QStringLiteral("AB") << 1;
    QTest::newRow("blanks count") << -1 << QStringLiteral("ab ") << 2;
    QTest::newRow("empty") << -1 << QStringLiteral("") << 3;
    QTest::newRow("null is empty") << -1 << QString() << 3;
    QTest::newRow("no wildcards") << -1 << QStringLiteral("a*") << -1;
    QTest::newRow("unknown") << -1 << QStringLiteral("six") << -1;
}

void tst_CComboBoxItems::find()
{
    QFETCH(int, start);
    QFETCH(QString, text);
    QFETCH(int, result);
    Scene scene;
    const std::wstring wide = text.toStdWString();
    const wchar_t *wanted = text.isNull() ? nullptr : wide.c_str();
    {
        const ItemsWatch watch(scene.widget);
        QCOMPARE(scene.control.FindString(start, wanted), result);
        QCOMPARE(scene.control.FindStringExact(start, wanted), result);
        QVERIFY(watch.isUntouched());
    }
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.SelectString(start, wanted), result);
    QCOMPARE(scene.widget.currentIndex(), result < 0 ? 1 : result);
    QCOMPARE(watch.isUntouched(), result < 0 || result == 1);
    QCOMPARE(watch.emitted().contains(QStringLiteral("currentIndexChanged(int)")), !watch.isUntouched());
}

void tst_CComboBoxItems::itemTextIntoBuffer_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("result");

    const QString full = QStringLiteral("1234567");
    QTest::newRow("first") << 0 << QString() << QStringLiteral("abc") << 3;
    QTest::newRow("last") << 4 << QString() << QStringLiteral("five") << 4;
    QTest::newRow("no terminator is written") << 0 << full << QStringLiteral("abc4567") << 7;
    QTest::newRow("empty text writes nothing") << 3 << full << full << 7;
    QTest::newRow("count reads an empty text") << 5 << full << full << 7;
    QTest::newRow("count, zero-filled") << 5 << QString() << QString() << 0;
    QTest::newRow("past count") << 6 << full << full << 0;
    QTest::newRow("negative") << -1 << full << full << 0;
    QTest::newRow("largest") << INT_MAX << full << full << 0;
    QTest::newRow("smallest") << INT_MIN << full << full << 0;
}

void tst_CComboBoxItems::itemTextIntoBuffer()
{
    QFETCH(int, index);
    QFETCH(QString, before);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    wchar_t buffer[8] = {};
    before.toWCharArray(buffer);
    QTEST(scene.control.GetLBText(index, buffer), "result");
    QTEST(QString::fromWCharArray(buffer), "after");
    QCOMPARE(scene.control.GetLBText(index, nullptr), 0);
    QVERIFY(watch.isUntouched());
}

void tst_CComboBoxItems::itemTextBeyond16Bits()
{
    BoundControl<CComboBox, QComboBox> combo;
    combo.control.AddString(L"a\U0001F600b");
    QCOMPARE(combo.control.GetLBTextLen(0), 3);
    wchar_t buffer[8] = {};
    QCOMPARE(combo.control.GetLBText(0, buffer), 3);
    QCOMPARE(std::wcscmp(buffer, L"a\U0001F600b"), 0);
    CString text;
    combo.control.GetLBText(0, text);
    QVERIFY(text == L"a\U0001F600b");
}

void tst_CComboBoxItems::itemText_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");

    QTest::newRow("first") << 0 << QStringLiteral("abc");
    QTest::newRow("blank at the end") << 2 << QStringLiteral("ab ");
    QTest::newRow("empty") << 3 << QString();
    QTest::newRow("last") << 4 << QStringLiteral("five");
    QTest::newRow("count") << 5 << QString();
    QTest::newRow("negative") << -1 << QString();
    QTest::newRow("largest") << INT_MAX << QString();
}

void tst_CComboBoxItems::itemText()
{
    QFETCH(int, index);
    QFETCH(QString, text);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    CString out = L"before";
    scene.control.GetLBText(index, out);
    QCOMPARE(QString::fromStdWString(out), text);
    QCOMPARE(scene.control.GetLBTextLen(index), text.size());
    QVERIFY(watch.isUntouched());
}

void tst_CComboBoxItems::itemData()
{
    Scene scene;
    QCOMPARE(scene.control.GetItemData(0), 0ul);
    QCOMPARE(scene.control.SetItemData(0, ULONG_MAX), 0);
    QCOMPARE(scene.control.SetItemDataPtr(4, &scene), 4);
    QCOMPARE(scene.widget.itemData(0).userType(), int(QMetaType::VoidStar));
    QCOMPARE(scene.widget.itemData(4).userType(), int(QMetaType::VoidStar));

    // Integer and pointer are one value.
    QCOMPARE(scene.control.GetItemData(0), ULONG_MAX);
    QCOMPARE(scene.control.GetItemDataPtr(0), reinterpret_cast<void *>(ULONG_MAX));
    QCOMPARE(scene.control.GetItemDataPtr(4), static_cast<void *>(&scene));
    QCOMPARE(scene.control.GetItemData(4), reinterpret_cast<unsigned long>(&scene));
    QCOMPARE(scene.control.GetItemData(1), 0ul);
    QCOMPARE(scene.control.SetItemData(0, 0), 0);
    QCOMPARE(scene.control.GetItemDataPtr(0), static_cast<void *>(nullptr));
}

void tst_CComboBoxItems::itemDataRange_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("count") << 5;
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << INT_MAX;
    QTest::newRow("smallest") << INT_MIN;
}

void tst_CComboBoxItems::itemDataRange()
{
    QFETCH(int, index);
    Scene scene;
    const ItemsWatch watch(scene.widget);
    QCOMPARE(scene.control.SetItemData(index, 5), -1);
    QCOMPARE(scene.control.SetItemDataPtr(index, &scene), -1);
    QCOMPARE(scene.control.GetItemData(index), 0ul);
    QCOMPARE(scene.control.GetItemDataPtr(index), static_cast<void *>(nullptr));
    QVERIFY(watch.isUntouched());
}

void tst_CComboBoxItems::itemDataOfNoItem()
{
    LoudModel model;
    Scene scene;
    scene.widget.setModel(&model);
    QCOMPARE(scene.control.GetItemDataPtr(-1), static_cast<void *>(nullptr));
    QCOMPARE(scene.control.GetItemDataPtr(0), static_cast<void *>(nullptr));
    scene.widget.setModel(new QStandardItemModel(&scene.widget));
}

void tst_CComboBoxItems::itemDataOfOthers()
{
    Scene scene;
    scene.widget.setItemData(0, 42);
    scene.widget.setItemData(1, QStringLiteral("42"));
    QCOMPARE(scene.control.GetItemData(0), 0ul);
    QCOMPARE(scene.control.GetItemData(1), 0ul);
}

void tst_CComboBoxItems::dropDown()
{
    // The popup grabs the keyboard each time.
    for (int times = 0; times < 2; ++times)
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
    const SilentOffscreen silence;
    Scene scene;
    scene.widget.show();
    QCOMPARE(scene.control.GetDroppedState(), 0);
    scene.control.ShowDropDown(false);
    QCOMPARE(scene.control.GetDroppedState(), 1);
    QVERIFY(scene.widget.view()->isVisible());
    scene.widget.hidePopup();
    QCOMPARE(scene.control.GetDroppedState(), 0);
    scene.control.ShowDropDown(true);
    QCOMPARE(scene.control.GetDroppedState(), 1);
    scene.widget.hidePopup();
}

void tst_CComboBoxItems::dropDownOfEmpty()
{
    BoundControl<CComboBox, QComboBox> empty;
    empty.widget.show();
    empty.control.ShowDropDown();
    QCOMPARE(empty.control.GetDroppedState(), 0);
}

void tst_CComboBoxItems::windowText()
{
    Scene scene;
    CWnd &window = scene.control;
    CString text = L"before";
    window.GetWindowTextW(text);
    QVERIFY(text == L"AB");
    scene.widget.setEditable(true);
    scene.widget.setEditText(QStringLiteral("typed"));
    window.GetWindowTextW(text);
    QVERIFY(text == L"typed");
    scene.widget.clear();
    window.GetWindowTextW(text);
    QVERIFY(text.IsEmpty());
}

void tst_CComboBoxItems::windowTextIntoBuffer_data()
{
    QTest::addColumn<int>("max");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("result");

    const QString untouched = QStringLiteral("1234567");
    QTest::newRow("fits") << 8 << QStringLiteral("five") << 4;
    QTest::newRow("fits exactly") << 5 << QStringLiteral("five") << 4;
    QTest::newRow("cut") << 4 << QStringLiteral("fiv") << 3;
    QTest::newRow("terminator only") << 1 << QString() << 0;
    QTest::newRow("0") << 0 << untouched << 0;
    QTest::newRow("negative") << -3 << untouched << 0;
}

void tst_CComboBoxItems::windowTextIntoBuffer()
{
    QFETCH(int, max);
    Scene scene;
    scene.widget.setCurrentIndex(4);
    wchar_t buffer[] = L"1234567";
    QTEST(static_cast<CWnd &>(scene.control).GetWindowTextW(buffer, max), "result");
    QTEST(QString::fromWCharArray(buffer), "after");
    QCOMPARE(scene.control.GetWindowTextW(nullptr, max), 0);
}

void tst_CComboBoxItems::windowTextIsVirtual()
{
    BoundControl<OtherText, QComboBox> other;
    wchar_t buffer[8] = {};
    QCOMPARE(other.control.GetWindowTextW(buffer, 8), 5);
    QCOMPARE(std::wcscmp(buffer, L"other"), 0);
}

void tst_CComboBoxItems::fixedResults()
{
    Scene scene;
    const ItemsWatch watch(scene.widget);
    CWnd parent;
    const RECT rect{1, 2, 3, 4};
    QCOMPARE(scene.control.Create(7u, rect, &parent, 9u), 1);
    QCOMPARE(scene.control.GetParent(), static_cast<CWnd *>(nullptr));
    QCOMPARE(scene.control.SetEditSel(0, 1), 1);
    QCOMPARE(scene.control.GetEditSel(), DWORD(0));
    QCOMPARE(scene.control.GetHorizontalExtent(), 0u);
    scene.control.SetHorizontalExtent(50);
    QCOMPARE(scene.control.GetHorizontalExtent(), 0u);
    QCOMPARE(scene.control.SetDroppedWidth(50), 0);
    QCOMPARE(scene.control.GetDroppedWidth(), 0);
    QCOMPARE(scene.control.SetItemHeight(0, 50), 0);
    QVERIFY(watch.isUntouched());
}

void tst_CComboBoxItems::virtualMembers()
{
    // The base's members keep their places; Create of a control stands behind them all.
    using Text = void (CComboBox::*)(CString &);
    using Buffer = int (CComboBox::*)(wchar_t *, int);
    using Create = BOOL (CComboBox::*)(unsigned, const RECT &, CWnd *, unsigned);
    const auto last = slotOf(&CWnd::SetFocus);
    QCOMPARE(slotOf<Text>(&CComboBox::GetWindowTextW),
             slotOf<void (CWnd::*)(CString &)>(&CWnd::GetWindowTextW));
    QCOMPARE(slotOf<Buffer>(&CComboBox::GetWindowTextW),
             slotOf<int (CWnd::*)(wchar_t *, int)>(&CWnd::GetWindowTextW));
    QCOMPARE(slotOf<Create>(&CComboBox::Create), last + 1);
}

QTEST_MAIN(tst_CComboBoxItems)
#include "tst_CComboBoxItems.moc"
