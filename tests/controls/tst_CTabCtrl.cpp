#include "BoundControl.h"
#include "HiddenAddress.h"
#include "KxCommonControls.h"
#include "LeftBehind.h"
#include "WidgetWatch.h"

#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <climits>
#include <memory>

namespace {
// A tab widget with pages whose texts are "0", "1" ...
struct Tabs : BoundControl<CTabCtrl, QTabWidget>
{
    explicit Tabs(int count, int current = 0)
    {
        for (int i = 0; i < count; ++i)
            widget.addTab(new QWidget, QString::number(i));
        widget.setCurrentIndex(current);
    }

    QString texts() const
    {
        QString all;
        for (int i = 0; i < widget.count(); ++i)
            all += widget.tabText(i) + QLatin1Char(' ');
        return all.trimmed();
    }
};

const QString currentChanged = QStringLiteral("currentChanged(int)");
} // namespace

class tst_CTabCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tabQueries();
    void selectTab_data();
    void selectTab();
    void selectTabWhereThereIsNone();
    void activateTabOfBlockedWidget();
    void addTab_data();
    void addTab();
    void addTabSilently();
    void addTabOfNoPage();
    void deleteTab_data();
    void deleteTab();
    void deleteAllTabs();
    void insertItem();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CTabCtrl::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CTabCtrl::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CTabCtrl::tabQueries()
{
    Tabs empty(0);
    QCOMPARE(empty.control.GetCurSel(), -1);
    QCOMPARE(empty.control.GetActiveTab(), -1);
    QCOMPARE(empty.control.GetItemCount(), 0);
    Tabs tabs(3, 2);
    QCOMPARE(tabs.control.GetCurSel(), 2);
    QCOMPARE(tabs.control.GetActiveTab(), 2);
    QCOMPARE(tabs.control.GetItemCount(), 3);
}

void tst_CTabCtrl::selectTab_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("after");

    // The tab with index 1 of 3 is current.
    QTest::newRow("smallest") << INT_MIN << 1;
    QTest::newRow("-1") << -1 << 1;
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("current") << 1 << 1;
    QTest::newRow("last") << 2 << 2;
    QTest::newRow("count") << 3 << 1;
    QTest::newRow("count + 1") << 4 << 1;
    QTest::newRow("largest") << INT_MAX << 1;
}

void tst_CTabCtrl::selectTab()
{
    QFETCH(int, index);
    QFETCH(int, after);
    const bool changes = after != 1;
    Tabs tabs(3, 1);
    const WidgetWatch watch(&tabs.widget);
    QCOMPARE(tabs.control.SetCurSel(index), 1);
    QCOMPARE(tabs.widget.currentIndex(), after);
    QCOMPARE(watch.emitted(), changes ? QStringList{currentChanged} : QStringList());
    QCOMPARE(watch.isUntouched(), !changes);

    Tabs active(3, 1);
    const WidgetWatch activeWatch(&active.widget);
    QCOMPARE(active.control.SetActiveTab(index), 1);
    QCOMPARE(active.widget.currentIndex(), after);
    QCOMPARE(active.widget.currentWidget(), active.widget.widget(after));
    QVERIFY(activeWatch.emitted().isEmpty());
    QCOMPARE(activeWatch.isUntouched(), !changes);
    QVERIFY(!active.widget.signalsBlocked());
}

void tst_CTabCtrl::selectTabWhereThereIsNone()
{
    Tabs tabs(0);
    const WidgetWatch watch(&tabs.widget);
    for (const int index : {-1, 0, 1}) {
        QCOMPARE(tabs.control.SetCurSel(index), -1);
        QCOMPARE(tabs.control.SetActiveTab(index), -1);
    }
    QVERIFY(watch.isUntouched());
}

void tst_CTabCtrl::activateTabOfBlockedWidget()
{
    Tabs tabs(3);
    tabs.widget.blockSignals(true);
    tabs.control.SetActiveTab(2);
    QVERIFY(tabs.widget.signalsBlocked());
    CWnd page;
    page.SetHandle(handleOf(new QWidget));
    page.SetAutoDelete(true, true);
    tabs.control.AddTab(0, 0, 0, &page);
    QVERIFY(tabs.widget.signalsBlocked());
    QCOMPARE(tabs.widget.count(), 4);
}

void tst_CTabCtrl::addTab_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("place");

    QTest::newRow("smallest, at the end") << INT_MIN << 3;
    QTest::newRow("-1, at the end") << -1 << 3;
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("middle") << 1 << 1;
    QTest::newRow("count") << 3 << 3;
    QTest::newRow("count + 1, at the end") << 4 << 3;
    QTest::newRow("largest, at the end") << INT_MAX << 3;
}

