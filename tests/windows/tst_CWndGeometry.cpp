#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QLabel>
#include <QtTest>

#include <climits>
#include <memory>

class tst_CWndGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowRectOfChild();
    void windowRectOfNestedChild();
    void windowRectOfFramedWindow();
    void clientRect_data();
    void clientRect();
    void clientToScreen_data();
    void clientToScreen();
    void nullArguments();

    void moveWindow_data();
    void moveWindow();
    void moveTopLevelWindow();
    void setWindowPos_data();
    void setWindowPos();
    void setWindowPosKeepsStacking();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

static QRect inclusive(const RECT &rect)
{
    return QRect(QPoint(rect.left, rect.top), QPoint(rect.right, rect.bottom));
}

void tst_CWndGeometry::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndGeometry::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndGeometry::windowRectOfChild()
{
    QWidget top(nullptr, Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint);
    top.setGeometry(0, 0, 300, 200);
    QLabel label(&top);
    label.setGeometry(10, 20, 100, 50);
    CWnd window;
    window.SetHandle(handleOf(&label));
    top.show();
    QVERIFY(QTest::qWaitForWindowExposed(&top));

    RECT rect{};
    window.GetWindowRect(&rect);
    QCOMPARE(rect.left, 10);
    QCOMPARE(rect.top, 20);
    QCOMPARE(rect.right, 109);
    QCOMPARE(rect.bottom, 69);
    top.move(200, 100);
    QTRY_COMPARE(top.mapToGlobal(QPoint()), QPoint(200, 100));
    window.GetWindowRect(&rect);
    QCOMPARE(inclusive(rect), QRect(210, 120, 100, 50));
}

void tst_CWndGeometry::windowRectOfNestedChild()
{
    QWidget top;
    QWidget middle(&top);
    middle.setGeometry(5, 7, 100, 100);
    QLabel label(&middle);
    label.setGeometry(-10, 20, 30, 40);
    CWnd window;
    window.SetHandle(handleOf(&label));
    RECT rect{};
    window.GetWindowRect(&rect);
    QCOMPARE(inclusive(rect), QRect(top.mapToGlobal(QPoint(-5, 27)), QSize(30, 40)));
}

void tst_CWndGeometry::windowRectOfFramedWindow()
{
    QWidget top;
    top.setGeometry(150, 120, 200, 100);
    CWnd window;
    window.SetHandle(handleOf(&top));
    top.show();
    QVERIFY(QTest::qWaitForWindowExposed(&top));
    QTRY_VERIFY(top.frameGeometry() != top.geometry() || qApp->platformName() == QLatin1String("offscreen"));

    RECT rect{};
    window.GetWindowRect(&rect);
    QCOMPARE(inclusive(rect), top.frameGeometry());
}

void tst_CWndGeometry::clientRect_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("usual") << QSize(100, 50);
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("empty") << QSize(0, 0);
}

void tst_CWndGeometry::clientRect()
{
    QFETCH(QSize, size);
    QWidget parent;
    QWidget widget(&parent);
    widget.setGeometry(QRect(QPoint(10, 20), size));
    CWnd window;
    window.SetHandle(handleOf(&widget));
    RECT rect{7, 7, 7, 7};
    window.GetClientRect(&rect);
    QCOMPARE(rect.left, 0);
    QCOMPARE(rect.top, 0);
    QCOMPARE(rect.right, size.width() - 1);
    QCOMPARE(rect.bottom, size.height() - 1);
}

void tst_CWndGeometry::clientToScreen_data()
{
    QTest::addColumn<QPoint>("point");

    QTest::newRow("origin") << QPoint(0, 0);
    QTest::newRow("inside") << QPoint(3, 4);
    QTest::newRow("negative") << QPoint(-300, -400);
    QTest::newRow("outside") << QPoint(30000, 40000);
}

void tst_CWndGeometry::clientToScreen()
{
    QFETCH(QPoint, point);
    QWidget top(nullptr, Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint);
    top.setGeometry(200, 100, 300, 200);
    QLabel label(&top);
    label.setGeometry(10, 20, 100, 50);
    CWnd window;
    window.SetHandle(handleOf(&label));
    top.show();
    QVERIFY(QTest::qWaitForWindowExposed(&top));
    POINT mapped{point.x(), point.y()};
    window.ClientToScreen(&mapped);
    QCOMPARE(QPoint(mapped.x, mapped.y), point + QPoint(210, 120));
}

