#include "HiddenAddress.h"
#include "KxListBoxes.h"
#include "KxTreeControl.h"
#include "LeftBehind.h"
#include "WidgetWatch.h"
#include "WindowHandle.h"

#include <QComboBox>
#include <QListWidget>
#include <QTreeWidget>
#include <QtTest>

#include <cwchar>
#include <memory>

namespace {
// What the members are given; nothing of it may be written.
struct Arguments
{
    const RECT rect{1, 2, 3, 4};
    wchar_t buffer[8] = L"kept";
    int rows[2] = {5, 6};
    CString text = L"kept";
    CWnd parent;
    QTreeWidget tree;
    HTREEITEM item = new QTreeWidgetItem(&tree, QStringList{QStringLiteral("kept")});
    TVITEMW record{TVIF_TEXT, item, 0, 0, buffer, 8, 0, 0, 0, 9};
    TVINSERTSTRUCTW insert{};

    Arguments() { insert.hParent = item; }

    bool unchanged() const
    {
        return std::wcscmp(buffer, L"kept") == 0 && rows[0] == 5 && rows[1] == 6 && text == L"kept" &&
               record.lParam == 9 && tree.topLevelItem(0) == item && item->childCount() == 0 &&
               item->text(0) == QStringLiteral("kept") && !item->data(0, Qt::UserRole).isValid() &&
               !item->isExpanded() && !item->isSelected() && !tree.currentItem() &&
               !(item->flags() & Qt::ItemIsEditable);
    }
};

template <typename Value> qint64 number(Value value)
{
    if constexpr (std::is_pointer_v<Value>)
        return reinterpret_cast<qint64>(value);
    else
        return static_cast<qint64>(value);
}

qint64 number(const CString &text)
{
    return text.GetLength();
}

template <typename Control> std::unique_ptr<CWnd> make()
{
    return std::make_unique<Control>();
}

// A widget of each kind that the controls need, and one of none.
template <typename Widget> std::unique_ptr<QWidget> makeWidget()
{
    auto widget = std::make_unique<Widget>();
    if constexpr (std::is_same_v<Widget, QComboBox> || std::is_same_v<Widget, QListWidget>)
        widget->addItems({QStringLiteral("one"), QStringLiteral("two")});
    if constexpr (std::is_same_v<Widget, QTreeWidget>)
        new QTreeWidgetItem(widget.get(), QStringList{QStringLiteral("one")});
    return widget;
}

// Null, and null plus the offset of a member or base; the last one is the guard's edge.
constexpr std::uintptr_t nullObjects[] = {0, 8, 4095};
} // namespace

using Maker = std::unique_ptr<CWnd> (*)();
using WidgetMaker = std::unique_ptr<QWidget> (*)();
using Call = qint64 (*)(CWnd *, Arguments &);
Q_DECLARE_METATYPE(Maker)
Q_DECLARE_METATYPE(WidgetMaker)
Q_DECLARE_METATYPE(Call)

