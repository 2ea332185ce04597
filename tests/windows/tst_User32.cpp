#include "KxUser32.h"
#include "KxWindows.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <functional>

using Call = std::function<LONG_PTR(HWND)>;
Q_DECLARE_METATYPE(Call)

namespace {
constexpr int ControlId = 1001;

// A registered object whose virtual members answer for its widget.
class AnsweringWnd : public CWnd
{
public:
    void GetClientRect(RECT *rect) override { *rect = {1, 2, 3, 4}; }
    void SetWindowTextW(const wchar_t *text) override { m_text = text; }
    void GetWindowTextW(CString &text) override { text = L"own text"; }
    int GetWindowTextW(wchar_t *buffer, int) override
    {
        buffer[0] = L'!';
        return 77;
    }

    const wchar_t *m_text = nullptr;
};

// A registered object that passes another window's handle off as its own.
class ForwardingWnd : public CWnd
{
public:
    HWND GetSafeHwnd() override { return reinterpret_cast<HWND>(std::uintptr_t{0xABC0}); }
};
} // namespace

/// The functions that resolve a handle, and what they give when they cannot.
class tst_User32 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void unknownHandleFails_data();
    void unknownHandleFails();
    void unknownHandleLeavesOutputs();
    void forgottenHandleFails();
    void unboundObject();
    void virtualMembersAnswer();

    void getDlgItem();
    void getDlgItemMakesWrapper();
    void getDlgItemAsksForSafeHandle();
    void getDlgCtrlId();
    void getParent();
    void getParentAsksForSafeHandle();
    void showWindow_data();
    void showWindow();
    void windowText();
    void windowTextBuffer_data();
    void windowTextBuffer();
    void windowTextLengthCountsCharacters();
    void enableWindow();
};

void tst_User32::cleanup()
{
    QVERIFY(CWndHandleTable.empty());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

static LONG_PTR number(HWND handle)
{
    return reinterpret_cast<LONG_PTR>(handle);
}

static void addRow(const char *name, const Call &call)
{
    QTest::addRow("%s: null", name) << call << false;
    QTest::addRow("%s: no object", name) << call << true;
}

void tst_User32::unknownHandleFails_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<bool>("isWidget");

    addRow("GetDlgItem", [](HWND h) { return number(GetDlgItem(h, ControlId)); });
    addRow("KxUser32::GetDlgItem", [](HWND h) { return number(KxUser32::GetDlgItem(h, ControlId)); });
    addRow("GetDlgCtrlID", [](HWND h) { return GetDlgCtrlID(h); });
    addRow("GetParent", [](HWND h) { return number(GetParent(h)); });
    addRow("ShowWindow", [](HWND h) { return ShowWindow(h, SW_SHOW); });
    addRow("SetWindowTextW", [](HWND h) { return SetWindowTextW(h, L"text"); });
    addRow("GetWindowTextLengthW", [](HWND h) { return GetWindowTextLengthW(h); });
    addRow("GetWindowTextLengthA", [](HWND h) { return GetWindowTextLengthA(h); });
    addRow("GetWindowLongPtrW GWL_ID", [](HWND h) { return GetWindowLongPtrW(h, GWL_ID); });
}

void tst_User32::unknownHandleFails()
{
    QFETCH(Call, call);
    QFETCH(bool, isWidget);

    QWidget parent;
    QLineEdit widget(QStringLiteral("before"), &parent);

    QCOMPARE(call(isWidget ? handleOf(&widget) : nullptr), LONG_PTR{0});
    QCOMPARE(widget.text(), QStringLiteral("before"));
    QVERIFY(!widget.isVisible());
    QVERIFY(CWndHandleTable.empty());
}

void tst_User32::unknownHandleLeavesOutputs()
{
    QLineEdit widget(QStringLiteral("text"));
    for (HWND handle : {HWND{nullptr}, handleOf(&widget)}) {
        RECT rect{1, 2, 3, 4};
        QCOMPARE(GetClientRect(handle, &rect), FALSE);
        QCOMPARE(CRect(rect).Width() + CRect(rect).Height(), 4);
        QCOMPARE(rect.left, 1);

        wchar_t buffer[] = L"untouched";
        QCOMPARE(GetWindowTextW(handle, buffer, 10), 0);
        QCOMPARE(QString::fromWCharArray(buffer), QStringLiteral("untouched"));
    }
}

void tst_User32::forgottenHandleFails()
{
    QLineEdit widget(QStringLiteral("text"));
    {
        CWnd window;
        window.SetHandle(handleOf(&widget));
        QCOMPARE(GetWindowTextLengthW(handleOf(&widget)), 4);
    }
    QCOMPARE(GetWindowTextLengthW(handleOf(&widget)), 0);
    QCOMPARE(SetWindowTextW(handleOf(&widget), L"new"), FALSE);
}

