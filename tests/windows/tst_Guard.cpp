#include "HiddenAddress.h"
#include "KxDialogs.h"
#include "KxWindowPrivate.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QCheckBox>
#include <QLabel>
#include <QtTest>

#include <cwchar>
#include <memory>
#include <optional>
#include <type_traits>

// The class whose bases have all the members of this test.
using Window = CKcUiTabChildDialog;

namespace {
// What the members are given; nothing of it may be written.
struct Arguments
{
    RECT rect{1, 2, 3, 4};
    POINT point{5, 6};
    HWND handle = objectAt<HWND__>(0x5000);
    wchar_t buffer[8] = L"kept";
    CString text = L"kept";
    CWnd parent;
    QLabel label;

    bool unchanged()
    {
        return rect.left == 1 && rect.top == 2 && rect.right == 3 && rect.bottom == 4 && point.x == 5 &&
               point.y == 6 && handle == objectAt<HWND__>(0x5000) && std::wcscmp(buffer, L"kept") == 0 &&
               text == L"kept" && !parent.m_hWnd && !CWnd::FromHandle(handleOf(&label));
    }
};

// Null, and null plus the offset of a member or base; the last one is the guard's edge.
constexpr std::uintptr_t nullObjects[] = {0, 7, 8, 4088, 4095};

using Result = std::optional<qint64>;

template <typename Value> Result number(Value value)
{
    if constexpr (std::is_pointer_v<Value>)
        return reinterpret_cast<qint64>(value);
    else
        return static_cast<qint64>(value);
}

// A dialog with a button, and what of it may not change.
struct Scene
{
    Scene()
    {
        widget->setWindowTitle(QStringLiteral("kept"));
        widget->setGeometry(10, 20, 30, 40);
        window.SetHandle(handleOf(widget.get()));
        bind();
    }
    // Without a widget the children cannot be registered.
    explicit Scene(std::nullptr_t) { widget.reset(); }

    void bind()
    {
        window.SetParent(&parent);
        window.SetCtrlID(5);
        window.SetDlgItem(100, handleOf(box));
        window.GetDC();
    }

    QVariantList state() const
    {
        const auto *d = CWndPrivate::of(&window);
        QVariantList values{quintptr(window.m_hWnd),
                            quintptr(d->m_pWidget.data()),
                            quintptr(d->m_pParentWnd),
                            quintptr(d->m_pDC),
                            d->m_nCtrlID,
                            d->m_bPermanent,
                            d->m_bKeepWidget,
                            window.m_nModalResult};
        values << int(d->m_mapChildren.size()) << int(CWndHandleTable.size());
        if (!widget)
            return values;
        return values << widget->geometry() << widget->windowTitle() << widget->isHidden()
                      << widget->isEnabled() << widget->result() << box->isChecked() << box->text();
    }

    CWnd parent;
    std::unique_ptr<QDialog> widget = std::make_unique<QDialog>();
    QCheckBox *box = new QCheckBox(widget.get());
    Window window{1, &parent};
};
} // namespace

// Gives the result of a member; nothing for one without.
using Call = Result (*)(Window *, Arguments &);
Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(Result)

#define MEMBER(unbound, call)                                                                                \
    QTest::newRow(#call) << Call([](Window *w, Arguments &a) {                                               \
        static_cast<void>(a);                                                                                \
        return number(w->call);                                                                              \
    }) << Result(unbound)
#define VOID_MEMBER(call)                                                                                    \
    QTest::newRow(#call) << Call([](Window *w, Arguments &a) {                                               \
        static_cast<void>(a);                                                                                \
        w->call;                                                                                             \
        return Result();                                                                                     \
    }) << Result()

class tst_Guard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nullObject_data();
    void nullObject();
    void neverBound_data();
    void neverBound();
    void detached_data();
    void detached();
    void replaced_data();
    void replaced();
    void widgetDestroyed_data();
    void widgetDestroyed();
    void sendMessage();

private:
    static void addLookups();
    static void addTexts();
    static void addOperations();
    static void addDialogs();
    static void addNullObjectOnly();
    static void addUnboundMembers();

    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_Guard::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_Guard::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_Guard::addLookups()
{
    MEMBER(0, operator HWND());
    MEMBER(0, Detach());
    MEMBER(TRUE, CWnd::Create(nullptr, nullptr, 0, a.rect, &a.parent, 9));
    MEMBER(0, GetParent());
    MEMBER(0, SetParent(&a.parent));
    VOID_MEMBER(SetCtrlID(9));
    MEMBER(0, GetDlgCtrlID());
    MEMBER(0, SetDlgItem(101, handleOf(&a.label)));
    MEMBER(0, GetDlgItem(100));
    VOID_MEMBER(GetDlgItem(100, &a.handle));
    MEMBER(0, GetNextCWndFromID(1));
    MEMBER(0, GetNextWindow());
    MEMBER(0, GetNextWindow(GW_CHILD));
    MEMBER(0, GetWindow(GW_CHILD));
    MEMBER(0, GetWindow(GW_HWNDNEXT));
    MEMBER(0, GetDescendantWindow(100, TRUE));
}

void tst_Guard::addTexts()
{
    VOID_MEMBER(CWnd::SetWindowTextW(L"changed"));
    VOID_MEMBER(CWnd::SetWindowTextW(nullptr));
    VOID_MEMBER(CWnd::GetWindowTextW(a.text));
    MEMBER(0, CWnd::GetWindowTextW(a.buffer, 8));
    MEMBER(0, CWnd::GetWindowTextW(a.buffer, 0));
    MEMBER(0, CWnd::GetWindowTextW(nullptr, 8));
    MEMBER(0, GetWindowTextLengthW());
    MEMBER(0, GetDlgItemTextW(100, a.text));
    VOID_MEMBER(SetDlgItemTextW(100, L"changed"));
}

