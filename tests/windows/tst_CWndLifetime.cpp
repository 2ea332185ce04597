#include "KxWindowPrivate.h"
#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <memory>
#include <optional>

namespace {
class CountedWnd : public CWnd
{
public:
    ~CountedWnd() override { ++destroyed; }

    static int destroyed;
};
int CountedWnd::destroyed = 0;

// Binds another object to its handle when it goes.
class BindingWnd : public CountedWnd
{
public:
    explicit BindingWnd(CWnd &other)
        : m_other(other)
    {
    }
    ~BindingWnd() override { m_other.SetHandle(m_hWnd); }

private:
    CWnd &m_other;
};

// Hands in private data of its own and tells when they go.
struct OwnPrivate : CWndPrivate
{
    explicit OwnPrivate(int &count)
        : destroyed(count)
    {
    }
    ~OwnPrivate() override { ++destroyed; }
    int &destroyed;
};

class OwnPrivateWnd : public CWnd
{
public:
    OwnPrivateWnd(CWndPrivate &d, CWnd *parent)
        : CWnd(d, parent)
    {
    }
};

// Makes labels one after the other at one address: a new control often gets that of one that is gone.
class LabelPlace
{
public:
    HWND make(const QString &text)
    {
        m_label.reset();
        return handleOf(&m_label.emplace(text));
    }

private:
    std::optional<QLabel> m_label;
};
} // namespace

