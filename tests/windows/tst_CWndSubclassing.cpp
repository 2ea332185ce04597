#include "KxWindowPrivate.h"
#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QLabel>
#include <QtTest>

#include <memory>

namespace {
class SubclassedWnd : public CWnd
{
public:
    void PreSubclassWindow() override
    {
        ++subclassed;
        parentSeen = GetParent();
        idSeen = GetDlgCtrlID();
    }

    int subclassed = 0;
    const CWnd *parentSeen = nullptr;
    int idSeen = 0;
};
} // namespace

class tst_CWndSubclassing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void subclassDlgItem();
    void subclassDlgItemReplacesWrapper();
    void subclassDlgItemRefuses_data();
    void subclassDlgItemRefuses();
    void subclassDlgItemOfBoundObject();
    void subclassDlgItemOfDetachedParent();
    void subclassDlgItemOfNullHandle();
    void subclassDlgItemOfHighId();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndSubclassing::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndSubclassing::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndSubclassing::subclassDlgItem()
{
    QWidget dialog;
    auto *label = new QLabel(&dialog);
    CWnd parent;
    parent.SetHandle(handleOf(&dialog));
    parent.SetDlgItem(7, handleOf(label));

    SubclassedWnd control;
    QCOMPARE(control.SubclassDlgItem(7, &parent), TRUE);
    QCOMPARE(HWND(control), handleOf(label));
    QCOMPARE(control.GetParent(), &parent);
    QCOMPARE(control.GetDlgCtrlID(), 7);
    QCOMPARE(CWnd::FromHandle(handleOf(label)), &control);
    QCOMPARE(parent.GetDlgItem(7), &control);
    QCOMPARE(control.subclassed, 1);
    QCOMPARE(control.parentSeen, &parent);
    QCOMPARE(control.idSeen, 7);
}

void tst_CWndSubclassing::subclassDlgItemReplacesWrapper()
{
    QWidget dialog;
    auto *label = new QLabel(&dialog);
    CWnd parent;
    parent.SetHandle(handleOf(&dialog));
    parent.SetDlgItem(7, handleOf(label));
    parent.GetDlgItem(7);
    const auto registered = CWndHandleTable.size();

    CWnd control;
    QCOMPARE(control.SubclassDlgItem(7, &parent), TRUE);
    QCOMPARE(CWnd::FromHandle(handleOf(label)), &control);
    QCOMPARE(parent.GetDlgItem(7), &control);
    QCOMPARE(CWndHandleTable.size(), registered);
}

void tst_CWndSubclassing::subclassDlgItemRefuses_data()
{
    QTest::addColumn<bool>("withParent");
    QTest::addColumn<bool>("parentBound");

    QTest::newRow("null parent") << false << false;
    QTest::newRow("unbound parent without controls") << true << false;
    QTest::newRow("unknown identifier") << true << true;
}

void tst_CWndSubclassing::subclassDlgItemRefuses()
{
    QFETCH(bool, withParent);
    QFETCH(bool, parentBound);
    QWidget dialog;
    CWnd parent;
    if (parentBound)
        parent.SetHandle(handleOf(&dialog));
    parent.SetDlgItem(7, handleOf(&dialog));
    SubclassedWnd control;
    QCOMPARE(control.SubclassDlgItem(8, withParent ? &parent : nullptr), FALSE);
    QVERIFY(!control.m_hWnd);
    QVERIFY(!CWndPrivate::of(&control)->m_pParentWnd);
    QCOMPARE(control.subclassed, 0);
}

void tst_CWndSubclassing::subclassDlgItemOfBoundObject()
{
    QWidget dialog;
    auto *label = new QLabel(&dialog);
    CWnd parent;
    parent.SetHandle(handleOf(&dialog));
    SubclassedWnd control;
    control.SetHandle(handleOf(label));

    // Whether the identifier is known is not even asked; a null parent is refused before that.
    QCOMPARE(control.SubclassDlgItem(7, &parent), TRUE);
    QCOMPARE(control.SubclassDlgItem(7, nullptr), FALSE);
    QVERIFY(!control.GetParent());
    QCOMPARE(control.GetDlgCtrlID(), -1);
    QCOMPARE(control.subclassed, 0);

    control.Detach();
    QCOMPARE(control.SubclassDlgItem(7, &parent), TRUE);
    QCOMPARE(control.subclassed, 0);
}

void tst_CWndSubclassing::subclassDlgItemOfDetachedParent()
{
    QWidget dialog;
    auto *label = new QLabel(&dialog);
    CWnd parent;
    parent.SetHandle(handleOf(&dialog));
    parent.SetDlgItem(7, handleOf(label));
    parent.Detach();
    CWnd control;
    QCOMPARE(control.SubclassDlgItem(7, &parent), TRUE);
    QCOMPARE(HWND(control), handleOf(label));
    QCOMPARE(control.GetParent(), &parent);
}

void tst_CWndSubclassing::subclassDlgItemOfNullHandle()
{
    QWidget dialog;
    CWnd parent;
    parent.SetHandle(handleOf(&dialog));
    parent.SetDlgItem(7, nullptr);
    SubclassedWnd control;
    QCOMPARE(control.SubclassDlgItem(7, &parent), TRUE);
    QVERIFY(!control.m_hWnd);
    QCOMPARE(control.subclassed, 1);
}

void tst_CWndSubclassing::subclassDlgItemOfHighId()
{
    QWidget dialog;
    auto *label = new QLabel(&dialog);
    CWnd parent;
    parent.SetHandle(handleOf(&dialog));
    parent.SetDlgItem(-1, handleOf(label));
    CWnd control;
    QCOMPARE(control.SubclassDlgItem(0xFFFFFFFFu, &parent), TRUE);
    QCOMPARE(control.GetDlgCtrlID(), -1);
    QCOMPARE(HWND(control), handleOf(label));
}

QTEST_MAIN(tst_CWndSubclassing)
#include "tst_CWndSubclassing.moc"
