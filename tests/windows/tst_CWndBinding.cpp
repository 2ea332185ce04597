#include "KxWindowPrivate.h"
#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QLabel>
#include <QtTest>

#include <memory>

namespace {
class CountedWnd : public CWnd
{
public:
    ~CountedWnd() override { ++destroyed; }

    static int destroyed;
};
int CountedWnd::destroyed = 0;
} // namespace

class tst_CWndBinding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void construction();
    void processWideObjects();
    void setHandle();
    void setHandleOfNullIsIgnored();
    void secondHandleIsIgnored();
    void attach_data();
    void attach();
    void twoApplicationObjects();
    void destroyingTheSecondObjectTakesTheRegistration();
    void wrapperYieldsToTheNextObject();
    void wrapperYieldsToWrapper();
    void objectGivenToTheLibraryYields();
    void createWrapper();
    void createWrapperOfNull();
    void wrapperOfRegisteredHandle();
    void detach();
    void detachWrapper();
    void detachTwice();
    void attachAfterDetachIsIgnored();
    void fromHandle();
    void createRecordsParent();
    void setParent();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndBinding::init()
{
    CountedWnd::destroyed = 0;
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndBinding::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndBinding::construction()
{
    CWnd parent;
    const CWnd window(&parent);
    const auto *d = CWndPrivate::of(&window);
    QVERIFY(!window.m_hWnd);
    QVERIFY(!d->m_pWidget);
    QCOMPARE(d->q_ptr, &window);
    QCOMPARE(d->m_pParentWnd, &parent);
    QVERIFY(!d->m_pDC);
    QVERIFY(d->m_bPermanent);
    QVERIFY(d->m_bKeepWidget);
    QVERIFY(d->m_mapChildren.empty());
    QCOMPARE(d->m_nCtrlID, -1);
    QVERIFY(!CWndPrivate::of(&parent)->m_pParentWnd);
}

void tst_CWndBinding::processWideObjects()
{
    QVERIFY(CWndList.isEmpty());
    QVERIFY(!CWnd::wndTop.m_hWnd);
    QVERIFY(!HWND(CWnd::wndTop));
    QVERIFY(!CWndPrivate::of(&CWnd::wndTop)->m_pParentWnd);
}

void tst_CWndBinding::setHandle()
{
    QLabel label;
    CWnd window;
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));
    window.SetHandle(handleOf(&label));
    QCOMPARE(window.m_hWnd, handleOf(&label));
    QCOMPARE(window.GetSafeHwnd(), handleOf(&label));
    QCOMPARE(HWND(window), handleOf(&label));
    QCOMPARE(CWndPrivate::of(&window)->m_pWidget.data(), &label);
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), &window);
    QCOMPARE(CWndHandleTable.at(handleOf(&label)), &window);
    QVERIFY(CWndList.isEmpty());
}

void tst_CWndBinding::setHandleOfNullIsIgnored()
{
    QLabel label;
    CWnd window;
    window.SetHandle(nullptr);
    QVERIFY(!window.m_hWnd);
    QCOMPARE(CWndHandleTable.count(nullptr), std::size_t(0));
    window.SetHandle(handleOf(&label));
    QCOMPARE(HWND(window), handleOf(&label));
}

void tst_CWndBinding::secondHandleIsIgnored()
{
    QLabel first;
    QLabel second;
    CWnd window;
    window.SetHandle(handleOf(&first));
    window.SetHandle(handleOf(&second));
    QCOMPARE(HWND(window), handleOf(&first));
    QCOMPARE(CWnd::FromHandle(handleOf(&first)), &window);
    QVERIFY(!CWnd::FromHandle(handleOf(&second)));

    // The same handle again is ignored as well: the object does not meet itself in the registry.
    window.SetHandle(handleOf(&first));
    QCOMPARE(HWND(window), handleOf(&first));
}

void tst_CWndBinding::attach_data()
{
    QTest::addColumn<bool>("boundBefore");
    QTest::addColumn<bool>("nullHandle");
    QTest::addColumn<int>("result");

    QTest::newRow("binds") << false << false << TRUE;
    QTest::newRow("null handle") << false << true << FALSE;
    QTest::newRow("bound before, ignored") << true << false << TRUE;
    QTest::newRow("bound before, null handle") << true << true << FALSE;
}

