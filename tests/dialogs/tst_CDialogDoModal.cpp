#include "RecordedDialog.h"

#include "ModalDriver.h"
#include "SilentOffscreen.h"

#include <QLineEdit>
#include <QPointer>

#include <climits>

using End = std::function<void(RecordedDialog &, QDialog &)>;
Q_DECLARE_METATYPE(End)

class tst_CDialogDoModal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_silent.reset(new SilentOffscreen); }
    void cleanupTestCase() { m_silent.reset(); }
    void cleanup();

    void steps();
    void ends_data();
    void ends();
    void failedValidationKeepsItOpen();
    void cancelDoesNotValidate();
    void notShown_data();
    void notShown();
    void escapeComesToTheOverride_data();
    void escapeComesToTheOverride();
    void endDialogInInit();
    void laterEndDialogInInitIsReplaced();
    void dialogFromADialog();
    void bindingStaysBetweenRuns();
    void thousandRuns();
    void deletedOnClose_data();
    void deletedOnClose();
    void deletedWhileRunning_data();
    void deletedWhileRunning();
    void deletedInInit();

private:
    QScopedPointer<SilentOffscreen> m_silent;
};

void tst_CDialogDoModal::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_CDialogDoModal::steps()
{
    RecordedDialog dialog;
    RecordedWindow<QDialog> window(dialog.m_log);
    dialog.Attach(handleOf(&window));
    dialog.m_nModalResult = 7;
    dialog.m_inInit = [&] { QVERIFY(!window.isVisible()); };
    const ModalDriver driver([&](QWidget *shown) {
        QCOMPARE(shown, &window);
        QVERIFY(window.isVisible());
        QCOMPARE(window.windowModality(), Qt::ApplicationModal);
        dialog.EndDialog(3);
    });
    QCOMPARE(dialog.DoModal(), INT_PTR(3));
    const QStringList log{QStringLiteral("init -100"), QStringLiteral("load"), QStringLiteral("exec"),
                          QStringLiteral("accept")};
    QCOMPARE(dialog.m_log, log);
    QCOMPARE(dialog.m_nModalResult, 3);
    QVERIFY(!window.isVisible());
}

void tst_CDialogDoModal::ends_data()
{
    QTest::addColumn<End>("end");
    QTest::addColumn<int>("result");

    const auto endDialog = [](int code) {
        return End([code](RecordedDialog &dialog, QDialog &) { dialog.EndDialog(code); });
    };
    QTest::newRow("EndDialog 0") << endDialog(0) << 0;
    QTest::newRow("EndDialog 1") << endDialog(1) << 1;
    QTest::newRow("EndDialog 2") << endDialog(2) << 2;
    QTest::newRow("EndDialog 7") << endDialog(7) << 7;
    QTest::newRow("EndDialog -1") << endDialog(-1) << -1;
    QTest::newRow("EndDialog -100 counts as OK") << endDialog(-100) << 1;
    QTest::newRow("EndDialog largest int") << endDialog(INT_MAX) << INT_MAX;
    QTest::newRow("EndDialog smallest int") << endDialog(INT_MIN) << INT_MIN;
    QTest::newRow("last EndDialog counts") << End([](RecordedDialog &dialog, QDialog &) {
        dialog.EndDialog(7);
        dialog.EndDialog(8);
    }) << 8;
    QTest::newRow("OnOK") << End([](RecordedDialog &dialog, QDialog &) { dialog.OnOK(); }) << 1;
    QTest::newRow("OnCancel") << End([](RecordedDialog &dialog, QDialog &) { dialog.OnCancel(); }) << 2;
    QTest::newRow("Escape") << End([](RecordedDialog &, QDialog &window) {
        QTest::keyClick(&window, Qt::Key_Escape);
    }) << 2;
    QTest::newRow("window closed") << End([](RecordedDialog &, QDialog &window) { window.close(); }) << 2;
    QTest::newRow("window hidden") << End([](RecordedDialog &, QDialog &window) { window.hide(); }) << 2;
    QTest::newRow("widget accepted") << End([](RecordedDialog &, QDialog &window) { window.accept(); }) << 1;
    QTest::newRow("widget rejected") << End([](RecordedDialog &, QDialog &window) { window.reject(); }) << 2;
    QTest::newRow("widget done with 5")
        << End([](RecordedDialog &, QDialog &window) { window.done(5); }) << 2;
    QTest::newRow("result set without an end") << End([](RecordedDialog &dialog, QDialog &window) {
        dialog.m_nModalResult = 9;
        window.reject();
    }) << 9;
}

void tst_CDialogDoModal::ends()
{
    QFETCH(End, end);
    QFETCH(int, result);

    RecordedDialog dialog;
    RecordedWindow<QDialog> plain(dialog.m_log);
    dialog.Attach(handleOf(&plain));
    RecordedDialog based;
    RecordedWindow<QBaseDialog> base(based.m_log);
    based.Attach(handleOf(&base));
    {
        const ModalDriver driver([&](QWidget *) { end(dialog, plain); });
        QCOMPARE(dialog.DoModal(), INT_PTR(result));
    }
    const ModalDriver driver([&](QWidget *) { end(based, base); });
    QCOMPARE(based.DoModal(), INT_PTR(result));
}