// Guarded: a null object gives its own address. Fixed: every object gives 0.
#define ROW(Class, call, result, guarded)                                                                    \
    QTest::newRow(#Class "::" #call) << Maker(make<Class>) << WidgetMaker(makeWidget<Class##Widget>)         \
                                     << Call([](CWnd *w, Arguments &a) {                                     \
                                            static_cast<void>(a);                                            \
                                            auto *control = static_cast<Class *>(w);                         \
                                            return result;                                                   \
                                        })                                                                   \
                                     << (guarded)
#define GUARDED(Class, call) ROW(Class, call, number(control->call), true)
#define FIXED(Class, call) ROW(Class, call, number(control->call), false)
#define WITHOUT_RESULT(Class, call) ROW(Class, call, (control->call, qint64(0)), false)

using CComboBoxWidget = QComboBox;
using CListBoxWidget = QListWidget;
using CTreeCtrlWidget = QTreeWidget;

class tst_GuardItemControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nullObject_data() { addMembers(); }
    void nullObject();
    void neverBound_data() { addMembers(); }
    void neverBound();
    void detached_data() { addMembers(); }
    void detached();
    void replaced_data() { addMembers(); }
    void replaced();
    void widgetDestroyed_data() { addMembers(); }
    void widgetDestroyed();
    void otherWidgetClass_data() { addMembers(); }
    void otherWidgetClass();

private:
    static void addComboBox();
    static void addListBox();
    static void addTree();
    static void addMembers();

    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_GuardItemControls::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_GuardItemControls::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_GuardItemControls::addComboBox()
{
    GUARDED(CComboBox, GetCount());
    GUARDED(CComboBox, GetCurSel());
    GUARDED(CComboBox, SetCurSel(-1));
    GUARDED(CComboBox, AddString(L"new"));
    GUARDED(CComboBox, InsertString(-5, L"new"));
    GUARDED(CComboBox, DeleteString(9u));
    WITHOUT_RESULT(CComboBox, ResetContent());
    WITHOUT_RESULT(CComboBox, Clear());
    GUARDED(CComboBox, FindString(-1, L"none"));
    GUARDED(CComboBox, FindStringExact(-1, L"none"));
    GUARDED(CComboBox, SelectString(-1, L"none"));
    GUARDED(CComboBox, GetLBText(0, a.buffer));
    WITHOUT_RESULT(CComboBox, GetLBText(0, a.text));
    GUARDED(CComboBox, GetLBTextLen(0));
    GUARDED(CComboBox, GetItemDataPtr(0));
    GUARDED(CComboBox, SetItemDataPtr(9, &a));
    GUARDED(CComboBox, GetItemData(0));
    GUARDED(CComboBox, SetItemData(9, 5));
    WITHOUT_RESULT(CComboBox, ShowDropDown(true));
    GUARDED(CComboBox, GetDroppedState());
    WITHOUT_RESULT(CComboBox, CComboBox::GetWindowTextW(a.text));
    GUARDED(CComboBox, CComboBox::GetWindowTextW(a.buffer, 8));
    GUARDED(CComboBox, CComboBox::GetWindowTextW(a.buffer, 0));
    GUARDED(CComboBox, CComboBox::Create(1u, a.rect, &a.parent, 2u));
    GUARDED(CComboBox, SetEditSel(0, -1));
    FIXED(CComboBox, GetEditSel());
    FIXED(CComboBox, GetHorizontalExtent());
    WITHOUT_RESULT(CComboBox, SetHorizontalExtent(5u));
    FIXED(CComboBox, GetDroppedWidth());
    FIXED(CComboBox, SetDroppedWidth(5u));
    FIXED(CComboBox, SetItemHeight(0, 5u));
}

void tst_GuardItemControls::addListBox()
{
    GUARDED(CListBox, GetCount());
    GUARDED(CListBox, GetCurSel());
    GUARDED(CListBox, SetCurSel(-1));
    GUARDED(CListBox, AddString(L"new"));
    GUARDED(CListBox, InsertString(5, L"new"));
    GUARDED(CListBox, DeleteString(9u));
    WITHOUT_RESULT(CListBox, ResetContent());
    WITHOUT_RESULT(CListBox, GetText(0, a.text));
    GUARDED(CListBox, GetTextLen(9));
    GUARDED(CListBox, FindString(-1, L"none"));
    GUARDED(CListBox, FindStringExact(-1, L"none"));
    GUARDED(CListBox, SelectString(-1, L"two"));
    GUARDED(CListBox, GetItemData(0));
    GUARDED(CListBox, SetItemData(9, 5));
    GUARDED(CListBox, GetItemDataPtr(0));
    GUARDED(CListBox, SetItemDataPtr(9, &a));
    GUARDED(CListBox, SetSel(-1, true));
    GUARDED(CListBox, GetSel(-1));
    GUARDED(CListBox, GetSelCount());
    FIXED(CListBox, GetSelItems(2, a.rows));
}

void tst_GuardItemControls::addTree()
{
    GUARDED(CTreeCtrl, GetCount());
    GUARDED(CTreeCtrl, GetRootItem());
    GUARDED(CTreeCtrl, GetSelectedItem());
    GUARDED(CTreeCtrl, GetParentItem(a.item));
    GUARDED(CTreeCtrl, GetChildItem(a.item));
    GUARDED(CTreeCtrl, GetNextSiblingItem(a.item));
    GUARDED(CTreeCtrl, GetPrevSiblingItem(a.item));
    GUARDED(CTreeCtrl, GetNextItem(a.item, TVGN_NEXT));
    GUARDED(CTreeCtrl, ItemHasChildren(a.item));
    FIXED(CTreeCtrl, GetItemText(a.item));
    GUARDED(CTreeCtrl, GetItemData(a.item));
    GUARDED(CTreeCtrl, GetItem(&a.record));
    GUARDED(CTreeCtrl, InsertItem(&a.insert));
    GUARDED(CTreeCtrl, InsertItem(L"new", a.item, TVI_LAST));
    GUARDED(CTreeCtrl, InsertItem(L"new", TVI_ROOT, TVI_LAST));
    FIXED(CTreeCtrl, InsertItem(L"new", 0, 0));
    FIXED(CTreeCtrl, InsertItem(TVIF_TEXT, L"new", 0, 0, 0, 0, 5, a.item, TVI_LAST));
    GUARDED(CTreeCtrl, DeleteItem(a.item));
    GUARDED(CTreeCtrl, DeleteAllItems());
    GUARDED(CTreeCtrl, SetItemText(a.item, L"new"));
    GUARDED(CTreeCtrl, SetItemData(a.item, 5));
    GUARDED(CTreeCtrl, Expand(a.item, TVE_EXPAND));
    GUARDED(CTreeCtrl, SetItemState(a.item, TVIS_EXPANDED, TVIS_EXPANDED));
    GUARDED(CTreeCtrl, Select(a.item, TVGN_CARET));
    GUARDED(CTreeCtrl, SelectItem(a.item));
    GUARDED(CTreeCtrl, EditLabel(a.item));
    GUARDED(CTreeCtrl, SetItemImage(a.item, 0, 0));
    GUARDED(CTreeCtrl, SetItemHeight(20));
    FIXED(CTreeCtrl, EnsureVisible(a.item));
    FIXED(CTreeCtrl, EndEditLabelNow(false));
    FIXED(CTreeCtrl, GetImageList(TVSIL_NORMAL));
    FIXED(CTreeCtrl, SetImageList(nullptr, TVSIL_NORMAL));
    FIXED(CTreeCtrl, GetEditControl());
}

void tst_GuardItemControls::addMembers()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<WidgetMaker>("makeWidget");
    QTest::addColumn<Call>("call");
    QTest::addColumn<bool>("guarded");
    addComboBox();
    addListBox();
    addTree();
}