void tst_CWndBinding::attach()
{
    QFETCH(bool, boundBefore);
    QFETCH(bool, nullHandle);
    QFETCH(int, result);
    QLabel former;
    QLabel label;
    CWnd window;
    if (boundBefore)
        window.SetHandle(handleOf(&former));
    const HWND handle = nullHandle ? nullptr : handleOf(&label);
    QCOMPARE(window.Attach(handle), result);
    QCOMPARE(window.m_hWnd, boundBefore ? handleOf(&former) : handle);
    QCOMPARE(CWnd::FromHandle(handle), boundBefore || nullHandle ? nullptr : &window);
}

void tst_CWndBinding::twoApplicationObjects()
{
    QLabel label(QStringLiteral("text"));
    {
        CWnd first;
        first.SetHandle(handleOf(&label));
        CWnd second;
        second.SetHandle(handleOf(&label));

        QCOMPARE(CWnd::FromHandle(handleOf(&label)), &first);
        QVERIFY(!HWND(first));
        QCOMPARE(first.GetSafeHwnd(), handleOf(&label));
        QCOMPARE(first.GetWindowTextLengthW(), 0);
        QCOMPARE(HWND(second), handleOf(&label));
        QCOMPARE(second.GetWindowTextLengthW(), 4);
    }
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));
}

void tst_CWndBinding::destroyingTheSecondObjectTakesTheRegistration()
{
    QLabel label;
    CWnd first;
    first.SetHandle(handleOf(&label));
    {
        CWnd second;
        second.SetHandle(handleOf(&label));
    }
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));

    // With the registration gone a third object gets it, although the first one still stands for the handle.
    CWnd third;
    third.SetHandle(handleOf(&label));
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), &third);
    QVERIFY(!HWND(first));
}

void tst_CWndBinding::wrapperYieldsToTheNextObject()
{
    QLabel label;
    auto *given = new CountedWnd;
    given->SetHandle(handleOf(&label));
    given->SetAutoDelete(false, false);
    CWnd window;
    window.SetHandle(handleOf(&label));
    QCOMPARE(CountedWnd::destroyed, 1);
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), &window);
    QCOMPARE(HWND(window), handleOf(&label));
}

void tst_CWndBinding::wrapperYieldsToWrapper()
{
    QLabel label;
    CreateCWndByHandle(handleOf(&label));
    CWnd *second = CreateCWndByHandle(handleOf(&label));
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), second);
    QCOMPARE(HWND(*second), handleOf(&label));
    delete second;
}

void tst_CWndBinding::objectGivenToTheLibraryYields()
{
    QLabel label;
    auto *given = new CountedWnd;
    given->SetHandle(handleOf(&label));
    given->SetAutoDelete(false, true);
    CWnd *wrapper = CreateCWndByHandle(handleOf(&label));

    // It was unbound before it was deleted, so that its widget stays although it was to be deleted with it.
    QCOMPARE(CountedWnd::destroyed, 1);
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), wrapper);
    QCOMPARE(HWND(*wrapper), handleOf(&label));
    delete wrapper;
}

void tst_CWndBinding::createWrapper()
{
    QLabel label;
    CWnd *wrapper = CreateCWndByHandle(handleOf(&label));
    QVERIFY(wrapper);
    const auto *d = CWndPrivate::of(wrapper);
    QVERIFY(!d->m_bPermanent);
    QVERIFY(d->m_bKeepWidget);
    QVERIFY(!d->m_pParentWnd);
    QCOMPARE(d->m_nCtrlID, -1);
    QCOMPARE(HWND(*wrapper), handleOf(&label));
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), wrapper);
    delete wrapper;
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));
}

void tst_CWndBinding::createWrapperOfNull()
{
    CWnd *wrapper = CreateCWndByHandle(nullptr);
    QVERIFY(wrapper);
    QVERIFY(!wrapper->GetSafeHwnd());
    QVERIFY(!CWndPrivate::of(wrapper)->m_bPermanent);
    QVERIFY(!CWnd::FromHandle(nullptr));
    delete wrapper;
}