// An object whose widget is gone stays registered: it is found, and does nothing.
void tst_User32::unboundObject()
{
    auto *widget = new QLineEdit(QStringLiteral("text"));
    const HWND handle = handleOf(widget);
    CWnd window;
    window.SetHandle(handle);
    window.SetCtrlID(ControlId);
    delete widget;

    RECT rect{1, 2, 3, 4};
    wchar_t buffer[] = L"untouched";
    QCOMPARE(GetClientRect(handle, &rect), TRUE);
    QCOMPARE(rect.right, 3);
    QCOMPARE(SetWindowTextW(handle, L"new"), TRUE);
    QCOMPARE(GetWindowTextW(handle, buffer, 10), 0);
    QCOMPARE(buffer[0], L'u');
    QCOMPARE(GetWindowTextLengthW(handle), 0);
    QCOMPARE(ShowWindow(handle, SW_SHOW), FALSE);
    QCOMPARE(GetDlgCtrlID(handle), 0);
    QCOMPARE(GetDlgItem(handle, ControlId), HWND{nullptr});
    QCOMPARE(GetParent(handle), HWND{nullptr});
}

void tst_User32::virtualMembersAnswer()
{
    QLineEdit widget(QStringLiteral("widget text"));
    AnsweringWnd window;
    window.SetHandle(handleOf(&widget));

    RECT rect{};
    QCOMPARE(GetClientRect(handleOf(&widget), &rect), TRUE);
    QCOMPARE(rect.bottom, 4);

    const wchar_t *text = L"new";
    QCOMPARE(SetWindowTextW(handleOf(&widget), text), TRUE);
    QCOMPARE(window.m_text, text);
    QCOMPARE(widget.text(), QStringLiteral("widget text"));

    wchar_t buffer[8] = {};
    QCOMPARE(GetWindowTextW(handleOf(&widget), buffer, 8), 77);
    QCOMPARE(buffer[0], L'!');
    QCOMPARE(GetWindowTextLengthW(handleOf(&widget)), 8);
    QCOMPARE(GetWindowTextLengthA(handleOf(&widget)), 8);
}

void tst_User32::getDlgItem()
{
    QWidget form;
    QLineEdit edit(&form);
    CWnd dialog;
    dialog.SetHandle(handleOf(&form));
    dialog.SetDlgItem(ControlId, handleOf(&edit));

    QCOMPARE(GetDlgItem(handleOf(&form), ControlId), handleOf(&edit));
    QCOMPARE(KxUser32::GetDlgItem(handleOf(&form), ControlId), handleOf(&edit));
    // The member gives a placeholder object for an unknown identifier, which has no handle.
    QVERIFY(dialog.GetDlgItem(ControlId + 1));
    QCOMPARE(GetDlgItem(handleOf(&form), ControlId + 1), HWND{nullptr});
    QCOMPARE(KxUser32::GetDlgItem(handleOf(&form), -1), HWND{nullptr});
}

void tst_User32::getDlgItemMakesWrapper()
{
    QWidget form;
    QLineEdit edit(&form);
    CWnd dialog;
    dialog.SetHandle(handleOf(&form));
    dialog.SetDlgItem(ControlId, handleOf(&edit));
    QVERIFY(!CWnd::FromHandle(handleOf(&edit)));

    GetDlgItem(handleOf(&form), ControlId);

    CWnd *wrapper = CWnd::FromHandle(handleOf(&edit));
    QVERIFY(wrapper);
    QCOMPARE(wrapper->GetParent(), &dialog);
    QCOMPARE(GetDlgCtrlID(handleOf(&edit)), ControlId);
    QCOMPARE(GetParent(handleOf(&edit)), handleOf(&form));
}

void tst_User32::getDlgItemAsksForSafeHandle()
{
    QWidget form;
    QLineEdit edit(&form);
    CWnd dialog;
    dialog.SetHandle(handleOf(&form));
    dialog.SetDlgItem(ControlId, handleOf(&edit));
    ForwardingWnd control;
    control.SetHandle(handleOf(&edit));

    QCOMPARE(GetDlgItem(handleOf(&form), ControlId), control.GetSafeHwnd());
}

void tst_User32::getDlgCtrlId()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));

    QCOMPARE(GetDlgCtrlID(handleOf(&widget)), -1);
    window.SetCtrlID(ControlId);
    QCOMPARE(GetDlgCtrlID(handleOf(&widget)), ControlId);
}

void tst_User32::getParent()
{
    QWidget form;
    QLineEdit edit(&form);
    CWnd child;
    child.SetHandle(handleOf(&edit));
    // The widget's own parent does not count.
    QCOMPARE(GetParent(handleOf(&edit)), HWND{nullptr});

    CWnd dialog;
    child.SetParent(&dialog);
    QCOMPARE(GetParent(handleOf(&edit)), HWND{nullptr});
    dialog.SetHandle(handleOf(&form));
    QCOMPARE(GetParent(handleOf(&edit)), handleOf(&form));
}