void tst_Guard::addOperations()
{
    VOID_MEMBER(GetWindowRect(&a.rect));
    VOID_MEMBER(CWnd::GetClientRect(&a.rect));
    VOID_MEMBER(ClientToScreen(&a.point));
    VOID_MEMBER(MoveWindow(70, 80, 90, 100));
    MEMBER(TRUE, SetWindowPos(&CWnd::wndTop, 70, 80, 0, 0, 0));
    MEMBER(TRUE, SetWindowPos(nullptr, 70, 80, 90, 100, 0));
    MEMBER(0, ShowWindow(SW_SHOW));
    MEMBER(0, ShowWindow(SW_HIDE));
    MEMBER(0, IsWindowVisible());
    MEMBER(TRUE, IsWindowEnabled());
    MEMBER(TRUE, EnableWindow(FALSE));
    MEMBER(0, CWnd::SetFocus());
    MEMBER(FALSE, ModifyStyle(0, WS_DISABLED));
    VOID_MEMBER(Invalidate());
    VOID_MEMBER(InvalidateRect(&a.rect));
    MEMBER(0, GetDC());
    MEMBER(0, CWnd::GetSafeHdc());
    MEMBER(0, IsDlgButtonChecked(100));
    VOID_MEMBER(CheckDlgButton(100, BST_CHECKED));
    VOID_MEMBER(CheckRadioButton(100, 100, 100));
    MEMBER(0, GetCheckedRadioButton(100, 100));
    MEMBER(TRUE, UpdateData(FALSE));
    MEMBER(TRUE, UpdateData(TRUE));
}

void tst_Guard::addDialogs()
{
    MEMBER(FALSE, CDialog::Create(L"name", &a.parent));
    MEMBER(FALSE, CDialog::Create(1u, &a.parent));
    MEMBER(0, CDialog::DoModal());
    MEMBER(TRUE, CDialog::OnInitDialog());
    VOID_MEMBER(CDialog::OnOK());
    VOID_MEMBER(CDialog::OnCancel());
    VOID_MEMBER(EndDialog(7));
    MEMBER(0, SetDirty(true));
    MEMBER(0, SetDirty(false));
}

// These work on an unbound object, so that only a null object stops them.
void tst_Guard::addNullObjectOnly()
{
    VOID_MEMBER(SetHandle(handleOf(&a.label)));
    MEMBER(0, Attach(handleOf(&a.label)));
    MEMBER(0, Attach(nullptr));
    VOID_MEMBER(SetAutoDelete(false, true));
    MEMBER(0, SubclassDlgItem(100, &a.parent));
    MEMBER(0, SubclassDlgItem(100, nullptr));
    MEMBER(0, CWnd::GetSafeHwnd());
    MEMBER(0, MessageBoxW(L"text"));
}

void tst_Guard::addUnboundMembers()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<Result>("unbound");
    addLookups();
    addTexts();
    addOperations();
    addDialogs();
}

void tst_Guard::nullObject_data()
{
    addUnboundMembers();
    addNullObjectOnly();
}

void tst_Guard::nullObject()
{
    QFETCH(Call, call);
    for (const std::uintptr_t address : nullObjects) {
        Arguments arguments;
        const Result result = call(objectAt<Window>(address), arguments);
        if (result)
            QCOMPARE(*result, qint64(address));
        QVERIFY(arguments.unchanged());
    }
}

// Calls the member on the scene's window, which is without a widget in one way or another.
#define VERIFY_UNBOUND(scene)                                                                                \
    do {                                                                                                     \
        QFETCH(Call, call);                                                                                  \
        QFETCH(Result, unbound);                                                                             \
        Arguments arguments;                                                                                 \
        const QVariantList before = (scene).state();                                                         \
        const Result result = call(&(scene).window, arguments);                                              \
        QCOMPARE(result.value_or(0), unbound.value_or(0));                                                   \
        QVERIFY(arguments.unchanged());                                                                      \
        QCOMPARE((scene).state(), before);                                                                   \
    } while (false)

void tst_Guard::neverBound_data()
{
    addUnboundMembers();
}

void tst_Guard::neverBound()
{
    Scene scene(nullptr);
    VERIFY_UNBOUND(scene);
}

void tst_Guard::detached_data()
{
    addUnboundMembers();
}

void tst_Guard::detached()
{
    Scene scene;
    QCOMPARE(scene.window.Detach(), handleOf(scene.widget.get()));
    VERIFY_UNBOUND(scene);
}

void tst_Guard::replaced_data()
{
    addUnboundMembers();
}

void tst_Guard::replaced()
{
    Scene scene;
    CWnd other;
    other.SetHandle(handleOf(scene.widget.get()));
    VERIFY_UNBOUND(scene);
}

void tst_Guard::widgetDestroyed_data()
{
    addUnboundMembers();
}

void tst_Guard::widgetDestroyed()
{
    Scene scene;
    scene.widget.reset();
    VERIFY_UNBOUND(scene);
}

void tst_Guard::sendMessage()
{
    class Procedure : public CWnd
    {
        LRESULT WindowProc(UINT, WPARAM wParam, LPARAM) override { return LRESULT(wParam); }
    };
    Procedure unbound;
    QCOMPARE(unbound.SendMessageW(WM_USER, 77), LRESULT(77));
    // Not the address: this one gives 0 for every null object.
    for (const std::uintptr_t address : nullObjects)
        QCOMPARE(objectAt<Window>(address)->SendMessageW(WM_USER, 77), LRESULT(0));
}

QTEST_MAIN(tst_Guard)
#include "tst_Guard.moc"
