#include "HiddenAddress.h"
#include "KxDialogs.h"
#include "KxWindowPrivate.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QLabel>
#include <QtTest>

#include <cstring>
#include <memory>
#include <type_traits>

// The class whose bases have all the members of this test.
using Window = CKcUiTabChildDialog;

namespace {
// Everything that the members could write to.
struct Arguments
{
    RECT rect{1, 2, 3, 4};
    POINT point{5, 6};
    LRESULT result = 7;
    MSG message{};
    MINMAXINFO limits{};
    CREATESTRUCTW create{};
    HELPINFO help{};
};

// What can be seen of a widget and its window object.
struct State
{
    explicit State(const CWnd &window, const QWidget &widget)
        : geometry(widget.geometry())
        , text(widget.windowTitle())
        , font(widget.font())
        , hidden(widget.isHidden())
        , enabled(widget.isEnabled())
        , updates(widget.updatesEnabled())
        , iconless(widget.windowIcon().isNull())
        , cursor(widget.cursor().shape())
        , overrideCursor(QApplication::overrideCursor())
        , grabber(QWidget::mouseGrabber())
        , siblings(widget.parent()->children())
        , boundTo(window)
        , parentWindow(CWndPrivate::of(&window)->m_pParentWnd)
        , id(CWndPrivate::of(&window)->m_nCtrlID)
        , context(CWndPrivate::of(&window)->m_pDC)
    {
    }

    bool operator==(const State &other) const
    {
        return geometry == other.geometry && text == other.text && font == other.font &&
               hidden == other.hidden && enabled == other.enabled && updates == other.updates &&
               iconless == other.iconless && cursor == other.cursor &&
               overrideCursor == other.overrideCursor && grabber == other.grabber &&
               siblings == other.siblings && boundTo == other.boundTo && parentWindow == other.parentWindow &&
               id == other.id && context == other.context;
    }

    QRect geometry;
    QString text;
    QFont font;
    bool hidden;
    bool enabled;
    bool updates;
    bool iconless;
    Qt::CursorShape cursor;
    const QCursor *overrideCursor;
    const QWidget *grabber;
    QObjectList siblings;
    HWND boundTo;
    const CWnd *parentWindow;
    int id;
    const CDC *context;
};

template <typename Result> qint64 number(Result result)
{
    if constexpr (std::is_pointer_v<Result>)
        return reinterpret_cast<qint64>(result);
    else
        return static_cast<qint64>(result);
}

HWND anyHandle()
{
    return objectAt<HWND__>(0x5000);
}
} // namespace

// The result of a call; 0 for one without result.
using Call = qint64 (*)(Window *, Arguments &);
Q_DECLARE_METATYPE(Call)

#define RESULT(name, expected, call)                                                                         \
    QTest::newRow(name) << Call([](Window *w, Arguments &a) {                                                \
        static_cast<void>(a);                                                                                \
        return number(call);                                                                                 \
    }) << qint64(expected)
#define NOTHING(name, call)                                                                                  \
    QTest::newRow(name) << Call([](Window *w, Arguments &a) {                                                \
        static_cast<void>(a);                                                                                \
        static_assert(std::is_void_v<decltype(call)>);                                                       \
        call;                                                                                                \
        return qint64(0);                                                                                    \
    }) << qint64(0)

class tst_CWndFixedResults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void onBoundObject_data();
    void onBoundObject();
    void onUnboundObject_data();
    void onUnboundObject();
    void onDetachedObject_data();
    void onDetachedObject();
    void onNullObject_data();
    void onNullObject();
    void onNearNullObject_data();
    void onNearNullObject();

