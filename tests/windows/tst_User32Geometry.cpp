#include "KxUser32.h"
#include "KxWindows.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

namespace {
QRect asQRect(const RECT &rect)
{
    return QRect(QPoint(rect.left, rect.top), QPoint(rect.right, rect.bottom));
}

QRect windowRect(QWidget *widget)
{
    RECT rect{};
    return GetWindowRect(handleOf(widget), &rect) ? asQRect(rect) : QRect();
}

class Undecorated : public QWidget
{
public:
    explicit Undecorated(const QPoint &position)
        : QWidget(nullptr, Qt::FramelessWindowHint)
    {
        setGeometry(QRect(position, QSize(400, 300)));
    }
};

bool showAt(QWidget &window, const QPoint &position)
{
    window.move(position);
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}
} // namespace

/// Rectangles on the screen, and the screen itself.
class tst_User32Geometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void childOfWindowAtOrigin();
    void grandchild();
    void undecoratedWindow();
    void decoratedWindow();
    void windowOwnedByWidget();
    void hiddenWidgets();
    void windowRectRefused();
    void windowRectNeedsNoObject();

    void clientRect_data();
    void clientRect();
    void clientRectRefused();

    void systemMetrics();
    void systemMetricsOtherIndexes_data();
    void systemMetricsOtherIndexes();
    void desktopWindow();
};

void tst_User32Geometry::cleanup()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets)
        QCOMPARE(widget->windowType(), Qt::Desktop);
}

void tst_User32Geometry::childOfWindowAtOrigin()
{
    Undecorated window(QPoint(0, 0));
    QWidget child(&window);
    child.setGeometry(10, 20, 100, 50);
    QVERIFY(showAt(window, QPoint(0, 0)));
    QTRY_COMPARE(window.mapToGlobal(QPoint(0, 0)), QPoint(0, 0));

    for (auto function : {&GetWindowRect, &KxUser32::GetWindowRect}) {
        RECT rect{};
        QCOMPARE(function(handleOf(&child), &rect), TRUE);
        QCOMPARE(rect.left, 10);
        QCOMPARE(rect.top, 20);
        QCOMPARE(rect.right, 109);
        QCOMPARE(rect.bottom, 69);
    }
}

void tst_User32Geometry::grandchild()
{
    Undecorated window(QPoint(100, 60));
    QGroupBox group(&window);
    group.setGeometry(30, 40, 200, 200);
    QPushButton button(&group);
    button.setGeometry(5, 7, 80, 24);
    QVERIFY(showAt(window, QPoint(100, 60)));

    QTRY_COMPARE(windowRect(&button), QRect(135, 107, 80, 24));
    QCOMPARE(windowRect(&group), QRect(130, 100, 200, 200));
}

void tst_User32Geometry::undecoratedWindow()
{
    Undecorated window(QPoint(100, 60));
    QVERIFY(showAt(window, QPoint(100, 60)));

    QTRY_COMPARE(windowRect(&window), QRect(100, 60, 400, 300));
}

// The rectangle is the frame's: its position and its size.
void tst_User32Geometry::decoratedWindow()
{
    QWidget window;
    window.resize(200, 100);
    QVERIFY(showAt(window, QPoint(300, 200)));
    QTRY_VERIFY(!window.windowHandle()->frameMargins().isNull());
    QTRY_COMPARE(window.pos(), QPoint(300, 200));

    const QSize frame =
        QRect(QPoint(), window.size()).marginsAdded(window.windowHandle()->frameMargins()).size();
    QVERIFY(frame.height() > 100);
    QTRY_COMPARE(windowRect(&window), QRect(QPoint(300, 200), frame));
}

// The position of a window is taken for one inside its parent, as for every other child.
void tst_User32Geometry::windowOwnedByWidget()
{
    Undecorated owner(QPoint(200, 150));
    QWidget dialog(&owner, Qt::Dialog | Qt::FramelessWindowHint);
    dialog.setGeometry(20, 30, 100, 50);
    QVERIFY(showAt(owner, QPoint(200, 150)));
    QTRY_COMPARE(owner.mapToGlobal(QPoint(0, 0)), QPoint(200, 150));

    QCOMPARE(windowRect(&dialog), QRect(220, 180, 100, 50));
}

