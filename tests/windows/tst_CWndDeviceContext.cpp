#include "KxDrawing.h"
#include "KxWindowPrivate.h"
#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QLabel>
#include <QtTest>

#include <memory>

namespace {
class ProbeDevice : public KxQtPaintDeviceWrapper
{
public:
    explicit ProbeDevice(int &count)
        : destroyed(count)
    {
    }
    ~ProbeDevice() override { ++destroyed; }

    int &destroyed;
};

HDC handleOf(KxQtPaintDeviceWrapper *device)
{
    return reinterpret_cast<HDC>(device);
}
} // namespace

class tst_CWndDeviceContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void sameContextEveryTime();
    void oneContextPerWindow();
    void releaseKeepsTheContext();
    void safeHdc();
    void safeHdcMakesNoContext();
    void safeHdcOfDetachedWindow();
    void windowDestroysContextAndDevice();
    void detachedWindowDestroysItsContext();
    void contextOutlivesTheWidget();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndDeviceContext::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndDeviceContext::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndDeviceContext::sameContextEveryTime()
{
    QLabel label;
    CWnd window;
    QVERIFY(!window.GetDC());
    QVERIFY(!CWndPrivate::of(&window)->m_pDC);
    window.SetHandle(handleOf(&label));
    CDC *dc = window.GetDC();
    QVERIFY(dc);
    QCOMPARE(CWndPrivate::of(&window)->m_pDC, dc);
    QCOMPARE(window.GetDC(), dc);
}

void tst_CWndDeviceContext::oneContextPerWindow()
{
    QLabel first;
    QLabel second;
    CWnd one;
    CWnd other;
    one.SetHandle(handleOf(&first));
    other.SetHandle(handleOf(&second));
    QVERIFY(one.GetDC() != other.GetDC());
}

void tst_CWndDeviceContext::releaseKeepsTheContext()
{
    QLabel label;
    int destroyed = 0;
    CWnd window;
    window.SetHandle(handleOf(&label));
    CDC *dc = window.GetDC();
    dc->m_hDC = handleOf(new ProbeDevice(destroyed));
    QCOMPARE(window.ReleaseDC(dc), 0);
    QCOMPARE(window.ReleaseDC(nullptr), 0);
    QCOMPARE(window.GetDC(), dc);
    QCOMPARE(destroyed, 0);
    QVERIFY(!window.GetWindowDC());
}

void tst_CWndDeviceContext::safeHdc()
{
    QLabel label;
    int destroyed = 0;
    CWnd window;
    window.SetHandle(handleOf(&label));
    CDC *dc = window.GetDC();
    QCOMPARE(window.GetSafeHdc(), HDC(*dc));
    auto *device = new ProbeDevice(destroyed);
    dc->m_hDC = handleOf(device);
    QCOMPARE(window.GetSafeHdc(), handleOf(device));
    QVERIFY(!dc->GetSafeHdc());
}

void tst_CWndDeviceContext::safeHdcMakesNoContext()
{
    QLabel label;
    CWnd window;
    QVERIFY(!window.GetSafeHdc());
    window.SetHandle(handleOf(&label));
    QVERIFY(!window.GetSafeHdc());
    QVERIFY(!CWndPrivate::of(&window)->m_pDC);
}

void tst_CWndDeviceContext::safeHdcOfDetachedWindow()
{
    QLabel label;
    int destroyed = 0;
    CWnd window;
    window.SetHandle(handleOf(&label));
    window.GetDC()->m_hDC = handleOf(new ProbeDevice(destroyed));
    window.Detach();
    QVERIFY(!window.GetSafeHdc());
    QVERIFY(!window.GetDC());
    QVERIFY(CWndPrivate::of(&window)->m_pDC);
    QCOMPARE(destroyed, 0);
}

void tst_CWndDeviceContext::windowDestroysContextAndDevice()
{
    QLabel label;
    int destroyed = 0;
    {
        CWnd window;
        window.SetHandle(handleOf(&label));
        window.GetDC()->m_hDC = handleOf(new ProbeDevice(destroyed));
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_CWndDeviceContext::detachedWindowDestroysItsContext()
{
    QLabel label;
    int destroyed = 0;
    {
        CWnd window;
        window.SetHandle(handleOf(&label));
        window.GetDC()->m_hDC = handleOf(new ProbeDevice(destroyed));
        window.Detach();
    }
    QCOMPARE(destroyed, 1);
}

void tst_CWndDeviceContext::contextOutlivesTheWidget()
{
    auto *label = new QLabel;
    int destroyed = 0;
    {
        CWnd window;
        window.SetHandle(handleOf(label));
        window.GetDC()->m_hDC = handleOf(new ProbeDevice(destroyed));
        delete label;
        QVERIFY(!window.GetDC());
        QVERIFY(!window.GetSafeHdc());
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

QTEST_MAIN(tst_CWndDeviceContext)
#include "tst_CWndDeviceContext.moc"
