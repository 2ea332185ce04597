#include "ExchangeForm.h"

#include <QApplication>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include <type_traits>

static constexpr int controlID = ExchangeForm::controlID;

static_assert(std::is_same_v<decltype(CDataExchange::m_bSaveAndValidate), bool>);
static_assert(std::is_same_v<decltype(CDataExchange::m_bFail), bool>);

/// A control that counts how often it was told of its binding.
class CountingControl : public CWnd
{
public:
    void PreSubclassWindow() override { ++m_subclassed; }

    int m_subclassed = 0;
};

/// A dialog that records its exchanges and fails them on demand.
class RecordingDialog : public CDialog
{
public:
    void DoDataExchange(CDataExchange *pDX) override
    {
        m_window = pDX->m_pDlgWnd;
        m_directions.append(pDX->m_bSaveAndValidate);
        if (m_fail)
            pDX->Fail();
        m_passedFail = true;
        DDX_Text(pDX, controlID, m_number);
    }

    CWnd *m_window = nullptr;
    QVector<bool> m_directions;
    bool m_fail = false;
    bool m_passedFail = false;
    int m_number = 5;
};

class tst_CDataExchange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void fields_data();
    void fields();
    void failSetsTheFlagOnly();
    void prepareEditCtrl();
    void prepareEditCtrlAfterDetach();

    void updateDataDirection_data();
    void updateDataDirection();
    void updateDataFails();
    void updateDataUnbound();
    void updateDataOfCWnd();
    void formWithoutTheControl();
    void validationDoesNothing_data();
    void validationDoesNothing();

    void controlBinds_data();
    void controlBinds();
    void controlBoundAlready();
    void controlReplacesAnApplicationObject();
    void controlUnknown();
};

void tst_CDataExchange::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_CDataExchange::fields_data()
{
    QTest::addColumn<bool>("save");

    QTest::newRow("save") << true;
    QTest::newRow("load") << false;
}

void tst_CDataExchange::fields()
{
    QFETCH(bool, save);

    CWnd window;
    const CDataExchange exchange(&window, save);
    QCOMPARE(exchange.m_bSaveAndValidate, save);
    QCOMPARE(exchange.m_bEditLastControl, true);
    QCOMPARE(exchange.m_bFail, false);
    QCOMPARE(exchange.m_pDlgWnd, &window);
    QVERIFY(!CDataExchange(nullptr, save).m_pDlgWnd);
}

void tst_CDataExchange::failSetsTheFlagOnly()
{
    CWnd window;
    CDataExchange exchange(&window, true);
    exchange.Fail();
    QCOMPARE(exchange.m_bFail, true);
    QCOMPARE(exchange.m_bSaveAndValidate, true);
    QCOMPARE(exchange.m_bEditLastControl, true);
    exchange.Fail();
    QCOMPARE(exchange.m_bFail, true);
}

void tst_CDataExchange::prepareEditCtrl()
{
    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    CDialog unbound;
    CDataExchange exchange(&form, true);
    QCOMPARE(exchange.PrepareEditCtrl(controlID), handleOf(edit));
    QCOMPARE(exchange.PrepareEditCtrl(controlID + 1), HWND());
    QCOMPARE(CDataExchange(nullptr, true).PrepareEditCtrl(controlID), HWND());
    QCOMPARE(CDataExchange(&unbound, true).PrepareEditCtrl(controlID), HWND());
    QVERIFY(!exchange.m_bFail);
}

void tst_CDataExchange::prepareEditCtrlAfterDetach()
{
    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    CWnd control;
    control.Attach(handleOf(edit));
    control.Detach();
    // A detached control still tells the handle that it had.
    QCOMPARE(CDataExchange(&form, true).PrepareEditCtrl(controlID), handleOf(edit));
}

void tst_CDataExchange::updateDataDirection_data()
{
    QTest::addColumn<int>("argument");
    QTest::addColumn<bool>("save");

    QTest::newRow("FALSE") << 0 << false;
    QTest::newRow("TRUE") << 1 << true;
    QTest::newRow("other non-zero") << 256 << true;
    QTest::newRow("negative") << -1 << true;
}

void tst_CDataExchange::updateDataDirection()
{
    QFETCH(int, argument);
    QFETCH(bool, save);

    RecordingDialog dialog;
    QCOMPARE(dialog.UpdateData(argument), TRUE);
    QCOMPARE(dialog.m_directions, QVector<bool>{save});
    QCOMPARE(dialog.m_window, static_cast<CWnd *>(&dialog));
}

void tst_CDataExchange::updateDataFails()
{
    QWidget form;
    QLineEdit edit(QStringLiteral("42"), &form);
    RecordingDialog dialog;
    dialog.Attach(handleOf(&form));
    dialog.SetDlgItem(controlID, handleOf(&edit));
    dialog.m_fail = true;
    // What follows Fail() still runs, in both directions.
    QCOMPARE(dialog.UpdateData(TRUE), FALSE);
    QVERIFY(dialog.m_passedFail);
    QCOMPARE(dialog.m_number, 42);
    dialog.m_number = 7;
    QCOMPARE(dialog.UpdateData(FALSE), FALSE);
    QCOMPARE(edit.text(), QStringLiteral("7"));

    dialog.m_fail = false;
    QCOMPARE(dialog.UpdateData(TRUE), TRUE);
}