private:
    static void addMembers();
    static void addHandlers();
    static void addDialogMembers();

    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndFixedResults::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndFixedResults::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndFixedResults::addMembers()
{
    RESULT("SubclassWindow", TRUE, w->SubclassWindow(anyHandle()));
    RESULT("SubclassWindow(null)", TRUE, w->SubclassWindow(nullptr));
    RESULT("GetParentOwner", 0, w->GetParentOwner());
    RESULT("GetTopLevelParent", 0, w->GetTopLevelParent());
    RESULT("GetOwner", 0, w->GetOwner());
    NOTHING("SetOwner", w->SetOwner(&CWnd::wndTop));
    NOTHING("ClientToScreen(RECT)", w->ClientToScreen(&a.rect));
    NOTHING("ScreenToClient(POINT)", w->ScreenToClient(&a.point));
    NOTHING("ScreenToClient(RECT)", w->ScreenToClient(&a.rect));
    NOTHING("MapWindowPoints", w->MapWindowPoints(&CWnd::wndTop, &a.rect));
    NOTHING("MoveWindow(RECT)", w->MoveWindow(&a.rect, TRUE));
    NOTHING("CenterWindow", w->CenterWindow());
    NOTHING("CenterWindow(other)", w->CenterWindow(&CWnd::wndTop));
    NOTHING("BringWindowToTop", w->BringWindowToTop());
    RESULT("SetForegroundWindow", 0, w->CWnd::SetForegroundWindow());
    RESULT("GetCapture", 0, w->CWnd::GetCapture());
    RESULT("SetCapture", 0, w->CWnd::SetCapture());
    RESULT("ModifyStyleEx", TRUE, w->ModifyStyleEx(0, WS_DISABLED));
    RESULT("GetStyle", 0, w->GetStyle());
    NOTHING("UpdateWindow", w->UpdateWindow());
    NOTHING("SetRedraw(FALSE)", w->SetRedraw(FALSE));
    NOTHING("LockWindowUpdate", w->LockWindowUpdate());
    NOTHING("UnlockWindowUpdate", w->UnlockWindowUpdate());
    RESULT("RedrawWindow", TRUE, w->RedrawWindow(&a.rect, nullptr, 1));
    RESULT("ReleaseDC", 0, w->ReleaseDC(nullptr));
    RESULT("GetWindowDC", 0, w->GetWindowDC());
    NOTHING("SetFont", w->SetFont(objectAt<CFont>(0x5000)));
    RESULT("GetFont", 0, w->GetFont());
    RESULT("SetIcon", 0, w->SetIcon(objectAt<HICON__>(0x5000), TRUE));
    RESULT("GetIcon", 0, w->GetIcon(TRUE));
    RESULT("EnableToolTips", TRUE, w->EnableToolTips(FALSE));
    RESULT("GetMenu", 0, w->CWnd::GetMenu());
    RESULT("SetMenu", TRUE, w->CWnd::SetMenu(objectAt<CMenu>(0x5000)));
    RESULT("IsKindOf", TRUE, w->IsKindOf(nullptr));
    NOTHING("BeginWaitCursor", w->BeginWaitCursor());
    NOTHING("EndWaitCursor", w->EndWaitCursor());
}

void tst_CWndFixedResults::addHandlers()
{
    NOTHING("PreSubclassWindow", w->CWnd::PreSubclassWindow());
    NOTHING("DoDataExchange", w->CWnd::DoDataExchange(nullptr));
    RESULT("PreTranslateMessage", TRUE, w->CWnd::PreTranslateMessage(&a.message));
    RESULT("OnCommand", TRUE, w->CWnd::OnCommand(IDOK, 0));
    RESULT("WindowProc", 0, w->CWnd::WindowProc(WM_USER + 6, 1, 2));
    RESULT("PostMessageW", TRUE, w->PostMessageW(WM_USER, 1, 2));
    RESULT("OnChildNotify", FALSE, w->OnChildNotify(WM_USER, 1, 2, &a.result));
    RESULT("Default", 0, w->Default());
    RESULT("SetTimer", 0, w->SetTimer(1, 10, nullptr));
    RESULT("KillTimer", TRUE, w->KillTimer(1));
    RESULT("OnCreate", 1, w->OnCreate(&a.create));
    NOTHING("OnPaint", w->OnPaint());
    NOTHING("OnLButtonDown", w->OnLButtonDown(0, CPoint(1, 2)));
    NOTHING("OnLButtonUp", w->OnLButtonUp(0, CPoint(1, 2)));
    NOTHING("OnMouseMove", w->OnMouseMove(0, CPoint(1, 2)));
    RESULT("OnMouseWheel", FALSE, w->OnMouseWheel(0, 120, CPoint(1, 2)));
    NOTHING("OnTimer", w->OnTimer(1));
    NOTHING("OnSize", w->CWnd::OnSize(0, 10, 20));
    NOTHING("OnSizing", w->CWnd::OnSizing(0, &a.rect));
    NOTHING("OnClose", w->OnClose());
    NOTHING("OnDestroy", w->OnDestroy());
    RESULT("OnCtlColor", 0, w->OnCtlColor(nullptr, &CWnd::wndTop, 0));
    NOTHING("OnChar", w->OnChar('a', 1, 0));
    NOTHING("OnGetMinMaxInfo", w->OnGetMinMaxInfo(&a.limits));
}