void tst_CDialogDoModal::failedValidationKeepsItOpen()
{
    RecordedDialog dialog;
    RecordedWindow<QBaseDialog> window(dialog.m_log);
    dialog.Attach(handleOf(&window));
    const ModalDriver driver([&](QWidget *) {
        dialog.m_fail = true;
        dialog.OnOK();
        QVERIFY(window.isVisible());
        QCOMPARE(dialog.m_nModalResult, -100);
        dialog.m_fail = false;
        dialog.OnOK();
    });
    QCOMPARE(dialog.DoModal(), INT_PTR(1));
    QCOMPARE(dialog.m_log.count(QStringLiteral("save")), 2);
    QCOMPARE(dialog.m_log.count(QStringLiteral("accept")), 1);
}

void tst_CDialogDoModal::cancelDoesNotValidate()
{
    RecordedDialog dialog;
    RecordedWindow<QDialog> window(dialog.m_log);
    dialog.Attach(handleOf(&window));
    const ModalDriver driver([&](QWidget *) { dialog.EndDialog(1); });
    QCOMPARE(dialog.DoModal(), INT_PTR(1));
    // Only OnOK() reads the controls back.
    QVERIFY(!dialog.m_log.contains(QStringLiteral("save")));
}

void tst_CDialogDoModal::notShown_data()
{
    QTest::addColumn<bool>("bound");
    QTest::addColumn<bool>("isDialog");

    QTest::newRow("never bound") << false << true;
    QTest::newRow("no QDialog") << true << false;
    QTest::newRow("detached") << true << true;
}

void tst_CDialogDoModal::notShown()
{
    QFETCH(bool, bound);
    QFETCH(bool, isDialog);

    RecordedDialog dialog;
    RecordedWindow<QDialog> window(dialog.m_log);
    QWidget widget;
    if (bound)
        dialog.Attach(handleOf(isDialog ? &window : &widget));
    if (bound && isDialog)
        dialog.Detach();
    dialog.m_nModalResult = 7;
    QCOMPARE(dialog.DoModal(), INT_PTR(0));
    QCOMPARE(dialog.m_nModalResult, 7);
    QVERIFY(dialog.m_log.isEmpty());
    QVERIFY(!window.isVisible() && !widget.isVisible());
}

/// A QBaseDialog that gives Escape to its CDialog, as ported windows do.
class ForwardingWindow : public QBaseDialog
{
public:
    void OnCancel() override
    {
        ++m_cancels;
        if (m_code != 0)
            m_dialog->EndDialog(m_code);
        else
            m_dialog->OnCancel();
    }

    CDialog *m_dialog = nullptr;
    int m_code = 0;
    int m_cancels = 0;
};

void tst_CDialogDoModal::escapeComesToTheOverride_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("result");

    QTest::newRow("override cancels") << 0 << 2;
    QTest::newRow("override ends with a code") << 5 << 5;
}

void tst_CDialogDoModal::escapeComesToTheOverride()
{
    QFETCH(int, code);
    QFETCH(int, result);

    CDialog dialog;
    ForwardingWindow window;
    window.m_dialog = &dialog;
    window.m_code = code;
    dialog.Attach(handleOf(&window));
    const ModalDriver driver(ModalDriver::type(Qt::Key_Escape));
    QCOMPARE(dialog.DoModal(), INT_PTR(result));
    QCOMPARE(window.m_cancels, 1);
}

void tst_CDialogDoModal::endDialogInInit()
{
    RecordedDialog dialog;
    RecordedWindow<QDialog> window(dialog.m_log);
    dialog.Attach(handleOf(&window));
    dialog.m_inInit = [&] { dialog.EndDialog(7); };
    // The window is shown all the same, and the code stands whatever ends it.
    const ModalDriver driver(ModalDriver::type(Qt::Key_Escape));
    QCOMPARE(dialog.DoModal(), INT_PTR(7));
    const QStringList log{QStringLiteral("init -100"), QStringLiteral("load"), QStringLiteral("accept"),
                          QStringLiteral("exec"), QStringLiteral("reject")};
    QCOMPARE(dialog.m_log, log);
}

void tst_CDialogDoModal::laterEndDialogInInitIsReplaced()
{
    RecordedDialog dialog;
    QDialog window;
    dialog.Attach(handleOf(&window));
    dialog.m_inInit = [&] { dialog.EndDialog(7); };
    const ModalDriver driver([&](QWidget *) { dialog.EndDialog(8); });
    QCOMPARE(dialog.DoModal(), INT_PTR(8));
}

