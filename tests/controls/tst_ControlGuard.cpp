#include "HiddenAddress.h"
#include "KxButtons.h"
#include "KxCommonControls.h"
#include "KxEditControls.h"
#include "LeftBehind.h"
#include "WidgetWatch.h"
#include "WindowHandle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDial>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTextEdit>
#include <QtTest>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <memory>
#include <vector>

namespace {
// What the members are given; nothing of it may be written.
struct Arguments
{
    Arguments()
    {
        window.SetHandle(handleOf(&label));
        std::memset(&message, 7, sizeof message);
        std::memset(&item, 7, sizeof item);
    }

    bool unchanged()
    {
        return rect.left == 1 && rect.top == 2 && rect.right == 3 && rect.bottom == 4 && first == 5 &&
               second == 6 && std::wcscmp(buffer, L"kept") == 0 && text == L"kept" && !label.parent() &&
               !window.GetParent() && isUnwritten(message) && isUnwritten(item);
    }

    template <typename Record> static bool isUnwritten(const Record &record)
    {
        const auto *bytes = reinterpret_cast<const unsigned char *>(&record);
        return std::all_of(bytes, bytes + sizeof record, [](unsigned char byte) { return byte == 7; });
    }

    RECT rect{1, 2, 3, 4};
    MSG message;
    TCITEMW item;
    int first = 5;
    int second = 6;
    wchar_t buffer[8] = L"kept";
    CString text = L"kept";
    QLabel label;
    CWnd window;
};

template <typename Value> qint64 number(Value value)
{
    if constexpr (std::is_pointer_v<Value>)
        return reinterpret_cast<qint64>(value);
    else
        return static_cast<qint64>(value);
}

// Widgets of every class that a control may meet.
std::vector<std::unique_ptr<QWidget>> widgetsOfAllKinds()
{
    std::vector<std::unique_ptr<QWidget>> widgets;
    widgets.emplace_back(new QWidget);
    widgets.emplace_back(new QLineEdit(QStringLiteral("12")));
    widgets.emplace_back(new QTextEdit(QStringLiteral("12")));
    widgets.emplace_back(new QPlainTextEdit(QStringLiteral("12")));
    widgets.emplace_back(new QSpinBox);
    widgets.emplace_back(new QDoubleSpinBox);
    widgets.emplace_back(new QDateEdit);
    widgets.emplace_back(new QLabel(QStringLiteral("12")));
    widgets.emplace_back(new QGroupBox(QStringLiteral("12")));
    widgets.emplace_back(new QPushButton(QStringLiteral("12")));
    widgets.emplace_back(new QCheckBox(QStringLiteral("12")));
    widgets.emplace_back(new QComboBox);
    widgets.emplace_back(new QTabBar);
    widgets.emplace_back(new QTabWidget);
    widgets.emplace_back(new QSlider);
    widgets.emplace_back(new QScrollBar);
    widgets.emplace_back(new QDial);
    widgets.emplace_back(new QProgressBar);
    for (const auto &widget : widgets)
        widget->resize(80, 40);
    return widgets;
}

template <typename... Widgets> bool isOneOf(QWidget *widget)
{
    static_cast<void>(widget);
    return (qobject_cast<Widgets *>(widget) || ...);
}

template <typename Control> std::unique_ptr<CWnd> make()
{
    return std::make_unique<Control>();
}
} // namespace

// A member of a control class, the widgets that it acts on, and its result without one.
struct Member
{
    qint64 (*call)(void *, Arguments &);
    std::unique_ptr<CWnd> (*make)();
    bool (*takes)(QWidget *);
    qint64 result;
};
Q_DECLARE_METATYPE(Member)