void tst_User32Geometry::hiddenWidgets()
{
    Undecorated window(QPoint(7, 9));
    QWidget child(&window);
    child.setGeometry(-3, -4, 10, 0);

    QCOMPARE(windowRect(&window), QRect(7, 9, 400, 300));
    RECT rect{};
    QCOMPARE(GetWindowRect(handleOf(&child), &rect), TRUE);
    QCOMPARE(rect.left, 4);
    QCOMPARE(rect.top, 5);
    QCOMPARE(rect.right, 13);
    QCOMPARE(rect.bottom, 4);
}

void tst_User32Geometry::windowRectRefused()
{
    QWidget widget;
    for (auto function : {&GetWindowRect, &KxUser32::GetWindowRect}) {
        RECT rect{1, 2, 3, 4};
        QCOMPARE(function(nullptr, &rect), FALSE);
        QCOMPARE(asQRect(rect), QRect(QPoint(1, 2), QPoint(3, 4)));
        QCOMPARE(function(handleOf(&widget), nullptr), FALSE);
        QCOMPARE(function(nullptr, nullptr), FALSE);
    }
}

// An object that is bound to the widget does not take part.
void tst_User32Geometry::windowRectNeedsNoObject()
{
    Undecorated window(QPoint(7, 9));
    QCOMPARE(windowRect(&window), QRect(7, 9, 400, 300));
    CWnd object;
    object.SetHandle(handleOf(&window));
    object.Detach();
    QCOMPARE(windowRect(&window), QRect(7, 9, 400, 300));
}

void tst_User32Geometry::clientRect_data()
{
    QTest::addColumn<QRect>("geometry");
    QTest::addColumn<int>("right");
    QTest::addColumn<int>("bottom");

    QTest::newRow("position does not count") << QRect(10, 20, 100, 50) << 99 << 49;
    QTest::newRow("one pixel") << QRect(0, 0, 1, 1) << 0 << 0;
    QTest::newRow("empty") << QRect(5, 5, 0, 0) << -1 << -1;
}

void tst_User32Geometry::clientRect()
{
    QFETCH(QRect, geometry);

    QWidget parent;
    QWidget widget(&parent);
    widget.setGeometry(geometry);
    CWnd window;
    window.SetHandle(handleOf(&widget));

    RECT rect{9, 9, 9, 9};
    QCOMPARE(GetClientRect(handleOf(&widget), &rect), TRUE);
    QCOMPARE(rect.left, 0);
    QCOMPARE(rect.top, 0);
    QTEST(int(rect.right), "right");
    QTEST(int(rect.bottom), "bottom");
}

void tst_User32Geometry::clientRectRefused()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    QCOMPARE(GetClientRect(handleOf(&widget), nullptr), FALSE);
    QCOMPARE(GetClientRect(nullptr, nullptr), FALSE);
}

void tst_User32Geometry::systemMetrics()
{
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QVERIFY(screen.width() != screen.height());
    QCOMPARE(GetSystemMetrics(16), screen.width());
    QCOMPARE(GetSystemMetrics(17), screen.height());
}

void tst_User32Geometry::systemMetricsOtherIndexes_data()
{
    QTest::addColumn<int>("index");

    for (int index : {0, 1, 2, 15, 18, 78, 79, -1, -16})
        QTest::addRow("%d", index) << index;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_User32Geometry::systemMetricsOtherIndexes()
{
    QFETCH(int, index);
    QCOMPARE(GetSystemMetrics(index), 0);
}

void tst_User32Geometry::desktopWindow()
{
    const HWND desktop = KxUser32::GetDesktopWindow();
    QCOMPARE(desktop, handleOf(QApplication::desktop()));
    QCOMPARE(KxUser32::GetDesktopWindow(), desktop);
    QVERIFY(!CWnd::FromHandle(desktop));
}

QTEST_MAIN(tst_User32Geometry)
#include "tst_User32Geometry.moc"