void tst_GuardItemControls::nullObject()
{
    QFETCH(Call, call);
    QFETCH(bool, guarded);
    for (const std::uintptr_t address : nullObjects) {
        Arguments arguments;
        QCOMPARE(call(objectAt<CWnd>(address), arguments), guarded ? qint64(address) : 0);
        QVERIFY(arguments.unchanged());
    }
}

// Calls the member on a control that is without a fitting widget in one way or another.
#define VERIFY_NOTHING(control)                                                                              \
    do {                                                                                                     \
        QFETCH(Call, call);                                                                                  \
        Arguments arguments;                                                                                 \
        QCOMPARE(call((control).get(), arguments), qint64(0));                                               \
        QVERIFY(arguments.unchanged());                                                                      \
    } while (false)

void tst_GuardItemControls::neverBound()
{
    QFETCH(Maker, make);
    const auto control = make();
    VERIFY_NOTHING(control);
}

void tst_GuardItemControls::detached()
{
    QFETCH(Maker, make);
    QFETCH(WidgetMaker, makeWidget);
    const auto widget = makeWidget();
    const auto control = make();
    control->SetHandle(handleOf(widget.get()));
    control->Detach();
    const WidgetWatch watch(widget.get());
    VERIFY_NOTHING(control);
    QVERIFY(watch.isUntouched());
}

void tst_GuardItemControls::replaced()
{
    QFETCH(Maker, make);
    QFETCH(WidgetMaker, makeWidget);
    const auto widget = makeWidget();
    const auto control = make();
    const auto other = make();
    control->SetHandle(handleOf(widget.get()));
    other->SetHandle(handleOf(widget.get()));
    const WidgetWatch watch(widget.get());
    VERIFY_NOTHING(control);
    QVERIFY(watch.isUntouched());
}

void tst_GuardItemControls::widgetDestroyed()
{
    QFETCH(Maker, make);
    QFETCH(WidgetMaker, makeWidget);
    auto widget = makeWidget();
    const auto control = make();
    control->SetHandle(handleOf(widget.get()));
    widget.reset();
    VERIFY_NOTHING(control);
}

void tst_GuardItemControls::otherWidgetClass()
{
    QFETCH(Maker, make);
    QFETCH(WidgetMaker, makeWidget);
    const WidgetMaker others[] = {::makeWidget<QComboBox>,   ::makeWidget<QListWidget>,
                                  ::makeWidget<QTreeWidget>, ::makeWidget<QTreeView>,
                                  ::makeWidget<QListView>,   ::makeWidget<QWidget>};
    for (const WidgetMaker makeOther : others) {
        if (makeOther == makeWidget)
            continue;
        const auto widget = makeOther();
        const auto control = make();
        control->SetHandle(handleOf(widget.get()));
        const WidgetWatch watch(widget.get());
        VERIFY_NOTHING(control);
        QVERIFY(watch.isUntouched());
    }
}

QTEST_MAIN(tst_GuardItemControls)
#include "tst_GuardItemControls.moc"
