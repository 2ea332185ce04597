#include "DialogOfLabels.h"
#include "KxWindowPrivate.h"
#include "LeftBehind.h"

#include <QtTest>

#include <climits>
#include <memory>

class tst_CWndLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void setDlgItem();
    void setDlgItemKeepsTheFirstHandle();
    void setDlgItemUnbound();
    void setDlgItemSameHandleUnderTwoIds();

    void getDlgItemMakesWrapper();
    void getDlgItemFindsApplicationObject();
    void getDlgItemUnknown();
    void getDlgItemOfNullHandle();
    void getDlgItemOfDetachedObject();
    void getDlgItemMovesToTheLastAsker();
    void getDlgItemWithHandlePointer();
    void anyId_data();
    void anyId();

    void childDestroyedBeforeTheFirstLookup();
    void childDestroyedAfterTheFirstLookup();
    void childOfTwoWindows();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndLookup::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndLookup::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndLookup::setDlgItem()
{
    DialogOfLabels dialog({});
    QLabel label;
    QVERIFY(dialog.window.SetDlgItem(7, handleOf(&label)) != FALSE);
    QCOMPARE(HWND(*dialog.window.GetDlgItem(7)), handleOf(&label));
    QCOMPARE(CWndPrivate::of(&dialog.window)->m_mapChildren.size(), std::size_t(1));
}

void tst_CWndLookup::setDlgItemKeepsTheFirstHandle()
{
    DialogOfLabels dialog({});
    QLabel first;
    QLabel second;
    dialog.window.SetDlgItem(7, handleOf(&first));
    QCOMPARE(dialog.window.SetDlgItem(7, handleOf(&second)), 1);
    QCOMPARE(dialog.window.SetDlgItem(7, nullptr), 1);
    QCOMPARE(HWND(*dialog.window.GetDlgItem(7)), handleOf(&first));
    QVERIFY(!CWnd::FromHandle(handleOf(&second)));
}

void tst_CWndLookup::setDlgItemUnbound()
{
    QLabel label;
    CWnd window;
    QCOMPARE(window.SetDlgItem(7, handleOf(&label)), 0);
    QVERIFY(CWndPrivate::of(&window)->m_mapChildren.empty());
}

void tst_CWndLookup::setDlgItemSameHandleUnderTwoIds()
{
    DialogOfLabels dialog({});
    QLabel label;
    dialog.window.SetDlgItem(1, handleOf(&label));
    dialog.window.SetDlgItem(2, handleOf(&label));
    CWnd *item = dialog.window.GetDlgItem(1);
    QCOMPARE(item->GetDlgCtrlID(), 1);
    QCOMPARE(dialog.window.GetDlgItem(2), item);
    QCOMPARE(item->GetDlgCtrlID(), 2);
}

void tst_CWndLookup::getDlgItemMakesWrapper()
{
    DialogOfLabels dialog({});
    QLabel label;
    dialog.window.SetDlgItem(7, handleOf(&label));
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));

    CWnd *item = dialog.window.GetDlgItem(7);
    QVERIFY(item);
    QCOMPARE(HWND(*item), handleOf(&label));
    QCOMPARE(item->GetParent(), &dialog.window);
    QCOMPARE(item->GetDlgCtrlID(), 7);
    QVERIFY(!CWndPrivate::of(item)->m_bPermanent);
    QCOMPARE(CWnd::FromHandle(handleOf(&label)), item);
    QCOMPARE(dialog.window.GetDlgItem(7), item);
    QCOMPARE(dialog.window.GetDlgItem(7), item);
}

void tst_CWndLookup::getDlgItemFindsApplicationObject()
{
    DialogOfLabels dialog({});
    QLabel label;
    CWnd child;
    child.SetHandle(handleOf(&label));
    dialog.window.SetDlgItem(7, handleOf(&label));
    QCOMPARE(child.GetDlgCtrlID(), -1);

    QCOMPARE(dialog.window.GetDlgItem(7), &child);
    QCOMPARE(child.GetParent(), &dialog.window);
    QCOMPARE(child.GetDlgCtrlID(), 7);
    QVERIFY(CWndPrivate::of(&child)->m_bPermanent);
}

void tst_CWndLookup::getDlgItemUnknown()
{
    DialogOfLabels dialog({1});
    DialogOfLabels other({});
    CWnd *placeholder = dialog.window.GetDlgItem(2);
    QVERIFY(placeholder);
    QVERIFY(!HWND(*placeholder));
    QVERIFY(!placeholder->GetSafeHwnd());
    QCOMPARE(placeholder->GetDlgCtrlID(), 0);
    QVERIFY(!placeholder->GetParent());
    QCOMPARE(dialog.window.GetDlgItem(2), placeholder);
    QCOMPARE(dialog.window.GetDlgItem(3), placeholder);
    QCOMPARE(other.window.GetDlgItem(1), placeholder);

    // Ported code chains whatever it likes; nothing of that may stick.
    placeholder->SetCtrlID(9);
    placeholder->SetParent(&dialog.window);
    placeholder->SetWindowTextW(L"text");
    QCOMPARE(placeholder->EnableWindow(FALSE), TRUE);
    QVERIFY(!placeholder->GetParent());
    QCOMPARE(placeholder->GetDlgCtrlID(), 0);
    QVERIFY(!placeholder->GetDlgItem(1));
}