void tst_CWndGeometry::nullArguments()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    const QRect before = widget.geometry();
    window.GetWindowRect(nullptr);
    window.GetClientRect(nullptr);
    window.ClientToScreen(static_cast<POINT *>(nullptr));
    window.ClientToScreen(static_cast<RECT *>(nullptr));
    window.ScreenToClient(static_cast<POINT *>(nullptr));
    window.ScreenToClient(static_cast<RECT *>(nullptr));
    window.MapWindowPoints(nullptr, nullptr);
    window.MoveWindow(nullptr);
    QCOMPARE(widget.geometry(), before);
}

void tst_CWndGeometry::moveWindow_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QSize>("size");

    QTest::newRow("moves, size ignored") << QPoint(10, 20) << QSize(500, 600);
    QTest::newRow("no size") << QPoint(10, 20) << QSize(0, 0);
    QTest::newRow("negative size") << QPoint(10, 20) << QSize(-1, INT_MIN);
    QTest::newRow("negative position") << QPoint(-10, -20) << QSize(1, 1);
    QTest::newRow("far away") << QPoint(100000, 100000) << QSize(1, 1);
}

void tst_CWndGeometry::moveWindow()
{
    QFETCH(QPoint, position);
    QFETCH(QSize, size);
    QWidget parent;
    QLabel label(&parent);
    label.setGeometry(1, 2, 30, 40);
    CWnd window;
    window.SetHandle(handleOf(&label));
    window.MoveWindow(position.x(), position.y(), size.width(), size.height(), FALSE);
    QCOMPARE(label.geometry(), QRect(position, QSize(30, 40)));
}

void tst_CWndGeometry::moveTopLevelWindow()
{
    QWidget top;
    top.setGeometry(50, 60, 200, 100);
    CWnd window;
    window.SetHandle(handleOf(&top));
    top.show();
    QVERIFY(QTest::qWaitForWindowExposed(&top));
    window.MoveWindow(300, 200, 10, 10);
    QTRY_COMPARE(top.pos(), QPoint(300, 200));
    QCOMPARE(top.size(), QSize(200, 100));
    QCOMPARE(window.SetWindowPos(nullptr, 220, 230, 0, 0, 0), TRUE);
    QTRY_COMPARE(top.pos(), QPoint(220, 230));
    QCOMPARE(top.size(), QSize(200, 100));
}

void tst_CWndGeometry::setWindowPos_data()
{
    QTest::addColumn<int>("cx");
    QTest::addColumn<int>("cy");
    QTest::addColumn<uint>("flags");
    QTest::addColumn<bool>("moves");

    QTest::newRow("both positive") << 100 << 50 << 0u << false;
    QTest::newRow("smallest positive") << 1 << 1 << 0u << false;
    QTest::newRow("both positive, SWP_NOSIZE") << 100 << 50 << SWP_NOSIZE << false;
    QTest::newRow("none") << 0 << 0 << 0u << true;
    QTest::newRow("none, SWP_NOMOVE not honoured") << 0 << 0 << SWP_NOMOVE << true;
    QTest::newRow("none, all flags") << 0 << 0 << UINT_MAX << true;
    QTest::newRow("width only") << 100 << 0 << 0u << true;
    QTest::newRow("height only") << 0 << 50 << 0u << true;
    QTest::newRow("negative width") << -1 << 50 << 0u << true;
    QTest::newRow("negative height") << 100 << INT_MIN << 0u << true;
    QTest::newRow("both negative") << -1 << -1 << 0u << true;
}

void tst_CWndGeometry::setWindowPos()
{
    QFETCH(int, cx);
    QFETCH(int, cy);
    QFETCH(uint, flags);
    QFETCH(bool, moves);
    QWidget parent;
    QLabel label(&parent);
    label.setGeometry(1, 2, 30, 40);
    CWnd window;
    window.SetHandle(handleOf(&label));
    QCOMPARE(window.SetWindowPos(&CWnd::wndTop, -5, 6, cx, cy, flags), TRUE);
    QCOMPARE(label.geometry(), QRect(moves ? QPoint(-5, 6) : QPoint(1, 2), QSize(30, 40)));
}

void tst_CWndGeometry::setWindowPosKeepsStacking()
{
    QWidget parent;
    QLabel lower(&parent);
    QLabel upper(&parent);
    CWnd window;
    CWnd other;
    window.SetHandle(handleOf(&lower));
    other.SetHandle(handleOf(&upper));
    const QObjectList order = parent.children();
    window.SetWindowPos(&CWnd::wndTop, 1, 2, 0, 0, 0);
    window.SetWindowPos(nullptr, 1, 2, 0, 0, 0);
    other.SetWindowPos(&window, 1, 2, 0, 0, 0);
    window.BringWindowToTop();
    QCOMPARE(parent.children(), order);
}

QTEST_MAIN(tst_CWndGeometry)
#include "tst_CWndGeometry.moc"
