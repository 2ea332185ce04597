#include "KxDialogs.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QCheckBox>
#include <QLabel>
#include <QtTest>

#include <memory>

namespace {
class FailingDialog : public CDialog
{
public:
    void DoDataExchange(CDataExchange *pDX) override
    {
        ++runs;
        pDX->Fail();
    }

    int runs = 0;
};
} // namespace

using DialogCall = qint64 (*)(CDialog &);
Q_DECLARE_METATYPE(DialogCall)

class tst_GuardWidgetClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void dialogMember_data();
    void dialogMember();
    void buttonMember_data();
    void buttonMember();
    void handleOutlivesTheBinding();
    void dataExchangeRunsUnbound();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_GuardWidgetClass::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_GuardWidgetClass::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_GuardWidgetClass::dialogMember_data()
{
    QTest::addColumn<DialogCall>("call");

    QTest::newRow("DoModal") << DialogCall([](CDialog &dialog) { return qint64(dialog.DoModal()); });
    QTest::newRow("OnOK") << DialogCall([](CDialog &dialog) {
        dialog.OnOK();
        return qint64(0);
    });
    QTest::newRow("OnCancel") << DialogCall([](CDialog &dialog) {
        dialog.OnCancel();
        return qint64(0);
    });
    QTest::newRow("EndDialog") << DialogCall([](CDialog &dialog) {
        dialog.EndDialog(7);
        return qint64(0);
    });
}

void tst_GuardWidgetClass::dialogMember()
{
    QFETCH(DialogCall, call);
    QWidget widget;
    CDialog dialog;
    dialog.SetHandle(handleOf(&widget));
    QCOMPARE(call(dialog), qint64(0));
    QCOMPARE(dialog.m_nModalResult, -100);
    QCOMPARE(HWND(dialog), handleOf(&widget));
    QVERIFY(widget.isHidden());
}

using ButtonCall = qint64 (*)(CWnd &, int);
Q_DECLARE_METATYPE(ButtonCall)

void tst_GuardWidgetClass::buttonMember_data()
{
    QTest::addColumn<ButtonCall>("call");
    QTest::addColumn<qint64>("resultForButton");

    QTest::newRow("IsDlgButtonChecked")
        << ButtonCall([](CWnd &window, int id) { return qint64(window.IsDlgButtonChecked(id)); })
        << qint64(1);
    QTest::newRow("GetCheckedRadioButton")
        << ButtonCall([](CWnd &window, int id) { return qint64(window.GetCheckedRadioButton(id, id)); })
        << qint64(100);
    QTest::newRow("CheckDlgButton") << ButtonCall([](CWnd &window, int id) {
        window.CheckDlgButton(id, BST_UNCHECKED);
        return qint64(window.IsDlgButtonChecked(id));
    }) << qint64(0);
    QTest::newRow("CheckRadioButton") << ButtonCall([](CWnd &window, int id) {
        window.CheckRadioButton(id, id, id);
        return qint64(window.IsDlgButtonChecked(id));
    }) << qint64(1);
}

void tst_GuardWidgetClass::buttonMember()
{
    QFETCH(ButtonCall, call);
    QFETCH(qint64, resultForButton);
    QWidget widget;
    QCheckBox box(&widget);
    QLabel label(QStringLiteral("kept"), &widget);
    box.setChecked(true);
    CWnd window;
    window.SetHandle(handleOf(&widget));
    window.SetDlgItem(100, handleOf(&box));
    window.SetDlgItem(200, handleOf(&label));
    QCOMPARE(call(window, 200), qint64(0));
    QCOMPARE(label.text(), QStringLiteral("kept"));
    QCOMPARE(call(window, 100), resultForButton);
}

void tst_GuardWidgetClass::handleOutlivesTheBinding()
{
    auto *label = new QLabel;
    const HWND handle = handleOf(label);
    CWnd window;
    QVERIFY(!window.GetSafeHwnd());
    window.SetHandle(handle);
    QCOMPARE(window.GetSafeHwnd(), handle);
    window.Detach();
    QCOMPARE(window.GetSafeHwnd(), handle);
    delete label;
    QCOMPARE(window.GetSafeHwnd(), handle);
}

void tst_GuardWidgetClass::dataExchangeRunsUnbound()
{
    FailingDialog dialog;
    QCOMPARE(dialog.UpdateData(TRUE), FALSE);
    QCOMPARE(dialog.UpdateData(FALSE), FALSE);
    QCOMPARE(dialog.OnInitDialog(), TRUE);
    dialog.OnOK();
    QCOMPARE(dialog.runs, 4);
    QCOMPARE(dialog.m_nModalResult, -100);
}

QTEST_MAIN(tst_GuardWidgetClass)
#include "tst_GuardWidgetClass.moc"
