#include <KxApplication.h>
#include <KxDialogs.h>

#include "WindowHandle.h"

#include <QApplication>
#include <QTest>

/// An application object for the time of a test.
class Application : public CWinApp
{
public:
    Application() { g_pWinApp = this; }
    ~Application() { g_pWinApp = nullptr; }
};

static QWidget *defaultParent()
{
    const QBaseDialog dialog;
    return dialog.parentWidget();
}

class tst_QBaseDialogParent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void windowFlags();
    void withoutApplication();
    void withoutMainWindow();
    void unboundMainWindow();
    void mainWindow();
    void givenParentComesFirst();
    void detachedMainWindow();
    void destroyedMainWindow();
    void overriddenMainWindow();
    void overriddenHandle();
    void goesWithTheMainWindow();
};

void tst_QBaseDialogParent::cleanup()
{
    QVERIFY(!g_pWinApp);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_QBaseDialogParent::windowFlags()
{
    const QBaseDialog dialog;
    QCOMPARE(int(dialog.windowFlags() & Qt::WindowType_Mask), 11);
    QCOMPARE(dialog.windowType(), Qt::Tool);
    QWidget parent;
    const QBaseDialog child(&parent);
    QCOMPARE(child.windowType(), Qt::Tool);
    QVERIFY(!child.isVisible());
}

void tst_QBaseDialogParent::withoutApplication()
{
    QCOMPARE(defaultParent(), nullptr);
}

void tst_QBaseDialogParent::withoutMainWindow()
{
    const Application application;
    QCOMPARE(defaultParent(), nullptr);
}

void tst_QBaseDialogParent::unboundMainWindow()
{
    Application application;
    CWnd window;
    application.SetMainWnd(&window);
    QCOMPARE(defaultParent(), nullptr);
}

void tst_QBaseDialogParent::mainWindow()
{
    Application application;
    QWidget widget;
    CWnd window;
    window.Attach(handleOf(&widget));
    application.SetMainWnd(&window);
    QCOMPARE(defaultParent(), &widget);
    const QBaseDialog dialog;
    QVERIFY(dialog.isWindow());
    QCOMPARE(dialog.windowType(), Qt::Tool);
}

void tst_QBaseDialogParent::givenParentComesFirst()
{
    Application application;
    QWidget widget;
    QWidget parent;
    CWnd window;
    window.Attach(handleOf(&widget));
    application.SetMainWnd(&window);
    const QBaseDialog dialog(&parent);
    QCOMPARE(dialog.parentWidget(), &parent);
}

void tst_QBaseDialogParent::detachedMainWindow()
{
    Application application;
    QWidget widget;
    CWnd window;
    window.Attach(handleOf(&widget));
    application.SetMainWnd(&window);
    window.Detach();
    // The object still tells the handle that it had.
    QCOMPARE(defaultParent(), &widget);
}

void tst_QBaseDialogParent::destroyedMainWindow()
{
    Application application;
    auto *widget = new QWidget;
    CWnd window;
    window.Attach(handleOf(widget));
    application.SetMainWnd(&window);
    delete widget;
    QCOMPARE(defaultParent(), nullptr);
}

void tst_QBaseDialogParent::overriddenMainWindow()
{
    class Overriding : public Application
    {
    public:
        CWnd *GetMainWnd() override { return m_pWindow; }
        CWnd *m_pWindow = nullptr;
    };
    Overriding application;
    QWidget widget;
    CWnd window;
    window.Attach(handleOf(&widget));
    application.m_pWindow = &window;
    QCOMPARE(defaultParent(), &widget);
}

void tst_QBaseDialogParent::overriddenHandle()
{
    class Overriding : public CWnd
    {
    public:
        HWND GetSafeHwnd() override { return m_hHandle; }
        HWND m_hHandle = nullptr;
    };
    Application application;
    QWidget widget;
    QWidget other;
    Overriding window;
    window.Attach(handleOf(&widget));
    window.m_hHandle = handleOf(&other);
    application.SetMainWnd(&window);
    QCOMPARE(defaultParent(), &other);
    window.m_hHandle = nullptr;
    QCOMPARE(defaultParent(), nullptr);
}

void tst_QBaseDialogParent::goesWithTheMainWindow()
{
    Application application;
    auto *widget = new QWidget;
    CWnd window;
    window.Attach(handleOf(widget));
    application.SetMainWnd(&window);
    new QBaseDialog;
    // The dialog is the main window's child; cleanup() would find it.
    delete widget;
}

QTEST_MAIN(tst_QBaseDialogParent)
#include "tst_QBaseDialogParent.moc"