void tst_CWndBinding::wrapperOfRegisteredHandle()
{
    QLabel label;
    CWnd window;
    window.SetHandle(handleOf(&label));
    CWnd *wrapper = CreateCWndByHandle(handleOf(&label));
    QVERIFY(wrapper != &window);
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), &window);
    QVERIFY(!HWND(window));
    QCOMPARE(HWND(*wrapper), handleOf(&label));
    delete wrapper;
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));
}

void tst_CWndBinding::detach()
{
    QLabel label(QStringLiteral("text"));
    CWnd window;
    QVERIFY(!window.Detach());
    window.SetHandle(handleOf(&label));

    QCOMPARE(window.Detach(), handleOf(&label));
    QVERIFY(!HWND(window));
    QCOMPARE(window.GetSafeHwnd(), handleOf(&label));
    QCOMPARE(window.m_hWnd, handleOf(&label));
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), &window);
    window.SetWindowTextW(L"changed");
    QCOMPARE(label.text(), QStringLiteral("text"));
}

void tst_CWndBinding::detachWrapper()
{
    QLabel label;
    auto *window = new CountedWnd;
    window->SetHandle(handleOf(&label));
    window->SetAutoDelete(false, false);
    QCOMPARE(window->Detach(), handleOf(&label));
    QCOMPARE(CountedWnd::destroyed, 1);

    CWnd *wrapper = CWnd::FromHandle(handleOf(&label));
    QVERIFY(wrapper);
    QCOMPARE(HWND(*wrapper), handleOf(&label));
    delete wrapper;
}

void tst_CWndBinding::detachTwice()
{
    QLabel label;
    CWnd window;
    window.SetHandle(handleOf(&label));
    window.Detach();
    QVERIFY(!window.Detach());
    QCOMPARE(window.GetSafeHwnd(), handleOf(&label));
}

void tst_CWndBinding::attachAfterDetachIsIgnored()
{
    QLabel label;
    CWnd window;
    window.SetHandle(handleOf(&label));
    window.Detach();
    QCOMPARE(window.Attach(handleOf(&label)), TRUE);
    QVERIFY(!HWND(window));
}

void tst_CWndBinding::fromHandle()
{
    QLabel label;
    QVERIFY(!CWnd::FromHandle(nullptr));
    QVERIFY(!CWnd::FromHandlePermanent(nullptr));
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));
    QVERIFY(!CWnd::FromHandlePermanent(handleOf(&label)));

    CWnd *wrapper = CreateCWndByHandle(handleOf(&label));
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), wrapper);
    QCOMPARE(CWnd::FromHandlePermanent(handleOf(&label)), wrapper);
    delete wrapper;
}

void tst_CWndBinding::createRecordsParent()
{
    const RECT rect{1, 2, 3, 4};
    QLabel label;
    CWnd parent;
    CWnd window;
    QCOMPARE(window.Create(L"class", L"name", 0, rect, &parent, 7), TRUE);
    QVERIFY(!CWndPrivate::of(&window)->m_pParentWnd);

    window.SetHandle(handleOf(&label));
    QCOMPARE(window.Create(L"class", L"name", WS_VISIBLE, rect, &parent, 7), TRUE);
    QCOMPARE(window.GetParent(), &parent);
    QCOMPARE(window.GetDlgCtrlID(), -1);
    QVERIFY(label.isHidden());
    QVERIFY(label.windowTitle().isEmpty());
    QCOMPARE(window.Create(nullptr, nullptr, 0, rect, nullptr, 0), TRUE);
    QVERIFY(!window.GetParent());
}

void tst_CWndBinding::setParent()
{
    QWidget qtParent;
    auto *label = new QLabel(&qtParent);
    CWnd first;
    CWnd second;
    CWnd window(&first);
    QVERIFY(!window.GetParent());
    window.SetHandle(handleOf(label));
    QCOMPARE(window.GetParent(), &first);
    QCOMPARE(window.SetParent(&second), &first);
    QCOMPARE(window.SetParent(nullptr), &second);
    QVERIFY(!window.GetParent());
    QCOMPARE(label->parentWidget(), &qtParent);
}

QTEST_MAIN(tst_CWndBinding)
#include "tst_CWndBinding.moc"