void tst_CWndLookup::getDlgItemOfNullHandle()
{
    DialogOfLabels dialog({});
    QVERIFY(dialog.window.SetDlgItem(7, nullptr) != FALSE);
    QCOMPARE(dialog.window.GetDlgItem(7), dialog.window.GetDlgItem(8));
    QVERIFY(!HWND(*dialog.window.GetDlgItem(7)));

    QLabel label;
    QCOMPARE(dialog.window.SetDlgItem(7, handleOf(&label)), 1);
    QVERIFY(!HWND(*dialog.window.GetDlgItem(7)));
}

void tst_CWndLookup::getDlgItemOfDetachedObject()
{
    DialogOfLabels dialog({});
    QLabel label;
    CWnd child;
    child.SetHandle(handleOf(&label));
    dialog.window.SetDlgItem(7, handleOf(&label));
    child.Detach();

    // It stays registered, so no wrapper takes its place and nothing can be recorded in it.
    QCOMPARE(dialog.window.GetDlgItem(7), &child);
    QVERIFY(!CWndPrivate::of(&child)->m_pParentWnd);
    QCOMPARE(CWndPrivate::of(&child)->m_nCtrlID, -1);
}

void tst_CWndLookup::getDlgItemMovesToTheLastAsker()
{
    QLabel label;
    DialogOfLabels first({});
    first.window.SetDlgItem(1, handleOf(&label));
    CWnd *item = first.window.GetDlgItem(1);
    {
        DialogOfLabels second({});
        second.window.SetDlgItem(2, handleOf(&label));
        QCOMPARE(second.window.GetDlgItem(2), item);
        QCOMPARE(item->GetParent(), &second.window);
        QCOMPARE(item->GetDlgCtrlID(), 2);
    }
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));
}

void tst_CWndLookup::getDlgItemWithHandlePointer()
{
    DialogOfLabels dialog({});
    QLabel label;
    QLabel other;
    dialog.window.SetDlgItem(7, handleOf(&label));
    HWND handle = handleOf(&other);
    dialog.window.GetDlgItem(7, &handle);
    QCOMPARE(handle, handleOf(&other));

    const CWnd *item = CWnd::FromHandle(handleOf(&label));
    QVERIFY(item);
    QCOMPARE(item->GetDlgCtrlID(), 7);
    QCOMPARE(item->GetParent(), &dialog.window);
    dialog.window.GetDlgItem(7, nullptr);
    dialog.window.GetDlgItem(8, &handle);
    QCOMPARE(handle, handleOf(&other));
}

void tst_CWndLookup::anyId_data()
{
    QTest::addColumn<int>("id");

    QTest::newRow("zero") << 0;
    QTest::newRow("IDC_STATIC, -1") << -1;
    QTest::newRow("smallest") << INT_MIN;
    QTest::newRow("largest") << INT_MAX;
    QTest::newRow("above 16 bits") << 0x10001;
}

void tst_CWndLookup::anyId()
{
    QFETCH(int, id);
    DialogOfLabels dialog({1, id});
    CWnd *item = dialog.window.GetDlgItem(id);
    QCOMPARE(textOf(item), QString::number(id));
    QCOMPARE(item->GetDlgCtrlID(), id);
    QCOMPARE(dialog.window.GetDescendantWindow(id, TRUE), item);
    QCOMPARE(textOf(dialog.window.GetDlgItem(1)), QStringLiteral("1"));
}

void tst_CWndLookup::childDestroyedBeforeTheFirstLookup()
{
    DialogOfLabels dialog({});
    auto *label = new QLabel;
    const HWND handle = handleOf(label);
    dialog.window.SetDlgItem(7, handle);
    delete label;

    CWnd *item = dialog.window.GetDlgItem(7);
    QVERIFY(item);
    QVERIFY(!HWND(*item));
    item->SetWindowTextW(L"text");
    QVERIFY(!CWnd::FromHandle(handle));
    QCOMPARE(CWndPrivate::of(&dialog.window)->m_mapChildren.size(), std::size_t(1));
    CWnd control;
    QCOMPARE(control.SubclassDlgItem(7, &dialog.window), FALSE);
    QVERIFY(!control.m_hWnd);
}

void tst_CWndLookup::childDestroyedAfterTheFirstLookup()
{
    auto *label = new QLabel;
    const HWND handle = handleOf(label);
    {
        DialogOfLabels dialog({});
        dialog.window.SetDlgItem(7, handle);
        CWnd *item = dialog.window.GetDlgItem(7);
        delete label;

        QCOMPARE(dialog.window.GetDlgItem(7), item);
        QVERIFY(!HWND(*item));
        QCOMPARE(item->GetSafeHwnd(), handle);
        QCOMPARE(CWnd::FromHandle(handle), item);
        QCOMPARE(dialog.window.IsDlgButtonChecked(7), 0u);
    }
    QVERIFY(!CWnd::FromHandle(handle));
}

void tst_CWndLookup::childOfTwoWindows()
{
    QLabel label;
    DialogOfLabels first({});
    first.window.SetDlgItem(1, handleOf(&label));
    {
        DialogOfLabels second({});
        second.window.SetDlgItem(1, handleOf(&label));
        QVERIFY(second.window.GetDlgItem(1));
    }
    // The wrapper went with the second window; the first one makes itself another.
    QCOMPARE(HWND(*first.window.GetDlgItem(1)), handleOf(&label));
}

QTEST_MAIN(tst_CWndLookup)
#include "tst_CWndLookup.moc"
