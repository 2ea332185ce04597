#include <KxDialogs.h>

#include "SilentOffscreen.h"
#include "WindowHandle.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

static constexpr int applyID = 1501;

/// A page that counts how often it took the focus, and sees what its Apply button was then.
class Page : public CKcUiTabChildDialog
{
public:
    explicit Page(CWnd *pHost)
        : CKcUiTabChildDialog(129, pHost)
    {
    }

    CWnd *SetFocus() override
    {
        ++m_focused;
        m_applyWasEnabled = m_apply && m_apply->isEnabled();
        return CKcUiTabChildDialog::SetFocus();
    }

    QWidget *m_apply = nullptr;
    int m_focused = 0;
    bool m_applyWasEnabled = false;
};

/// A host window with an Apply button and a page in it.
class HostWindow
{
public:
    HostWindow()
    {
        auto *layout = new QVBoxLayout(&m_window);
        layout->addWidget(&m_pageWidget);
        layout->addWidget(&m_edit);
        layout->addWidget(&m_apply);
        m_host.Attach(handleOf(&m_window));
        m_host.SetDlgItem(applyID, handleOf(&m_apply));
        m_page.Attach(handleOf(&m_pageWidget));
        m_page.m_apply = &m_apply;
    }

    bool showWithFocus(QWidget &focused)
    {
        m_window.show();
        m_window.activateWindow();
        focused.setFocus();
        return QTest::qWaitForWindowActive(&m_window) && focused.hasFocus();
    }

    QWidget m_window;
    QWidget m_pageWidget;
    QLineEdit m_edit;
    QPushButton m_apply;
    CDialog m_host;
    Page m_page{&m_host};
};

class tst_CKcUiTabChildDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_silent.reset(new SilentOffscreen); }
    void cleanupTestCase() { m_silent.reset(); }
    void cleanup();

    void construction();
    void enables_data();
    void enables();
    void movesTheFocusFirst();
    void keepsTheFocusWhenDirty();
    void leavesTheFocusOfOthers();
    void withoutHost();
    void withoutApply();
    void applyDestroyed();
    void unboundHost();
    void unboundPage();
    void inheritedFixedResults();

private:
    QScopedPointer<SilentOffscreen> m_silent;
};

void tst_CKcUiTabChildDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_CKcUiTabChildDialog::construction()
{
    HostWindow host;
    QCOMPARE(host.m_page.GetParent(), static_cast<CWnd *>(&host.m_host));
    QCOMPARE(host.m_page.m_nModalResult, -100);
}

void tst_CKcUiTabChildDialog::enables_data()
{
    QTest::addColumn<bool>("dirty");
    QTest::addColumn<bool>("enabledBefore");

    QTest::newRow("dirty enables") << true << false;
    QTest::newRow("dirty and enabled") << true << true;
    QTest::newRow("clean disables") << false << true;
    QTest::newRow("clean and disabled") << false << false;
}

void tst_CKcUiTabChildDialog::enables()
{
    QFETCH(bool, dirty);
    QFETCH(bool, enabledBefore);

    HostWindow host;
    host.m_apply.setEnabled(enabledBefore);
    // EnableWindow() tells whether the control was enabled.
    QCOMPARE(host.m_page.SetDirty(dirty), BOOL(enabledBefore));
    QCOMPARE(host.m_apply.isEnabled(), dirty);
    QCOMPARE(host.m_page.m_focused, 0);
}

void tst_CKcUiTabChildDialog::movesTheFocusFirst()
{
    HostWindow host;
    QVERIFY(host.showWithFocus(host.m_apply));
    QCOMPARE(host.m_page.SetDirty(false), TRUE);
    QCOMPARE(host.m_page.m_focused, 1);
    QVERIFY(host.m_page.m_applyWasEnabled);
    QVERIFY(!host.m_apply.isEnabled());
    QCOMPARE(QApplication::focusWidget(), &host.m_pageWidget);
}

void tst_CKcUiTabChildDialog::keepsTheFocusWhenDirty()
{
    HostWindow host;
    QVERIFY(host.showWithFocus(host.m_apply));
    QCOMPARE(host.m_page.SetDirty(true), TRUE);
    QCOMPARE(host.m_page.m_focused, 0);
    QCOMPARE(QApplication::focusWidget(), &host.m_apply);
    QVERIFY(host.m_apply.isEnabled());
}

void tst_CKcUiTabChildDialog::leavesTheFocusOfOthers()
{
    HostWindow host;
    QVERIFY(host.showWithFocus(host.m_edit));
    QCOMPARE(host.m_page.SetDirty(false), TRUE);
    QCOMPARE(host.m_page.m_focused, 0);
    QCOMPARE(QApplication::focusWidget(), &host.m_edit);
    QVERIFY(!host.m_apply.isEnabled());
}

void tst_CKcUiTabChildDialog::withoutHost()
{
    QWidget window;
    Page page(nullptr);
    page.Attach(handleOf(&window));
    QCOMPARE(page.SetDirty(true), 0);
    QCOMPARE(page.SetDirty(false), 0);
    QCOMPARE(page.m_focused, 0);
}

void tst_CKcUiTabChildDialog::withoutApply()
{
    HostWindow host;
    CDialog otherHost;
    QWidget otherWindow;
    otherHost.Attach(handleOf(&otherWindow));
    host.m_page.SetParent(&otherHost);
    // The placeholder's EnableWindow() gives TRUE.
    QCOMPARE(host.m_page.SetDirty(false), TRUE);
    QCOMPARE(host.m_page.SetDirty(true), TRUE);
    QCOMPARE(host.m_page.m_focused, 0);
    QVERIFY(otherWindow.isEnabled() && host.m_apply.isEnabled());
}

void tst_CKcUiTabChildDialog::applyDestroyed()
{
    QWidget window;
    QWidget pageWidget(&window);
    auto *apply = new QPushButton(&window);
    CDialog host;
    host.Attach(handleOf(&window));
    host.SetDlgItem(applyID, handleOf(apply));
    Page page(&host);
    page.Attach(handleOf(&pageWidget));
    QCOMPARE(page.SetDirty(false), TRUE);
    delete apply;
    QCOMPARE(page.SetDirty(false), TRUE);
    QCOMPARE(page.m_focused, 0);
}

void tst_CKcUiTabChildDialog::unboundHost()
{
    QWidget window;
    CDialog host;
    Page page(&host);
    page.Attach(handleOf(&window));
    QCOMPARE(page.SetDirty(true), 0);
    QCOMPARE(page.SetDirty(false), 0);
    QCOMPARE(page.m_focused, 0);
}

void tst_CKcUiTabChildDialog::unboundPage()
{
    HostWindow host;
    Page page(&host.m_host);
    QCOMPARE(page.SetDirty(false), 0);
    QVERIFY(host.m_apply.isEnabled());
}

void tst_CKcUiTabChildDialog::inheritedFixedResults()
{
    HostWindow host;
    RECT rect{1, 2, 3, 4};
    const QRect before = host.m_pageWidget.geometry();
    host.m_page.BeginEditorCommand();
    host.m_page.CompleteEditorCommand();
    host.m_page.SetDialogName(L"name");
    host.m_page.OnSize(0, 10, 10);
    host.m_page.OnSizing(0, &rect);
    QCOMPARE(host.m_pageWidget.geometry(), before);
    QVERIFY(host.m_pageWidget.windowTitle().isEmpty());
    QCOMPARE(rect.right, 3);
}

QTEST_MAIN(tst_CKcUiTabChildDialog)
#include "tst_CKcUiTabChildDialog.moc"
