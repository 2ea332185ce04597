#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <climits>
#include <memory>

namespace {
class VisibilityWidget : public QWidget
{
public:
    using QWidget::QWidget;
    void setVisible(bool visible) override
    {
        ++calls;
        QWidget::setVisible(visible);
    }

    int calls = 0;
};

class PaintedWidget : public QWidget
{
public:
    // Waits for what showing the window paints.
    bool settle()
    {
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            return false;
        if (!QTest::qWaitFor([this] { return !painted.isEmpty(); }))
            return false;
        while (!painted.isEmpty()) {
            painted = QRegion();
            QCoreApplication::processEvents();
        }
        return true;
    }

    QRegion painted;

protected:
    void paintEvent(QPaintEvent *event) override { painted += event->region(); }
};
} // namespace

class tst_CWndOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void showWindow_data();
    void showWindow();
    void isWindowVisible();
    void enableWindow_data();
    void enableWindow();
    void isWindowEnabled();
    void modifyStyle_data();
    void modifyStyle();

    void setFocus_data();
    void setFocus();
    void getFocus();

    void invalidate_data();
    void invalidate();
    void repaintRequestsWithoutEffect();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndOperations::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndOperations::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndOperations::showWindow_data()
{
    QTest::addColumn<int>("command");
    QTest::addColumn<bool>("visible");

    QTest::newRow("SW_HIDE") << 0 << false;
    QTest::newRow("SW_SHOWNORMAL") << 1 << true;
    QTest::newRow("SW_SHOWMINIMIZED") << 2 << true;
    QTest::newRow("SW_SHOWMAXIMIZED") << 3 << true;
    QTest::newRow("SW_SHOW") << 5 << true;
    QTest::newRow("negative") << -1 << true;
    QTest::newRow("even, not a flag") << 256 << true;
    QTest::newRow("smallest") << INT_MIN << true;
}

void tst_CWndOperations::showWindow()
{
    QFETCH(int, command);
    QFETCH(bool, visible);
    QWidget parent;
    VisibilityWidget widget(&parent);
    widget.setHidden(visible);
    const QSize size = widget.size();
    widget.calls = 0;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    QCOMPARE(window.ShowWindow(command), TRUE);
    QCOMPARE(widget.isHidden(), !visible);
    QCOMPARE(widget.calls, 1);
    QCOMPARE(widget.windowState(), Qt::WindowStates(Qt::WindowNoState));
    QCOMPARE(widget.size(), size);
}

void tst_CWndOperations::isWindowVisible()
{
    QWidget parent;
    QLabel label(&parent);
    CWnd top;
    CWnd child;
    top.SetHandle(handleOf(&parent));
    child.SetHandle(handleOf(&label));
    label.show();
    QCOMPARE(child.IsWindowVisible(), FALSE);
    QCOMPARE(top.ShowWindow(SW_SHOW), TRUE);
    QCOMPARE(top.IsWindowVisible(), TRUE);
    QCOMPARE(child.IsWindowVisible(), TRUE);
    QCOMPARE(top.ShowWindow(SW_HIDE), TRUE);
    QCOMPARE(top.IsWindowVisible(), FALSE);
    QCOMPARE(child.IsWindowVisible(), FALSE);
}

void tst_CWndOperations::enableWindow_data()
{
    QTest::addColumn<bool>("enabledBefore");
    QTest::addColumn<int>("flag");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("enabledAfter");

    QTest::newRow("disables") << true << FALSE << TRUE << false;
    QTest::newRow("enables") << false << TRUE << FALSE << true;
    QTest::newRow("stays enabled") << true << TRUE << TRUE << true;
    QTest::newRow("stays disabled") << false << FALSE << FALSE << false;
    QTest::newRow("every value but 0 enables") << false << 256 << FALSE << true;
    QTest::newRow("negative enables") << false << -1 << FALSE << true;
}

void tst_CWndOperations::enableWindow()
{
    QFETCH(bool, enabledBefore);
    QFETCH(int, flag);
    QWidget widget;
    widget.setEnabled(enabledBefore);
    CWnd window;
    window.SetHandle(handleOf(&widget));
    QTEST(window.EnableWindow(flag), "result");
    QTEST(widget.isEnabled(), "enabledAfter");
}

void tst_CWndOperations::isWindowEnabled()
{
    QWidget parent;
    QLabel label(&parent);
    CWnd child;
    QCOMPARE(child.IsWindowEnabled(), TRUE);
    child.SetHandle(handleOf(&label));
    QCOMPARE(child.IsWindowEnabled(), TRUE);
    parent.setEnabled(false);
    QCOMPARE(child.IsWindowEnabled(), FALSE);
    QCOMPARE(child.EnableWindow(TRUE), FALSE);
    QCOMPARE(child.IsWindowEnabled(), FALSE);
}