#define MEMBER_ROW(Control, takes, result, name, statement)                                                  \
    QTest::newRow(#Control "::" name) << Member                                                              \
    {                                                                                                        \
        [](void *object, Arguments &a) {                                                                     \
            static_cast<void>(a);                                                                            \
            auto *c = static_cast<Control *>(object);                                                        \
            statement;                                                                                       \
        },                                                                                                   \
            make<Control>, takes, result                                                                     \
    }
#define MEMBER(Control, takes, result, call) MEMBER_ROW(Control, takes, result, #call, return number(c->call))
#define VOID_MEMBER(Control, takes, call) MEMBER_ROW(Control, takes, 0, #call, c->call; return qint64(0))

class tst_ControlGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nullObject_data() { addMembers(); }
    void nullObject();
    void neverBound_data() { addMembers(); }
    void neverBound();
    void widgetDestroyed_data() { addMembers(); }
    void widgetDestroyed();
    void detached_data() { addMembers(); }
    void detached();
    void replaced_data() { addMembers(); }
    void replaced();
    void otherWidget_data() { addMembers(); }
    void otherWidget();

    void nullObjectWithTextsOfWindows();
    void imageList();

private:
    static void addMembers();
    static void addEdits();
    static void addStaticsAndButtons();
    static void addTabs();
    static void addSliders();
    static void addWidgetless();

    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_ControlGuard::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_ControlGuard::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_ControlGuard::addMembers()
{
    QTest::addColumn<Member>("member");
    addEdits();
    addStaticsAndButtons();
    addTabs();
    addSliders();
    addWidgetless();
}

void tst_ControlGuard::addEdits()
{
    const auto writable = isOneOf<QLineEdit, QDoubleSpinBox, QSpinBox, QTextEdit>;
    const auto readable = isOneOf<QLineEdit, QAbstractSpinBox>;
    const auto line = isOneOf<QLineEdit>;
    const auto none = isOneOf<>;
    VOID_MEMBER(CEdit, writable, CEdit::SetWindowTextW(L"34"));
    VOID_MEMBER(CEdit, none, CEdit::SetWindowTextW(nullptr));
    VOID_MEMBER(CEdit, readable, CEdit::GetWindowTextW(a.text));
    MEMBER(CEdit, none, 0, CEdit::GetWindowTextW(a.buffer, 0));
    MEMBER(CEdit, line, 0, GetLine(0, a.buffer, 8));
    const auto lineOrText = isOneOf<QLineEdit, QTextEdit>;
    VOID_MEMBER(CEdit, lineOrText, SetReadOnly(true));
    VOID_MEMBER(CEdit, line, SetLimitText(1));
    VOID_MEMBER(CEdit, none, SetSel(1u));
    VOID_MEMBER(CEdit, none, SetSel(0, -1));
    MEMBER(CEdit, none, 0, GetSel());
    VOID_MEMBER(CEdit, none, GetSel(a.first, a.second));
    VOID_MEMBER(CEdit, none, ReplaceSel(L"34", true));
    VOID_MEMBER(CEdit, none, SetModify(false));
    MEMBER(CEdit, none, 1, GetModify());
    MEMBER(CEdit, none, 1, Undo());
    VOID_MEMBER(CEdit, none, Clear());
    VOID_MEMBER(CEdit, none, Copy());
    VOID_MEMBER(CEdit, none, Cut());
    VOID_MEMBER(CEdit, none, Paste());
    VOID_MEMBER(CRichEditCtrl, writable, CEdit::SetWindowTextW(L"34"));
    MEMBER(CRichEditCtrl, none, 0, SetEventMask(7));
    MEMBER(CRichEditCtrl, none, 0, GetEventMask());
}

void tst_ControlGuard::addStaticsAndButtons()
{
    const auto any = isOneOf<QWidget>;
    const auto label = isOneOf<QLabel>;
    const auto button = isOneOf<QAbstractButton>;
    const auto none = isOneOf<>;
    VOID_MEMBER(CStatic, any, CStatic::SetWindowTextW(L"34"));
    VOID_MEMBER(CStatic, any, CStatic::GetWindowTextW(a.text));
    MEMBER(CStatic, label, 0, SetBitmap(nullptr));
    MEMBER(CStatic, none, 0, SetIcon(nullptr));
    MEMBER(CStatic, none, 0, GetBitmap());
    MEMBER(CButton, button, 0, GetCheck());
    MEMBER(CButton, button, 0, GetState());
    VOID_MEMBER(CButton, button, SetCheck(1));
    MEMBER(CButton, button, 0, SetBitmap(nullptr));
    MEMBER(CButton, none, 0, SetIcon(nullptr));
    MEMBER(CBitmapButton, none, 0, LoadBitmaps(L"up", L"down", L"focus", L"disabled"));
    MEMBER(CBitmapButton, none, 0, LoadBitmaps(L"up"));
    MEMBER(CBitmapButton, none, 0, LoadBitmaps(1u, 2u, 3u, 4u));
    MEMBER(CBitmapButton, none, 0, LoadBitmaps(1u));
    MEMBER(CBitmapButton, none, 1, AutoLoad(1, &a.window));
}

void tst_ControlGuard::addTabs()
{
    const auto tabs = isOneOf<QTabWidget>;
    const auto none = isOneOf<>;
    MEMBER(CTabCtrl, tabs, 0, GetCurSel());
    MEMBER(CTabCtrl, tabs, 0, GetActiveTab());
    MEMBER(CTabCtrl, tabs, 0, GetItemCount());
    MEMBER(CTabCtrl, tabs, 0, SetCurSel(0));
    MEMBER(CTabCtrl, tabs, 0, SetActiveTab(0));
    VOID_MEMBER(CTabCtrl, tabs, AddTab(0, 1, 0, &a.window));
    VOID_MEMBER(CTabCtrl, none, AddTab(0, 1, 0, nullptr));
    MEMBER(CTabCtrl, tabs, 0, DeleteItem(0));
    MEMBER(CTabCtrl, tabs, 0, DeleteAllItems());
    MEMBER(CTabCtrl, none, 0, InsertItem(0, L"34"));
    MEMBER(CTabCtrl, none, 0, InsertItem(0, &a.item));
    MEMBER(CTabCtrl, none, 0, GetItemRect(0, &a.rect));
    VOID_MEMBER(CTabCtrl, none, AdjustRect(true, &a.rect));
}

void tst_ControlGuard::addSliders()
{
    const auto slider = isOneOf<QAbstractSlider>;
    const auto withTicks = isOneOf<QSlider>;
    const auto none = isOneOf<>;
    MEMBER(CSliderCtrl, slider, 0, GetPos());
    VOID_MEMBER(CSliderCtrl, slider, SetPos(7));
    VOID_MEMBER(CSliderCtrl, slider, SetRange(7, 8, true));
    MEMBER(CSliderCtrl, slider, 0, SetPageSize(7));
    VOID_MEMBER(CSliderCtrl, withTicks, SetTicFreq(7));
    MEMBER(CSliderCtrl, none, 0, GetPageSize());
    MEMBER(CSliderCtrl, none, 0, GetLineSize());
    MEMBER(CSliderCtrl, none, 0, SetLineSize(7));
    MEMBER(CSliderCtrl, none, 0, GetRangeMin());
    MEMBER(CSliderCtrl, none, 0, GetRangeMax());
    VOID_MEMBER(CSliderCtrl, none, GetRange(a.first, a.second));
    VOID_MEMBER(CSliderCtrl, none, SetRangeMin(7, true));
    VOID_MEMBER(CSliderCtrl, none, SetRangeMax(7, true));
    VOID_MEMBER(CSliderCtrl, none, GetSelection(a.first, a.second));
    VOID_MEMBER(CSliderCtrl, none, SetSelection(7, 8));
    MEMBER(CSliderCtrl, none, 0, GetNumTics());
    MEMBER(CSliderCtrl, none, 0, GetTicArray());
    MEMBER(CSliderCtrl, none, 0, GetTic(1));
    MEMBER(CSliderCtrl, none, 0, GetTicPos(1));
    MEMBER(CSliderCtrl, none, 0, SetTic(1));
    VOID_MEMBER(CSliderCtrl, none, GetChannelRect(&a.rect));
    VOID_MEMBER(CSliderCtrl, none, GetThumbRect(&a.rect));
    MEMBER(CScrollBar, slider, 0, SetScrollPos(7, true));
    VOID_MEMBER(CScrollBar, slider, SetScrollRange(7, 8, true));
    MEMBER(CScrollBar, none, 0, GetScrollPos());
    VOID_MEMBER(CScrollBar, none, GetScrollRange(&a.first, &a.second));
}

void tst_ControlGuard::addWidgetless()
{
    const auto none = isOneOf<>;
    MEMBER(CSpinButtonCtrl, none, 0, SetBuddy(&a.window));
    MEMBER(CSpinButtonCtrl, none, 0, GetBuddy());
    MEMBER(CSpinButtonCtrl, none, 0, SetPos(7));
    MEMBER(CSpinButtonCtrl, none, 0, GetPos());
    VOID_MEMBER(CSpinButtonCtrl, none, SetRange(short(7), short(8)));
    VOID_MEMBER(CSpinButtonCtrl, none, SetRange32(7, 8));
    MEMBER(CToolTipCtrl, none, 1, CToolTipCtrl::Create(&a.window, 7));
    MEMBER(CToolTipCtrl, none, 1, AddTool(&a.window, 101u, &a.rect, 7));
    MEMBER(CToolTipCtrl, none, 0, AddTool(&a.window, L"34", &a.rect, 7));
    VOID_MEMBER(CToolTipCtrl, none, Activate(true));
    VOID_MEMBER(CToolTipCtrl, none, RelayEvent(&a.message));
}

void tst_ControlGuard::nullObject()
{
    QFETCH(Member, member);
    for (const std::uintptr_t address : {0, 7, 8, 4088, 4095}) {
        Arguments arguments;
        QCOMPARE(member.call(objectAt<void>(address), arguments), member.result);
        QVERIFY(arguments.unchanged());
    }
}

// Calls the member of a control that has nothing to act on.
#define VERIFY_UNBOUND(control)                                                                              \
    do {                                                                                                     \
        Arguments arguments;                                                                                 \
        QCOMPARE(member.call((control).get(), arguments), member.result);                                    \
        QVERIFY(arguments.unchanged());                                                                      \
    } while (false)

void tst_ControlGuard::neverBound()
{
    QFETCH(Member, member);
    const auto control = member.make();
    VERIFY_UNBOUND(control);
    QVERIFY(!control->m_hWnd);
}

void tst_ControlGuard::widgetDestroyed()
{
    QFETCH(Member, member);
    auto widgets = widgetsOfAllKinds();
    std::vector<std::unique_ptr<CWnd>> controls;
    for (const auto &widget : widgets) {
        controls.push_back(member.make());
        controls.back()->SetHandle(handleOf(widget.get()));
    }
    widgets.clear();
    for (const auto &control : controls)
        VERIFY_UNBOUND(control);
}

void tst_ControlGuard::detached()
{
    QFETCH(Member, member);
    const auto widgets = widgetsOfAllKinds();
    for (const auto &widget : widgets) {
        const auto control = member.make();
        control->SetHandle(handleOf(widget.get()));
        control->Detach();
        const WidgetWatch watch(widget.get());
        VERIFY_UNBOUND(control);
        QVERIFY(watch.isUntouched());
    }
}

void tst_ControlGuard::replaced()
{
    QFETCH(Member, member);
    const auto widgets = widgetsOfAllKinds();
    for (const auto &widget : widgets) {
        const auto control = member.make();
        control->SetHandle(handleOf(widget.get()));
        CWnd other;
        other.SetHandle(handleOf(widget.get()));
        const WidgetWatch watch(widget.get());
        VERIFY_UNBOUND(control);
        QVERIFY(watch.isUntouched());
    }
}

// A widget of the wrong class, which is every class for a member with a fixed result.
void tst_ControlGuard::otherWidget()
{
    QFETCH(Member, member);
    const auto widgets = widgetsOfAllKinds();
    for (const auto &widget : widgets) {
        if (member.takes(widget.get()))
            continue;
        const auto control = member.make();
        control->SetHandle(handleOf(widget.get()));
        const WidgetWatch watch(widget.get());
        VERIFY_UNBOUND(control);
        QVERIFY2(watch.isUntouched(), widget->metaObject()->className());
    }
}

// These end in operations of windows, whose result for a null object is its address, or fill buffers.
void tst_ControlGuard::nullObjectWithTextsOfWindows()
{
    for (const std::uintptr_t address : {0, 7, 8, 4088, 4095}) {
        Arguments arguments;
        auto *edit = objectAt<CEdit>(address);
        QCOMPARE(edit->GetWindowTextLengthW(), int(address));
        QCOMPARE(edit->CEdit::GetWindowTextW(arguments.buffer, 8), 0);
        auto *label = objectAt<CStatic>(address);
        QCOMPARE(label->CStatic::Create(L"34", 0, arguments.rect, &arguments.window, 7), FALSE);
        QVERIFY(arguments.unchanged());
    }
}

void tst_ControlGuard::imageList()
{
    CImageList filled;
    for (CImageList *list : {&filled, objectAt<CImageList>(0), objectAt<CImageList>(4095)}) {
        QCOMPARE(list->Create(16, 16, 0, 4, 4), TRUE);
        QCOMPARE(list->Create(-1, 0, 0, 0, 0), TRUE);
        QCOMPARE(list->Add(nullptr, 0u), 0);
        QCOMPARE(list->Add(objectAt<HICON__>(0x5000)), 0);
        QCOMPARE(list->SetBkColor(0xFFFFFF), 0u);
        QVERIFY(!list->ExtractIconW(0));
        QCOMPARE(list->DeleteImageList(), FALSE);
    }
}

QTEST_MAIN(tst_ControlGuard)
#include "tst_ControlGuard.moc"