class tst_CWndLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void constructionWithPrivateData();
    void setAutoDelete_data();
    void setAutoDelete();
    void destructorDeletesWidget_data();
    void destructorDeletesWidget();
    void destructorOfUnboundKeepsWidget();
    void destructorDeletesWrappersOfChildren();
    void destructorKeepsApplicationChildren();
    void destructorOfWindowListedAsItsOwnChild();
    void destructorOfWrapperTree();
    void widgetDiesFirst();
    void windowDiesFirst();
    void widgetDiesBeforeAutoDelete();
    void widgetOfDetachedObjectDies();
    void addressOfDestroyedWidgetIsUsedAgain();
    void applicationObjectServesTheNewWidgetOfItsHandle();
    void renewedObjectDoesNotOwnTheNewWidget();
    void ignoredRegistrationRenewsNoObject();
    void detachedObjectStaysUnboundAtAReusedAddress();
    void destructorThatBindsAnotherObject();
    void handleThatIsNoAddress_data();
    void handleThatIsNoAddress();
    void boundObjectOfReusedAddress();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndLifetime::init()
{
    CountedWnd::destroyed = 0;
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndLifetime::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndLifetime::constructionWithPrivateData()
{
    int destroyed = 0;
    CWnd parent;
    auto *d = new OwnPrivate(destroyed);
    {
        const OwnPrivateWnd window(*d, &parent);
        QCOMPARE(CWndPrivate::of(&window), d);
        QCOMPARE(d->q_ptr, &window);
        QCOMPARE(d->m_pParentWnd, &parent);
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_CWndLifetime::setAutoDelete_data()
{
    QTest::addColumn<bool>("first");
    QTest::addColumn<bool>("second");
    QTest::addColumn<bool>("permanent");
    QTest::addColumn<bool>("keepWidget");

    QTest::newRow("false, false") << false << false << false << true;
    QTest::newRow("false, true") << false << true << false << false;
    QTest::newRow("true, false") << true << false << true << true;
    QTest::newRow("true, true") << true << true << true << false;
}

void tst_CWndLifetime::setAutoDelete()
{
    QFETCH(bool, first);
    QFETCH(bool, second);
    CWnd unbound;
    unbound.SetAutoDelete(first, second);
    QTEST(CWndPrivate::of(&unbound)->m_bPermanent, "permanent");
    QTEST(CWndPrivate::of(&unbound)->m_bKeepWidget, "keepWidget");
}

void tst_CWndLifetime::destructorDeletesWidget_data()
{
    QTest::addColumn<bool>("second");
    QTest::addColumn<bool>("widgetDies");

    QTest::newRow("kept") << false << false;
    QTest::newRow("deleted") << true << true;
}

void tst_CWndLifetime::destructorDeletesWidget()
{
    QFETCH(bool, second);
    const QPointer<QLabel> label = new QLabel;
    auto *window = new CWnd;
    window->SetHandle(handleOf(label));
    window->SetAutoDelete(true, second);
    delete window;
    QTEST(label.isNull(), "widgetDies");
    delete label;
}

void tst_CWndLifetime::destructorOfUnboundKeepsWidget()
{
    QLabel label;
    {
        CWnd window;
        window.SetHandle(handleOf(&label));
        window.SetAutoDelete(true, true);
        window.Detach();
    }
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));
    label.setText(QStringLiteral("alive"));
}

void tst_CWndLifetime::destructorDeletesWrappersOfChildren()
{
    QWidget dialog;
    auto *label = new QLabel(&dialog);
    auto *button = new QPushButton(&dialog);
    auto *given = new CountedWnd;
    {
        CWnd window;
        window.SetHandle(handleOf(&dialog));
        window.SetDlgItem(1, handleOf(label));
        window.SetDlgItem(2, handleOf(button));
        window.SetDlgItem(3, nullptr);
        QVERIFY(window.GetDlgItem(1));
        given->SetHandle(handleOf(button));
        given->SetAutoDelete(false, false);
        QCOMPARE(CWnd::FromHandle(handleOf(label)), window.GetDlgItem(1));
    }
    QVERIFY(!CWnd::FromHandle(handleOf(label)));
    QVERIFY(!CWnd::FromHandle(handleOf(button)));
    QCOMPARE(CountedWnd::destroyed, 1);
    QCOMPARE(dialog.children().size(), 2);
}

void tst_CWndLifetime::destructorKeepsApplicationChildren()
{
    QWidget dialog;
    auto *label = new QLabel(&dialog);
    CountedWnd child;
    child.SetHandle(handleOf(label));
    {
        CWnd window;
        window.SetHandle(handleOf(&dialog));
        window.SetDlgItem(1, handleOf(label));
        QCOMPARE(window.GetDlgItem(1), &child);
    }
    QCOMPARE(CountedWnd::destroyed, 0);
    QCOMPARE(CWnd::FromHandle(handleOf(label)), &child);
    QCOMPARE(HWND(child), handleOf(label));
}

void tst_CWndLifetime::destructorOfWindowListedAsItsOwnChild()
{
    QWidget widget;
    auto *window = new CountedWnd;
    window->SetHandle(handleOf(&widget));
    window->SetAutoDelete(false, false);
    window->SetDlgItem(1, handleOf(&widget));
    QCOMPARE(window->GetDlgItem(1), window);
    delete window;
    QCOMPARE(CountedWnd::destroyed, 1);
}

void tst_CWndLifetime::destructorOfWrapperTree()
{
    QWidget top;
    auto *middle = new QWidget(&top);
    auto *leaf = new QWidget(middle);
    {
        CWnd window;
        window.SetHandle(handleOf(&top));
        window.SetDlgItem(1, handleOf(middle));
        CWnd *wrapper = window.GetDlgItem(1);
        wrapper->SetDlgItem(1, handleOf(leaf));
        wrapper->SetDlgItem(2, handleOf(middle));
        QVERIFY(wrapper->GetDlgItem(1));
    }
    QVERIFY(!CWnd::FromHandle(handleOf(middle)));
    QVERIFY(!CWnd::FromHandle(handleOf(leaf)));
}

void tst_CWndLifetime::widgetDiesFirst()
{
    auto *label = new QLabel(QStringLiteral("text"));
    const HWND handle = handleOf(label);
    CWnd window;
    window.SetHandle(handle);
    delete label;

    QVERIFY(!HWND(window));
    QCOMPARE(window.GetSafeHwnd(), handle);
    QCOMPARE(CWnd::FromHandle(handle), &window);
    QCOMPARE(window.GetWindowTextLengthW(), 0);
    QVERIFY(!window.Detach());
    QCOMPARE(window.Attach(handle), TRUE);
    QVERIFY(!HWND(window));
}

void tst_CWndLifetime::windowDiesFirst()
{
    QLabel label(QStringLiteral("text"));
    {
        CWnd window;
        window.SetHandle(handleOf(&label));
    }
    QVERIFY(!CWnd::FromHandle(handleOf(&label)));
    QCOMPARE(label.text(), QStringLiteral("text"));
}

void tst_CWndLifetime::widgetDiesBeforeAutoDelete()
{
    auto *label = new QLabel;
    const HWND handle = handleOf(label);
    {
        CWnd window;
        window.SetHandle(handle);
        window.SetAutoDelete(true, true);
        delete label;
    }
    QVERIFY(!CWnd::FromHandle(handle));
}

void tst_CWndLifetime::widgetOfDetachedObjectDies()
{
    auto *label = new QLabel;
    const HWND handle = handleOf(label);
    {
        CWnd window;
        window.SetHandle(handle);
        window.Detach();
        delete label;
        QCOMPARE(window.GetSafeHwnd(), handle);
        QCOMPARE(CWnd::FromHandle(handle), &window);
    }
    QVERIFY(!CWnd::FromHandle(handle));
}

void tst_CWndLifetime::addressOfDestroyedWidgetIsUsedAgain()
{
    LabelPlace place;
    const HWND handle = place.make(QStringLiteral("former"));
    QWidget dialog;
    CWnd window;
    window.SetHandle(handleOf(&dialog));
    window.SetDlgItem(1, handle);
    QVERIFY(HWND(*window.GetDlgItem(1)));

    QCOMPARE(place.make(QStringLiteral("new")), handle);
    window.SetDlgItem(2, handle);
    CString text;
    window.GetDlgItemTextW(2, text);
    QCOMPARE(QString::fromStdWString(text), QStringLiteral("new"));
    QCOMPARE(window.GetDlgItem(2)->GetDlgCtrlID(), 2);
}

void tst_CWndLifetime::applicationObjectServesTheNewWidgetOfItsHandle()
{
    LabelPlace place;
    const HWND handle = place.make(QStringLiteral("former"));
    QWidget dialog;
    CWnd window;
    CWnd control;
    window.SetHandle(handleOf(&dialog));
    control.SetHandle(handle);
    place.make(QStringLiteral("new"));
    QVERIFY(!HWND(control));

    window.SetDlgItem(1, handle);
    QCOMPARE(window.GetDlgItem(1), &control);
    QCOMPARE(HWND(control), handle);
    QCOMPARE(control.GetWindowTextLengthW(), 3);
}

void tst_CWndLifetime::renewedObjectDoesNotOwnTheNewWidget()
{
    LabelPlace place;
    const HWND handle = place.make(QStringLiteral("former"));
    QWidget dialog;
    CWnd window;
    CWnd control;
    window.SetHandle(handleOf(&dialog));
    control.SetAutoDelete(true, true);
    control.SetHandle(handle);
    place.make(QStringLiteral("new"));
    QVERIFY(!CWndPrivate::of(&control)->m_bKeepWidget);

    window.SetDlgItem(1, handle);
    QCOMPARE(HWND(control), handle);
    QVERIFY(CWndPrivate::of(&control)->m_bKeepWidget);
}

void tst_CWndLifetime::ignoredRegistrationRenewsNoObject()
{
    LabelPlace place;
    const HWND handle = place.make(QStringLiteral("former"));
    QWidget dialog;
    QLabel first;
    CWnd window;
    CWnd control;
    window.SetHandle(handleOf(&dialog));
    window.SetDlgItem(1, handleOf(&first));
    control.SetHandle(handle);
    place.make(QStringLiteral("new"));

    QCOMPARE(window.SetDlgItem(1, handle), TRUE);
    QVERIFY(!HWND(control));
}

void tst_CWndLifetime::destructorThatBindsAnotherObject()
{
    QWidget widget;
    CWnd bound;
    CWnd boundMeanwhile;
    auto *object = new BindingWnd(boundMeanwhile);
    object->SetAutoDelete(false, false);
    object->SetHandle(handleOf(&widget));

    bound.SetHandle(handleOf(&widget));
    QCOMPARE(CountedWnd::destroyed, 1);
    QCOMPARE(CWnd::FromHandle(handleOf(&widget)), &bound);
    QCOMPARE(HWND(bound), handleOf(&widget));
}

void tst_CWndLifetime::detachedObjectStaysUnboundAtAReusedAddress()
{
    LabelPlace place;
    const HWND handle = place.make(QStringLiteral("former"));
    QWidget dialog;
    CWnd window;
    CWnd control;
    window.SetHandle(handleOf(&dialog));
    control.SetHandle(handle);
    control.Detach();
    place.make(QStringLiteral("new"));

    window.SetDlgItem(1, handle);
    QVERIFY(!HWND(control));
}

void tst_CWndLifetime::handleThatIsNoAddress_data()
{
    QTest::addColumn<quintptr>("handle");
    QTest::newRow("1") << quintptr(1);
    QTest::newRow("0x1000") << quintptr(0x1000);
    QTest::newRow("0xFFFF") << quintptr(0xFFFF);
}

void tst_CWndLifetime::handleThatIsNoAddress()
{
    QFETCH(quintptr, handle);
    const HWND h = reinterpret_cast<HWND>(handle);
    QWidget dialog;
    CWnd parent;
    parent.SetHandle(handleOf(&dialog));
    QVERIFY(parent.SetDlgItem(1, h));
    QVERIFY(!HWND(*parent.GetDlgItem(1)));

    CWnd window;
    QVERIFY(window.Attach(h));
    QCOMPARE(window.GetSafeHwnd(), h);
    QCOMPARE(CWnd::FromHandle(h), &window);
    QVERIFY(!HWND(window));
}

void tst_CWndLifetime::boundObjectOfReusedAddress()
{
    LabelPlace place;
    const HWND handle = place.make(QStringLiteral("former"));
    CWnd former;
    former.SetHandle(handle);
    place.make(QStringLiteral("new"));

    CWnd window;
    window.SetHandle(handle);
    QVERIFY(!HWND(former));
    QCOMPARE(HWND(window), handle);
    QCOMPARE(window.GetWindowTextLengthW(), 3);
    QCOMPARE(CWnd::FromHandle(handle), &former);
}

QTEST_MAIN(tst_CWndLifetime)
#include "tst_CWndLifetime.moc"