void tst_User32::getParentAsksForSafeHandle()
{
    QWidget widget;
    ForwardingWnd parent;
    CWnd window(&parent);
    window.SetHandle(handleOf(&widget));

    QCOMPARE(GetParent(handleOf(&widget)), parent.GetSafeHwnd());
}

void tst_User32::showWindow_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("visibleBefore");
    QTest::addColumn<bool>("visibleAfter");

    QTest::newRow("hide") << SW_HIDE << true << false;
    QTest::newRow("hide again") << SW_HIDE << false << false;
    QTest::newRow("show") << SW_SHOW << false << true;
    QTest::newRow("show again") << SW_SHOW << true << true;
    QTest::newRow("minimized shows") << SW_SHOWMINIMIZED << false << true;
    QTest::newRow("maximized shows") << SW_SHOWMAXIMIZED << false << true;
    QTest::newRow("negative shows") << -1 << false << true;
}

void tst_User32::showWindow()
{
    QFETCH(int, command);
    QFETCH(bool, visibleBefore);
    QFETCH(bool, visibleAfter);

    QWidget widget;
    widget.setVisible(visibleBefore);
    CWnd window;
    window.SetHandle(handleOf(&widget));

    QCOMPARE(ShowWindow(handleOf(&widget), command), TRUE);
    QCOMPARE(widget.isVisible(), visibleAfter);
    QCOMPARE(widget.windowState(), Qt::WindowStates(Qt::WindowNoState));
}

void tst_User32::windowText()
{
    QLineEdit edit(QStringLiteral("before"));
    CWnd window;
    window.SetHandle(handleOf(&edit));

    QCOMPARE(SetWindowTextW(handleOf(&edit), L"after"), TRUE);
    QCOMPARE(edit.text(), QStringLiteral("after"));
    QCOMPARE(SetWindowTextW(handleOf(&edit), nullptr), TRUE);
    QCOMPARE(edit.text(), QStringLiteral("after"));
    QCOMPARE(SetWindowTextW(handleOf(&edit), L""), TRUE);
    QCOMPARE(edit.text(), QString());
}

void tst_User32::windowTextBuffer_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("buffer");

    QTest::newRow("negative") << -1 << 0 << QStringLiteral("########");
    QTest::newRow("none") << 0 << 0 << QStringLiteral("########");
    QTest::newRow("terminator only") << 1 << 0 << QStringLiteral("_#######");
    QTest::newRow("cut") << 3 << 2 << QStringLiteral("He_#####");
    QTest::newRow("no room for terminator") << 5 << 4 << QStringLiteral("Hell_###");
    QTest::newRow("exact") << 6 << 5 << QStringLiteral("Hello_##");
    QTest::newRow("padded") << 8 << 5 << QStringLiteral("Hello___");
}

void tst_User32::windowTextBuffer()
{
    QFETCH(int, size);

    QLineEdit edit(QStringLiteral("Hello"));
    CWnd window;
    window.SetHandle(handleOf(&edit));
    std::wstring buffer(8, L'#');

    QTEST(GetWindowTextW(handleOf(&edit), buffer.data(), size), "result");
    std::replace(buffer.begin(), buffer.end(), L'\0', L'_');
    QTEST(QString::fromStdWString(buffer), "buffer");
    QCOMPARE(GetWindowTextW(handleOf(&edit), nullptr, size), 0);
}

void tst_User32::windowTextLengthCountsCharacters()
{
    const std::wstring text = L"\u00e4\u4e2d\U0001F600";
    QLineEdit edit(QString::fromStdWString(text));
    CWnd window;
    window.SetHandle(handleOf(&edit));

    QCOMPARE(GetWindowTextLengthW(handleOf(&edit)), 3);
    QCOMPARE(GetWindowTextLengthA(handleOf(&edit)), 3);
}

void tst_User32::enableWindow()
{
    QWidget widget;
    for (auto enable : {&EnableWindow, &KxUser32::EnableWindow}) {
        // TRUE whatever the state was, unlike Win32.
        QCOMPARE(enable(handleOf(&widget), false), TRUE);
        QVERIFY(!widget.isEnabled());
        QCOMPARE(enable(handleOf(&widget), false), TRUE);
        QCOMPARE(enable(handleOf(&widget), true), TRUE);
        QVERIFY(widget.isEnabled());
        QCOMPARE(enable(nullptr, true), FALSE);
        QCOMPARE(enable(nullptr, false), FALSE);
    }
}

QTEST_MAIN(tst_User32)
#include "tst_User32.moc"