void tst_CDialogDoModal::dialogFromADialog()
{
    CDialog outer;
    QBaseDialog outerWindow;
    outer.Attach(handleOf(&outerWindow));
    CDialog inner;
    QBaseDialog innerWindow(&outerWindow);
    inner.Attach(handleOf(&innerWindow));

    const ModalDriver outerDriver([&](QWidget *) {
        const ModalDriver innerDriver([&](QWidget *shown) {
            QCOMPARE(shown, &innerWindow);
            inner.EndDialog(11);
        });
        QCOMPARE(inner.DoModal(), INT_PTR(11));
        QCOMPARE(outer.m_nModalResult, -100);
        QVERIFY(outerWindow.isVisible());
        outer.EndDialog(12);
    });
    QCOMPARE(outer.DoModal(), INT_PTR(12));
    QCOMPARE(inner.m_nModalResult, 11);
}

void tst_CDialogDoModal::bindingStaysBetweenRuns()
{
    RecordedDialog dialog;
    RecordedWindow<QBaseDialog> window(dialog.m_log);
    dialog.Attach(handleOf(&window));
    {
        const ModalDriver driver([&](QWidget *) { dialog.EndDialog(7); });
        QCOMPARE(dialog.DoModal(), INT_PTR(7));
    }
    QCOMPARE(HWND(dialog), handleOf(&window));
    QCOMPARE(CWnd::FromHandle(handleOf(&window)), static_cast<CWnd *>(&dialog));
    QTimer::singleShot(0, &window, &QDialog::reject);
    // The former code is forgotten.
    QCOMPARE(dialog.DoModal(), INT_PTR(2));
    QCOMPARE(dialog.m_log.count(QStringLiteral("init -100")), 2);
}

void tst_CDialogDoModal::thousandRuns()
{
    RecordedDialog dialog;
    QBaseDialog window;
    QLineEdit edit(&window);
    dialog.Attach(handleOf(&window));
    dialog.SetDlgItem(100, handleOf(&edit));
    dialog.m_inInit = [&] { dialog.SetDlgItemTextW(100, L"text"); };
    const auto run = [&](int code) {
        QTimer::singleShot(0, &window, [&dialog, code] { dialog.EndDialog(code); });
        return dialog.DoModal();
    };
    QCOMPARE(run(-1), INT_PTR(-1));

    const auto registered = CWndHandleTable.size();
    const auto children = window.children().size();
    for (int code = 0; code < 1000; ++code)
        QCOMPARE(run(code), INT_PTR(code));
    QCOMPARE(CWndHandleTable.size(), registered);
    QCOMPARE(window.children().size(), children);
    QCOMPARE(QApplication::topLevelWidgets(), QWidgetList{&window});
}

void tst_CDialogDoModal::deletedOnClose_data()
{
    QTest::addColumn<End>("end");
    QTest::addColumn<int>("result");

    QTest::newRow("EndDialog") << End([](RecordedDialog &dialog, QDialog &) { dialog.EndDialog(7); }) << 7;
    QTest::newRow("OnOK") << End([](RecordedDialog &dialog, QDialog &) { dialog.OnOK(); }) << 1;
    QTest::newRow("accepted") << End([](RecordedDialog &, QDialog &window) { window.accept(); }) << 1;
    QTest::newRow("closed") << End([](RecordedDialog &, QDialog &window) { window.close(); }) << 2;
}

void tst_CDialogDoModal::deletedOnClose()
{
    QFETCH(End, end);
    QFETCH(int, result);

    const std::initializer_list<QDialog *> windows{new QDialog, new QBaseDialog};
    for (QDialog *made : windows) {
        const QPointer<QDialog> window = made;
        window->setAttribute(Qt::WA_DeleteOnClose);
        RecordedDialog dialog;
        dialog.Attach(handleOf(window));
        const ModalDriver driver([&](QWidget *) { end(dialog, *window); });
        QCOMPARE(dialog.DoModal(), INT_PTR(result));
        QVERIFY(!window);
        QCOMPARE(HWND(dialog), HWND());
        QCOMPARE(dialog.DoModal(), INT_PTR(0));
    }
}

void tst_CDialogDoModal::deletedWhileRunning_data()
{
    QTest::addColumn<bool>("ended");
    QTest::addColumn<int>("result");

    QTest::newRow("before its end") << false << 2;
    QTest::newRow("after EndDialog") << true << 7;
}

void tst_CDialogDoModal::deletedWhileRunning()
{
    QFETCH(bool, ended);
    QFETCH(int, result);

    const std::initializer_list<QDialog *> windows{new QDialog, new QBaseDialog};
    for (QDialog *window : windows) {
        RecordedDialog dialog;
        dialog.Attach(handleOf(window));
        const ModalDriver driver([&](QWidget *shown) {
            if (ended)
                dialog.EndDialog(7);
            delete shown;
        });
        QCOMPARE(dialog.DoModal(), INT_PTR(result));
    }
}

void tst_CDialogDoModal::deletedInInit()
{
    auto *window = new QDialog;
    RecordedDialog dialog;
    dialog.Attach(handleOf(window));
    dialog.m_inInit = [&] { delete window; };
    QCOMPARE(dialog.DoModal(), INT_PTR(2));
}

QTEST_MAIN(tst_CDialogDoModal)
#include "tst_CDialogDoModal.moc"