void tst_CTabCtrl::addTab()
{
    QFETCH(int, index);
    QFETCH(int, place);
    Tabs tabs(3, 1);
    QWidget *current = tabs.widget.currentWidget();
    auto *widget = new QWidget;
    CWnd page;
    page.SetHandle(handleOf(widget));
    const WidgetWatch watch(&tabs.widget);
    tabs.control.AddTab(index, 101, 7, &page);
    QCOMPARE(tabs.widget.count(), 4);
    QCOMPARE(tabs.widget.indexOf(widget), place);
    // There is no string resource 101.
    QCOMPARE(tabs.widget.tabText(place), QString());
    QVERIFY(tabs.widget.tabIcon(place).isNull());
    QCOMPARE(tabs.widget.currentWidget(), current);
    QVERIFY(watch.emitted().isEmpty());
    QVERIFY(!tabs.widget.signalsBlocked());
}

void tst_CTabCtrl::addTabSilently()
{
    Tabs tabs(0);
    CWnd page;
    auto *widget = new QWidget;
    page.SetHandle(handleOf(widget));
    // The handle counts, so that a detached page is one.
    page.Detach();
    const WidgetWatch watch(&tabs.widget);
    tabs.control.AddTab(0, -1, -1, &page);
    QCOMPARE(tabs.widget.currentWidget(), widget);
    QVERIFY(watch.emitted().isEmpty());
}

void tst_CTabCtrl::addTabOfNoPage()
{
    Tabs tabs(1);
    CWnd unbound;
    CWnd destroyed;
    auto *widget = new QWidget;
    destroyed.SetHandle(handleOf(widget));
    delete widget;
    const WidgetWatch watch(&tabs.widget);
    for (CWnd *page : {objectAt<CWnd>(0), objectAt<CWnd>(4095), &unbound, &destroyed})
        tabs.control.AddTab(0, 101, 0, page);
    QVERIFY(watch.isUntouched());
    QCOMPARE(tabs.texts(), QStringLiteral("0"));
}

void tst_CTabCtrl::deleteTab_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("left");
    QTest::addColumn<bool>("told");

    // The tab with index 1 of 3 is current.
    const QString all = QStringLiteral("0 1 2");
    QTest::newRow("smallest") << INT_MIN << 0 << all << false;
    QTest::newRow("-1") << -1 << 0 << all << false;
    QTest::newRow("first") << 0 << 1 << QStringLiteral("1 2") << true;
    QTest::newRow("current") << 1 << 1 << QStringLiteral("0 2") << true;
    QTest::newRow("last") << 2 << 1 << QStringLiteral("0 1") << false;
    QTest::newRow("count removes nothing") << 3 << 1 << all << false;
    QTest::newRow("count + 1") << 4 << 0 << all << false;
    QTest::newRow("largest") << INT_MAX << 0 << all << false;
}

void tst_CTabCtrl::deleteTab()
{
    QFETCH(int, index);
    QFETCH(QString, left);
    QFETCH(bool, told);
    Tabs tabs(3, 1);
    const QPointer<QWidget> page = tabs.widget.widget(index);
    const WidgetWatch watch(&tabs.widget);
    QTEST(tabs.control.DeleteItem(index), "result");
    QCOMPARE(tabs.texts(), left);
    QCOMPARE(watch.emitted(), told ? QStringList{currentChanged} : QStringList());
    if (tabs.widget.count() == 3)
        QVERIFY(watch.isUntouched());
    else
        QVERIFY(page && tabs.widget.isAncestorOf(page));
}

void tst_CTabCtrl::deleteAllTabs()
{
    Tabs tabs(2);
    const QPointer<QWidget> page = tabs.widget.widget(0);
    QCOMPARE(tabs.control.DeleteAllItems(), TRUE);
    QCOMPARE(tabs.widget.count(), 0);
    QVERIFY(page && tabs.widget.isAncestorOf(page));
    QCOMPARE(tabs.control.DeleteAllItems(), TRUE);
    // The count, with which DeleteItem() removes nothing.
    QCOMPARE(tabs.control.DeleteItem(0), TRUE);
    QCOMPARE(tabs.control.DeleteItem(1), FALSE);
}

void tst_CTabCtrl::insertItem()
{
    Tabs tabs(2);
    wchar_t text[] = L"text";
    TCITEMW item{TCIF_TEXT, 0, 0, text, 0, 0, 0};
    const WidgetWatch watch(&tabs.widget);
    for (const int index : {INT_MIN, -1, 0, 1, 2, INT_MAX}) {
        QCOMPARE(tabs.control.InsertItem(index, text), 0);
        QCOMPARE(tabs.control.InsertItem(index, &item), 0);
    }
    QVERIFY(watch.isUntouched());
    QCOMPARE(tabs.texts(), QStringLiteral("0 1"));
}

QTEST_MAIN(tst_CTabCtrl)
#include "tst_CTabCtrl.moc"
