#include "DialogOfLabels.h"
#include "LeftBehind.h"

#include <QtTest>

#include <climits>
#include <memory>
#include <set>

class tst_CWndSiblings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nextFromId_data();
    void nextFromId();
    void nextFromIdPastTheMaximum();
    void nextFromIdGivesPlaceholderForNullHandle();
    void nextWindow_data();
    void nextWindow();
    void nextWindowWithoutParent();
    void nextWindowWalksAllControls();
    void getWindow_data();
    void getWindow();
    void getWindowWithoutControls();
    void getDescendantWindow();
    void manyChildren();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndSiblings::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndSiblings::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndSiblings::nextFromId_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("text");

    QTest::newRow("below all") << -100 << QStringLiteral("-5");
    QTest::newRow("smallest int") << INT_MIN << QStringLiteral("-5");
    QTest::newRow("registered, strictly greater") << -5 << QStringLiteral("1");
    QTest::newRow("in a gap") << 2 << QStringLiteral("1000");
    QTest::newRow("just below") << 999 << QStringLiteral("1000");
    QTest::newRow("largest registered") << 1000 << QString();
    QTest::newRow("above all") << 1001 << QString();
    QTest::newRow("largest int") << INT_MAX << QString();
}

void tst_CWndSiblings::nextFromId()
{
    QFETCH(int, id);
    QFETCH(QString, text);
    DialogOfLabels dialog({1000, 1, -5});
    CWnd *next = dialog.window.GetNextCWndFromID(id);
    QCOMPARE(next != nullptr, !text.isNull());
    if (!next)
        return;
    QCOMPARE(textOf(next), text);
    QCOMPARE(next, dialog.window.GetDlgItem(text.toInt()));
    QCOMPARE(next->GetParent(), &dialog.window);
}

void tst_CWndSiblings::nextFromIdPastTheMaximum()
{
    DialogOfLabels dialog({INT_MIN, INT_MAX});
    QCOMPARE(dialog.window.GetNextCWndFromID(INT_MIN), dialog.window.GetDlgItem(INT_MAX));
    QVERIFY(!dialog.window.GetNextCWndFromID(INT_MAX));
}

void tst_CWndSiblings::nextFromIdGivesPlaceholderForNullHandle()
{
    DialogOfLabels dialog({1});
    dialog.window.SetDlgItem(2, nullptr);
    QCOMPARE(dialog.window.GetNextCWndFromID(1), dialog.window.GetDlgItem(99));
}

void tst_CWndSiblings::nextWindow_data()
{
    QTest::addColumn<uint>("flag");
    QTest::addColumn<int>("from");
    QTest::addColumn<QString>("text");

    QTest::newRow("GW_HWNDNEXT") << 2u << 1 << QStringLiteral("2");
    QTest::newRow("GW_HWNDNEXT of the last") << 2u << 3 << QString();
    QTest::newRow("GW_HWNDFIRST") << 0u << 1 << QString();
    QTest::newRow("GW_HWNDLAST") << 1u << 1 << QString();
    QTest::newRow("GW_HWNDPREV") << 3u << 2 << QString();
    QTest::newRow("GW_OWNER") << 4u << 1 << QString();
    QTest::newRow("GW_CHILD") << 5u << 1 << QString();
    QTest::newRow("largest flag") << UINT_MAX << 1 << QString();
}

void tst_CWndSiblings::nextWindow()
{
    QFETCH(uint, flag);
    QFETCH(int, from);
    QFETCH(QString, text);
    DialogOfLabels dialog({1, 2, 3});
    CWnd *next = dialog.window.GetDlgItem(from)->GetNextWindow(flag);
    QCOMPARE(next != nullptr, !text.isNull());
    if (next)
        QCOMPARE(textOf(next), text);
}

void tst_CWndSiblings::nextWindowWithoutParent()
{
    DialogOfLabels dialog({1});
    QVERIFY(!dialog.window.GetNextWindow());

    // A parent that is unbound has no next control either.
    CWnd unbound;
    dialog.window.SetParent(&unbound);
    QVERIFY(!dialog.window.GetNextWindow());
}

void tst_CWndSiblings::nextWindowWalksAllControls()
{
    DialogOfLabels dialog({30, -2, 10, 20});
    QStringList walked;
    for (CWnd *child = dialog.window.GetWindow(GW_CHILD); child && walked.size() < 5;
         child = child->GetNextWindow())
        walked << textOf(child);
    QCOMPARE(walked, QStringList({QStringLiteral("-2"), QStringLiteral("10"), QStringLiteral("20"),
                                  QStringLiteral("30")}));
}

void tst_CWndSiblings::getWindow_data()
{
    QTest::addColumn<uint>("command");
    QTest::addColumn<bool>("found");

    QTest::newRow("GW_CHILD") << 5u << true;
    QTest::newRow("GW_HWNDFIRST") << 0u << false;
    QTest::newRow("GW_HWNDNEXT") << 2u << false;
    QTest::newRow("GW_OWNER") << 4u << false;
    QTest::newRow("GW_ENABLEDPOPUP") << 6u << false;
}

void tst_CWndSiblings::getWindow()
{
    QFETCH(uint, command);
    QFETCH(bool, found);
    DialogOfLabels dialog({5, 3, 4});
    QCOMPARE(dialog.window.GetWindow(command), found ? dialog.window.GetDlgItem(3) : nullptr);
}

void tst_CWndSiblings::getWindowWithoutControls()
{
    DialogOfLabels dialog({});
    QVERIFY(!dialog.window.GetWindow(GW_CHILD));
}

void tst_CWndSiblings::getDescendantWindow()
{
    DialogOfLabels dialog({1, 2});
    dialog.window.GetDlgItem(1)->SetDlgItem(3, handleOf(&dialog.widget));
    CWnd *placeholder = dialog.window.GetDlgItem(99);
    QCOMPARE(dialog.window.GetDescendantWindow(2), dialog.window.GetDlgItem(2));
    QCOMPARE(dialog.window.GetDescendantWindow(2, TRUE), dialog.window.GetDlgItem(2));
    QCOMPARE(dialog.window.GetDescendantWindow(3), placeholder);
}

void tst_CWndSiblings::manyChildren()
{
    constexpr int count = 10000;
    const auto registered = CWndHandleTable.size();
    QWidget widget;
    {
        CWnd window;
        window.SetHandle(handleOf(&widget));
        for (int id = 0; id < count; ++id)
            window.SetDlgItem(id, handleOf(new QWidget(&widget)));
        std::set<CWnd *> items;
        for (int id = 0; id < count; ++id)
            items.insert(window.GetDlgItem(id));
        QCOMPARE(items.size(), std::size_t(count));
        QCOMPARE(CWndHandleTable.size(), registered + count + 1);
        int walked = 0;
        for (CWnd *child = window.GetWindow(GW_CHILD); child && walked <= count;
             child = child->GetNextWindow())
            walked += items.count(child);
        QCOMPARE(walked, count);
    }
    QCOMPARE(CWndHandleTable.size(), registered);
}

QTEST_MAIN(tst_CWndSiblings)
#include "tst_CWndSiblings.moc"
