#include "EventLog.h"
#include "HiddenAddress.h"
#include "KxDialogs.h"
#include "KxMessages.h"
#include "KxUser32.h"
#include "KxWindows.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

#include <limits>

namespace {
class AnsweringWnd : public CWnd
{
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_message = message;
        m_wParam = wParam;
        m_lParam = lParam;
        ++m_calls;
        return 7;
    }

    int m_calls = 0;
    UINT m_message = 0;
    WPARAM m_wParam = 0;
    LPARAM m_lParam = 0;
};
} // namespace

/// The message and timer members of window objects.
class tst_MessageMembers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void sendMessage();
    void sendMessageDefault();
    void postMessage();
    void defaults();
    void timers();
};

void tst_MessageMembers::sendMessage()
{
    QWidget widget;
    AnsweringWnd window;
    const EventLog log(&widget);
    // Bound or not, the object's own window procedure answers.
    QCOMPARE(window.SendMessageW(BM_GETCHECK), LRESULT{7});
    window.SetHandle(handleOf(&widget));
    QCOMPARE(static_cast<CWnd &>(window).SendMessageW(0x0407, std::numeric_limits<WPARAM>::max(),
                                                      std::numeric_limits<LPARAM>::min()),
             LRESULT{7});
    QCOMPARE(window.m_calls, 2);
    QCOMPARE(window.m_message, UINT{0x0407});
    QCOMPARE(window.m_wParam, std::numeric_limits<WPARAM>::max());
    QCOMPARE(window.m_lParam, std::numeric_limits<LPARAM>::min());
    QVERIFY(log.isEmpty());
}

void tst_MessageMembers::sendMessageDefault()
{
    QCheckBox button;
    button.setChecked(true);
    CWnd window;
    window.SetHandle(handleOf(&button));
    const EventLog log(&button);

    QCOMPARE(window.SendMessageW(BM_GETCHECK, 0, 0), LRESULT{0});
    QCOMPARE(window.SendMessageW(0x0407, 1, 2), LRESULT{0});
    QCOMPARE(objectAt<CWnd>(0)->SendMessageW(0x0407, 1, 2), LRESULT{0});
    QVERIFY(log.isEmpty());
}

void tst_MessageMembers::postMessage()
{
    QWidget widget;
    AnsweringWnd window;
    QCOMPARE(window.PostMessageW(0x0407, 1, 2), TRUE);
    window.SetHandle(handleOf(&widget));
    const EventLog log(nullptr);

    QCOMPARE(window.PostMessageW(0x0407, 1, 2), TRUE);
    QCOMPARE(objectAt<CWnd>(0)->PostMessageW(0x0407), TRUE);
    QCoreApplication::sendPostedEvents();
    QVERIFY(log.messages().isEmpty());
    QCOMPARE(window.m_calls, 0);
}

void tst_MessageMembers::defaults()
{
    CWnd window;
    CDialog dialog;
    MSG message{};
    LRESULT result = 5;

    QCOMPARE(window.PreTranslateMessage(&message), TRUE);
    QCOMPARE(window.PreTranslateMessage(nullptr), TRUE);
    QCOMPARE(window.OnCommand(1, 2), TRUE);
    QCOMPARE(window.WindowProc(0x0407, 1, 2), LRESULT{0});
    QCOMPARE(dialog.OnNotify(1, 2, &result), TRUE);
    QCOMPARE(dialog.OnNotify(1, 2, nullptr), TRUE);
    QCOMPARE(window.OnChildNotify(1, 2, 3, &result), FALSE);
    QCOMPARE(window.Default(), LRESULT{0});
    QCOMPARE(result, LRESULT{5});
}

void tst_MessageMembers::timers()
{
    QWidget widget;
    CWnd window;
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(window.SetTimer(1, 0, nullptr), UINT_PTR{0});
        QCOMPARE(window.KillTimer(1), TRUE);
        QCOMPARE(SetTimer(handleOf(&widget), 1, 0, nullptr), UINT_PTR{0});
        QCOMPARE(KillTimer(handleOf(&widget), 1), TRUE);
        window.OnTimer(1);
        window.SetHandle(handleOf(&widget));
    }
    QVERIFY(QAbstractEventDispatcher::instance()->registeredTimers(&widget).isEmpty());
}

QTEST_MAIN(tst_MessageMembers)
#include "tst_MessageMembers.moc"