void tst_CDataExchange::updateDataUnbound()
{
    RecordingDialog dialog;
    QCOMPARE(dialog.UpdateData(TRUE), TRUE);
    QCOMPARE(dialog.m_directions.size(), 1);
    QCOMPARE(dialog.m_number, 5);
    dialog.m_fail = true;
    QCOMPARE(dialog.UpdateData(TRUE), FALSE);
}

void tst_CDataExchange::updateDataOfCWnd()
{
    CWnd window;
    QCOMPARE(window.UpdateData(), TRUE);
    QCOMPARE(window.UpdateData(FALSE), TRUE);
}

void tst_CDataExchange::formWithoutTheControl()
{
    QWidget form;
    RecordingDialog dialog;
    dialog.Attach(handleOf(&form));
    QCOMPARE(dialog.UpdateData(FALSE), TRUE);
    QCOMPARE(dialog.UpdateData(TRUE), TRUE);
    QCOMPARE(dialog.m_number, 5);
}

void tst_CDataExchange::validationDoesNothing_data()
{
    fields_data();
}

void tst_CDataExchange::validationDoesNothing()
{
    QFETCH(bool, save);

    CWnd window;
    CDataExchange exchange(&window, save);
    DDV_MinMaxInt(&exchange, 500, 0, 10);
    DDV_MinMaxDouble(&exchange, -1.5, 0.0, 1.0);
    DDV_MaxChars(&exchange, CString(L"too long"), 3);
    QVERIFY(!exchange.m_bFail);
    DDV_MinMaxInt(nullptr, 500, 0, 10);
    DDV_MinMaxDouble(nullptr, -1.5, 0.0, 1.0);
    DDV_MaxChars(nullptr, CString(L"too long"), 3);
}

void tst_CDataExchange::controlBinds_data()
{
    fields_data();
}

void tst_CDataExchange::controlBinds()
{
    QFETCH(bool, save);

    ExchangeForm form;
    auto *slider = form.add<QSlider>();
    const CWnd *wrapper = form.GetDlgItem(controlID);
    QCOMPARE(CWnd::FromHandle(handleOf(slider)), wrapper);

    CountingControl control;
    CDataExchange exchange(&form, save);
    DDX_Control(&exchange, controlID, control);
    QCOMPARE(HWND(control), handleOf(slider));
    QCOMPARE(control.m_subclassed, 1);
    QCOMPARE(control.GetParent(), static_cast<CWnd *>(&form));
    QCOMPARE(control.GetDlgCtrlID(), controlID);
    // It took the place of the library's wrapper.
    QCOMPARE(form.GetDlgItem(controlID), static_cast<CWnd *>(&control));

    DDX_Control(&exchange, controlID, control);
    QCOMPARE(control.m_subclassed, 1);
}

void tst_CDataExchange::controlBoundAlready()
{
    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    auto *other = form.add<QLineEdit>(controlID + 1);
    CountingControl control;
    control.Attach(handleOf(other));
    CDataExchange exchange(&form, false);
    DDX_Control(&exchange, controlID, control);
    QCOMPARE(HWND(control), handleOf(other));
    QCOMPARE(control.m_subclassed, 0);
    QVERIFY(CWnd::FromHandle(handleOf(edit)) != &control);

    // A detached object keeps its handle and is not bound again.
    control.Detach();
    DDX_Control(&exchange, controlID, control);
    QCOMPARE(HWND(control), HWND());
    QCOMPARE(control.GetSafeHwnd(), handleOf(other));
}

void tst_CDataExchange::controlReplacesAnApplicationObject()
{
    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    CWnd first;
    first.Attach(handleOf(edit));
    CountingControl second;
    CDataExchange exchange(&form, false);
    DDX_Control(&exchange, controlID, second);
    QCOMPARE(HWND(second), handleOf(edit));
    QCOMPARE(second.m_subclassed, 1);
    QCOMPARE(HWND(first), HWND());
    // The application's object keeps its registration.
    QCOMPARE(CWnd::FromHandle(handleOf(edit)), &first);
}

void tst_CDataExchange::controlUnknown()
{
    ExchangeForm form;
    CountingControl control;
    CDataExchange exchange(&form, false);
    DDX_Control(&exchange, controlID, control);
    QCOMPARE(control.GetSafeHwnd(), HWND());
    QCOMPARE(control.m_subclassed, 0);

    auto *edit = form.add<QLineEdit>();
    DDX_Control(&exchange, controlID, control);
    QCOMPARE(HWND(control), handleOf(edit));
}

QTEST_MAIN(tst_CDataExchange)
#include "tst_CDataExchange.moc"