void tst_CWndFixedResults::addDialogMembers()
{
    RESULT("CDialog::OnNotify", TRUE, w->CDialog::OnNotify(1, 2, &a.result));
    NOTHING("CDialog::OnHScroll", w->OnHScroll(0, 1, nullptr));
    NOTHING("CDialog::GotoDlgCtrl", w->GotoDlgCtrl(&CWnd::wndTop));
    RESULT("CDialog::OnHelpInfo", FALSE, w->OnHelpInfo(&a.help));
    NOTHING("CKdUiDialog::BeginEditorCommand", w->BeginEditorCommand());
    NOTHING("CKdUiDialog::CompleteEditorCommand", w->CompleteEditorCommand());
    NOTHING("CKdUiDialog::SetDialogName", w->SetDialogName(L"name"));
    NOTHING("CKcUiDialog::OnSize", w->OnSize(0, 10, 20));
    NOTHING("CKcUiDialog::OnSizing", w->OnSizing(0, &a.rect));
}

void tst_CWndFixedResults::onBoundObject_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<qint64>("result");

    addMembers();
    addHandlers();
    addDialogMembers();
}

// Calls the member and compares the bytes of its arguments before and after.
static bool leavesArguments(Call call, Window *window, qint64 result)
{
    alignas(Arguments) unsigned char before[sizeof(Arguments)] = {};
    alignas(Arguments) unsigned char after[sizeof(Arguments)] = {};
    auto *arguments = new (after) Arguments;
    std::memcpy(before, after, sizeof before);
    return call(window, *arguments) == result && std::memcmp(before, after, sizeof before) == 0;
}

void tst_CWndFixedResults::onBoundObject()
{
    QFETCH(Call, call);
    QFETCH(qint64, result);
    QWidget parent;
    QLabel label(&parent);
    QLabel sibling(&parent);
    label.setGeometry(10, 20, 30, 40);
    CWnd parentWindow;
    Window window(1, &parentWindow);
    window.SetHandle(handleOf(&label));
    window.SetCtrlID(7);
    const State before(window, label);
    QVERIFY(leavesArguments(call, &window, result));
    QCoreApplication::processEvents();
    QVERIFY(State(window, label) == before);
    QCOMPARE(window.m_nModalResult, -100);
}

void tst_CWndFixedResults::onUnboundObject_data()
{
    onBoundObject_data();
}

void tst_CWndFixedResults::onUnboundObject()
{
    QFETCH(Call, call);
    QFETCH(qint64, result);
    Window window(1);
    QVERIFY(leavesArguments(call, &window, result));
    QVERIFY(!window.m_hWnd);
}

void tst_CWndFixedResults::onDetachedObject_data()
{
    onBoundObject_data();
}

void tst_CWndFixedResults::onDetachedObject()
{
    QFETCH(Call, call);
    QFETCH(qint64, result);
    QWidget parent;
    QLabel label(&parent);
    Window window(1);
    window.SetHandle(handleOf(&label));
    window.Detach();
    const State before(window, label);
    QVERIFY(leavesArguments(call, &window, result));
    QVERIFY(State(window, label) == before);
}

void tst_CWndFixedResults::onNullObject_data()
{
    onBoundObject_data();
}

void tst_CWndFixedResults::onNullObject()
{
    QFETCH(Call, call);
    QFETCH(qint64, result);
    QVERIFY(leavesArguments(call, objectAt<Window>(0), result));
}

void tst_CWndFixedResults::onNearNullObject_data()
{
    onBoundObject_data();
}

void tst_CWndFixedResults::onNearNullObject()
{
    QFETCH(Call, call);
    QFETCH(qint64, result);
    QVERIFY(leavesArguments(call, objectAt<Window>(8), result));
    QVERIFY(leavesArguments(call, objectAt<Window>(4088), result));
}

QTEST_MAIN(tst_CWndFixedResults)
#include "tst_CWndFixedResults.moc"