void tst_CWndOperations::modifyStyle_data()
{
    QTest::addColumn<bool>("enabledBefore");
    QTest::addColumn<uint>("remove");
    QTest::addColumn<uint>("add");
    QTest::addColumn<bool>("enabledAfter");

    const uint disabled = 0x08000000;
    const uint visible = 0x10000000;
    QTest::newRow("removes WS_DISABLED") << false << disabled << 0u << true;
    QTest::newRow("adds WS_DISABLED") << true << 0u << disabled << false;
    QTest::newRow("removes and adds") << true << disabled << disabled << true;
    QTest::newRow("removes and adds, disabled") << false << disabled << disabled << false;
    QTest::newRow("removes more") << false << (disabled | visible) << 0u << false;
    QTest::newRow("adds more") << true << 0u << (disabled | visible) << true;
    QTest::newRow("removes it, adds another") << false << disabled << visible << false;
    QTest::newRow("adds it, removes another") << true << visible << disabled << true;
    QTest::newRow("other bits only") << true << visible << 1u << true;
    QTest::newRow("all bits removed") << false << UINT_MAX << 0u << false;
    QTest::newRow("nothing") << true << 0u << 0u << true;
}

void tst_CWndOperations::modifyStyle()
{
    QFETCH(bool, enabledBefore);
    QFETCH(uint, remove);
    QFETCH(uint, add);
    QWidget widget;
    widget.setEnabled(enabledBefore);
    CWnd window;
    window.SetHandle(handleOf(&widget));
    QCOMPARE(window.ModifyStyle(remove, add, SWP_NOSIZE), TRUE);
    QTEST(widget.isEnabled(), "enabledAfter");
    QVERIFY(widget.isHidden());
}

void tst_CWndOperations::setFocus_data()
{
    QTest::addColumn<bool>("formerIsRegistered");

    QTest::newRow("former focus has an object") << true;
    QTest::newRow("former focus has none") << false;
}

void tst_CWndOperations::setFocus()
{
    QFETCH(bool, formerIsRegistered);
    QWidget top;
    QLineEdit first(&top);
    QLineEdit second(&top);
    CWnd former;
    CWnd window;
    if (formerIsRegistered)
        former.SetHandle(handleOf(&first));
    window.SetHandle(handleOf(&second));
    top.show();
    top.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&top));
    first.setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), &first);

    QCOMPARE(window.SetFocus(), formerIsRegistered ? &former : nullptr);
    QCOMPARE(QApplication::focusWidget(), &second);
    QCOMPARE(CWnd::GetFocus(), &window);
    QCOMPARE(window.SetFocus(), &window);
}

void tst_CWndOperations::getFocus()
{
    QVERIFY(!CWnd::GetFocus());
    QLineEdit edit;
    edit.show();
    edit.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QTRY_COMPARE(QApplication::focusWidget(), &edit);
    QVERIFY(!CWnd::GetFocus());
    QVERIFY(!CWnd::FromHandle(handleOf(&edit)));

    CWnd window;
    window.SetHandle(handleOf(&edit));
    QCOMPARE(CWnd::GetFocus(), &window);
    window.Detach();
    QCOMPARE(CWnd::GetFocus(), &window);
}

void tst_CWndOperations::invalidate_data()
{
    QTest::addColumn<bool>("byRectangle");

    QTest::newRow("whole window") << false;
    QTest::newRow("rectangle is ignored") << true;
}

void tst_CWndOperations::invalidate()
{
    QFETCH(bool, byRectangle);
    const RECT corner{0, 0, 1, 1};
    PaintedWidget widget;
    widget.resize(100, 50);
    CWnd window;
    window.SetHandle(handleOf(&widget));
    widget.show();
    QVERIFY(widget.settle());

    byRectangle ? window.InvalidateRect(&corner, FALSE) : window.Invalidate();
    QVERIFY(widget.painted.isEmpty());
    QTRY_COMPARE(widget.painted, QRegion(widget.rect()));
    widget.painted = QRegion();
    byRectangle ? window.InvalidateRect(nullptr) : window.Invalidate(FALSE);
    QTRY_COMPARE(widget.painted, QRegion(widget.rect()));
}

void tst_CWndOperations::repaintRequestsWithoutEffect()
{
    PaintedWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    widget.show();
    QVERIFY(widget.settle());

    window.UpdateWindow();
    QCOMPARE(window.RedrawWindow(), TRUE);
    window.SetRedraw(FALSE);
    window.LockWindowUpdate();
    QVERIFY(widget.updatesEnabled());
    QCoreApplication::processEvents();
    QVERIFY(widget.painted.isEmpty());
    window.Invalidate();
    QTRY_VERIFY(!widget.painted.isEmpty());
}

QTEST_MAIN(tst_CWndOperations)
#include "tst_CWndOperations.moc"
